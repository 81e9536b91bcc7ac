// Host groups of an array's ports, what is mapped to them, and the guard of the mapping.
#include <algorithm>
#include <iterator>

#include "arraylib/hosts.h"
#include "simulator/simulator.h"

using namespace quorvelsim;

namespace {

constexpr std::int32_t kControllers = 2;
constexpr std::int32_t kPorts = 8;
constexpr std::int32_t kGroups = 128;
/// Groups and targets of a port, as far as LUs can be mapped to them.
constexpr std::int32_t kMappable = 255;
constexpr std::int32_t kLus = 8192;
constexpr std::int32_t kNoLu = -1;
/// The group that every port begins with.
constexpr char kFirstGroup[] = "G000";

struct Place {
  std::int32_t controller;
  std::int32_t port;
  std::int32_t group;
  bool operator<(const Place& other) const {
    return std::tie(controller, port, group) < std::tie(other.controller, other.port, other.group);
  }
};

constexpr LuMappingHGInfo unmapped() {
  LuMappingHGInfo mapping{};
  std::fill(std::begin(mapping.lu), std::end(mapping.lu), kNoLu);
  return mapping;
}

/// What the array keeps of its host groups; groups without anything mapped or set take no room.
struct HostGroups {
  HGList list{};
  std::int32_t mappingMode = 1;
  std::map<Place, LuMappingHGInfo> mapping;
  std::map<Place, HGOptionInfo> options;
  std::map<std::pair<std::int32_t, std::int32_t>, std::int32_t> security;
  MappingGuardList guard{};

