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
QUORVEL_PART(HGName, 33);

struct HGPortInfo {
  std::uint8_t security;
  HGInfo hg[128];
};
QUORVEL_RECORD(HGPortInfo, 4353);
QUORVEL_ASSUMED(HGPortInfo, hg);
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
QUORVEL_ASSUMED(HGList, ctl);
QUORVEL_OFFSET(HGList, ctl, 1);

/// The host groups of a port to delete.
struct DeleteHGPortList {
  std::byte hg[64];
};
QUORVEL_RECORD(DeleteHGPortList, 64);
QUORVEL_ASSUMED(DeleteHGPortList);

struct DeleteHGCtlList {
  DeleteHGPortList port[8];
};
QUORVEL_RECORD(DeleteHGCtlList, 512);
QUORVEL_ASSUMED(DeleteHGCtlList);

/// The host groups to delete.
struct DeleteHGList {
  DeleteHGCtlList ctl[2];
};
QUORVEL_RECORD(DeleteHGList, 1024);
QUORVEL_ASSUMED(DeleteHGList);

/// The host groups of a port to initialise.
struct InitHGPortList {
  std::byte hg[64];
};
QUORVEL_RECORD(InitHGPortList, 64);
QUORVEL_ASSUMED(InitHGPortList);

struct InitHGCtlList {
  InitHGPortList port[8];
};
QUORVEL_RECORD(InitHGCtlList, 512);
QUORVEL_ASSUMED(InitHGCtlList);

/// The host groups to initialise.
struct InitHGList {
  InitHGCtlList ctl[2];
};
QUORVEL_RECORD(InitHGList, 1024);
QUORVEL_ASSUMED(InitHGList);

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
QUORVEL_ASSUMED(LuMappingPortInfo, hg);
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
QUORVEL_ASSUMED(LuMapping, ctl);
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
struct ControllerRequest {
  std::int32_t requestCTL;
};
QUORVEL_RECORD(ControllerRequest, 4);
QUORVEL_ASSUMED(ControllerRequest);

/// The ports through which each LU is mapped.
struct LuMappingPortAssignInfo {
  std::int32_t lu_assign[8192][2];
};
QUORVEL_RECORD(LuMappingPortAssignInfo, 65536);
QUORVEL_ASSUMED(LuMappingPortAssignInfo);

/// The mapping guard, a byte an LU.
struct MappingGuardList {
  std::byte lumap_guard[8192];
};
QUORVEL_RECORD(MappingGuardList, 8192);

struct HGOptionValidIndex {
  std::byte reserved[80];
};
QUORVEL_RECORD(HGOptionValidIndex, 80);
QUORVEL_ASSUMED(HGOptionValidIndex);

/// The options of a host group.
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
QUORVEL_ASSUMED(HGOptionInfo);

struct HGOptionPortInfo {
  HGOptionInfo hg[255];
};
QUORVEL_RECORD(HGOptionPortInfo, 9180);
QUORVEL_ASSUMED(HGOptionPortInfo);

struct HGOptionCtlInfo {
  HGOptionPortInfo port[8];
};
QUORVEL_RECORD(HGOptionCtlInfo, 73440);
QUORVEL_ASSUMED(HGOptionCtlInfo);

/// The options of all host groups.
struct HGOption {
  HGOptionValidIndex support_index;
  HGOptionValidIndex valid_index;
  std::int32_t HostGroupValid;
  HGOptionCtlInfo ctl[2];
};
QUORVEL_RECORD(HGOption, 147044);
QUORVEL_ASSUMED(HGOption);

struct PortOptionValidIndex {
  std::byte reserved[8];
};
QUORVEL_RECORD(PortOptionValidIndex, 8);
QUORVEL_ASSUMED(PortOptionValidIndex);

struct PortOptionCtlInfo {
  std::int32_t lip_mode[8];
  std::int32_t port_common_opt[8];
};
QUORVEL_RECORD(PortOptionCtlInfo, 64);
QUORVEL_ASSUMED(PortOptionCtlInfo);

/// The options of all ports.
struct PortOption {
  PortOptionValidIndex support_index;
  PortOptionValidIndex valid_index;
  PortOptionCtlInfo ctl[2];
};
QUORVEL_RECORD(PortOption, 144);
QUORVEL_ASSUMED(PortOption);

struct PlatformInfo {
  std::byte reserved[16188];
};
QUORVEL_RECORD(PlatformInfo, 16188);
QUORVEL_ASSUMED(PlatformInfo);

