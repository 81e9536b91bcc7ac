// The whole array in one record, and slices of it: put together from what the other functions tell.
#include "arraylib/all_information.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <memory>
#include <tuple>
#include <type_traits>

#include "simulator/simulator.h"

using namespace quorvelsim;

namespace {

/// Whose session asks.
struct Asker {
  const UnitName* unit;
  const QVSessionInfo* session;
};

/// The functions that return a record by unit and session, of which a bundle has a member.
constexpr auto kGetters = std::make_tuple(
    QV_GetUnitInformation, QV_GetDiskDriveStatusAll, QV_GetDiskDriveInformationAll,
    QV_GetDiskDriveRestoration, QV_GetDriveResponseDiag, QV_GetSpinDownUpInformation,
    QV_GetBatteryConfig, QV_GetLocateLEDInformation, QV_GetUnitCTLPortKind, QV_GetUnitIdentifier,
    QV_GetTimeInfo, QV_GetRaidGroupInformation, QV_GetQuickFormatOption,
    QV_GetQuickFormatStatusList, QV_GetParityCorrectionStatusList, QV_GetLuOwnership,
    QV_IntegrationLUInfo2, QV_GetDMLU, QV_GetPoolInformation, QV_GetVVOLInformation,
    QV_GetLuGuardInformation, QV_GetHGList, QV_GetHGOptionAll, QV_GetPortOption,
    QV_GetLuMappingListAll, QV_GetMappingGuardList, QV_GetWWNHGInformation, QV_GetHGParameterList,
    QV_GetHGParameterList2, QV_GetLANPortNumber, QV_GetQVUserLANInformation, QV_GetMainteLanInfo,
    QV_GetMainteLanAvailableList, QV_GetNNCLANInformation, QV_GetiSCSIPortInformation,
    QV_GetiSCSITargetInformationAll, QV_GetiSCSIInitiatorInformationAll,
    QV_GetiSCSILoginInitiatorInformationAll, QV_GetiSCSICHAPUserInformationAll,
    QV_GetiSNSInformation, QV_GetiSCSIRemotePath, QV_GetPairInformation,
    QV_GetFarlinkPairInformation, QV_GetFarlinkAsyncPairInformation, QV_GetFarlinkAsyncOption,
    QV_GetCTGInformation, QV_GetRvrfSrcPath, QV_GetCommandDevice, QV_GetCouplingInfo,
    QV_GetLuMigrationInformation, QV_GetQVAuditLogInformation, QV_GetQVAccountRoleInformation,
    QV_GetAccountInformation, QV_GetAccountOption);

template <class Getter, class Record>
void ask(const Asker& asker, Getter get, Record& member) {
  if constexpr (std::is_invocable_v<Getter, const UnitName*, const QVSessionInfo*, Record*>) {
    get(asker.unit, asker.session, &member);
  }
}

/// Fills members from the functions that return their records; what no function returns stays zero.
template <class... Record>
void fill(const Asker& asker, Record&... members) {
  const auto one = [&asker](auto& member) {
    std::apply([&](auto... get) { (ask(asker, get, member), ...); }, kGetters);
  };
  (one(members), ...);
}

/// Members that are returned a controller at a time, or in another shape.
template <class Bundle>
void fillConditions(const Asker& asker, Bundle& bundle) {
  for (std::int32_t controller = 0; controller < 2; ++controller) {
    QV_GetUnitCondition(asker.unit, asker.session, controller, &bundle.unit_conditions[controller]);
    bundle.ctrl_condition[controller] = 1;
  }
}

int getAll(const UnitName* unit, const QVSessionInfo* session, ArrayAllInformation* all) {
  const Asker asker{unit, session};
  std::memset(static_cast<void*>(all), 0, sizeof *all);
  fillConditions(asker, *all);
  QV_GetDriveStatus(unit, session, &all->drive_status);
  QV_GetDriveInformationAll(unit, session, &all->drive_info);
  QV_GetRaidGroups(unit, &all->raid);
  const auto units = std::make_unique<LogicalUnit[]>(8192);
  QV_GetLogicalUnit(unit, session, reinterpret_cast<LogicalUnit(*)[8192]>(units.get()));
  std::copy_n(units.get(), std::size(all->lu), all->lu);
  QV_GetLastLogicalUnit(unit, &all->last_lu);
  QV_IntegrationLUInfo(unit, &all->integration_lu);
  QV_GetFibreInformation(unit, session, &all->fibre_info);
  QV_GetZencopyInformation(unit, &all->zencopy);
  QV_GetWWNInformation(unit, &all->wwn);
  for (std::int32_t controller = 0; controller < 2; ++controller) {
    QV_GetLANInformation(unit, session, controller, &all->lan_info[controller]);
    QV_GetSyncControl(unit, controller, &all->sync_ctrl[controller]);
  }
  fill(asker, all->raid_info, all->lu_coup, all->integration_lu2, all->dm_lu, all->qvuser_lan_info,
       all->rest_info, all->comdev, all->rvrfsrc, all->unit_info, all->hg, all->hgopt, all->portopt,
       all->lumap, all->wwnhg, all->port_num, all->pool_info, all->pair_info, all->luguard,
       all->quickfmtopt, all->quickfmtstatus, all->hgparamlist, all->correctstatus, all->mapguard,
       all->unit_identifier, all->farlink_info, all->flacopy_info, all->flaopt_info, all->timeinfo,
       all->maintelaninfo, all->mainte_avail, all->nnclaninfo, all->iscsi_port, all->iscsi_target,
       all->iscsi_initiator, all->iscsi_logininitiator, all->chap_user, all->isns,
       all->drive_response_diag, all->auditlog_info, all->lu_migration, all->role, all->account,
       all->account_option, all->spin_downup);
  return 0;
}

int getBase(const UnitName* unit, const QVSessionInfo* session, const ControllerRequest* request,
            ArrayAllInfo_Base* base) {
  const Asker asker{unit, session};
  std::memset(static_cast<void*>(base), 0, sizeof *base);
  base->valid_index = 1;
  base->connectedCTL = request->requestCTL;
  fillConditions(asker, *base);
  QV_GetLogicalUnit(unit, session, &base->lu);
  fill(asker, base->unit_info, base->diskdrive_status, base->diskdrive_info, base->raid_info,
       base->comdev, base->dm_lu, base->quickfmtstatus, base->correctstatus, base->integration_lu2,
       base->battery_config, base->localled_info);
  return 0;
}

/// A slice whose members all come from functions by unit and session.
template <class Slice, auto... Member>
int getSlice(const UnitName* unit, const QVSessionInfo* session, const ControllerRequest*,
             Slice* slice) {
  std::memset(static_cast<void*>(slice), 0, sizeof *slice);
  slice->valid_index = 1;
  fill({unit, session}, slice->*Member...);
  return 0;
}

constexpr auto getBaseAdditional =
    getSlice<ArrayAllInfo_BaseAdditional, &ArrayAllInfo_BaseAdditional::hgparamlist2,
             &ArrayAllInfo_BaseAdditional::ctlportkind>;
constexpr auto getHg = getSlice<ArrayAllInfo_HG, &ArrayAllInfo_HG::hg, &ArrayAllInfo_HG::wwnhg>;
constexpr auto getIscsi =
    getSlice<ArrayAllInfo_iSCSI, &ArrayAllInfo_iSCSI::iscsi_port, &ArrayAllInfo_iSCSI::iscsi_target,
             &ArrayAllInfo_iSCSI::iscsi_initiator, &ArrayAllInfo_iSCSI::iscsi_logininitiator,
             &ArrayAllInfo_iSCSI::chap_user, &ArrayAllInfo_iSCSI::isns>;
constexpr auto getMapping =
    getSlice<ArrayAllInfo_Mapping, &ArrayAllInfo_Mapping::mapguard, &ArrayAllInfo_Mapping::lumap>;
constexpr auto getHost =
    getSlice<ArrayAllInfo_Host, &ArrayAllInfo_Host::hgopt, &ArrayAllInfo_Host::hgparamlist2>;
constexpr auto getConfig =
    getSlice<ArrayAllInfo_Config, &ArrayAllInfo_Config::portopt,
             &ArrayAllInfo_Config::qvuser_lan_info, &ArrayAllInfo_Config::port_num,
             &ArrayAllInfo_Config::maintelaninfo, &ArrayAllInfo_Config::mainte_avail,
             &ArrayAllInfo_Config::timeinfo, &ArrayAllInfo_Config::rest_info,
             &ArrayAllInfo_Config::quickfmtopt>;
constexpr auto getProgramProducts =
    getSlice<ArrayAllInfo_PP, &ArrayAllInfo_PP::luguard, &ArrayAllInfo_PP::auditlog_info,
             &ArrayAllInfo_PP::role, &ArrayAllInfo_PP::account, &ArrayAllInfo_PP::account_option,
             &ArrayAllInfo_PP::lu_migration, &ArrayAllInfo_PP::spin_downup>;
constexpr auto getReplication =
    getSlice<ArrayAllInfo_Replication, &ArrayAllInfo_Replication::pool_info,
             &ArrayAllInfo_Replication::rvrfsrc, &ArrayAllInfo_Replication::flaopt_info,
             &ArrayAllInfo_Replication::vvol_info, &ArrayAllInfo_Replication::ctg_def,
             &ArrayAllInfo_Replication::lu_coup, &ArrayAllInfo_Replication::pair_info,
             &ArrayAllInfo_Replication::farlink_info, &ArrayAllInfo_Replication::flacopy_info,
             &ArrayAllInfo_Replication::iscsi_rmt>;
constexpr auto getTuning = getSlice<ArrayAllInfo_Tuning, &ArrayAllInfo_Tuning::luowner>;

}  // namespace

SIMULATE(3, QV_GetAllInformation, getAll)
SIMULATE(4, QV_GetAllInfo_Base, getBase)
SIMULATE(4, QV_GetAllInfo_BaseAdditional, getBaseAdditional)
SIMULATE(4, QV_GetAllInfo_HG, getHg)
SIMULATE(4, QV_GetAllInfo_iSCSI, getIscsi)
SIMULATE(4, QV_GetAllInfo_Mapping, getMapping)
SIMULATE(4, QV_GetAllInfo_Host, getHost)
SIMULATE(4, QV_GetAllInfo_Config, getConfig)
SIMULATE(4, QV_GetAllInfo_PP, getProgramProducts)
SIMULATE(4, QV_GetAllInfo_Replication, getReplication)
SIMULATE(4, QV_GetAllInfo_Tuning, getTuning)
