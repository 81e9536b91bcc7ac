// The whole array in one call, and thematic slices of it.
#include "arraylib/all_information.h"

#include <array>
#include <string_view>

#include "methods/native_methods.h"
#include "methods/replication/copy_pair_maps.h"

using namespace quorvelj;

QUORVELJ_OPAQUE_CLASS(PrefetchInformation);
QUORVELJ_OPAQUE_CLASS(OnlineVerify);
QUORVELJ_OPAQUE_CLASS(NowWZParameter);
QUORVELJ_OPAQUE_CLASS(BootOption);
QUORVELJ_OPAQUE_CLASS(OnlineSystemParam);
QUORVELJ_OPAQUE_CLASS(OnlineTuningParam);
QUORVELJ_OPAQUE_CLASS(TuningParam);
QUORVELJ_OPAQUE_CLASS(PrefetchTuning);
QUORVELJ_OPAQUE_CLASS(CachePartition);
QUORVELJ_OPAQUE_CLASS(TimeZoneList);
QUORVELJ_OPAQUE_CLASS(NASSystemLUAll);
QUORVELJ_OPAQUE_CLASS(NASUserLUAll);
QUORVELJ_OPAQUE_CLASS(NASOSStatusList);
QUORVELJ_OPAQUE_CLASS(UnitPowerSavingInfo);
QUORVELJ_CLASS(ArrayAllInformation, unit_conditions, drive_status, drive_info, raid, raid_info, lu,
               lu_coup, integration_lu, integration_lu2, turbo_lu, dm_lu, target_id, lan_info,
               qvuser_lan_info, sync_ctrl, rest_info, prefetch_info, verify, fibre_info,
               user_reg_info, comdev, on_opt, rvrfsrc, unit_info, alert, hg, hgopt, portopt, lumap,
               wwn, wwnhg, boot_opt, on_sysparam, port_num, on_tuning, tuning, pre_tuning,
               pool_info, pair_info, luguard, quickfmtopt, quickfmtstatus, hgparamlist,
               correctstatus, zencopy, mapguard, unit_identifier, farlink_info, flacopy_info,
               flaopt_info, cache_prt, timezonelist, timeinfo, systemluall, userluall,
               maintelaninfo, mainte_avail, nnclaninfo, nasosstatus, iscsi_port, iscsi_target,
               iscsi_initiator, iscsi_logininitiator, chap_user, isns, drive_response_diag,
               auditlog_info, lu_migration, role, account, account_option, spin_downup, cfg,
               ctrl_condition, last_lu);
QUORVELJ_CLASS(ArrayAllInfo_Base, valid_index, unit_conditions, unit_info, alert, alert_sa,
               ctrl_condition, diskdrive_status, diskdrive_info, rec_status_valid, rec_status,
               raid_info, lu, comdev, dm_lu, quickfmtstatus, correctstatus, integration_lu2,
               mapping_mode, battery_config, localled_info, connectedCTL);
QUORVELJ_CLASS(ArrayAllInfo_BaseAdditional, valid_index, hgparamid, hgparamlist2, cache_prt,
               ctlportkind, lumap_lun);
QUORVELJ_CLASS(ArrayAllInfo_HG, valid_index, hg, wwnhg);
QUORVELJ_CLASS(ArrayAllInfo_iSCSI, valid_index, iscsi_port, iscsi_target, iscsi_initiator,
               iscsi_logininitiator, chap_user, isns);
QUORVELJ_CLASS(ArrayAllInfo_Mapping, valid_index, mapguard, lumap);
QUORVELJ_CLASS(ArrayAllInfo_Host, valid_index, hgopt, hgparamid, hgparamlist2);
QUORVELJ_CLASS(ArrayAllInfo_Config, valid_index, fibre_info, portopt, qvuser_lan_info, port_num,
               maintelaninfo, mainte_avail, timezonelist, timeinfo, rest_info, verify, boot_opt,
               on_sysparam, quickfmtopt);
QUORVELJ_CLASS(ArrayAllInfo_PP, valid_index, turbo_lu, user_reg_info, luguard, cache_prt,
               auditlog_info, role, account, account_option, lu_migration, spin_downup,
               unit_powersaving);
QUORVELJ_CLASS(ArrayAllInfo_Replication, valid_index, pool_info, rvrfsrc, flaopt_info, vvol_info,
               ctg_def, lu_coup, pair_info, farlink_info, flacopy_info, iscsi_rmt);
QUORVELJ_CLASS(ArrayAllInfo_Tuning, valid_index, on_tuning, pre_tuning, luowner);

namespace {

/// The fields of the whole array, with the pairs in their second light form.
consteval auto lightFields() {
  auto fields = std::to_array(kFieldsOfArrayAllInformation);
  for (Field& field : fields) {
    if (std::string_view(field.name) == "pair_info") {
      field.element = &kSecondLightPairs;
    }
  }
  return fields;
}

constexpr auto kLightFields = lightFields();
constinit const ClassMap kLightArrayAllInformation{ClassOf<ArrayAllInformation>::kName,
                                                   kLightFields};

}  // namespace

NATIVE_METHOD(jobject, GetAllInformation, jstring unit, jobject session) {
  return query(env, QV_GetAllInformation, unit, session);
}

DEPARTS(GetAllInformationLite, "the pairs are built in their second light form",
        .function = "QV_GetAllInformation");
NATIVE_METHOD(jobject, GetAllInformationLite, jstring unit, jobject session) {
  return queryAs(env, kLightArrayAllInformation, QV_GetAllInformation, unit, session);
}

NATIVE_METHOD(jobject, GetAllInfo_1Base, jstring unit, jobject session, jobject request) {
  return query(env, QV_GetAllInfo_Base, unit, session, request);
}

NATIVE_METHOD(jobject, GetAllInfo_1BaseAdditional, jstring unit, jobject session, jobject request) {
  return query(env, QV_GetAllInfo_BaseAdditional, unit, session, request);
}

NATIVE_METHOD(jobject, GetAllInfo_1HG, jstring unit, jobject session, jobject request) {
  return query(env, QV_GetAllInfo_HG, unit, session, request);
}

NATIVE_METHOD(jobject, GetAllInfo_1iSCSI, jstring unit, jobject session, jobject request) {
  return query(env, QV_GetAllInfo_iSCSI, unit, session, request);
}

NATIVE_METHOD(jobject, GetAllInfo_1Mapping, jstring unit, jobject session, jobject request) {
  return query(env, QV_GetAllInfo_Mapping, unit, session, request);
}

NATIVE_METHOD(jobject, GetAllInfo_1Host, jstring unit, jobject session, jobject request) {
  return query(env, QV_GetAllInfo_Host, unit, session, request);
}

NATIVE_METHOD(jobject, GetAllInfo_1Config, jstring unit, jobject session, jobject request) {
  return query(env, QV_GetAllInfo_Config, unit, session, request);
}

NATIVE_METHOD(jobject, GetAllInfo_1PP, jstring unit, jobject session, jobject request) {
  return query(env, QV_GetAllInfo_PP, unit, session, request);
}

NATIVE_METHOD(jobject, GetAllInfo_1Replication, jstring unit, jobject session, jobject request) {
  return query(env, QV_GetAllInfo_Replication, unit, session, request);
}

NATIVE_METHOD(jobject, GetAllInfo_1Tuning, jstring unit, jobject session, jobject request) {
  return query(env, QV_GetAllInfo_Tuning, unit, session, request);
}
