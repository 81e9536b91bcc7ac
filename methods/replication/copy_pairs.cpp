// Creating and operating copy pairs, and reading their state.
#include "arraylib/replication.h"
#include "methods/native_methods.h"
#include "methods/replication/copy_pair_maps.h"

using namespace quorvelj;

QUORVELJ_CLASS(SpecifyCTGInfo, ctg_set_flag, ctg_no, ctg_name);
QUORVELJ_CLASS(SpecifyPairInfo, pair_set_flag, pair_name, pvol_lun, pair_lun);
QUORVELJ_CLASS(PairTarget, set_division, ctg_valid, ctg_info, pair_info);
QUORVELJ_CLASS(PairOperation, target);
QUORVELJ_CLASS(CreateGemlynPair, target, copy_speed, auto_split, no_read, no_copy);
QUORVELJ_CLASS(SplitGemlynPair, target, forced_split, add_message);
QUORVELJ_CLASS(CreateSnapShotPair, target, local_pool_no, copy_speed, auto_split);
QUORVELJ_CLASS(SplitSnapShotPair, target, add_message);
QUORVELJ_CLASS(CreateFarlinkPair, target, pvol_lu_device, remote_serial, copy_speed, fence_lv,
               no_copy);
QUORVELJ_CLASS(SplitFarlinkPair, target, remote_serial, access_restrict, forced_rw);
QUORVELJ_CLASS(CreateLonglinkPair, target, pvol_lu_device, remote_serial, auto_set, local_pool_no,
               remote_pool_no, copy_speed, no_copy);
QUORVELJ_CLASS(SplitLonglinkPair, target, remote_serial, access_restrict, cascade_vvol_split);
QUORVELJ_CLASS(SimpleRemotePair, target, remote_serial, simple_range);
QUORVELJ_CLASS(RemotePairOperation, target, remote_serial);
QUORVELJ_CLASS(PairChange, ctg_copytype, ctg_valid, ctg_info, pair_info, pair_attr, remote_serial,
               new_pair_name, copy_speed);
QUORVELJ_CLASS(LuMigrationRequestPairInfo, pvol_lun, svol_lun, copying_pace);
QUORVELJ_CLASS(LuMigrationRequest, request_pair_count, owner_id, lu);

QUORVELJ_CLASS(PoolDetailCapa, pool_no, poolcapa_h, poolcapa_l);
QUORVELJ_CLASS(PoolCtlCapa, pool_enable_count, pool);
QUORVELJ_CLASS(PoolSysCapa, pool_enable_count, pool);
QUORVELJ_CLASS(MirrorLUInfo, mirror_no, lun, ctl_no, pool_no, pair_status, pair_status_detail,
               usedcapa, usedcapa_h, usedcapa_l, changed_rate, synchronized_rate, time, split_time,
               add_message, ctg_valid, ctg_no, ctg_name, pair_name, copy_speed);
QUORVELJ_CLASS(PairLUInfo, lun, capacity, capacity_h, capacity_l, pool_usedcapa_h, pool_usedcapa_l,
               pool_usedrate, mirror_count, m_info);
QUORVELJ_CLASS(PairInfo, option, ctl, sys, pair_count, lu);
QUORVELJ_CLASS(PairLUInfoSimple, pvol_lun, svol_lun);
QUORVELJ_CLASS(PairInfoSimple, option, pair_count, pair);
QUORVELJ_CLASS(FarlinkLuInfo, support_index, valid_index, lun, pair_status, pair_status_detail,
               pair_attr, changed_rate, remote_serial, remote_lu, capacity_h, capacity_l, ctg_valid,
               ctg_no, ctg_name, pair_name, copy_speed, fence_level);
QUORVELJ_CLASS(FarlinkPairInformation, option, pair_count, lu);
QUORVELJ_CLASS(FarlinkAsyncLuInfo, lun, pair_status, pair_status_dist_flag, pair_attr, ctg_num,
               ctg_name, pair_name, lu_capacity, lu_capacity_h, lu_capacity_l, remote_lu,
               remote_serial, member_valid, synchronized_rate, difference_capacity,
               difference_capacity_h, difference_capacity_l, difference_rate, synchronized_time,
               pool_no, pool_usedrate, copy_speed, fence_level, synchronized_sequence_no,
               svol_synchronized_sequence_no, pvol_resync_count, svol_resync_count, cycle_time);
QUORVELJ_CLASS(FarlinkAsyncCTGCTLInfo, ctg_valid, lapsed_time, remains_difference, rate_status,
               transfer_rate, prediction_status, prediction_time);
QUORVELJ_CLASS(FarlinkAsyncCTGInfo, ctl);
QUORVELJ_CLASS(FarlinkAsyncPairInformation, option, pair_count, lu, ctg);
QUORVELJ_CLASS(FarlinkAsyncOption, option, support_index, valid_index, ctrl_flag, set_index,
               cycle_time, cycle_time_message, queue_inhibit_time);
