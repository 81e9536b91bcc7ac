// iSCSI ports with their targets, initiators and CHAP users, iSNS servers, ping and remote paths.
#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

#include "arraylib/hosts.h"
#include "simulator/simulator.h"

using namespace quorvelsim;

namespace {

constexpr std::int32_t kControllers = 2;
/// The first ports of each controller are iSCSI ports.
constexpr std::int32_t kPortsInstalled = 2;
constexpr std::int32_t kTargets = 255;
constexpr std::int32_t kInitiators = 256;
constexpr std::int32_t kUsers = 512;
constexpr std::int32_t kPingRunning = 1;
constexpr std::int32_t kPingDone = 2;
/// Hosts whose addresses begin so answer to a ping.
constexpr char kReachable[] = "192.0.2.";

/// A controller and its port.
using Port = std::pair<std::int32_t, std::int32_t>;

/// Entries of a fixed list that are in use, by their place.
template <class Info>
using Entries = std::map<std::size_t, Info>;

QViSCSITargetInfo firstTarget(const Port& port) {
  QViSCSITargetInfo target{};
  const std::string place = std::to_string(port.first) + std::to_string(port.second);
  target.target_valid = 1;
  setText(target.target_name, "T000");
  setText(target.iscsi_name, "iqn.2004-01.example.array:t." + place + ".000");
  return target;
}

struct Iscsi {
  Iscsi() {
    for (std::int32_t controller = 0; controller < kControllers; ++controller) {
      for (std::int32_t number = 0; number < kPortsInstalled; ++number) {
        QViSCSIPortPortInfo& port = addresses.ctl[controller].port[number];
        const std::string place = std::to_string(10 * controller + number);
        port.port_valid = 1;
        setText(port.ip_address, "192.0.2." + std::to_string(100 + 10 * controller + number));
        setText(port.subnet, "255.255.255.0");
        setText(port.gateway, "192.0.2.1");
        setText(port.ether, "02:00:00:00:00:" + std::string(2 - place.size(), '0') + place);
        port.port_num = 3260;
        port.keep_alive_timer = 60;
        port.mtu = 1500;
        const Port key{controller, number};
        targets[key][0] = firstTarget(key);
      }
    }
  }