struct SpecialmodeInfo {
  std::int32_t specialmode_id;
  HGOptionInfo hgoptinfo;
};
QUORVEL_RECORD(SpecialmodeInfo, 40);
QUORVEL_ASSUMED(SpecialmodeInfo);

/// The host group parameters that there are to choose from.
struct HGParameterList {
  std::int32_t platform_count;
  PlatformInfo platinfo[20];
  std::int32_t special_mode_count;
  SpecialmodeInfo specialinfo[20];
};
QUORVEL_RECORD(HGParameterList, 324568);
QUORVEL_ASSUMED(HGParameterList);

struct MiddlewareInfo {
  std::byte reserved[40];
};
QUORVEL_RECORD(MiddlewareInfo, 40);
QUORVEL_ASSUMED(MiddlewareInfo);

struct PlatformInfo2 {
  std::int32_t platform_id;
  std::int32_t middleware_count;
  MiddlewareInfo middlewareinfo[20];
};
QUORVEL_RECORD(PlatformInfo2, 808);
QUORVEL_ASSUMED(PlatformInfo2);

/// The same in the second form, with middleware.
struct HGParameterList2 {
  std::int32_t platform_count;
  PlatformInfo2 platinfo[20];
};
QUORVEL_RECORD(HGParameterList2, 16164);
QUORVEL_ASSUMED(HGParameterList2);

struct PlatFormID {
  std::byte reserved[84];
};
QUORVEL_RECORD(PlatFormID, 84);
QUORVEL_ASSUMED(PlatFormID);

struct AlternatePathID {
  std::byte reserved[84];
};
QUORVEL_RECORD(AlternatePathID, 84);
QUORVEL_ASSUMED(AlternatePathID);

struct FailOverID {
  std::byte reserved[84];
};
QUORVEL_RECORD(FailOverID, 84);
QUORVEL_ASSUMED(FailOverID);

struct SpecialModeID {
  std::byte reserved[84];
};
QUORVEL_RECORD(SpecialModeID, 84);
QUORVEL_ASSUMED(SpecialModeID);

struct MiddlewareID {
  std::int32_t middleware_id;
  char middleware_name[40];
  char middleware_name_str[40];
};
QUORVEL_RECORD(MiddlewareID, 84);
QUORVEL_ASSUMED(MiddlewareID);

/// The identifiers of the host group parameters.
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
QUORVEL_ASSUMED(HGParameterID);

struct WWNPortInfo {
  std::byte reserved[18566];
};
QUORVEL_RECORD(WWNPortInfo, 18566);
QUORVEL_ASSUMED(WWNPortInfo);

struct WWNCtlInfo {
  WWNPortInfo port[8];
};
QUORVEL_RECORD(WWNCtlInfo, 148528);
QUORVEL_ASSUMED(WWNCtlInfo);

/// The hosts known at the ports.
struct WWNInformation {
  std::int32_t lun_security_opt;
  WWNCtlInfo ctl[2];
};
QUORVEL_RECORD(WWNInformation, 297060);
QUORVEL_ASSUMED(WWNInformation);

struct WWNHGPortInfo {
  std::byte reserved[9736];
};
QUORVEL_RECORD(WWNHGPortInfo, 9736);
QUORVEL_ASSUMED(WWNHGPortInfo);

struct WWNHGCtlInfo {
  WWNHGPortInfo port[8];
};
QUORVEL_RECORD(WWNHGCtlInfo, 77888);
QUORVEL_ASSUMED(WWNHGCtlInfo);

/// The hosts of the host groups.
struct WWNHGInformation {
  std::int32_t lun_manage;
  WWNHGCtlInfo ctl[2];
};
QUORVEL_RECORD(WWNHGInformation, 155780);
QUORVEL_ASSUMED(WWNHGInformation);

struct TargetLunList {
  std::byte reserved[512];
};
QUORVEL_RECORD(TargetLunList, 512);
QUORVEL_ASSUMED(TargetLunList);

struct TargetConfig {
  std::int32_t single;
  std::int32_t multi[16];
  TargetLunList mapping[16];
};
QUORVEL_RECORD(TargetConfig, 8260);
QUORVEL_ASSUMED(TargetConfig);

/// The target IDs of a controller.
struct TargetId {
  std::int32_t ctrl_flag;
  std::int32_t target_id_mode;
  TargetConfig target_config;
};
QUORVEL_RECORD(TargetId, 8268);
QUORVEL_ASSUMED(TargetId);

struct WZTargetConfig {
  std::byte reserved[8260];
};
QUORVEL_RECORD(WZTargetConfig, 8260);
QUORVEL_ASSUMED(WZTargetConfig);

