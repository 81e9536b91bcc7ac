// iSCSI ports with their targets, initiators and CHAP users, iSNS servers, ping and remote paths.
#include "arraylib/hosts.h"
#include "simulator/simulate.h"

using namespace quorvelsim;

namespace {

enum PingStatus : std::int32_t { kPingRunning = 1, kPingDone = 2 };

/// Calls `visit` with each iSCSI port of records that have ports by controller.
template <class Visit, class... All>
void eachPort(Visit visit, All&... all) {
  for (auto controller = 0; controller < kControllers; ++controller) {
    for (auto port = 0; port < kIscsiPorts; ++port) {
      visit(all.ctl[controller].port[port]...);
    }
  }
}

struct Iscsi {
  Iscsi() {
    std::int32_t number = 0;
    eachPort(
        [&](QViSCSIPortPortInfo& port, QViSCSITargetPortInfo& targetsOfPort,
            QViSCSIInitiatorPortInfo& initiatorsOfPort, QViSCSICHAPUserPortInfo& usersOfPort) {
          const std::string place = std::to_string(number++);
          port.port_valid = 1;
          setText(port.ip_address, "192.0.2.10" + place);
          setText(port.subnet, "255.255.255.0");
          setText(port.gateway, "192.0.2.1");
          setText(port.ether, "02:00:00:00:00:0" + place);
          port.port_num = 3260;
          port.keep_alive_timer = 60;
          port.mtu = 1500;
          targetsOfPort.port_valid = 1;
          targetsOfPort.target_max_count = kTargets;
          targetsOfPort.target_count = 1;
          QViSCSITargetInfo& first = targetsOfPort.target[0];
          first.target_valid = 1;
          setText(first.target_name, "T000");
          setText(first.iscsi_name, "iqn.2004-01.example.array:t." + place + ".000");
          initiatorsOfPort.port_valid = 1;
          initiatorsOfPort.initiator_max_count = kInitiators;
          usersOfPort.port_valid = 1;
          usersOfPort.user_max_count = kChapUsers;
        },
        ports, targets, initiators, users);
  }