QUORVELJ_CLASS(ZencopyLuInfo, lun, pair_status, pair_attr, changed_rate, remote_type, remote_serial,
               remote_ldev);
QUORVELJ_CLASS(ZencopyInformation, option, pair_count, lu);

// The light form of the pairs: the state and the names of every pair.
QUORVELJ_MAP(kLightMirror, MirrorLUInfo, QUORVELJ_FIELD(MirrorLUInfo, mirror_no),
             QUORVELJ_FIELD(MirrorLUInfo, lun), QUORVELJ_FIELD(MirrorLUInfo, pool_no),
             QUORVELJ_FIELD(MirrorLUInfo, pair_status),
             QUORVELJ_FIELD(MirrorLUInfo, pair_status_detail),
             QUORVELJ_FIELD(MirrorLUInfo, ctg_valid), QUORVELJ_FIELD(MirrorLUInfo, ctg_no),
             QUORVELJ_FIELD(MirrorLUInfo, ctg_name), QUORVELJ_FIELD(MirrorLUInfo, pair_name),
             QUORVELJ_FIELD(MirrorLUInfo, copy_speed),
             QUORVELJ_FIELD(MirrorLUInfo, synchronized_rate),
             QUORVELJ_FIELD(MirrorLUInfo, split_time), QUORVELJ_FIELD(MirrorLUInfo, add_message));
QUORVELJ_MAP(kLightPairLU, PairLUInfo, QUORVELJ_FIELD(PairLUInfo, lun),
             QUORVELJ_FIELD(PairLUInfo, pool_usedrate), QUORVELJ_FIELD(PairLUInfo, mirror_count),
             QUORVELJ_FIELD(PairLUInfo, m_info).as(kLightMirror));
QUORVELJ_MAP(kLightPairs, PairInfo, QUORVELJ_FIELD(PairInfo, option),
             QUORVELJ_FIELD(PairInfo, pair_count), QUORVELJ_FIELD(PairInfo, lu).as(kLightPairLU));

// The second light form: the capacities of the pairs. It has the first 2,046 of the 4,094 logical
// units that the record holds.
QUORVELJ_MAP(kSecondLightMirror, MirrorLUInfo, QUORVELJ_FIELD(MirrorLUInfo, mirror_no),
             QUORVELJ_FIELD(MirrorLUInfo, lun), QUORVELJ_FIELD(MirrorLUInfo, ctl_no),
             QUORVELJ_FIELD(MirrorLUInfo, pool_no), QUORVELJ_FIELD(MirrorLUInfo, pair_status),
             QUORVELJ_FIELD(MirrorLUInfo, usedcapa), QUORVELJ_FIELD(MirrorLUInfo, changed_rate),
             QUORVELJ_FIELD(MirrorLUInfo, time));
QUORVELJ_MAP(kSecondLightPairLU, PairLUInfo, QUORVELJ_FIELD(PairLUInfo, lun),
             QUORVELJ_FIELD(PairLUInfo, capacity), QUORVELJ_FIELD(PairLUInfo, pool_usedcapa_h),
             QUORVELJ_FIELD(PairLUInfo, pool_usedcapa_l), QUORVELJ_FIELD(PairLUInfo, pool_usedrate),
             QUORVELJ_FIELD(PairLUInfo, mirror_count),
             QUORVELJ_FIELD(PairLUInfo, m_info).as(kSecondLightMirror));
namespace quorvelj {

QUORVELJ_MAP(kSecondLightPairs, PairInfo, QUORVELJ_FIELD(PairInfo, option),
             QUORVELJ_FIELD(PairInfo, ctl), QUORVELJ_FIELD(PairInfo, pair_count),
             QUORVELJ_FIELD(PairInfo, lu).first(2046).as(kSecondLightPairLU));

}  // namespace quorvelj

NATIVE_METHOD(void, CreateGemlynPair, jstring unit, jobject session, jobject request) {
  update(env, QV_CreateGemlynPair, unit, session, request);
}

NATIVE_METHOD(void, SplitGemlynPair, jstring unit, jobject session, jobject request) {
  update(env, QV_SplitGemlynPair, unit, session, request);
}

NATIVE_METHOD(void, SimpleGemlynPair, jstring unit, jobject session, jobject request) {
  update(env, QV_SimpleGemlynPair, unit, session, request);
}

NATIVE_METHOD(void, ResyncGemlynPair, jstring unit, jobject session, jobject request) {
  update(env, QV_ResyncGemlynPair, unit, session, request);
}

NATIVE_METHOD(void, RestoreGemlynPair, jstring unit, jobject session, jobject request) {
  update(env, QV_RestoreGemlynPair, unit, session, request);
}

NATIVE_METHOD(void, CreateSnapShotPair, jstring unit, jobject session, jobject request) {
  update(env, QV_CreateSnapShotPair, unit, session, request);
}

