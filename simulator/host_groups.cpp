// Host groups of the array's ports, the LUs that are mapped to them, and the guard of the mapping.
#include "arraylib/hosts.h"
#include "simulator/simulate.h"

using namespace quorvelsim;

namespace {

/// The name of the host group with which every port begins.
constexpr char kFirstGroup[] = "G000";

struct Place {
  std::int32_t controller;
  std::int32_t port;
  std::int32_t group;
  bool operator<(const Place& other) const {
    return std::tie(controller, port, group) < std::tie(other.controller, other.port, other.group);
  }
};

LuMappingHGInfo unmapped() {
  LuMappingHGInfo mapping{};
  std::fill(std::begin(mapping.lu), std::end(mapping.lu), kNone);
  return mapping;
}

struct HostGroups {
  HGList list{};
  HGOption options{};
  MappingGuardList guard{};
  std::int32_t mappingMode = 1;
  /// Groups without an LU have no entry.
  std::map<Place, LuMappingHGInfo> mapping;

  HostGroups() {
    options.HostGroupValid = 1;
    for (HGCtlInfo& controller : list.ctl) {
      for (HGPortInfo& port : controller.port) {
        port.hg[0].valid = 1;
        setText(port.hg[0].hgname, kFirstGroup);
      }
    }
  }
  HGPortInfo& portOf(const Place& at) { return list.ctl[at.controller].port[at.port]; }
  HGOptionInfo& optionOf(const Place& at) {
    return options.ctl[at.controller].port[at.port].hg[at.group];
  }
  /// Refuses a host group that does not exist. The numbers behind the host groups are targets.
  int admit(const Place& at) {
    if (!isPort(at.controller, at.port)) {
      return kUnknownPort;
    }
    const bool exists = at.group >= 0 && at.group < kMappable &&
                        (at.group >= kHostGroups || portOf(at).hg[at.group].valid != 0);
    return exists ? 0 : int{kUnknownHostGroup};
  }
};

// Host groups

int getList(const UnitName* unit, const QVSessionInfo*, HGList* list) {
  *list = partOf<HostGroups>(unit).list;
  return 0;
}

int createGroup(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                std::int32_t number, std::int32_t group, const HGName* name) {
  if (!isPort(controller, number)) {
    return kUnknownPort;
  }
  if (group < 0 || group >= kHostGroups) {
    return kUnknownHostGroup;
  }
  if (textOf(name->hgname).empty()) {
    return kInvalidName;
  }
  HGPortInfo& port = partOf<HostGroups>(unit).portOf({controller, number, group});
  for (const HGInfo& other : port.hg) {
    if (other.valid != 0 &&
        (&other == &port.hg[group] || textOf(other.hgname) == textOf(name->hgname))) {
      return kHostGroupExists;
    }
  }
  port.hg[group].valid = 1;
  setText(port.hg[group].hgname, textOf(name->hgname));
  return 0;
}

/// A list has a bit for each group, the lowest of the first byte for group 0.
int deleteGroups(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                 std::int32_t port, const DeleteHGPortList* list) {
  if (!isPort(controller, port)) {
    return kUnknownPort;
  }
  auto& groups = partOf<HostGroups>(unit);
  for (std::int32_t group = 0; group < kHostGroups; ++group) {
    if ((list->hg[group / 8] >> (group % 8) & std::byte{1}) != std::byte{}) {
      const Place at{controller, port, group};
      groups.mapping.erase(at);
      groups.optionOf(at) = {};
      groups.portOf(at).hg[group] = {};
    }
  }
  return 0;
}

// Mapping

LuMappingHGInfo mappingAt(const HostGroups& groups, const Place& at) {
  const auto found = groups.mapping.find(at);
  return found == groups.mapping.end() ? unmapped() : found->second;
}

void fillPort(const HostGroups& groups, std::int32_t controller, std::int32_t port,
              LuMappingPortInfo& info) {
  info.security = 0;
  info.hg_tg_max_count = kHostGroups;
  for (std::int32_t group = 0; group < kMappable; ++group) {
    info.hg[group] = mappingAt(groups, {controller, port, group});
  }
}

int getMapping(const UnitName* unit, const QVSessionInfo*, LuMapping* mapping) {
  const auto& groups = partOf<HostGroups>(unit);
  mapping->HostGroupValid = 1;
  mapping->ctrl_flag = (1 << kControllers) - 1;
  mapping->mapping_mode = groups.mappingMode;
  for (std::int32_t controller = 0; controller < kControllers; ++controller) {
    for (std::int32_t port = 0; port < kPorts; ++port) {
      fillPort(groups, controller, port, mapping->ctl[controller].port[port]);
    }
  }
  return 0;
}

int getPortMapping(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                   std::int32_t port, LuMappingPortList* mapping) {
  if (!isPort(controller, port)) {
    return kUnknownPort;
  }
  const auto& groups = partOf<HostGroups>(unit);
  mapping->option = 0;
  mapping->mapping_mode = groups.mappingMode;
  fillPort(groups, controller, port, mapping->port);
  return 0;
}

int getGroupMapping(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                    std::int32_t port, std::int32_t group, std::int32_t* mode,
                    LuMappingHGInfo* mapping) {
  auto& groups = partOf<HostGroups>(unit);
  const Place at{controller, port, group};
  const int refused = groups.admit(at);
  if (refused == 0) {
    *mode = groups.mappingMode;
    *mapping = mappingAt(groups, at);
  }
  return refused;
}

/// Maps LUs to a host group. Refuses a group that does not exist, and guarded LUs that were not
/// mapped there before.
int map(HostGroups& groups, const Place& at, const LuMappingHGInfo& mapping) {
  const LuMappingHGInfo before = mappingAt(groups, at);
  LuMappingHGInfo after = unmapped();
  bool any = false;
  for (std::size_t index = 0; index < std::size(mapping.lu); ++index) {
    const std::int32_t lu = mapping.lu[index];
    if (lu < 0 || lu >= kLogicalUnits) {
      continue;
    }
    if (lu != before.lu[index] && groups.guard.lumap_guard[lu] != std::byte{}) {
      return kMappingGuarded;
    }
    after.lu[index] = lu;
    any = true;
  }
  if (!any) {
    groups.mapping.erase(at);
    return 0;
  }
  const int refused = groups.admit(at);
  if (refused == 0) {
    groups.mapping[at] = after;
  }
  return refused;
}

int setGroupMapping(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                    std::int32_t port, std::int32_t group, const LuMappingHGInfo* mapping) {
  auto& groups = partOf<HostGroups>(unit);
  const Place at{controller, port, group};
  const int refused = groups.admit(at);
  return refused == 0 ? map(groups, at, *mapping) : refused;
}

/// Maps the groups of a port up to the first that is refused.
int mapPort(HostGroups& groups, std::int32_t controller, std::int32_t port,
            const LuMappingPortInfo& info) {
  int refused = 0;
  for (std::int32_t group = 0; group < kMappable && refused == 0; ++group) {
    refused = map(groups, {controller, port, group}, info.hg[group]);
  }
  return refused;
}

int setPortMapping(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                   std::int32_t port, const LuMappingPortList* mapping) {
  return isPort(controller, port)
             ? mapPort(partOf<HostGroups>(unit), controller, port, mapping->port)
             : int{kUnknownPort};
}

int setMapping(const UnitName* unit, const QVSessionInfo*, const LuMapping* mapping) {
  auto& groups = partOf<HostGroups>(unit);
  groups.mappingMode = mapping->mapping_mode;
  int refused = 0;
  for (std::int32_t place = 0; place < kControllers * kPorts && refused == 0; ++place) {
    const std::int32_t controller = place / kPorts;
    const std::int32_t port = place % kPorts;
    refused = mapPort(groups, controller, port, mapping->ctl[controller].port[port]);
  }
  return refused;
}

/// An LU has an int for each controller, with a bit for each of its ports.
int getPortAssignment(const UnitName* unit, const QVSessionInfo*, const ControllerRequest*,
                      LuMappingPortAssignInfo* information) {
  clear(information);
  for (const auto& [at, mapping] : partOf<HostGroups>(unit).mapping) {
    for (const std::int32_t lu : mapping.lu) {
      if (lu != kNone) {
        information->lu_assign[lu][at.controller] |= 1 << at.port;
      }
    }
  }
  return 0;
}

int changeMode(const UnitName* unit, const QVSessionInfo*, std::int32_t mode) {
  partOf<HostGroups>(unit).mappingMode = mode;
  return 0;
}

int getGuard(const UnitName* unit, const QVSessionInfo*, MappingGuardList* guard) {
  *guard = partOf<HostGroups>(unit).guard;
  return 0;
}

int setGuard(const UnitName* unit, const QVSessionInfo*, const MappingGuardList* guard) {
  partOf<HostGroups>(unit).guard = *guard;
  return 0;
}

// Options

int getOptions(const UnitName* unit, const QVSessionInfo*, HGOption* options) {
  *options = partOf<HostGroups>(unit).options;
  return 0;
}

int setOptions(const UnitName* unit, const QVSessionInfo*, const HGOption* options) {
  partOf<HostGroups>(unit).options = *options;
  return 0;
}

int getOption(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
              std::int32_t port, std::int32_t group, HGOptionInfo* option) {
  auto& groups = partOf<HostGroups>(unit);
  const Place at{controller, port, group};
  const int refused = groups.admit(at);
  if (refused == 0) {
    *option = groups.optionOf(at);
  }
  return refused;
}

int setOption(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
              std::int32_t port, std::int32_t group, const HGOptionInfo* option) {
  auto& groups = partOf<HostGroups>(unit);
  const Place at{controller, port, group};
  const int refused = groups.admit(at);
  if (refused == 0) {
    groups.optionOf(at) = *option;
  }
  return refused;
}

}  // namespace

