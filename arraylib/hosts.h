#pragma once

#include "arraylib/accounts.h"
#include "arraylib/record.h"

// How hosts reach the array: host groups and their mapping, iSCSI, fibre ports and LAN.

// Host groups and LU mapping

// Host groups are byte-packed: everything down from the list is made of single bytes.

/// A host group of a port.
struct HGInfo {
  std::uint8_t valid;
  char hgname[33];
};
QUORVEL_RECORD(HGInfo, 34);

/// The name alone of an `HGInfo`, with which a host group is created or renamed.
struct HGName {
  char hgname[33];
};
QUORVEL_RECORD(HGName, 33);

struct HGPortInfo {
  std::uint8_t security;
  HGInfo hg[128];
};
QUORVEL_RECORD(HGPortInfo, 4353);
QUORVEL_OFFSET(HGPortInfo, hg, 1);

struct HGCtlInfo {
  HGPortInfo port[8];
};
QUORVEL_RECORD(HGCtlInfo, 34824);

/// All host groups.
struct HGList {
  std::uint8_t lun_manage;
  HGCtlInfo ctl[2];
};
QUORVEL_RECORD(HGList, 69649);
QUORVEL_OFFSET(HGList, ctl, 1);

/// The host groups of a port to delete.
// Assumed layout: not confirmed by the library's own declarations.
struct DeleteHGPortList {
  std::byte hg[64];
};
QUORVEL_RECORD(DeleteHGPortList, 64);

// Assumed layout: not confirmed by the library's own declarations.
struct DeleteHGCtlList {
  DeleteHGPortList port[8];
};
QUORVEL_RECORD(DeleteHGCtlList, 512);

/// The host groups to delete.
// Assumed layout: not confirmed by the library's own declarations.
struct DeleteHGList {
  DeleteHGCtlList ctl[2];
};
QUORVEL_RECORD(DeleteHGList, 1024);

/// The host groups of a port to set back.
// Assumed layout: not confirmed by the library's own declarations.
struct InitHGPortList {
  std::byte hg[64];
};
QUORVEL_RECORD(InitHGPortList, 64);

// Assumed layout: not confirmed by the library's own declarations.
struct InitHGCtlList {
  InitHGPortList port[8];
};
QUORVEL_RECORD(InitHGCtlList, 512);

/// The host groups to set back.
// Assumed layout: not confirmed by the library's own declarations.
struct InitHGList {
  InitHGCtlList ctl[2];
};
QUORVEL_RECORD(InitHGList, 1024);

/// What is mapped to a host group or target.
struct LuMappingHGInfo {
  std::int32_t lu[2048];
};
QUORVEL_RECORD(LuMappingHGInfo, 8192);

struct LuMappingPortInfo {
  std::int32_t security;
  std::int32_t hg_tg_max_count;
  LuMappingHGInfo hg[255];
};
QUORVEL_RECORD(LuMappingPortInfo, 2088968);
QUORVEL_OFFSET(LuMappingPortInfo, hg, 8);

struct LuMappingCtlInfo {
  LuMappingPortInfo port[8];
};
QUORVEL_RECORD(LuMappingCtlInfo, 16711744);

/// The mapping of all ports.
struct LuMapping {
  std::int32_t HostGroupValid;
  std::int32_t ctrl_flag;
  std::int32_t mapping_mode;
  LuMappingCtlInfo ctl[2];
};
QUORVEL_RECORD(LuMapping, 33423500);
QUORVEL_OFFSET(LuMapping, ctl, 12);

/// The mapping of a port.
struct LuMappingPortList {
  std::int32_t option;
  std::int32_t mapping_mode;
  LuMappingPortInfo port;
};
QUORVEL_RECORD(LuMappingPortList, 2088976);
QUORVEL_OFFSET(LuMappingPortList, port, 8);

/// The controllers that a request asks of.
// Assumed layout: not confirmed by the library's own declarations.
struct ControllerRequest {
  std::int32_t requestCTL;
};
QUORVEL_RECORD(ControllerRequest, 4);

/// The ports through which each LU is mapped.
// Assumed layout: not confirmed by the library's own declarations.
struct LuMappingPortAssignInfo {
  std::int32_t lu_assign[8192][2];
};
QUORVEL_RECORD(LuMappingPortAssignInfo, 65536);

/// The mapping guard, a byte an LU.
struct MappingGuardList {
  std::byte lumap_guard[8192];
};
QUORVEL_RECORD(MappingGuardList, 8192);