struct WZTargetId {
  std::int32_t ctrl_flag;
  std::int32_t target_id_mode;
  WZTargetConfig target_config;
};
QUORVEL_RECORD(WZTargetId, 8268);
QUORVEL_ASSUMED(WZTargetId);

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

/// The addresses of one port.
struct QViSCSIPortPortInfo {
  std::int32_t port_valid;
  std::int32_t set_valid;
  char ip_address[40];
  char subnet[40];
  char gateway[40];
  std::int32_t port_num;
  char ether[20];
  std::int32_t keep_alive_timer;
  std::int32_t mtu;
  std::int32_t set_status;
  std::int32_t host_count;
};
QUORVEL_RECORD(QViSCSIPortPortInfo, 168);
QUORVEL_OFFSET(QViSCSIPortPortInfo, port_num, 128);
QUORVEL_OFFSET(QViSCSIPortPortInfo, keep_alive_timer, 152);

struct QViSCSIPortCTLInfo {
  QViSCSIPortPortInfo port[8];
};
QUORVEL_RECORD(QViSCSIPortCTLInfo, 1344);

struct QViSCSIPortInformation {
  QViSCSIPortCTLInfo ctl[2];
};
QUORVEL_RECORD(QViSCSIPortInformation, 2688);
QUORVEL_ASSUMED(QViSCSIPortInformation);

/// A target and how it authenticates.
struct QViSCSITargetInfo {
  std::int32_t target_valid;
  char target_name[33];
  char iscsi_name[227];
  std::int32_t authmethod;
  std::int32_t algorithm;
  std::int32_t auth;
  char user_name[257];
  char secret[35];
};
QUORVEL_RECORD(QViSCSITargetInfo, 568);
QUORVEL_SECRET(QViSCSITargetInfo, secret);
QUORVEL_OFFSET(QViSCSITargetInfo, iscsi_name, 37);
QUORVEL_OFFSET(QViSCSITargetInfo, authmethod, 264);
QUORVEL_OFFSET(QViSCSITargetInfo, user_name, 276);
QUORVEL_OFFSET(QViSCSITargetInfo, secret, 533);

struct QViSCSITargetPortInfo {
  std::int32_t port_valid;
  std::int32_t security;
  std::int32_t target_max_count;
  std::int32_t target_count;
  QViSCSITargetInfo target[255];
};
QUORVEL_RECORD(QViSCSITargetPortInfo, 144856);

struct QViSCSITargetCTLInfo {
  QViSCSITargetPortInfo port[8];
};
QUORVEL_RECORD(QViSCSITargetCTLInfo, 1158848);

struct QViSCSITargetInformationAll {
  std::int32_t option;
  QViSCSITargetCTLInfo ctl[2];
};
QUORVEL_RECORD(QViSCSITargetInformationAll, 2317700);
QUORVEL_ASSUMED(QViSCSITargetInformationAll);

/// Which targets of a port to delete: a word for each.
struct DeleteTargetList {
  std::int32_t target[255];
};
QUORVEL_RECORD(DeleteTargetList, 1020);
QUORVEL_ASSUMED(DeleteTargetList);

/// A registered initiator and the targets that it may use, a bit for each.
struct QViSCSIInitiatorInfo {
  std::int32_t initiator_valid;
  std::int32_t ctrl_flag;
  char initiator_name[33];
  char iscsi_name[224];
  std::byte target_bitmap[32];
};
QUORVEL_RECORD(QViSCSIInitiatorInfo, 300);
QUORVEL_OFFSET(QViSCSIInitiatorInfo, iscsi_name, 41);
QUORVEL_OFFSET(QViSCSIInitiatorInfo, target_bitmap, 265);

struct QViSCSIInitiatorPortInfo {
  std::int32_t port_valid;
  std::int32_t security;
  std::int32_t initiator_max_count;
  std::int32_t initiator_count;
  QViSCSIInitiatorInfo initiator[256];
};
QUORVEL_RECORD(QViSCSIInitiatorPortInfo, 76816);

struct QViSCSIInitiatorCTLInfo {
  QViSCSIInitiatorPortInfo port[8];
};
QUORVEL_RECORD(QViSCSIInitiatorCTLInfo, 614528);
QUORVEL_ASSUMED(QViSCSIInitiatorCTLInfo);