NATIVE_METHOD(void, SplitSnapShotPair, jstring unit, jobject session, jobject request) {
  update(env, QV_SplitSnapShotPair, unit, session, request);
}

NATIVE_METHOD(void, SimpleSnapShotPair, jstring unit, jobject session, jobject request) {
  update(env, QV_SimpleSnapShotPair, unit, session, request);
}

NATIVE_METHOD(void, ResyncSnapShotPair, jstring unit, jobject session, jobject request) {
  update(env, QV_ResyncSnapShotPair, unit, session, request);
}

NATIVE_METHOD(void, RestoreSnapShotPair, jstring unit, jobject session, jobject request) {
  update(env, QV_RestoreSnapShotPair, unit, session, request);
}

NATIVE_METHOD(void, CreateFarlinkPair, jstring unit, jobject session, jobject request) {
  update(env, QV_CreateFarlinkPair, unit, session, request);
}

NATIVE_METHOD(void, SplitFarlinkPair, jstring unit, jobject session, jobject request) {
  update(env, QV_SplitFarlinkPair, unit, session, request);
}

NATIVE_METHOD(void, SimpleFarlinkPair, jstring unit, jobject session, jobject request) {
  update(env, QV_SimpleFarlinkPair, unit, session, request);
}

NATIVE_METHOD(void, ResyncFarlinkPair, jstring unit, jobject session, jobject request) {
  update(env, QV_ResyncFarlinkPair, unit, session, request);
}

NATIVE_METHOD(void, SwapFarlinkPair, jstring unit, jobject session, jobject request) {
  update(env, QV_SwapFarlinkPair, unit, session, request);
}

NATIVE_METHOD(void, CreateLonglinkPair, jstring unit, jobject session, jobject request) {
  update(env, QV_CreateLonglinkPair, unit, session, request);
}

NATIVE_METHOD(void, SplitLonglinkPair, jstring unit, jobject session, jobject request) {
  update(env, QV_SplitLonglinkPair, unit, session, request);
}

NATIVE_METHOD(void, SimpleLonglinkPair, jstring unit, jobject session, jobject request) {
  update(env, QV_SimpleLonglinkPair, unit, session, request);
}

NATIVE_METHOD(void, ResyncLonglinkPair, jstring unit, jobject session, jobject request) {
  update(env, QV_ResyncLonglinkPair, unit, session, request);
}

NATIVE_METHOD(void, SwapLonglinkPair, jstring unit, jobject session, jobject request) {
  update(env, QV_SwapLonglinkPair, unit, session, request);
}

NATIVE_METHOD(void, ChangeReplicationPair, jstring unit, jobject session, jobject change) {
  update(env, QV_ChangeReplicationPair, unit, session, change);
}

NATIVE_METHOD(void, ChangeCopyPace, jstring unit, jobject session, jobject request) {
  update(env, QV_ChangeCopyPace, unit, session, request);
}

NATIVE_METHOD(jobject, GetPairInformation, jstring unit, jobject session) {
  return query(env, QV_GetPairInformation, unit, session);
}

DEPARTS(GetPairInformationLite, "the light form is built: the state and the names of every pair",
        .function = "QV_GetPairInformation");
NATIVE_METHOD(jobject, GetPairInformationLite, jstring unit, jobject session) {
  return queryAs(env, kLightPairs, QV_GetPairInformation, unit, session);
}

DEPARTS(GetPairInformationLite2,
        "the second light form is built: the capacities of the pairs, of the first 2,046 logical "
        "units",
        .function = "QV_GetPairInformation");
NATIVE_METHOD(jobject, GetPairInformationLite2, jstring unit, jobject session) {
  return queryAs(env, kSecondLightPairs, QV_GetPairInformation, unit, session);
}

NATIVE_METHOD(jobject, GetPairInformationSimple, jstring unit, jobject session) {
  return query(env, QV_GetPairInformationSimple, unit, session);
}

NATIVE_METHOD(jobject, GetFarlinkPairInformation, jstring unit, jobject session) {
  return query(env, QV_GetFarlinkPairInformation, unit, session);
}

NATIVE_METHOD(jobject, GetFarlinkAsyncPairInformation, jstring unit, jobject session) {
  return query(env, QV_GetFarlinkAsyncPairInformation, unit, session);
}

NATIVE_METHOD(jobject, GetFarlinkAsyncOption, jstring unit, jobject session) {
  return query(env, QV_GetFarlinkAsyncOption, unit, session);
}

NATIVE_METHOD(void, SetFarlinkAsyncOption, jstring unit, jobject session, jobject option) {
  update(env, QV_SetFarlinkAsyncOption, unit, session, option);
}

NATIVE_METHOD(jobject, GetZencopyInformation, jstring unit) {
  return query(env, QV_GetZencopyInformation, unit);
}

NATIVE_METHOD(void, SplitZencopyPair, jstring unit, jint pair) {
  update(env, QV_SplitZencopyPair, unit, pair);
}