  QViSCSIPortInformation ports{};
  QViSCSITargetInformationAll targets{};
  QViSCSIInitiatorInformationAll initiators{};
  QViSCSICHAPUserInformationAll users{};
  QViSCSIPing ping{};
};

int getPorts(const UnitName* unit, const QVSessionInfo*, QViSCSIPortInformation* ports) {
  const auto& iscsi = partOf<Iscsi>(unit);
  *ports = iscsi.ports;
  eachPort([](QViSCSIPortPortInfo& port,
              const QViSCSIInitiatorPortInfo& hosts) { port.host_count = hosts.initiator_count; },
           *ports, iscsi.initiators);
  return 0;
}

int setPorts(const UnitName* unit, const QVSessionInfo*, const QViSCSIPortInformation* given) {
  eachPort(
      [](QViSCSIPortPortInfo& port, const QViSCSIPortPortInfo& from) {
        if (from.set_valid != 0) {
          const std::string ether = textOf(port.ether);
          port = from;
          port.port_valid = 1;
          port.set_valid = 0;
          setText(port.ether, ether);
        }
      },
      partOf<Iscsi>(unit).ports, *given);
  return 0;
}

int getTargets(const UnitName* unit, const QVSessionInfo*, QViSCSITargetInformationAll* all) {
  *all = partOf<Iscsi>(unit).targets;
  return 0;
}

int createTarget(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                 std::int32_t number, std::int32_t target, const QViSCSITargetInfo* given) {
  if (!isIscsiPort(controller, number) || target < 0 || target >= kTargets) {
    return kNothingFound;
  }
  QViSCSITargetPortInfo& port = partOf<Iscsi>(unit).targets.ctl[controller].port[number];
  if (port.target[target].target_valid != 0) {
    return kTargetExists;
  }
  if (textOf(given->target_name).empty()) {
    return kInvalidName;
  }
  port.target[target] = *given;
  port.target[target].target_valid = 1;
  ++port.target_count;
  return 0;
}

int deleteTargets(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                  std::int32_t number, const DeleteTargetList* list) {
  if (!isIscsiPort(controller, number)) {
    return kNothingFound;
  }
  QViSCSITargetPortInfo& port = partOf<Iscsi>(unit).targets.ctl[controller].port[number];
  for (std::int32_t target = 0; target < kTargets; ++target) {
    if (list->target[target] != 0) {
      port.target_count -= port.target[target].target_valid;
      port.target[target] = {};
    }
  }
  return 0;
}

int getAllInitiators(const UnitName* unit, const QVSessionInfo*,
                     QViSCSIInitiatorInformationAll* all) {
  *all = partOf<Iscsi>(unit).initiators;
  return 0;
}

int getInitiators(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                  std::int32_t port, QViSCSIInitiatorPortInformation* initiators) {
  if (!isIscsiPort(controller, port)) {
    return kNothingFound;
  }
  initiators->option = 0;
  initiators->port = partOf<Iscsi>(unit).initiators.ctl[controller].port[port];
  return 0;
}

int setInitiators(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                  std::int32_t number, const QViSCSIInitiatorPortInfo* given) {
  if (!isIscsiPort(controller, number)) {
    return kNothingFound;
  }
  QViSCSIInitiatorPortInfo& port = partOf<Iscsi>(unit).initiators.ctl[controller].port[number];
  port.initiator_count = 0;
  for (std::int32_t place = 0; place < kInitiators; ++place) {
    port.initiator[place] = given->initiator[place];
    port.initiator_count += given->initiator[place].initiator_valid != 0 ? 1 : 0;
  }
  return 0;
}

/// Every registered initiator is logged in.
int getLogins(const UnitName* unit, const QVSessionInfo*,
              QViSCSILoginInitiatorInformationAll* all) {
  clear(all);
  eachPort(
      [](QViSCSILoginInitiatorPortInfo& port, const QViSCSIInitiatorPortInfo& registered) {
        port.port_valid = 1;
        port.initiator_max_count = kInitiators;
        for (const QViSCSIInitiatorInfo& initiator : registered.initiator) {
          if (initiator.initiator_valid != 0) {
            QViSCSILoginInitiatorInfo& login = port.initiator[port.initiator_count++];
            login.initiator_valid = 1;
            setText(login.iscsi_name, textOf(initiator.iscsi_name));
          }
        }
      },
      *all, partOf<Iscsi>(unit).initiators);
  return 0;
}

int getAllUsers(const UnitName* unit, const QVSessionInfo*, QViSCSICHAPUserInformationAll* all) {
  *all = partOf<Iscsi>(unit).users;
  return 0;
}

int getUsers(const UnitName* unit, const QVSessionInfo*, std::int32_t controller, std::int32_t port,
             QViSCSICHAPUserPortInformation* users) {
  if (!isIscsiPort(controller, port)) {
    return kNothingFound;
  }
  users->option = 0;
  users->port = partOf<Iscsi>(unit).users.ctl[controller].port[port];
  return 0;
}

int setUsers(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
             std::int32_t number, const QViSCSICHAPUserPortInfo* given) {
  if (!isIscsiPort(controller, number)) {
    return kNothingFound;
  }
  QViSCSICHAPUserPortInfo& port = partOf<Iscsi>(unit).users.ctl[controller].port[number];
  port.user_count = 0;
  for (std::int32_t place = 0; place < kChapUsers; ++place) {
    port.user[place] = given->user[place];
    port.user_count += given->user[place].user_valid != 0 ? 1 : 0;
  }
  return 0;
}

int requestPing(const UnitName* unit, const QVSessionInfo*, const QViSCSIPing* request) {
  QViSCSIPing& ping = partOf<Iscsi>(unit).ping;
  ping = {};
  eachPort(
      [](QViSCSIPingPort& port, const QViSCSIPingPort& given) {
        if (given.request_valid != 0) {
          port = given;
          port.status = kPingRunning;
          port.execute_count = 0;
          port.success_count = 0;
        }
      },
      ping, *request);
  return 0;
}

/// Each question sends one ping more. The hosts of the array's own network answer.
int getPing(const UnitName* unit, const QVSessionInfo*, QViSCSIPing* status) {
  QViSCSIPing& ping = partOf<Iscsi>(unit).ping;
  eachPort(
      [](QViSCSIPingPort& port) {
        port.port_valid = 1;
        if (port.status == kPingRunning && port.execute_count < port.schedule_count) {
          ++port.execute_count;
          port.success_count += textOf(port.ip_address).starts_with("192.0.2.") ? 1 : 0;
        }
        if (port.status == kPingRunning && port.execute_count >= port.schedule_count) {
          port.status = kPingDone;
        }
      },
      ping);
  *status = ping;
  return 0;
}

}  // namespace

SIMULATE(3, QV_GetiSCSIPortInformation, getPorts)
SIMULATE(3, QV_SetiSCSIPortInformation, setPorts)
SIMULATE(3, QV_GetiSCSITargetInformationAll, getTargets)
SIMULATE(6, QV_CreateiSCSITarget, createTarget)
SIMULATE(6, QV_ChangeiSCSITarget)
SIMULATE(5, QV_DeleteiSCSITarget, deleteTargets)
SIMULATE(4, QV_InitiSCSITarget)
SIMULATE(5, QV_ChangeiSCSITargetSecurity)
SIMULATE(3, QV_GetiSCSIInitiatorInformationAll, getAllInitiators)
SIMULATE(5, QV_GetiSCSIInitiatorInformation, getInitiators)
SIMULATE(5, QV_SetiSCSIInitiatortInformation, setInitiators)
SIMULATE(3, QV_GetiSCSILoginInitiatorInformationAll, getLogins)
SIMULATE(3, QV_GetiSCSICHAPUserInformationAll, getAllUsers)
SIMULATE(5, QV_GetiSCSICHAPUserInformation, getUsers)
SIMULATE(5, QV_SetiSCSICHAPUserInformation, setUsers)
SIMULATE(3, QV_iSCSICHAPUserImport)
SIMULATE(3, QV_GetiSNSInformation)
SIMULATE(3, QV_SetiSNSInformation)
SIMULATE(3, QV_RequestiSCSIPing, requestPing)
SIMULATE(3, QV_GetiSCSIPingStatus, getPing)
SIMULATE(3, QV_GetiSCSIRemotePath)
SIMULATE(3, QV_SetiSCSIRemotePath)
SIMULATE(3, QV_DeliSCSIRemotePath)