  QViSCSIPortInformation addresses{};
  std::map<Port, Entries<QViSCSITargetInfo>> targets;
  std::map<Port, std::int32_t> security;
  std::map<Port, Entries<QViSCSIInitiatorInfo>> initiators;
  std::map<Port, Entries<QViSCSICHAPUserInfo>> users;
  QViSCSIPing ping{};
  QViSCSIRemotePathInfo paths{};
};

Iscsi& iscsiOf(const UnitName* unit) { return findUnit(textOf(*unit))->part<Iscsi>(); }

bool installed(const Port& port) {
  return port.first >= 0 && port.first < kControllers && port.second >= 0 &&
         port.second < kPortsInstalled;
}

/// Zeros, without a copy of the record on the stack.
template <class Record>
void clear(Record* record) {
  std::memset(record, 0, sizeof *record);
}

template <class Info, std::size_t N>
std::int32_t fill(Info (&list)[N], const Entries<Info>& entries) {
  for (const auto& [place, info] : entries) {
    list[place] = info;
  }
  return static_cast<std::int32_t>(entries.size());
}

/// The entries whose first member, an int, says that they are in use.
template <class Info, std::size_t N>
Entries<Info> inUse(const Info (&list)[N], std::int32_t Info::*valid) {
  Entries<Info> entries;
  for (std::size_t place = 0; place < N; ++place) {
    if (list[place].*valid != 0) {
      entries[place] = list[place];
    }
  }
  return entries;
}

/// Visits the installed ports of a record that is nested by controllers and ports.
template <class All, class Visit>
void eachPort(All& all, Visit visit) {
  for (std::int32_t controller = 0; controller < kControllers; ++controller) {
    for (std::int32_t port = 0; port < kPortsInstalled; ++port) {
      visit(Port{controller, port}, all.ctl[controller].port[port]);
    }
  }
}

int getPorts(const UnitName* unit, const QVSessionInfo*, QViSCSIPortInformation* ports) {
  Iscsi& iscsi = iscsiOf(unit);
  *ports = iscsi.addresses;
  eachPort(*ports, [&](const Port& place, QViSCSIPortPortInfo& port) {
    port.host_count = static_cast<std::int32_t>(iscsi.initiators[place].size());
  });
  return 0;
}

int setPorts(const UnitName* unit, const QVSessionInfo*, const QViSCSIPortInformation* ports) {
  Iscsi& iscsi = iscsiOf(unit);
  eachPort(*ports, [&](const Port& place, const QViSCSIPortPortInfo& given) {
    if (given.set_valid != 0) {
      QViSCSIPortPortInfo& port = iscsi.addresses.ctl[place.first].port[place.second];
      const std::string ether = textOf(port.ether);
      port = given;
      port.port_valid = 1;
      port.set_valid = 0;
      setText(port.ether, ether);
    }
  });
  return 0;
}

int getTargets(const UnitName* unit, const QVSessionInfo*, QViSCSITargetInformationAll* all) {
  Iscsi& iscsi = iscsiOf(unit);
  clear(all);
  eachPort(*all, [&](const Port& place, QViSCSITargetPortInfo& port) {
    port.port_valid = 1;
    port.security = iscsi.security[place];
    port.target_max_count = kTargets;
    port.target_count = fill(port.target, iscsi.targets[place]);
  });
  return 0;
}

int putTarget(const UnitName* unit, const Port& place, std::int32_t number, bool exists,
              const QViSCSITargetInfo& target) {
  if (!installed(place) || number < 0 || number >= kTargets) {
    return kNothingFound;
  }
  auto& targets = iscsiOf(unit).targets[place];
  const auto slot = static_cast<std::size_t>(number);
  if (targets.contains(slot) != exists) {
    return exists ? kNothingFound : kTargetExists;
  }
  if (textOf(target.target_name).empty()) {
    return kInvalidName;
  }
  targets[slot] = target;
  targets[slot].target_valid = 1;
  return 0;
}

int createTarget(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                 std::int32_t port, std::int32_t number, const QViSCSITargetInfo* target) {
  return putTarget(unit, {controller, port}, number, false, *target);
}

int changeTarget(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                 std::int32_t port, std::int32_t number, const QViSCSITargetInfo* target) {
  return putTarget(unit, {controller, port}, number, true, *target);
}

int deleteTargets(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                  std::int32_t port, const DeleteTargetList* list) {
  const Port place{controller, port};
  if (!installed(place)) {
    return kNothingFound;
  }
  std::erase_if(iscsiOf(unit).targets[place],
                [&](const auto& target) { return list->target[target.first] != 0; });
  return 0;
}

int initialiseTargets(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                      std::int32_t port) {
  const Port place{controller, port};
  if (!installed(place)) {
    return kNothingFound;
  }
  iscsiOf(unit).targets[place] = {{0, firstTarget(place)}};
  return 0;
}

int changeSecurity(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                   std::int32_t port, std::int32_t security) {
  const Port place{controller, port};
  if (!installed(place)) {
    return kNothingFound;
  }
  iscsiOf(unit).security[place] = security;
  return 0;
}

void fillInitiators(Iscsi& iscsi, const Port& place, QViSCSIInitiatorPortInfo& port) {
  port.port_valid = 1;
  port.security = iscsi.security[place];
  port.initiator_max_count = kInitiators;
  port.initiator_count = fill(port.initiator, iscsi.initiators[place]);
}

int getAllInitiators(const UnitName* unit, const QVSessionInfo*,
                     QViSCSIInitiatorInformationAll* all) {
  Iscsi& iscsi = iscsiOf(unit);
  clear(all);
  eachPort(*all, [&](const Port& place, auto& port) { fillInitiators(iscsi, place, port); });
  return 0;
}

int getInitiators(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                  std::int32_t port, QViSCSIInitiatorPortInformation* initiators) {
  if (!installed({controller, port})) {
    return kNothingFound;
  }
  clear(initiators);
  fillInitiators(iscsiOf(unit), {controller, port}, initiators->port);
  return 0;
}

int setInitiators(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                  std::int32_t port, const QViSCSIInitiatorPortInfo* given) {
  if (!installed({controller, port})) {
    return kNothingFound;
  }
  iscsiOf(unit).initiators[{controller, port}] =
      inUse(given->initiator, &QViSCSIInitiatorInfo::initiator_valid);
  return 0;
}

/// Every registered initiator is logged in.
int getLogins(const UnitName* unit, const QVSessionInfo*,
              QViSCSILoginInitiatorInformationAll* all) {
  Iscsi& iscsi = iscsiOf(unit);
  clear(all);
  eachPort(*all, [&](const Port& place, QViSCSILoginInitiatorPortInfo& port) {
    port.port_valid = 1;
    port.initiator_max_count = kInitiators;
    for (const auto& [slot, registered] : iscsi.initiators[place]) {
      QViSCSILoginInitiatorInfo& login = port.initiator[port.initiator_count++];
      login.initiator_valid = 1;
      setText(login.iscsi_name, textOf(registered.iscsi_name));
    }
  });
  return 0;
}

void fillUsers(Iscsi& iscsi, const Port& place, QViSCSICHAPUserPortInfo& port) {
  port.port_valid = 1;
  port.security = iscsi.security[place];
  port.user_max_count = kUsers;
  port.user_count = fill(port.user, iscsi.users[place]);
}

int getAllUsers(const UnitName* unit, const QVSessionInfo*, QViSCSICHAPUserInformationAll* all) {
  Iscsi& iscsi = iscsiOf(unit);
  clear(all);
  eachPort(*all, [&](const Port& place, auto& port) { fillUsers(iscsi, place, port); });
  return 0;
}

int getUsers(const UnitName* unit, const QVSessionInfo*, std::int32_t controller, std::int32_t port,
             QViSCSICHAPUserPortInformation* users) {
  if (!installed({controller, port})) {
    return kNothingFound;
  }
  clear(users);
  fillUsers(iscsiOf(unit), {controller, port}, users->port);
  return 0;
}

int setUsers(const UnitName* unit, const QVSessionInfo*, std::int32_t controller, std::int32_t port,
             const QViSCSICHAPUserPortInfo* given) {
  if (!installed({controller, port})) {
    return kNothingFound;
  }
  iscsiOf(unit).users[{controller, port}] = inUse(given->user, &QViSCSICHAPUserInfo::user_valid);
  return 0;
}

/// No file is opened: the one user on it has the file's name.
int importUsers(const UnitName* unit, const QVSessionInfo*, const FilePath* path) {
  const std::string file = textOf(*path);
  if (file.empty()) {
    return kNothingFound;
  }
  auto& users = iscsiOf(unit).users[Port{0, 0}];
  std::size_t slot = 0;
  while (users.contains(slot)) {
    ++slot;
  }
  if (slot < kUsers) {
    users[slot].user_valid = 1;
    setText(users[slot].user_name, file.substr(file.find_last_of("/\\") + 1));
  }
  return 0;
}

int requestPing(const UnitName* unit, const QVSessionInfo*, const QViSCSIPing* request) {
  QViSCSIPing& ping = iscsiOf(unit).ping;
  ping = {};
  eachPort(*request, [&](const Port& place, const QViSCSIPingPort& given) {
    if (given.request_valid != 0) {
      QViSCSIPingPort& port = ping.ctl[place.first].port[place.second];
      port = given;
      port.status = kPingRunning;
      port.execute_count = 0;
      port.success_count = 0;
    }
  });
  return 0;
}

/// Each look at the status is one ping further.
int getPing(const UnitName* unit, const QVSessionInfo*, QViSCSIPing* status) {
  QViSCSIPing& ping = iscsiOf(unit).ping;
  eachPort(ping, [](const Port&, QViSCSIPingPort& port) {
    port.port_valid = 1;
    if (port.status == kPingRunning && port.execute_count < port.schedule_count) {
      ++port.execute_count;
      port.success_count += textOf(port.ip_address).starts_with(kReachable) ? 1 : 0;
    }
    if (port.status == kPingRunning && port.execute_count >= port.schedule_count) {
      port.status = kPingDone;
    }
  });
  *status = ping;
  return 0;
}

/// The paths to the array of that serial number, or those not in use where it is empty; else null.
QViSCSIRemotePath* findPath(QViSCSIRemotePathInfo& paths, const std::string& serial) {
  auto* const found =
      std::find_if(std::begin(paths.arrayunit), std::end(paths.arrayunit),
                   [&](const auto& path) { return textOf(path.other_serial_no) == serial; });
  return found == std::end(paths.arrayunit) ? nullptr : found;
}

int getPaths(const UnitName* unit, const QVSessionInfo*, QViSCSIRemotePathInfo* paths) {
  *paths = iscsiOf(unit).paths;
  return 0;
}

int setPath(const UnitName* unit, const QVSessionInfo*, const QViSCSIRemotePath* path) {
  QViSCSIRemotePathInfo& paths = iscsiOf(unit).paths;
  const std::string serial = textOf(path->other_serial_no);
  if (serial.empty()) {
    return kInvalidName;
  }
  QViSCSIRemotePath* slot = findPath(paths, serial);
  slot = slot == nullptr ? findPath(paths, "") : slot;
  if (slot == nullptr) {
    return kTooManyPaths;
  }
  *slot = *path;
  slot->path_valid = 1;
  return 0;
}

int deletePath(const UnitName* unit, const QVSessionInfo*, const QViSCSIRemotePath* path) {
  const std::string serial = textOf(path->other_serial_no);
  QViSCSIRemotePath* const slot = serial.empty() ? nullptr : findPath(iscsiOf(unit).paths, serial);
  if (slot == nullptr) {
    return kNothingFound;
  }
  *slot = {};
  return 0;
}

}  // namespace