struct QViSCSIInitiatorInformationAll {
  std::int32_t option;
  QViSCSIInitiatorCTLInfo ctl[2];
};
QUORVEL_RECORD(QViSCSIInitiatorInformationAll, 1229060);
QUORVEL_ASSUMED(QViSCSIInitiatorInformationAll);

struct QViSCSIInitiatorPortInformation {
  std::int32_t option;
  QViSCSIInitiatorPortInfo port;
};
QUORVEL_RECORD(QViSCSIInitiatorPortInformation, 76820);

/// An initiator that is logged in.
struct QViSCSILoginInitiatorInfo {
  std::int32_t initiator_valid;
  char iscsi_name[224];
};
QUORVEL_RECORD(QViSCSILoginInitiatorInfo, 228);

struct QViSCSILoginInitiatorPortInfo {
  std::int32_t port_valid;
  std::int32_t initiator_max_count;
  std::int32_t initiator_count;
  QViSCSILoginInitiatorInfo initiator[256];
};
QUORVEL_RECORD(QViSCSILoginInitiatorPortInfo, 58380);

struct QViSCSILoginInitiatorCTLInfo {
  QViSCSILoginInitiatorPortInfo port[8];
};
QUORVEL_RECORD(QViSCSILoginInitiatorCTLInfo, 467040);
QUORVEL_ASSUMED(QViSCSILoginInitiatorCTLInfo);

struct QViSCSILoginInitiatorInformationAll {
  QViSCSILoginInitiatorCTLInfo ctl[2];
};
QUORVEL_RECORD(QViSCSILoginInitiatorInformationAll, 934080);
QUORVEL_ASSUMED(QViSCSILoginInitiatorInformationAll);

/// A CHAP user and the targets that it may use, a bit for each.
struct QViSCSICHAPUserInfo {
  std::int32_t user_valid;
  std::int32_t ctrl_flag;
  char user_name[257];
  char secret[33];
  std::byte target_bitmap[32];
};
QUORVEL_RECORD(QViSCSICHAPUserInfo, 332);
QUORVEL_SECRET(QViSCSICHAPUserInfo, secret);
QUORVEL_OFFSET(QViSCSICHAPUserInfo, secret, 265);
QUORVEL_OFFSET(QViSCSICHAPUserInfo, target_bitmap, 298);

struct QViSCSICHAPUserPortInfo {
  std::int32_t port_valid;
  std::int32_t security;
  std::int32_t user_max_count;
  std::int32_t user_count;
  QViSCSICHAPUserInfo user[512];
};
QUORVEL_RECORD(QViSCSICHAPUserPortInfo, 170000);

struct QViSCSICHAPUserCTLInfo {
  QViSCSICHAPUserPortInfo port[8];
};
QUORVEL_RECORD(QViSCSICHAPUserCTLInfo, 1360000);
QUORVEL_ASSUMED(QViSCSICHAPUserCTLInfo);

struct QViSCSICHAPUserInformationAll {
  std::int32_t option;
  QViSCSICHAPUserCTLInfo ctl[2];
};
QUORVEL_RECORD(QViSCSICHAPUserInformationAll, 2720004);
QUORVEL_ASSUMED(QViSCSICHAPUserInformationAll);

struct QViSCSICHAPUserPortInformation {
  std::int32_t option;
  QViSCSICHAPUserPortInfo port;
};
QUORVEL_RECORD(QViSCSICHAPUserPortInformation, 170004);

/// The iSNS server of one port.
struct QViSNSPortInfo {
  std::int32_t port_valid;
  std::int32_t set_valid;
  std::int32_t isns_use;
  char ip_address[40];
  std::int32_t port_num;
};
QUORVEL_RECORD(QViSNSPortInfo, 56);

struct QViSNSCTLInfo {
  QViSNSPortInfo port[8];
};
QUORVEL_RECORD(QViSNSCTLInfo, 448);
QUORVEL_ASSUMED(QViSNSCTLInfo);

struct QViSNSInformation {
  QViSNSCTLInfo ctl[2];
};
QUORVEL_RECORD(QViSNSInformation, 896);
QUORVEL_ASSUMED(QViSNSInformation);

/// A ping from one port, and how far it came.
struct QViSCSIPingPort {
  std::int32_t port_valid;
  std::int32_t request_valid;
  char ip_address[40];
  std::int32_t status;
  std::int32_t execute_count;
  std::int32_t success_count;
  std::int32_t schedule_count;
};
QUORVEL_RECORD(QViSCSIPingPort, 64);

struct QViSCSIPingCTL {
  QViSCSIPingPort port[8];
};
QUORVEL_RECORD(QViSCSIPingCTL, 512);
QUORVEL_ASSUMED(QViSCSIPingCTL);