// Assumed layout: not confirmed by the library's own declarations.
struct HGOptionValidIndex {
  std::byte reserved[80];
};
QUORVEL_RECORD(HGOptionValidIndex, 80);

/// The options of a host group.
// Assumed layout: not confirmed by the library's own declarations.
struct HGOptionInfo {
  std::int32_t option;
  std::int32_t option2;
  std::int32_t option3;
  std::int32_t platform_id;
  std::int32_t alternate_path_id;
  std::int32_t failover_id;
  std::int32_t special_mode_id;
  std::int32_t middleware_id;
  std::byte reserved[4];
};
QUORVEL_RECORD(HGOptionInfo, 36);

// Assumed layout: not confirmed by the library's own declarations.
struct HGOptionPortInfo {
  HGOptionInfo hg[255];
};
QUORVEL_RECORD(HGOptionPortInfo, 9180);

// Assumed layout: not confirmed by the library's own declarations.
struct HGOptionCtlInfo {
  HGOptionPortInfo port[8];
};
QUORVEL_RECORD(HGOptionCtlInfo, 73440);

/// The options of all host groups.
// Assumed layout: not confirmed by the library's own declarations.
struct HGOption {
  HGOptionValidIndex support_index;
  HGOptionValidIndex valid_index;
  std::int32_t HostGroupValid;
  HGOptionCtlInfo ctl[2];
};
QUORVEL_RECORD(HGOption, 147044);

// Assumed layout: not confirmed by the library's own declarations.
struct PortOptionValidIndex {
  std::byte reserved[8];
};
QUORVEL_RECORD(PortOptionValidIndex, 8);

// Assumed layout: not confirmed by the library's own declarations.
struct PortOptionCtlInfo {
  std::int32_t lip_mode[8];
  std::int32_t port_common_opt[8];
};
QUORVEL_RECORD(PortOptionCtlInfo, 64);

/// The options of all ports.
// Assumed layout: not confirmed by the library's own declarations.
struct PortOption {
  PortOptionValidIndex support_index;
  PortOptionValidIndex valid_index;
  PortOptionCtlInfo ctl[2];
};
QUORVEL_RECORD(PortOption, 144);

// Assumed layout: not confirmed by the library's own declarations.
struct PlatformInfo {
  std::byte reserved[20244];
};
QUORVEL_RECORD(PlatformInfo, 20244);

// Assumed layout: not confirmed by the library's own declarations.
struct SpecialmodeInfo {
  std::int32_t specialmode_id;
  HGOptionInfo hgoptinfo;
};
QUORVEL_RECORD(SpecialmodeInfo, 40);

/// The host group parameters that there are to choose from.
// Assumed layout: not confirmed by the library's own declarations.
struct HGParameterList {
  std::int32_t platform_count;
  PlatformInfo platinfo[16];
  std::int32_t special_mode_count;
  SpecialmodeInfo specialinfo[16];
  std::byte reserved[16];
};
QUORVEL_RECORD(HGParameterList, 324568);

// Assumed layout: not confirmed by the library's own declarations.
struct PlatformInfo2 {
  std::int32_t platform_id;
  std::byte reserved[964];
};
QUORVEL_RECORD(PlatformInfo2, 968);

// Assumed layout: not confirmed by the library's own declarations.
struct MiddlewareInfo {
  std::byte reserved[40];
};
QUORVEL_RECORD(MiddlewareInfo, 40);

/// The same in the second form, with middleware.
// Assumed layout: not confirmed by the library's own declarations.
struct HGParameterList2 {
  std::int32_t platform_count;
  PlatformInfo2 platinfo[16];
  std::int32_t middleware_count;
  MiddlewareInfo middlewareinfo[16];
  std::byte reserved[28];
};
QUORVEL_RECORD(HGParameterList2, 16164);

// Assumed layout: not confirmed by the library's own declarations.
struct PlatFormID {
  std::byte reserved[84];
};
QUORVEL_RECORD(PlatFormID, 84);

// Assumed layout: not confirmed by the library's own declarations.
struct AlternatePathID {
  std::byte reserved[84];
};
QUORVEL_RECORD(AlternatePathID, 84);

// Assumed layout: not confirmed by the library's own declarations.
struct FailOverID {
  std::byte reserved[84];
};
QUORVEL_RECORD(FailOverID, 84);

// Assumed layout: not confirmed by the library's own declarations.
struct SpecialModeID {
  std::byte reserved[84];
};
QUORVEL_RECORD(SpecialModeID, 84);

