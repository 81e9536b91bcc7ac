// The whole array in one record, and slices of it. The function that returns a record alone fills
// the member of that type.
#include "arraylib/all_information.h"

#include <memory>

#include "arraylib/alerts.h"
#include "simulator/simulate.h"

using namespace quorvelsim;

namespace {

/// The function that returns a record by unit and session.
template <class Record>
struct Answer {
  int (*ask)(const UnitName*, const QVSessionInfo*, Record*);
};

/// Such functions, found by the type of the record.
template <class... Record>
struct Answers : Answer<Record>... {};

template <class... Record>
constexpr Answers<Record...> answers(int (*... ask)(const UnitName*, const QVSessionInfo*,
                                                    Record*)) {
  return {Answer<Record>{ask}...};
}

constexpr auto kAnswers = answers(
    QV_GetUnitInformation, QV_GetDiskDriveStatusAll, QV_GetDiskDriveInformationAll,
    QV_GetDriveStatus, QV_GetDriveInformationAll, QV_GetDiskDriveRestoration,
    QV_GetDriveResponseDiag, QV_GetSpinDownUpInformation, QV_GetBatteryConfig,
    QV_GetLocateLEDInformation, QV_GetUnitCTLPortKind, QV_GetUnitIdentifier, QV_GetTimeInfo,
    QV_GetRaidGroupInformation, QV_GetLogicalUnit, QV_GetQuickFormatOption,
    QV_GetQuickFormatStatusList, QV_GetParityCorrectionStatusList, QV_GetLuOwnership,
    QV_IntegrationLUInfo2, QV_GetDMLU, QV_GetPoolInformation, QV_GetVVOLInformation,
    QV_GetLuGuardInformation, QV_GetHGList, QV_GetHGOptionAll, QV_GetPortOption,
    QV_GetLuMappingListAll, QV_GetMappingGuardList, QV_GetWWNHGInformation, QV_GetHGParameterList,
    QV_GetHGParameterList2, QV_GetLANPortNumber, QV_GetQVUserLANInformation, QV_GetMainteLanInfo,
    QV_GetMainteLanAvailableList, QV_GetNNCLANInformation, QV_GetFibreInformation,
    QV_GetiSCSIPortInformation, QV_GetiSCSITargetInformationAll, QV_GetiSCSIInitiatorInformationAll,
    QV_GetiSCSILoginInitiatorInformationAll, QV_GetiSCSICHAPUserInformationAll,
    QV_GetiSNSInformation, QV_GetiSCSIRemotePath, QV_GetPairInformation,
    QV_GetFarlinkPairInformation, QV_GetFarlinkAsyncPairInformation, QV_GetFarlinkAsyncOption,
    QV_GetCTGInformation, QV_GetRvrfSrcPath, QV_GetCommandDevice, QV_GetCouplingInfo,
    QV_GetLuMigrationInformation, QV_GetQVAuditLogInformation, QV_GetQVAccountRoleInformation,
    QV_GetAccountInformation, QV_GetAccountOption);

/// Fills members of one bundle. What no function returns stays zero.
class Filler {
 public:
  template <class Bundle>
  Filler(const UnitName* unit, const QVSessionInfo* session, Bundle* bundle)
      : unit_(unit), session_(session) {
    clear(bundle);
  }

  template <class... Record>
  void fill(Record&... members) const {
    (static_cast<const Answer<Record>&>(kAnswers).ask(unit_, session_, &members), ...);
  }
  void fillConditions(UnitCondition (&conditions)[kControllers],
                      std::int32_t (&states)[kControllers],
                      std::int32_t (&alerts)[kControllers]) const {
    for (std::int32_t controller = 0; controller < kControllers; ++controller) {
      QV_GetUnitCondition(unit_, session_, controller, &conditions[controller]);
      QV_AlertCheck(unit_, session_, 0, &alerts[controller]);
      states[controller] = 1;
    }
  }
  void fillParameters(HGParameterID (&identifiers)[kControllers]) const {
    for (std::int32_t controller = 0; controller < kControllers; ++controller) {
      QV_GetHGParameterID(unit_, session_, controller, &identifiers[controller]);
    }
  }
  void fillUsers(QVUserRegist& users) const {
    LongUnitName name{};
    setText(name, textOf(*unit_));
    QV_GetUserInformation(&name, 0, &users);
  }

