// Fibre ports with their permitted hosts, and the LANs of the array.
#include <algorithm>
#include <cstring>
#include <iterator>

#include "arraylib/hosts.h"
#include "simulator/simulator.h"

using namespace quorvelsim;

namespace {

constexpr std::int32_t kControllers = 2;
constexpr std::int32_t kNetworkControllers = 4;
constexpr std::int32_t kFibrePorts = 8;
/// The ports of each controller that are in use.
constexpr std::int32_t kFibrePortsInstalled = 4;
/// The last number in the maintenance LAN's address of the first controller; the others follow.
constexpr std::int32_t kFirstHost = 16;
constexpr const char* kMaintenanceLans[] = {"10.0.0.16", "10.0.1.16", "192.168.0.16",
                                            "192.168.1.16", "192.168.2.16"};

struct Lan {
  Lan() {
    for (std::int32_t controller = 0; controller < kControllers; ++controller) {
      const std::string number = std::to_string(controller);
      LANInformation& lan = controllers[controller];
      setText(lan.ip_address, "192.0.2.1" + number);
      setText(lan.subnet, "255.255.255.0");
      setText(lan.gateway, "192.0.2.1");
      setText(lan.ether, "02:00:00:00:01:0" + number);
      lan.lan_connect = 1;
      links[controller].duplex_type = 1;
      links[controller].link_speed = 3;
      numbers.ctl[controller] = {1, 2000, 2000, 28355};

      QVUserLANDetail& detail = user.ctl[controller];
      detail.support_index = 1;
      setText(detail.eather_address, textOf(lan.ether));
      setText(detail.current_ipaddress, textOf(lan.ip_address));
      setText(detail.current_subnet, textOf(lan.subnet));
      setText(detail.current_gateway, textOf(lan.gateway));
    }
  }