// Assumed layout: not confirmed by the library's own declarations.
struct MiddlewareID {
  std::int32_t middleware_id;
  char middleware_name[40];
  char middleware_name_str[40];
};
QUORVEL_RECORD(MiddlewareID, 84);

/// The identifiers of the host group parameters.
// Assumed layout: not confirmed by the library's own declarations.
struct HGParameterID {
  std::int32_t plat_id_count;
  PlatFormID platform[16];
  std::int32_t altpath_id_count;
  AlternatePathID alternatepath[16];
  std::int32_t fail_id_count;
  FailOverID failover[16];
  std::int32_t special_id_count;
  SpecialModeID specialmode[16];
  std::byte reserved[4];
  MiddlewareID middleware[16];
};
QUORVEL_RECORD(HGParameterID, 6740);

// Assumed layout: not confirmed by the library's own declarations.
struct WWNPortInfo {
  std::byte reserved[18566];
};
QUORVEL_RECORD(WWNPortInfo, 18566);

// Assumed layout: not confirmed by the library's own declarations.
struct WWNCtlInfo {
  WWNPortInfo port[8];
};
QUORVEL_RECORD(WWNCtlInfo, 148528);

/// The hosts known at the ports.
// Assumed layout: not confirmed by the library's own declarations.
struct WWNInformation {
  std::int32_t lun_security_opt;
  WWNCtlInfo ctl[2];
};
QUORVEL_RECORD(WWNInformation, 297060);

// Assumed layout: not confirmed by the library's own declarations.
struct WWNHGPortInfo {
  std::byte reserved[9736];
};
QUORVEL_RECORD(WWNHGPortInfo, 9736);

// Assumed layout: not confirmed by the library's own declarations.
struct WWNHGCtlInfo {
  WWNHGPortInfo port[8];
};
QUORVEL_RECORD(WWNHGCtlInfo, 77888);

/// The hosts of the host groups.
// Assumed layout: not confirmed by the library's own declarations.
struct WWNHGInformation {
  std::int32_t lun_manage;
  WWNHGCtlInfo ctl[2];
};
QUORVEL_RECORD(WWNHGInformation, 155780);

// Assumed layout: not confirmed by the library's own declarations.
struct TargetLunList {
  std::byte reserved[512];
};
QUORVEL_RECORD(TargetLunList, 512);

// Assumed layout: not confirmed by the library's own declarations.
struct TargetConfig {
  std::int32_t single;
  std::int32_t multi[16];
  TargetLunList mapping[16];
};
QUORVEL_RECORD(TargetConfig, 8260);

/// The target IDs of a controller.
// Assumed layout: not confirmed by the library's own declarations.
struct TargetId {
  std::int32_t ctrl_flag;
  std::int32_t target_id_mode;
  TargetConfig target_config;
};
QUORVEL_RECORD(TargetId, 8268);

// Assumed layout: not confirmed by the library's own declarations.
struct WZTargetConfig {
  std::byte reserved[8260];
};
QUORVEL_RECORD(WZTargetConfig, 8260);

// Assumed layout: not confirmed by the library's own declarations.
struct WZTargetId {
  std::int32_t ctrl_flag;
  std::int32_t target_id_mode;
  WZTargetConfig target_config;
};
QUORVEL_RECORD(WZTargetId, 8268);

// Where a port or a host group is named, the ints are the controller, the port of it and the group
// of that, as many as are needed: also an assumption.

QUORVEL_API int QV_GetHGList(const UnitName* unit, const QVSessionInfo* session, HGList* list);
QUORVEL_API int QV_CreateHG(const UnitName* unit, const QVSessionInfo* session,
                            std::int32_t controller, std::int32_t port, std::int32_t group,
                            const HGName* name);
QUORVEL_API int QV_ChangeHG(const UnitName* unit, const QVSessionInfo* session,
                            std::int32_t controller, std::int32_t port, std::int32_t group,
                            const HGName* name);
QUORVEL_API int QV_DeleteHGList(const UnitName* unit, const QVSessionInfo* session,
                                const DeleteHGList* list);
QUORVEL_API int QV_InitHGList(const UnitName* unit, const QVSessionInfo* session,
                              const InitHGList* list);
QUORVEL_API int QV_DeleteHGPortList(const UnitName* unit, const QVSessionInfo* session,
                                    std::int32_t controller, std::int32_t port,
                                    const DeleteHGPortList* list);
QUORVEL_API int QV_InitHGPortList(const UnitName* unit, const QVSessionInfo* session,
                                  std::int32_t controller, std::int32_t port,
                                  const InitHGPortList* list);