 private:
  const UnitName* unit_;
  const QVSessionInfo* session_;
};

int getAll(const UnitName* unit, const QVSessionInfo* session, ArrayAllInformation* all) {
  const Filler filler(unit, session, all);
  filler.fillConditions(all->unit_conditions, all->ctrl_condition, all->alert);
  filler.fillUsers(all->user_reg_info);
  QV_GetRaidGroups(unit, &all->raid);
  const auto lus = std::make_unique<LogicalUnit[]>(kLogicalUnits);
  QV_GetLogicalUnit(unit, session, reinterpret_cast<LogicalUnit(*)[kLogicalUnits]>(lus.get()));
  std::copy_n(lus.get(), std::size(all->lu), all->lu);
  QV_GetLastLogicalUnit(unit, &all->last_lu);
  QV_IntegrationLUInfo(unit, &all->integration_lu);
  QV_GetZencopyInformation(unit, &all->zencopy);
  QV_GetWWNInformation(unit, &all->wwn);
  for (std::int32_t controller = 0; controller < kControllers; ++controller) {
    QV_GetLANInformation(unit, session, controller, &all->lan_info[controller]);
    QV_GetSyncControl(unit, controller, &all->sync_ctrl[controller]);
    QV_GetTargetId(unit, controller, &all->target_id[controller]);
  }
  filler.fill(all->drive_status, all->drive_info, all->raid_info, all->lu_coup,
              all->integration_lu2, all->dm_lu, all->qvuser_lan_info, all->rest_info,
              all->fibre_info, all->comdev, all->rvrfsrc, all->unit_info, all->hg, all->hgopt,
              all->portopt, all->lumap, all->wwnhg, all->port_num, all->pool_info, all->pair_info,
              all->luguard, all->quickfmtopt, all->quickfmtstatus, all->hgparamlist,
              all->correctstatus, all->mapguard, all->unit_identifier, all->farlink_info,
              all->flacopy_info, all->flaopt_info, all->timeinfo, all->maintelaninfo,
              all->mainte_avail, all->nnclaninfo, all->iscsi_port, all->iscsi_target,
              all->iscsi_initiator, all->iscsi_logininitiator, all->chap_user, all->isns,
              all->drive_response_diag, all->auditlog_info, all->lu_migration, all->role,
              all->account, all->account_option, all->spin_downup);
  return 0;
}

int getBase(const UnitName* unit, const QVSessionInfo* session, const ControllerRequest* request,
            ArrayAllInfo_Base* base) {
  const Filler filler(unit, session, base);
  base->valid_index = 1;
  base->connectedCTL = request->requestCTL;
  filler.fillConditions(base->unit_conditions, base->ctrl_condition, base->alert);
  LuMappingHGInfo first{};
  QV_GetLuMappingList(unit, session, 0, 0, 0, &base->mapping_mode, &first);
  filler.fill(base->lu, base->unit_info, base->diskdrive_status, base->diskdrive_info,
              base->raid_info, base->comdev, base->dm_lu, base->quickfmtstatus, base->correctstatus,
              base->integration_lu2, base->battery_config, base->localled_info);
  return 0;
}

int getBaseAdditional(const UnitName* unit, const QVSessionInfo* session,
                      const ControllerRequest* request, ArrayAllInfo_BaseAdditional* base) {
  const Filler filler(unit, session, base);
  base->valid_index = 1;
  filler.fillParameters(base->hgparamid);
  QV_GetLuMappingPortAssignInfo(unit, session, request, &base->lumap_lun);
  filler.fill(base->hgparamlist2, base->ctlportkind);
  return 0;
}

int getHost(const UnitName* unit, const QVSessionInfo* session, const ControllerRequest*,
            ArrayAllInfo_Host* host) {
  const Filler filler(unit, session, host);
  host->valid_index = 1;
  filler.fillParameters(host->hgparamid);
  filler.fill(host->hgopt, host->hgparamlist2);
  return 0;
}

int getProgramProducts(const UnitName* unit, const QVSessionInfo* session, const ControllerRequest*,
                       ArrayAllInfo_PP* products) {
  const Filler filler(unit, session, products);
  products->valid_index = 1;
  filler.fillUsers(products->user_reg_info);
  filler.fill(products->luguard, products->auditlog_info, products->role, products->account,
              products->account_option, products->lu_migration, products->spin_downup);
  return 0;
}

/// A slice whose members all come from functions by unit and session.
template <class Slice, auto... Member>
int getSlice(const UnitName* unit, const QVSessionInfo* session, const ControllerRequest*,
             Slice* slice) {
  const Filler filler(unit, session, slice);
  slice->valid_index = 1;
  filler.fill(slice->*Member...);
  return 0;
}

constexpr auto getHg = getSlice<ArrayAllInfo_HG, &ArrayAllInfo_HG::hg, &ArrayAllInfo_HG::wwnhg>;
constexpr auto getIscsi =
    getSlice<ArrayAllInfo_iSCSI, &ArrayAllInfo_iSCSI::iscsi_port, &ArrayAllInfo_iSCSI::iscsi_target,
             &ArrayAllInfo_iSCSI::iscsi_initiator, &ArrayAllInfo_iSCSI::iscsi_logininitiator,
             &ArrayAllInfo_iSCSI::chap_user, &ArrayAllInfo_iSCSI::isns>;
constexpr auto getMapping =
    getSlice<ArrayAllInfo_Mapping, &ArrayAllInfo_Mapping::mapguard, &ArrayAllInfo_Mapping::lumap>;
constexpr auto getConfig =
    getSlice<ArrayAllInfo_Config, &ArrayAllInfo_Config::fibre_info, &ArrayAllInfo_Config::portopt,
             &ArrayAllInfo_Config::qvuser_lan_info, &ArrayAllInfo_Config::port_num,
             &ArrayAllInfo_Config::maintelaninfo, &ArrayAllInfo_Config::mainte_avail,
             &ArrayAllInfo_Config::timeinfo, &ArrayAllInfo_Config::rest_info,
             &ArrayAllInfo_Config::quickfmtopt>;
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