  LANInformation controllers[kControllers]{};
  /// Of which only duplex_type and link_speed are used.
  LanDetail links[kControllers]{};
  LANPortNumber numbers{};
  QVUserLANInformation user{};
  /// What was exported, by the name of its file. No file is opened.
  std::map<std::string, QVUserLANInformation> files;
  std::string maintenance = kMaintenanceLans[0];
  /// Both controllers, once they were set.
  std::vector<FibreInformation> fibre;
};

Lan& lanOf(const UnitName* unit) { return findUnit(textOf(*unit))->part<Lan>(); }

bool isController(std::int32_t number) { return number >= 0 && number < kControllers; }

int getLan(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
           LANInformation* information) {
  if (!isController(controller)) {
    return kNothingFound;
  }
  *information = lanOf(unit).controllers[controller];
  return 0;
}

int setLan(const UnitName* unit, const QVSessionInfo*, std::int32_t controller, std::int32_t,
           const LANInformation* information) {
  if (!isController(controller)) {
    return kNothingFound;
  }
  LANInformation& lan = lanOf(unit).controllers[controller];
  const std::string ether = textOf(lan.ether);
  lan = *information;
  lan.mainte_ip_change_mode = lan.mainte_ip_change_mode_new;
  setText(lan.ether, ether);
  return 0;
}

int getLanEx(const UnitName* unit, LANInformationEx* information) {
  const Lan& lan = lanOf(unit);
  *information = {};
  for (std::int32_t controller = 0; controller < kControllers; ++controller) {
    const LANInformation& from = lan.controllers[controller];
    LanDetail& detail = information->ctl[controller];
    detail.dhcp = from.dhcp;
    setText(detail.ip_address, textOf(from.ip_address));
    setText(detail.subnet, textOf(from.subnet));
    setText(detail.gateway, textOf(from.gateway));
    setText(detail.ether, textOf(from.ether));
    detail.duplex_type = lan.links[controller].duplex_type;
    detail.link_speed = lan.links[controller].link_speed;
  }
  return 0;
}

int setLanEx(const UnitName* unit, const LANInformationEx* information) {
  Lan& lan = lanOf(unit);
  for (std::int32_t controller = 0; controller < kControllers; ++controller) {
    const LanDetail& from = information->ctl[controller];
    LANInformation& to = lan.controllers[controller];
    to.dhcp = static_cast<std::uint8_t>(from.dhcp);
    setText(to.ip_address, textOf(from.ip_address));
    setText(to.subnet, textOf(from.subnet));
    setText(to.gateway, textOf(from.gateway));
    lan.links[controller] = from;
  }
  return 0;
}

int getPortNumbers(const UnitName* unit, const QVSessionInfo*, LANPortNumber* numbers) {
  *numbers = lanOf(unit).numbers;
  return 0;
}

int setPortNumbers(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                   const LANPortNumber* numbers) {
  if (!isController(controller)) {
    return kNothingFound;
  }
  LANPortNumber& own = lanOf(unit).numbers;
  own.ctl[controller] = numbers->ctl[controller];
  own.mode = numbers->mode;
  return 0;
}

int getUserLan(const UnitName* unit, const QVSessionInfo*, QVUserLANInformation* information) {
  *information = lanOf(unit).user;
  return 0;
}

/// What is to be set becomes current at once.
int setUserLan(const UnitName* unit, const QVSessionInfo*,
               const QVUserLANInformation* information) {
  QVUserLANInformation& user = lanOf(unit).user;
  for (std::int32_t controller = 0; controller < kControllers; ++controller) {
    const QVUserLANDetail& given = information->ctl[controller];
    QVUserLANDetail& detail = user.ctl[controller];
    detail.dhcp = given.dhcp;
    setText(detail.current_ipaddress, textOf(given.set_ipaddress));
    setText(detail.current_subnet, textOf(given.set_subnet));
    setText(detail.current_gateway, textOf(given.set_gateway));
  }
  user.mainte_ip_change_mode = information->mainte_ip_change_mode;
  user.last_set_mode = information->last_set_mode;
  user.ipv6_used = information->ipv6_used;
  user.set_ipversion = information->set_ipversion;
  return 0;
}

int loadUserLan(const UnitName* unit, const QVSessionInfo*, const FilePath* path,
                QVUserLANInformation* information) {
  const auto& files = lanOf(unit).files;
  const auto found = files.find(textOf(*path));
  if (found == files.end()) {
    return kNothingFound;
  }
  *information = found->second;
  return 0;
}

int exportLan(const UnitName* unit, const QVSessionInfo*, const LANFile* file) {
  Lan& lan = lanOf(unit);
  const std::string name = textOf(file->filename);
  if (name.empty()) {
    return kInvalidName;
  }
  lan.files[name] = lan.user;
  return 0;
}

int importLan(const UnitName* unit, const QVSessionInfo*, const LANFile* file) {
  Lan& lan = lanOf(unit);
  const auto found = lan.files.find(textOf(file->filename));
  if (found == lan.files.end()) {
    return kNothingFound;
  }
  lan.user = found->second;
  return 0;
}

/// The maintenance LAN's address of the host that is `index` behind the first.
std::string maintenanceAddress(const std::string& first, std::int32_t index) {
  return first.substr(0, first.rfind('.') + 1) + std::to_string(kFirstHost + index);
}

int getMaintenanceLan(const UnitName* unit, const QVSessionInfo*, MainteLanInfo* information) {
  const std::string first = lanOf(unit).maintenance;
  *information = {};
  std::int32_t host = 0;
  for (MainteLanInfoDetail& detail : information->ctl) {
    detail.valid_index = 1;
    setText(detail.ip_address, maintenanceAddress(first, host++));
    setText(detail.subnet, "255.255.255.0");
  }
  for (MainteLanInfoDetail& detail : information->nnc) {
    setText(detail.ip_address, maintenanceAddress(first, host++));
    setText(detail.subnet, "255.255.255.0");
  }
  return 0;
}

int setMaintenanceAddress(const UnitName* unit, const QVSessionInfo*,
                          const MainteIPAddress* address) {
  const std::string first = textOf(address->ip_addr);
  if (std::find(std::begin(kMaintenanceLans), std::end(kMaintenanceLans), first) ==
      std::end(kMaintenanceLans)) {
    return kNothingFound;
  }
  lanOf(unit).maintenance = first;
  return 0;
}

int getMaintenanceLans(const UnitName*, const QVSessionInfo*, MainteLanAvailableList* list) {
  *list = {};
  list->available_count = std::size(kMaintenanceLans);
  for (std::size_t index = 0; index < std::size(kMaintenanceLans); ++index) {
    setText(list->available_address[index].ip_addr, kMaintenanceLans[index]);
  }
  list->rule_ipv4_minaddr = 1;
  list->rule_ipv4_maxaddr = 254 - kControllers - kNetworkControllers;
  list->rule_ipv4_addition_value = 1;
  list->rule_ipv4_base_value = kFirstHost;
  std::int32_t host = kFirstHost;
  for (MainteHostAddress& address : list->available_host_ctl) {
    address.host_address = host++;
  }
  for (MainteHostAddress& address : list->available_host_nnc) {
    address.host_address = host++;
  }
  return 0;
}

void firstFibre(std::int32_t controller, FibreInformation& information) {
  std::memset(&information, 0, sizeof information);
  information.port_valid = (1 << kFibrePortsInstalled) - 1;
  setText(information.product_number, "DF00" + std::to_string(controller));
  for (std::int32_t number = 0; number < kFibrePortsInstalled; ++number) {
    FibreInformationPort& port = information.port[number];
    std::string name = "50000000000000";
    name += std::to_string(controller);
    name += std::to_string(number);
    setText(port.node_name, name);
    setText(port.port_name, name);
    setText(port.n_port_id, "0000EF");
    port.frame_size = 2048;
    port.support_speed = 8;
    port.set_speed = 8;
    port.refer_speed = 8;
    setText(information.sfc[number].oper_firmware, "0100");
  }
}

int getFibre(const UnitName* unit, const QVSessionInfo*, FibreInformation (*controllers)[2]) {
  const auto& set = lanOf(unit).fibre;
  for (std::int32_t controller = 0; controller < kControllers; ++controller) {
    if (set.empty()) {
      firstFibre(controller, (*controllers)[controller]);
    } else {
      (*controllers)[controller] = set[static_cast<std::size_t>(controller)];
    }
  }
  return 0;
}

int setFibre(const UnitName* unit, const QVSessionInfo*, const FibreInformation* first,
             const FibreInformation* second) {
  auto& set = lanOf(unit).fibre;
  set.clear();
  set.reserve(kControllers);
  set.push_back(*first);
  set.push_back(*second);
  return 0;
}

/// No file is opened: the two hosts on it are always the same.
int importPermissions(const UnitName*, const FilePath* path, std::int32_t port,
                      FibreInformationPermission (*permissions)[128]) {
  if (textOf(*path).empty() || port < 0 || port >= kFibrePorts) {
    return kNothingFound;
  }
  std::memset(permissions, 0, sizeof *permissions);
  for (std::size_t host = 0; host < 2; ++host) {
    FibreInformationPermission& permission = (*permissions)[host];
    const std::string name = "100000000000000" + std::to_string(host);
    setText(permission.node_name, name);
    setText(permission.port_name, name);
    std::fill(std::begin(permission.lun_security_bitmap), std::end(permission.lun_security_bitmap),
              std::byte{0xFF});
  }
  return 0;
}

}  // namespace

