// Remote arrays and the paths to them, consistency groups, command devices and couplings.
#include "arraylib/replication.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(CTGInfo, ctg_valid, ctg_copytype, ctg_no, ctg_name, pair_status_detail0,
               pair_status_detail1);
QUORVELJ_CLASS(CTGInformation, gmss_info, flfle_info);
QUORVELJ_CLASS(RemoteDeviceInformation, valid, equipment_id, serial);
QUORVELJ_CLASS(RemoteDeviceInfo, set_valid, serial);
QUORVELJ_CLASS(RemoteDeviceInformationEx, dev);
QUORVELJ_CLASS(RemotePathSerial, remote_serial);
QUORVELJ_CLASS(RemotePathDeletion, delete_count, serial);
QUORVELJ_CLASS(RemotePathRebuild, remote_serial, path);
QUORVELJ_CLASS(RvrfSrcPath, valid_index, path_status, self_ctl_no, self_port_no, other_ctl_no,
               other_port_no, remote_ip_addr, remote_port_num, secret_valid, secret);
QUORVELJ_CLASS(RvrfSrcArrayUnit, valid, mode, other_detect_id, other_serial_no, other_sequence_no,
               path, timeout_valid, timeout, port_type, line_band_valid, line_band);
QUORVELJ_CLASS(RvrfSrcInfo, rvrfsrc_option, self_detect_id, self_serial_no, self_sequence_no,
               line_band_default, port_num_default, arrayunit);
QUORVELJ_CLASS(CmdDevInfo, cmd_valid, set_valid, cmd_lu, rm_security);
QUORVELJ_CLASS(CommandDevice, mrcf_lite, mode, valid, lu, security, sequence_no, cmd_count, cmddev);
QUORVELJ_CLASS(CouplingLU, primary_stat, second_stat, second_stat_detail, primary_lu, second_lu,
               primary_switch_stat, second_switch_stat, mirror_no, capacity_h, capacity_l,
               synchronized_rate, split_time, add_message, ctg_valid, ctg_no, ctg_name, pair_name,
               copy_speed);
QUORVELJ_CLASS(CouplingInfo, mrcf_lite, coupling_num, coupling);
QUORVELJ_CLASS(SyncPort, board_type, rate);
QUORVELJ_CLASS(SyncControl, port_val);

NATIVE_METHOD(jobject, GetCTGInformation, jstring unit, jobject session) {
  return query(env, QV_GetCTGInformation, unit, session);
}

NATIVE_METHOD(void, ChangeReplicationCTG, jstring unit, jobject session, jobject change) {
  update(env, QV_ChangeReplicationCTG, unit, session, change);
}

NATIVE_METHOD(jobject, GetRemoteDeviceInformation, jstring unit, jobject session) {
  return query(env, QV_GetRemoteDeviceInformation, unit, session);
}

NATIVE_METHOD(void, SetRemoteDeviceInformation, jstring unit, jobject session, jobject device) {
  update(env, QV_SetRemoteDeviceInformation, unit, session, device);
}

NATIVE_METHOD(jobject, GetRemoteDeviceInformationEx, jstring unit, jobject session) {
  return query(env, QV_GetRemoteDeviceInformationEx, unit, session);
}

NATIVE_METHOD(void, SetRemoteDeviceInformationEx, jstring unit, jobject session, jobject devices) {
  update(env, QV_SetRemoteDeviceInformationEx, unit, session, devices);
}

NATIVE_METHOD(void, DelRemotePath, jstring unit, jobject session, jobject deletion) {
  update(env, QV_DelRemotePath, unit, session, deletion);
}

NATIVE_METHOD(void, ReconstructRemotePath, jstring unit, jobject session, jobject rebuild) {
  update(env, QV_ReconstructRemotePath, unit, session, rebuild);
}

NATIVE_METHOD(jobject, GetRvrfSrcPath, jstring unit, jobject session) {
  return query(env, QV_GetRvrfSrcPath, unit, session);
}

NATIVE_METHOD(void, SetRvrfSrcPath, jstring unit, jobject session, jobject paths) {
  update(env, QV_SetRvrfSrcPath, unit, session, paths);
}

NATIVE_METHOD(void, DelRvrfSrcPath, jstring unit, jobject session) {
  update(env, QV_DelRvrfSrcPath, unit, session);
}

NATIVE_METHOD(jobject, GetCommandDevice, jstring unit, jobject session) {
  return query(env, QV_GetCommandDevice, unit, session);
}

NATIVE_METHOD(void, SetCommandDevice, jstring unit, jobject session, jobject device) {
  update(env, QV_SetCommandDevice, unit, session, device);
}

NATIVE_METHOD(jobject, GetCouplingInfo, jstring unit, jobject session) {
  return query(env, QV_GetCouplingInfo, unit, session);
}

NATIVE_METHOD(jobject, GetSyncControl, jstring unit, jint controller) {
  return query(env, QV_GetSyncControl, unit, controller);
}

NATIVE_METHOD(void, SetSyncControl, jstring unit, jint controller, jobject control, jint option) {
  update(env, QV_SetSyncControl, unit, controller, control, option);
}