QUORVEL_API int QV_GetLuMappingListAll(const UnitName* unit, const QVSessionInfo* session,
                                       LuMapping* mapping);
QUORVEL_API int QV_SetLuMappingListAll(const UnitName* unit, const QVSessionInfo* session,
                                       const LuMapping* mapping);
QUORVEL_API int QV_SetLuMappingList(const UnitName* unit, const QVSessionInfo* session,
                                    std::int32_t controller, std::int32_t port, std::int32_t group,
                                    const LuMappingHGInfo* mapping);
QUORVEL_API int QV_GetLuMappingPortList(const UnitName* unit, const QVSessionInfo* session,
                                        std::int32_t controller, std::int32_t port,
                                        LuMappingPortList* mapping);
QUORVEL_API int QV_SetLuMappingPortList(const UnitName* unit, const QVSessionInfo* session,
                                        std::int32_t controller, std::int32_t port,
                                        const LuMappingPortList* mapping);
/// The mapping of a host group, and the mode that holds for all; that it is the mode is assumed.
QUORVEL_API int QV_GetLuMappingList(const UnitName* unit, const QVSessionInfo* session,
                                    std::int32_t controller, std::int32_t port, std::int32_t group,
                                    std::int32_t* mode, LuMappingHGInfo* mapping);
QUORVEL_API int QV_GetLuMappingPortAssignInfo(const UnitName* unit, const QVSessionInfo* session,
                                              const ControllerRequest* request,
                                              LuMappingPortAssignInfo* information);
QUORVEL_API int QV_ChangeMappingMode(const UnitName* unit, const QVSessionInfo* session,
                                     std::int32_t mode);
QUORVEL_API int QV_GetMappingGuardList(const UnitName* unit, const QVSessionInfo* session,
                                       MappingGuardList* guard);
QUORVEL_API int QV_SetMappingGuardList(const UnitName* unit, const QVSessionInfo* session,
                                       const MappingGuardList* guard);
QUORVEL_API int QV_GetHGOptionAll(const UnitName* unit, const QVSessionInfo* session,
                                  HGOption* options);
QUORVEL_API int QV_SetHGOptionAll(const UnitName* unit, const QVSessionInfo* session,
                                  const HGOption* options);
QUORVEL_API int QV_GetHGOption(const UnitName* unit, const QVSessionInfo* session,
                               std::int32_t controller, std::int32_t port, std::int32_t group,
                               HGOptionInfo* option);
QUORVEL_API int QV_SetHGOption(const UnitName* unit, const QVSessionInfo* session,
                               std::int32_t controller, std::int32_t port, std::int32_t group,
                               const HGOptionInfo* option);
QUORVEL_API int QV_GetPortOption(const UnitName* unit, const QVSessionInfo* session,
                                 PortOption* options);
QUORVEL_API int QV_SetPortOption(const UnitName* unit, const QVSessionInfo* session,
                                 const PortOption* options);
QUORVEL_API int QV_GetHGParameterList(const UnitName* unit, const QVSessionInfo* session,
                                      HGParameterList* list);
QUORVEL_API int QV_GetHGParameterList2(const UnitName* unit, const QVSessionInfo* session,
                                       HGParameterList2* list);
QUORVEL_API int QV_GetHGParameterID(const UnitName* unit, const QVSessionInfo* session,
                                    std::int32_t controller, HGParameterID* identifiers);
QUORVEL_API int QV_GetWWNInformation(const UnitName* unit, WWNInformation* information);
QUORVEL_API int QV_SetWWNInformation(const UnitName* unit, const WWNInformation* information);
QUORVEL_API int QV_GetWWNHGInformation(const UnitName* unit, const QVSessionInfo* session,
                                       WWNHGInformation* information);
QUORVEL_API int QV_SetWWNHGInformation(const UnitName* unit, const QVSessionInfo* session,
                                       const WWNHGInformation* information);
QUORVEL_API int QV_GetTargetId(const UnitName* unit, std::int32_t controller, TargetId (*ids)[2]);
QUORVEL_API int QV_SetTargetId(const UnitName* unit, std::int32_t controller, const TargetId* id);
QUORVEL_API int QV_TargetIdImport(const UnitName* unit, const FilePath* file, TargetId (*ids)[2]);
QUORVEL_API int QV_WZTargetIdImport(const UnitName* unit, const FilePath* first,
                                    const FilePath* second, WZTargetId (*ids)[2]);

// iSCSI targets and ports

// Fibre ports and LAN settings