SIMULATE(4, QV_GetLANInformation, getLan)
SIMULATE(5, QV_SetLANInformation, setLan)
SIMULATE(2, QV_GetLANInformationEx, getLanEx)
SIMULATE(2, QV_SetLANInformationEx, setLanEx)
SIMULATE(3, QV_GetLANPortNumber, getPortNumbers)
SIMULATE(4, QV_SetLANPortNumber, setPortNumbers)
SIMULATE(3, QV_GetQVUserLANInformation, getUserLan)
SIMULATE(3, QV_SetQVUserLANInformation, setUserLan)
SIMULATE(4, QV_LoadQVUserLANInformation, loadUserLan)
SIMULATE(3, QV_LANExport, exportLan)
SIMULATE(3, QV_LANImport, importLan)
SIMULATE(3, QV_GetMainteLanInfo, getMaintenanceLan)
SIMULATE(3, QV_SetMainteIPAddress, setMaintenanceAddress)
SIMULATE(3, QV_GetMainteLanAvailableList, getMaintenanceLans)
SIMULATE(3, QV_GetNNCLANInformation)
SIMULATE(3, QV_SetNNCLANInformation)
SIMULATE(3, QV_GetFibreInformation, getFibre)
SIMULATE(4, QV_SetFibreInformation, setFibre)
SIMULATE(4, QV_FibreInfoPermissionImport, importPermissions)