struct QViSCSIPing {
  QViSCSIPingCTL ctl[2];
};
QUORVEL_RECORD(QViSCSIPing, 1024);
QUORVEL_ASSUMED(QViSCSIPing);

struct QViSCSIRemotePathSecret {
  char secret[33];
};
QUORVEL_RECORD(QViSCSIRemotePathSecret, 33);
QUORVEL_SECRET(QViSCSIRemotePathSecret, secret);
QUORVEL_ASSUMED(QViSCSIRemotePathSecret);

/// The paths to another array.
struct QViSCSIRemotePath {
  std::int32_t path_valid;
  char other_serial_no[9];
  QViSCSIRemotePathSecret path[2];
};
QUORVEL_RECORD(QViSCSIRemotePath, 80);
QUORVEL_ASSUMED(QViSCSIRemotePath);

struct QViSCSIRemotePathInfo {
  QViSCSIRemotePath arrayunit[8];
};
QUORVEL_RECORD(QViSCSIRemotePathInfo, 640);

QUORVEL_API int QV_GetiSCSIPortInformation(const UnitName* unit, const QVSessionInfo* session,
                                           QViSCSIPortInformation* ports);
QUORVEL_API int QV_SetiSCSIPortInformation(const UnitName* unit, const QVSessionInfo* session,
                                           const QViSCSIPortInformation* ports);
QUORVEL_API int QV_GetiSCSITargetInformationAll(const UnitName* unit, const QVSessionInfo* session,
                                                QViSCSITargetInformationAll* targets);
QUORVEL_API int QV_CreateiSCSITarget(const UnitName* unit, const QVSessionInfo* session,
                                     std::int32_t controller, std::int32_t port,
                                     std::int32_t number, const QViSCSITargetInfo* target);
QUORVEL_API int QV_ChangeiSCSITarget(const UnitName* unit, const QVSessionInfo* session,
                                     std::int32_t controller, std::int32_t port,
                                     std::int32_t number, const QViSCSITargetInfo* target);
QUORVEL_API int QV_DeleteiSCSITarget(const UnitName* unit, const QVSessionInfo* session,
                                     std::int32_t controller, std::int32_t port,
                                     const DeleteTargetList* targets);
QUORVEL_ASSUMED_FUNCTION(QV_DeleteiSCSITarget);
QUORVEL_API int QV_InitiSCSITarget(const UnitName* unit, const QVSessionInfo* session,
                                   std::int32_t controller, std::int32_t port);
QUORVEL_API int QV_ChangeiSCSITargetSecurity(const UnitName* unit, const QVSessionInfo* session,
                                             std::int32_t controller, std::int32_t port,
                                             std::int32_t security);
QUORVEL_API int QV_GetiSCSIInitiatorInformationAll(const UnitName* unit,
                                                   const QVSessionInfo* session,
                                                   QViSCSIInitiatorInformationAll* initiators);
QUORVEL_API int QV_GetiSCSIInitiatorInformation(const UnitName* unit, const QVSessionInfo* session,
                                                std::int32_t controller, std::int32_t port,
                                                QViSCSIInitiatorPortInformation* initiators);
/// The library's own spelling.
QUORVEL_API int QV_SetiSCSIInitiatortInformation(const UnitName* unit, const QVSessionInfo* session,
                                                 std::int32_t controller, std::int32_t port,
                                                 const QViSCSIInitiatorPortInfo* initiators);
QUORVEL_API int QV_GetiSCSILoginInitiatorInformationAll(
    const UnitName* unit, const QVSessionInfo* session,
    QViSCSILoginInitiatorInformationAll* initiators);
QUORVEL_API int QV_GetiSCSICHAPUserInformationAll(const UnitName* unit,
                                                  const QVSessionInfo* session,
                                                  QViSCSICHAPUserInformationAll* users);
QUORVEL_API int QV_GetiSCSICHAPUserInformation(const UnitName* unit, const QVSessionInfo* session,
                                               std::int32_t controller, std::int32_t port,
                                               QViSCSICHAPUserPortInformation* users);
QUORVEL_API int QV_SetiSCSICHAPUserInformation(const UnitName* unit, const QVSessionInfo* session,
                                               std::int32_t controller, std::int32_t port,
                                               const QViSCSICHAPUserPortInfo* users);
QUORVEL_API int QV_iSCSICHAPUserImport(const UnitName* unit, const QVSessionInfo* session,
                                       const FilePath* path);
