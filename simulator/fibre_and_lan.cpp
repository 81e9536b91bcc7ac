// Fibre Channel ports with their permitted hosts, and the LANs of the array.
#include "arraylib/hosts.h"
#include "simulator/simulate.h"

using namespace quorvelsim;

namespace {

constexpr char kSubnet[] = "255.255.255.0";

/// The LAN of a unit. Its first addresses are those of the registration.
struct Lan {
  bool made = false;
  LANInformation controllers[kControllers]{};
  LANPortNumber numbers{};
};

Lan& lanOf(const UnitName* unit) {
  auto& lan = partOf<Lan>(unit);
  if (!lan.made) {
    const QVUnitParam& param = unitOf(unit).param;
    setText(lan.controllers[0].ip_address, textOf(param.ctl0));
    setText(lan.controllers[1].ip_address, textOf(param.ctl1));
    for (std::int32_t controller = 0; controller < kControllers; ++controller) {
      LANInformation& information = lan.controllers[controller];
      setText(information.subnet, kSubnet);
      setText(information.gateway, "192.0.2.1");
      setText(information.ether, "02:00:00:00:01:0" + std::to_string(controller));
      information.lan_connect = 1;
      lan.numbers.ctl[controller] = {1, kTcpPort, kTcpPort, kSecureTcpPort};
    }
    lan.made = true;
  }
  return lan;
}

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
  clear(information);
  for (std::int32_t controller = 0; controller < kControllers; ++controller) {
    const LANInformation& lan = lanOf(unit).controllers[controller];
    LanDetail& detail = information->ctl[controller];
    detail.dhcp = lan.dhcp;
    setText(detail.ip_address, textOf(lan.ip_address));
    setText(detail.subnet, textOf(lan.subnet));
    setText(detail.gateway, textOf(lan.gateway));
    setText(detail.ether, textOf(lan.ether));
  }
  return 0;
}

int getUserLan(const UnitName* unit, const QVSessionInfo*, QVUserLANInformation* information) {
  clear(information);
  for (std::int32_t controller = 0; controller < kControllers; ++controller) {
    const LANInformation& lan = lanOf(unit).controllers[controller];
    QVUserLANDetail& detail = information->ctl[controller];
    detail.support_index = 1;
    detail.dhcp = lan.dhcp;
    setText(detail.eather_address, textOf(lan.ether));
    setText(detail.current_ipaddress, textOf(lan.ip_address));
    setText(detail.current_subnet, textOf(lan.subnet));
    setText(detail.current_gateway, textOf(lan.gateway));
  }
  return 0;
}

/// New addresses are in use at once.
int setUserLan(const UnitName* unit, const QVSessionInfo*,
               const QVUserLANInformation* information) {
  for (std::int32_t controller = 0; controller < kControllers; ++controller) {
    const QVUserLANDetail& detail = information->ctl[controller];
    LANInformation& lan = lanOf(unit).controllers[controller];
    lan.dhcp = static_cast<std::uint8_t>(detail.dhcp);
    setText(lan.ip_address, textOf(detail.set_ipaddress));
    setText(lan.subnet, textOf(detail.set_subnet));
    setText(lan.gateway, textOf(detail.set_gateway));
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
  lanOf(unit).numbers.ctl[controller] = numbers->ctl[controller];
  return 0;
}

int getMaintenanceLan(const UnitName*, const QVSessionInfo*, MainteLanInfo* information) {
  clear(information);
  for (std::int32_t controller = 0; controller < kControllers; ++controller) {
    MainteLanInfoDetail& detail = information->ctl[controller];
    detail.valid_index = 1;
    setText(detail.ip_address, "10.0.0." + std::to_string(16 + controller));
    setText(detail.subnet, kSubnet);
  }
  return 0;
}

/// The Fibre Channel ports of both controllers.
struct Fibre {
  Fibre() {
    for (std::int32_t controller = 0; controller < kControllers; ++controller) {
      FibreInformation& information = controllers[controller];
      setText(information.product_number, "DF00" + std::to_string(controller));
      for (std::int32_t number = kIscsiPorts; number < kPorts; ++number) {
        information.port_valid |= 1 << number;
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
  }

  FibreInformation controllers[kControllers]{};
};

int getFibre(const UnitName* unit, const QVSessionInfo*,
             FibreInformation (*controllers)[kControllers]) {
  const auto& fibre = partOf<Fibre>(unit);
  std::copy(std::begin(fibre.controllers), std::end(fibre.controllers), *controllers);
  return 0;
}

int setFibre(const UnitName* unit, const QVSessionInfo*, const FibreInformation* first,
             const FibreInformation* second) {
  auto& fibre = partOf<Fibre>(unit);
  fibre.controllers[0] = *first;
  fibre.controllers[1] = *second;
  return 0;
}

/// Returns the same two hosts for every file and opens none.
int importPermissions(const UnitName*, const FilePath* path, std::int32_t port,
                      FibreInformationPermission (*permissions)[128]) {
  if (textOf(*path).empty() || !isPort(0, port)) {
    return kNothingFound;
  }
  clear(permissions);
  for (std::size_t host = 0; host < 2; ++host) {
    FibreInformationPermission& permission = (*permissions)[host];
    const std::string name = "100000000000000" + std::to_string(host);
    setText(permission.node_name, name);
    setText(permission.port_name, name);
  }
  return 0;
}

}  // namespace

SIMULATE(4, QV_GetLANInformation, getLan)
SIMULATE(5, QV_SetLANInformation, setLan)
SIMULATE(2, QV_GetLANInformationEx, getLanEx)
SIMULATE(2, QV_SetLANInformationEx)
SIMULATE(3, QV_GetLANPortNumber, getPortNumbers)
SIMULATE(4, QV_SetLANPortNumber, setPortNumbers)
SIMULATE(3, QV_GetQVUserLANInformation, getUserLan)
SIMULATE(3, QV_SetQVUserLANInformation, setUserLan)
SIMULATE(4, QV_LoadQVUserLANInformation)
SIMULATE(3, QV_LANExport)
SIMULATE(3, QV_LANImport)
SIMULATE(3, QV_GetMainteLanInfo, getMaintenanceLan)
SIMULATE(3, QV_SetMainteIPAddress)
SIMULATE(3, QV_GetMainteLanAvailableList)
SIMULATE(3, QV_GetNNCLANInformation)
SIMULATE(3, QV_SetNNCLANInformation)
SIMULATE(3, QV_GetFibreInformation, getFibre)
SIMULATE(4, QV_SetFibreInformation, setFibre)
SIMULATE(4, QV_FibreInfoPermissionImport, importPermissions)