SIMULATE(3, QV_GetHGList, getList)
SIMULATE(6, QV_CreateHG, createGroup)
SIMULATE(6, QV_ChangeHG)
SIMULATE(3, QV_DeleteHGList)
SIMULATE(3, QV_InitHGList)
SIMULATE(5, QV_DeleteHGPortList, deleteGroups)
SIMULATE(5, QV_InitHGPortList)
SIMULATE(3, QV_GetLuMappingListAll, getMapping)
SIMULATE(3, QV_SetLuMappingListAll, setMapping)
SIMULATE(6, QV_SetLuMappingList, setGroupMapping)
SIMULATE(5, QV_GetLuMappingPortList, getPortMapping)
SIMULATE(5, QV_SetLuMappingPortList, setPortMapping)
SIMULATE(7, QV_GetLuMappingList, getGroupMapping)
SIMULATE(4, QV_GetLuMappingPortAssignInfo, getPortAssignment)
SIMULATE(3, QV_ChangeMappingMode, changeMode)
SIMULATE(3, QV_GetMappingGuardList, getGuard)
SIMULATE(3, QV_SetMappingGuardList, setGuard)
SIMULATE(3, QV_GetHGOptionAll, getOptions)
SIMULATE(3, QV_SetHGOptionAll, setOptions)
SIMULATE(6, QV_GetHGOption, getOption)
SIMULATE(6, QV_SetHGOption, setOption)
SIMULATE(3, QV_GetPortOption)
SIMULATE(3, QV_SetPortOption)
SIMULATE(3, QV_GetHGParameterList)
SIMULATE(3, QV_GetHGParameterList2)
SIMULATE(4, QV_GetHGParameterID)
SIMULATE(2, QV_GetWWNInformation)
SIMULATE(2, QV_SetWWNInformation)
SIMULATE(3, QV_GetWWNHGInformation)
SIMULATE(3, QV_SetWWNHGInformation)
SIMULATE(3, QV_GetTargetId)
SIMULATE(3, QV_SetTargetId)
SIMULATE(3, QV_TargetIdImport)
SIMULATE(4, QV_WZTargetIdImport)