QUORVEL_ASSUMED_FUNCTION(QV_iSCSICHAPUserImport);
QUORVEL_API int QV_GetiSNSInformation(const UnitName* unit, const QVSessionInfo* session,
                                      QViSNSInformation* servers);
QUORVEL_API int QV_SetiSNSInformation(const UnitName* unit, const QVSessionInfo* session,
                                      const QViSNSInformation* servers);
QUORVEL_API int QV_RequestiSCSIPing(const UnitName* unit, const QVSessionInfo* session,
                                    const QViSCSIPing* request);
QUORVEL_API int QV_GetiSCSIPingStatus(const UnitName* unit, const QVSessionInfo* session,
                                      QViSCSIPing* status);
QUORVEL_API int QV_GetiSCSIRemotePath(const UnitName* unit, const QVSessionInfo* session,
                                      QViSCSIRemotePathInfo* paths);
QUORVEL_API int QV_SetiSCSIRemotePath(const UnitName* unit, const QVSessionInfo* session,
                                      const QViSCSIRemotePath* path);
QUORVEL_ASSUMED_FUNCTION(QV_SetiSCSIRemotePath);
QUORVEL_API int QV_DeliSCSIRemotePath(const UnitName* unit, const QVSessionInfo* session,
                                      const QViSCSIRemotePath* path);
QUORVEL_ASSUMED_FUNCTION(QV_DeliSCSIRemotePath);

// Fibre ports and LAN settings

/// The LAN address of a controller.
struct LANInformation {
  std::uint8_t dhcp;
  char ip_address[16];
  char subnet[16];
  char gateway[16];
  char ether[18];
  std::uint8_t lan_connect;
  std::int32_t mainte_ip_change_mode;
  std::int32_t mainte_ip_change_mode_new;
  std::int32_t negotiation;
};
QUORVEL_RECORD(LANInformation, 80);
QUORVEL_OFFSET(LANInformation, subnet, 17);
QUORVEL_OFFSET(LANInformation, ether, 49);
QUORVEL_OFFSET(LANInformation, lan_connect, 67);
QUORVEL_OFFSET(LANInformation, mainte_ip_change_mode, 68);

struct LanDetail {
  std::int32_t dhcp;
  char ip_address[16];
  char subnet[16];
  char gateway[16];
  char ether[18];
  std::uint8_t duplex_type;
  std::uint8_t link_speed;
};
QUORVEL_RECORD(LanDetail, 72);
QUORVEL_OFFSET(LanDetail, ether, 52);
QUORVEL_OFFSET(LanDetail, link_speed, 71);

/// The LAN addresses of both controllers.
struct LANInformationEx {
  LanDetail ctl[2];
};
QUORVEL_RECORD(LANInformationEx, 144);

struct LANPortNumberCtl {
  std::int32_t valid_index;
  std::int32_t normal_port;
  std::int32_t port_num;
  std::int32_t ssl_port_num;
};
QUORVEL_RECORD(LANPortNumberCtl, 16);

/// The management port numbers.
struct LANPortNumber {
  LANPortNumberCtl ctl[2];
  std::int32_t logout_instruction;
  std::int32_t mode;
};
QUORVEL_RECORD(LANPortNumber, 40);
QUORVEL_ASSUMED(LANPortNumber);

struct QVUserLANDetail {
  std::int32_t support_index;
  std::int32_t valid_index;
  std::int32_t setting_result;
  std::int32_t dhcp;
  char eather_address[18];
  char current_ipaddress[40];
  char current_subnet[40];
  char current_gateway[40];
  char current_ipaddress_ipv6[40];
  char link_ipv6[40];
  std::int32_t current_subnet_prefix;
  char current_gateway_ipv6[40];
  std::int32_t current_linkspeed_duplex;
  char set_ipaddress[40];
  char set_subnet[40];
  char set_gateway[40];
  std::byte reserved[92];
};
QUORVEL_RECORD(QVUserLANDetail, 496);
QUORVEL_ASSUMED(QVUserLANDetail);

/// The user LAN of both controllers.
struct QVUserLANInformation {
  QVUserLANDetail ctl[2];
  std::int32_t mainte_ip_change_mode;
  std::int32_t last_set_mode;
  std::int32_t logout_instruction;
  std::int32_t ipv6_used;
  std::int32_t set_ipversion;
};
QUORVEL_RECORD(QVUserLANInformation, 1012);
QUORVEL_ASSUMED(QVUserLANInformation);
QUORVEL_OFFSET(QVUserLANInformation, mainte_ip_change_mode, 992);