SIMULATE(3, QV_GetiSCSIPortInformation, getPorts)
SIMULATE(3, QV_SetiSCSIPortInformation, setPorts)
SIMULATE(3, QV_GetiSCSITargetInformationAll, getTargets)
SIMULATE(6, QV_CreateiSCSITarget, createTarget)
SIMULATE(6, QV_ChangeiSCSITarget, changeTarget)
SIMULATE(5, QV_DeleteiSCSITarget, deleteTargets)
SIMULATE(4, QV_InitiSCSITarget, initialiseTargets)
SIMULATE(5, QV_ChangeiSCSITargetSecurity, changeSecurity)
SIMULATE(3, QV_GetiSCSIInitiatorInformationAll, getAllInitiators)
SIMULATE(5, QV_GetiSCSIInitiatorInformation, getInitiators)
SIMULATE(5, QV_SetiSCSIInitiatortInformation, setInitiators)
SIMULATE(3, QV_GetiSCSILoginInitiatorInformationAll, getLogins)
SIMULATE(3, QV_GetiSCSICHAPUserInformationAll, getAllUsers)
SIMULATE(5, QV_GetiSCSICHAPUserInformation, getUsers)
SIMULATE(5, QV_SetiSCSICHAPUserInformation, setUsers)
SIMULATE(3, QV_iSCSICHAPUserImport, importUsers)
SIMULATE(3, QV_GetiSNSInformation)
SIMULATE(3, QV_SetiSNSInformation)
SIMULATE(3, QV_RequestiSCSIPing, requestPing)
SIMULATE(3, QV_GetiSCSIPingStatus, getPing)
SIMULATE(3, QV_GetiSCSIRemotePath, getPaths)
SIMULATE(3, QV_SetiSCSIRemotePath, setPath)
SIMULATE(3, QV_DeliSCSIRemotePath, deletePath)