  HostGroups() {
    for (HGCtlInfo& controller : list.ctl) {
      for (HGPortInfo& port : controller.port) {
        port.hg[0].valid = 1;
        setText(port.hg[0].hgname, kFirstGroup);
      }
    }
  }
  HGPortInfo& portOf(const Place& at) { return list.ctl[at.controller].port[at.port]; }
  HGInfo& groupOf(const Place& at) { return portOf(at).hg[at.group]; }
};

HostGroups& groupsOf(const UnitName* unit) { return findUnit(textOf(*unit))->part<HostGroups>(); }

bool isPort(const Place& at) {
  return at.controller >= 0 && at.controller < kControllers && at.port >= 0 && at.port < kPorts;
}

/// Refuses a place at which there is no host group, or a target, to map to.
int admit(HostGroups& groups, const Place& at) {
  if (!isPort(at)) {
    return kUnknownPort;
  }
  if (at.group < 0 || at.group >= kMappable ||
      (at.group < kGroups && groups.groupOf(at).valid == 0)) {
    return kUnknownHostGroup;
  }
  return 0;
}

template <class Visit>
void eachPort(Visit visit) {
  for (std::int32_t controller = 0; controller < kControllers; ++controller) {
    for (std::int32_t port = 0; port < kPorts; ++port) {
      visit(controller, port);
    }
  }
}

// Host groups

int getList(const UnitName* unit, const QVSessionInfo*, HGList* list) {
  *list = groupsOf(unit).list;
  return 0;
}

/// Gives the group at a place a name that no other group of the port has.
int nameGroup(HostGroups& groups, const Place& at, const std::string& name) {
  if (name.empty()) {
    return kInvalidName;
  }
  for (const HGInfo& other : groups.portOf(at).hg) {
    if (&other != &groups.groupOf(at) && other.valid != 0 && textOf(other.hgname) == name) {
      return kHostGroupExists;
    }
  }
  groups.groupOf(at).valid = 1;
  setText(groups.groupOf(at).hgname, name);
  return 0;
}

int createGroup(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                std::int32_t port, std::int32_t group, const HGName* name) {
  HostGroups& groups = groupsOf(unit);
  const Place at{controller, port, group};
  if (!isPort(at)) {
    return kUnknownPort;
  }
  if (group < 0 || group >= kGroups) {
    return kUnknownHostGroup;
  }
  return groups.groupOf(at).valid != 0 ? int{kHostGroupExists}
                                       : nameGroup(groups, at, textOf(name->hgname));
}

int changeGroup(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                std::int32_t port, std::int32_t group, const HGName* name) {
  HostGroups& groups = groupsOf(unit);
  const Place at{controller, port, group};
  const int refused = admit(groups, at);
  if (refused != 0) {
    return refused;
  }
  return group >= kGroups ? int{kUnknownHostGroup} : nameGroup(groups, at, textOf(name->hgname));
}

/// The groups of a list have a bit each, the lowest of the first byte for group 0.
template <class PortList, class Visit>
void eachListed(HostGroups& groups, std::int32_t controller, std::int32_t port,
                const PortList& list, Visit visit) {
  for (std::int32_t group = 0; group < kGroups; ++group) {
    const Place at{controller, port, group};
    if ((list.hg[group / 8] >> (group % 8) & std::byte{1}) != std::byte{} &&
        groups.groupOf(at).valid != 0) {
      groups.mapping.erase(at);
      groups.options.erase(at);
      visit(at);
    }
  }
}

void change(HostGroups& groups, std::int32_t controller, std::int32_t port,
            const DeleteHGPortList& list) {
  eachListed(groups, controller, port, list, [&](const Place& at) { groups.groupOf(at) = {}; });
}

/// A group that is set back stays, with the name that its number gives it.
void change(HostGroups& groups, std::int32_t controller, std::int32_t port,
            const InitHGPortList& list) {
  eachListed(groups, controller, port, list, [&](const Place& at) {
    std::string name = kFirstGroup;
    auto digit = name.rbegin();
    for (std::int32_t rest = at.group; rest > 0; rest /= 10) {
      *digit++ = static_cast<char>('0' + rest % 10);
    }
    setText(groups.groupOf(at).hgname, name);
  });
}

template <class List>
int changeAll(const UnitName* unit, const QVSessionInfo*, const List* list) {
  HostGroups& groups = groupsOf(unit);
  eachPort([&](std::int32_t controller, std::int32_t port) {
    change(groups, controller, port, list->ctl[controller].port[port]);
  });
  return 0;
}

template <class PortList>
int changePort(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
               std::int32_t port, const PortList* list) {
  if (!isPort({controller, port, 0})) {
    return kUnknownPort;
  }
  change(groupsOf(unit), controller, port, *list);
  return 0;
}

// Mapping

LuMappingHGInfo mappingAt(const HostGroups& groups, const Place& at) {
  const auto found = groups.mapping.find(at);
  return found == groups.mapping.end() ? unmapped() : found->second;
}

void fillPort(HostGroups& groups, std::int32_t controller, std::int32_t port,
              LuMappingPortInfo& info) {
  info.security = groups.security[{controller, port}];
  info.hg_tg_max_count = kGroups;
  for (std::int32_t group = 0; group < kMappable; ++group) {
    info.hg[group] = mappingAt(groups, {controller, port, group});
  }
}

int getMapping(const UnitName* unit, const QVSessionInfo*, LuMapping* mapping) {
  HostGroups& groups = groupsOf(unit);
  mapping->HostGroupValid = 1;
  mapping->ctrl_flag = (1 << kControllers) - 1;
  mapping->mapping_mode = groups.mappingMode;
  eachPort([&](std::int32_t controller, std::int32_t port) {
    fillPort(groups, controller, port, mapping->ctl[controller].port[port]);
  });
  return 0;
}

int getPortMapping(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                   std::int32_t port, LuMappingPortList* mapping) {
  if (!isPort({controller, port, 0})) {
    return kUnknownPort;
  }
  HostGroups& groups = groupsOf(unit);
  mapping->option = 0;
  mapping->mapping_mode = groups.mappingMode;
  fillPort(groups, controller, port, mapping->port);
  return 0;
}

int getGroupMapping(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                    std::int32_t port, std::int32_t group, std::int32_t* mode,
                    LuMappingHGInfo* mapping) {
  HostGroups& groups = groupsOf(unit);
  const Place at{controller, port, group};
  const int refused = admit(groups, at);
  if (refused == 0) {
    *mode = groups.mappingMode;
    *mapping = mappingAt(groups, at);
  }
  return refused;
}

/// Refuses LUs for a group that there is not, and a guarded LU that was not mapped there before.
int admit(HostGroups& groups, const Place& at, const LuMappingHGInfo& mapping) {
  const LuMappingHGInfo before = mappingAt(groups, at);
  for (std::size_t index = 0; index < std::size(mapping.lu); ++index) {
    const std::int32_t lu = mapping.lu[index];
    if (lu < 0 || lu >= kLus || lu == before.lu[index]) {
      continue;
    }
    const int refused = admit(groups, at);
    if (refused != 0) {
      return refused;
    }
    if (groups.guard.lumap_guard[lu] != std::byte{}) {
      return kMappingGuarded;
    }
  }
  return 0;
}

void map(HostGroups& groups, const Place& at, const LuMappingHGInfo& mapping) {
  LuMappingHGInfo kept = unmapped();
  bool any = false;
  for (std::size_t index = 0; index < std::size(mapping.lu); ++index) {
    if (mapping.lu[index] >= 0 && mapping.lu[index] < kLus) {
      kept.lu[index] = mapping.lu[index];
      any = true;
    }
  }
  if (any) {
    groups.mapping[at] = kept;
  } else {
    groups.mapping.erase(at);
  }
}

int setGroupMapping(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                    std::int32_t port, std::int32_t group, const LuMappingHGInfo* mapping) {
  HostGroups& groups = groupsOf(unit);
  const Place at{controller, port, group};
  int refused = admit(groups, at);
  if (refused == 0) {
    refused = admit(groups, at, *mapping);
  }
  if (refused == 0) {
    map(groups, at, *mapping);
  }
  return refused;
}

int admitPort(HostGroups& groups, std::int32_t controller, std::int32_t port,
              const LuMappingPortInfo& info) {
  int refused = 0;
  for (std::int32_t group = 0; group < kMappable && refused == 0; ++group) {
    refused = admit(groups, {controller, port, group}, info.hg[group]);
  }
  return refused;
}

void mapPort(HostGroups& groups, std::int32_t controller, std::int32_t port,
             const LuMappingPortInfo& info) {
  groups.security[{controller, port}] = info.security;
  for (std::int32_t group = 0; group < kMappable; ++group) {
    map(groups, {controller, port, group}, info.hg[group]);
  }
}

int setPortMapping(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
                   std::int32_t port, const LuMappingPortList* mapping) {
  if (!isPort({controller, port, 0})) {
    return kUnknownPort;
  }
  HostGroups& groups = groupsOf(unit);
  const int refused = admitPort(groups, controller, port, mapping->port);
  if (refused == 0) {
    mapPort(groups, controller, port, mapping->port);
  }
  return refused;
}

/// Sets all or, where anything is refused, nothing.
int setMapping(const UnitName* unit, const QVSessionInfo*, const LuMapping* mapping) {
  HostGroups& groups = groupsOf(unit);
  int refused = 0;
  eachPort([&](std::int32_t controller, std::int32_t port) {
    if (refused == 0) {
      refused = admitPort(groups, controller, port, mapping->ctl[controller].port[port]);
    }
  });
  if (refused != 0) {
    return refused;
  }
  groups.mappingMode = mapping->mapping_mode;
  eachPort([&](std::int32_t controller, std::int32_t port) {
    mapPort(groups, controller, port, mapping->ctl[controller].port[port]);
  });
  return 0;
}

/// An LU has an int for each controller, with a bit for each of its ports.
int getPortAssignment(const UnitName* unit, const QVSessionInfo*, const ControllerRequest*,
                      LuMappingPortAssignInfo* information) {
  *information = {};
  for (const auto& [at, mapping] : groupsOf(unit).mapping) {
    for (const std::int32_t lu : mapping.lu) {
      if (lu != kNoLu) {
        information->lu_assign[lu][at.controller] |= 1 << at.port;
      }
    }
  }
  return 0;
}

int changeMode(const UnitName* unit, const QVSessionInfo*, std::int32_t mode) {
  groupsOf(unit).mappingMode = mode;
  return 0;
}

int getGuard(const UnitName* unit, const QVSessionInfo*, MappingGuardList* guard) {
  *guard = groupsOf(unit).guard;
  return 0;
}

int setGuard(const UnitName* unit, const QVSessionInfo*, const MappingGuardList* guard) {
  groupsOf(unit).guard = *guard;
  return 0;
}

// Options and what there is to choose from

int getOptions(const UnitName* unit, const QVSessionInfo*, HGOption* options) {
  *options = {};
  options->HostGroupValid = 1;
  for (const auto& [at, option] : groupsOf(unit).options) {
    options->ctl[at.controller].port[at.port].hg[at.group] = option;
  }
  return 0;
}

/// Takes the options of the groups that there are.
int setOptions(const UnitName* unit, const QVSessionInfo*, const HGOption* options) {
  HostGroups& groups = groupsOf(unit);
  eachPort([&](std::int32_t controller, std::int32_t port) {
    for (std::int32_t group = 0; group < kGroups; ++group) {
      const Place at{controller, port, group};
      if (groups.groupOf(at).valid != 0) {
        groups.options[at] = options->ctl[controller].port[port].hg[group];
      }
    }
  });
  return 0;
}

int getOption(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
              std::int32_t port, std::int32_t group, HGOptionInfo* option) {
  HostGroups& groups = groupsOf(unit);
  const Place at{controller, port, group};
  const int refused = admit(groups, at);
  if (refused == 0) {
    const auto found = groups.options.find(at);
    *option = found == groups.options.end() ? HGOptionInfo{} : found->second;
  }
  return refused;
}

int setOption(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
              std::int32_t port, std::int32_t group, const HGOptionInfo* option) {
  HostGroups& groups = groupsOf(unit);
  const Place at{controller, port, group};
  const int refused = admit(groups, at);
  if (refused == 0) {
    groups.options[at] = *option;
  }
  return refused;
}

constexpr std::int32_t kPlatforms = 3;
constexpr const char* kMiddleware[] = {"none", "cluster"};

int getParameters(const UnitName*, const QVSessionInfo*, HGParameterList2* list) {
  *list = {};
  list->platform_count = kPlatforms;
  for (std::int32_t platform = 0; platform < kPlatforms; ++platform) {
    list->platinfo[platform].platform_id = platform;
    list->platinfo[platform].middleware_count = static_cast<std::int32_t>(std::size(kMiddleware));
  }
  return 0;
}

int getIdentifiers(const UnitName*, const QVSessionInfo*, std::int32_t controller,
                   HGParameterID* identifiers) {
  if (!isPort({controller, 0, 0})) {
    return kUnknownPort;
  }
  *identifiers = {};
  identifiers->plat_id_count = kPlatforms;
  for (std::size_t index = 0; index < std::size(kMiddleware); ++index) {
    MiddlewareID& middleware = identifiers->middleware[index];
    middleware.middleware_id = static_cast<std::int32_t>(index);
    setText(middleware.middleware_name, kMiddleware[index]);
    setText(middleware.middleware_name_str, kMiddleware[index]);
  }
  return 0;
}

}  // namespace

SIMULATE(3, QV_GetHGList, getList)
SIMULATE(6, QV_CreateHG, createGroup)
SIMULATE(6, QV_ChangeHG, changeGroup)
SIMULATE(3, QV_DeleteHGList, changeAll)
SIMULATE(3, QV_InitHGList, changeAll)
SIMULATE(5, QV_DeleteHGPortList, changePort)
SIMULATE(5, QV_InitHGPortList, changePort)
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
SIMULATE(3, QV_GetHGParameterList2, getParameters)
SIMULATE(4, QV_GetHGParameterID, getIdentifiers)
SIMULATE(2, QV_GetWWNInformation)
SIMULATE(2, QV_SetWWNInformation)
SIMULATE(3, QV_GetWWNHGInformation)
SIMULATE(3, QV_SetWWNHGInformation)
SIMULATE(3, QV_GetTargetId)
SIMULATE(3, QV_SetTargetId)
SIMULATE(3, QV_TargetIdImport)
SIMULATE(4, QV_WZTargetIdImport)