/// The file that LAN settings are written to or read from.
struct LANFile {
  char filename[256];
  std::byte reserved[8];
};
QUORVEL_RECORD(LANFile, 264);
QUORVEL_ASSUMED(LANFile);

struct MainteLanInfoDetail {
  std::int32_t valid_index;
  char ip_address[40];
  char subnet[40];
  char gateway_ipv4[40];
  char ip_address_ipv6[40];
  std::int32_t subnet_prefix;
  char gateway_ipv6[40];
  std::int32_t connect_status;
};
QUORVEL_RECORD(MainteLanInfoDetail, 212);
QUORVEL_OFFSET(MainteLanInfoDetail, subnet_prefix, 164);

/// The maintenance LAN of the controllers and of the network node controllers.
struct MainteLanInfo {
  MainteLanInfoDetail ctl[2];
  MainteLanInfoDetail nnc[4];
  std::byte reserved[48];
};
QUORVEL_RECORD(MainteLanInfo, 1320);
QUORVEL_ASSUMED(MainteLanInfo);

/// An address for the maintenance LAN.
struct MainteIPAddress {
  std::int32_t set_ipversion;
  char ip_addr[40];
  std::int32_t logout_instruction;
};
QUORVEL_RECORD(MainteIPAddress, 48);
QUORVEL_ASSUMED(MainteIPAddress);

struct MainteHostAddress {
  std::int32_t host_address;
};
QUORVEL_RECORD(MainteHostAddress, 4);
QUORVEL_ASSUMED(MainteHostAddress);

/// Addresses that the maintenance LAN may be given.
struct MainteLanAvailableList {
  std::int32_t available_count;
  MainteIPAddress available_address[5];
  std::int32_t rule_ipv4_minaddr;
  std::int32_t rule_ipv4_maxaddr;
  std::int32_t rule_ipv4_addition_value;
  std::int32_t rule_ipv4_base_value;
  MainteHostAddress available_host_ctl[2];
  MainteHostAddress available_host_nnc[4];
  std::int32_t available_count_ipv6;
  MainteIPAddress available_address_ipv6[5];
  std::int32_t rule_ipv6_minaddr;
  std::int32_t rule_ipv6_maxaddr;
  std::int32_t rule_ipv6_addition_value;
  std::int32_t rule_ipv6_base_value;
  std::byte reserved[8];
};
QUORVEL_RECORD(MainteLanAvailableList, 552);
QUORVEL_ASSUMED(MainteLanAvailableList);

struct NNCLANInformationDetail {
  std::int32_t valid_index;
  char ip_address[40];
  char subnet[40];
  std::int32_t mtu;
  std::int32_t negotiation;
  std::int32_t set_status;
};
QUORVEL_RECORD(NNCLANInformationDetail, 96);
QUORVEL_OFFSET(NNCLANInformationDetail, mtu, 84);

/// The LAN of the network node controllers.
struct NNCLANInformation {
  std::int8_t nnclaninfo_valid[4];
  std::int32_t set_valid;
  NNCLANInformationDetail nnclaninfo[4];
  NNCLANInformationDetail set_nnclaninfo[4];
};
QUORVEL_RECORD(NNCLANInformation, 776);
QUORVEL_ASSUMED(NNCLANInformation);

struct FibreInformationConnector {
  std::int32_t topology_ref;
};
QUORVEL_RECORD(FibreInformationConnector, 4);
QUORVEL_ASSUMED(FibreInformationConnector);

struct FibreInformationPort {
  char node_name[17];
  char port_name[17];
  char n_port_id[7];
  char get_address[7];
  std::int32_t frame_size;
  std::int32_t if_board;
  std::int32_t support_speed;
  std::int32_t set_speed;
  std::int32_t refer_speed;
  std::int32_t connect_valid;
  FibreInformationConnector connector[2];
};
QUORVEL_RECORD(FibreInformationPort, 80);
QUORVEL_ASSUMED(FibreInformationPort);

/// Firmware levels of a port's adapter.
struct FibreInformationSfc {
  char biu[5];
  char sequence[5];
  char oper_firmware[5];
  char post_firmware[5];
  char endec[5];
  char fc_ph[5];
};
QUORVEL_RECORD(FibreInformationSfc, 30);
QUORVEL_ASSUMED(FibreInformationSfc);

/// A host that may use a port, and its logical units, a bit for each.
struct FibreInformationPermission {
  char node_name[17];
  char port_name[17];
  char n_port_id[7];
  std::byte lun_security_bitmap[256];
};
QUORVEL_RECORD(FibreInformationPermission, 297);
QUORVEL_ASSUMED(FibreInformationPermission);

/// The permitted hosts of a port.
using PermittedHosts = FibreInformationPermission[128];

struct FibreInformationSecurity {
  std::int32_t access_guard;
  std::int32_t all_lun_security;
  std::int32_t permission_count;
  std::int32_t security_chk_lv;
  FibreInformationPermission permission[128];
};
QUORVEL_RECORD(FibreInformationSecurity, 38032);
QUORVEL_ASSUMED(FibreInformationSecurity);

/// The fibre ports of one controller.
struct FibreInformation {
  std::int32_t lun_security;
  std::int32_t port_valid;
  std::int32_t topology[8];
  std::int32_t topology_ref[8];
  FibreInformationPort port[8];
  FibreInformationSfc sfc[8];
  std::byte reserved[40];
  FibreInformationSecurity security[8];
  char product_number[8];
};
QUORVEL_RECORD(FibreInformation, 305256);
QUORVEL_ASSUMED(FibreInformation);
QUORVEL_OFFSET(FibreInformation, product_number, 305248);

QUORVEL_API int QV_GetLANInformation(const UnitName* unit, const QVSessionInfo* session,
                                     std::int32_t controller, LANInformation* information);
QUORVEL_ASSUMED_FUNCTION(QV_GetLANInformation);
QUORVEL_API int QV_SetLANInformation(const UnitName* unit, const QVSessionInfo* session,
                                     std::int32_t controller, std::int32_t port,
                                     const LANInformation* information);
QUORVEL_ASSUMED_FUNCTION(QV_SetLANInformation);
QUORVEL_API int QV_GetLANInformationEx(const UnitName* unit, LANInformationEx* information);
QUORVEL_API int QV_SetLANInformationEx(const UnitName* unit, const LANInformationEx* information);
QUORVEL_API int QV_GetLANPortNumber(const UnitName* unit, const QVSessionInfo* session,
                                    LANPortNumber* numbers);
QUORVEL_API int QV_SetLANPortNumber(const UnitName* unit, const QVSessionInfo* session,
                                    std::int32_t controller, const LANPortNumber* numbers);
QUORVEL_ASSUMED_FUNCTION(QV_SetLANPortNumber);
QUORVEL_API int QV_GetQVUserLANInformation(const UnitName* unit, const QVSessionInfo* session,
                                           QVUserLANInformation* information);
QUORVEL_API int QV_SetQVUserLANInformation(const UnitName* unit, const QVSessionInfo* session,
                                           const QVUserLANInformation* information);
QUORVEL_API int QV_LoadQVUserLANInformation(const UnitName* unit, const QVSessionInfo* session,
                                            const FilePath* path,
                                            QVUserLANInformation* information);
QUORVEL_ASSUMED_FUNCTION(QV_LoadQVUserLANInformation);
QUORVEL_API int QV_LANExport(const UnitName* unit, const QVSessionInfo* session,
                             const LANFile* file);
QUORVEL_API int QV_LANImport(const UnitName* unit, const QVSessionInfo* session,
                             const LANFile* file);
QUORVEL_API int QV_GetMainteLanInfo(const UnitName* unit, const QVSessionInfo* session,
                                    MainteLanInfo* information);
QUORVEL_API int QV_SetMainteIPAddress(const UnitName* unit, const QVSessionInfo* session,
                                      const MainteIPAddress* address);
QUORVEL_API int QV_GetMainteLanAvailableList(const UnitName* unit, const QVSessionInfo* session,
                                             MainteLanAvailableList* list);
QUORVEL_API int QV_GetNNCLANInformation(const UnitName* unit, const QVSessionInfo* session,
                                        NNCLANInformation* information);
QUORVEL_API int QV_SetNNCLANInformation(const UnitName* unit, const QVSessionInfo* session,
                                        const NNCLANInformation* information);
QUORVEL_API int QV_GetFibreInformation(const UnitName* unit, const QVSessionInfo* session,
                                       FibreInformation (*controllers)[2]);
QUORVEL_API int QV_SetFibreInformation(const UnitName* unit, const QVSessionInfo* session,
                                       const FibreInformation* first,
                                       const FibreInformation* second);
QUORVEL_API int QV_FibreInfoPermissionImport(const UnitName* unit, const FilePath* path,
                                             std::int32_t port, PermittedHosts* permissions);
QUORVEL_ASSUMED_FUNCTION(QV_FibreInfoPermissionImport);
