// iSCSI ports with their targets, initiators and CHAP users, iSNS servers, ping and remote paths.
#include "arraylib/hosts.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(QViSCSIPortPortInfo, port_valid, set_valid, ip_address, subnet, gateway, port_num,
               ether, keep_alive_timer, mtu, set_status, host_count);
QUORVELJ_CLASS(QViSCSIPortCTLInfo, port);
QUORVELJ_CLASS(QViSCSIPortInformation, ctl);
QUORVELJ_CLASS(QViSCSITargetInfo, target_valid, target_name, iscsi_name, authmethod, algorithm,
               auth, user_name, secret);
QUORVELJ_CLASS(QViSCSITargetPortInfo, port_valid, security, target_max_count, target_count, target);
QUORVELJ_CLASS(QViSCSITargetCTLInfo, port);
QUORVELJ_CLASS(QViSCSITargetInformationAll, option, ctl);
QUORVELJ_CLASS(DeleteTargetList, target);
QUORVELJ_CLASS(QViSCSIInitiatorInfo, initiator_valid, ctrl_flag, initiator_name, iscsi_name,
               target_bitmap);
QUORVELJ_CLASS(QViSCSIInitiatorPortInfo, port_valid, security, initiator_max_count, initiator_count,
               initiator);
QUORVELJ_CLASS(QViSCSIInitiatorCTLInfo, port);
QUORVELJ_CLASS(QViSCSIInitiatorInformationAll, option, ctl);
QUORVELJ_CLASS(QViSCSIInitiatorPortInformation, option, port);
QUORVELJ_CLASS(QViSCSILoginInitiatorInfo, initiator_valid, iscsi_name);
QUORVELJ_CLASS(QViSCSILoginInitiatorPortInfo, port_valid, initiator_max_count, initiator_count,
               initiator);
QUORVELJ_CLASS(QViSCSILoginInitiatorCTLInfo, port);
QUORVELJ_CLASS(QViSCSILoginInitiatorInformationAll, ctl);
QUORVELJ_CLASS(QViSCSICHAPUserInfo, user_valid, ctrl_flag, user_name, secret, target_bitmap);
QUORVELJ_CLASS(QViSCSICHAPUserPortInfo, port_valid, security, user_max_count, user_count, user);
QUORVELJ_CLASS(QViSCSICHAPUserCTLInfo, port);
QUORVELJ_CLASS(QViSCSICHAPUserInformationAll, option, ctl);
QUORVELJ_CLASS(QViSCSICHAPUserPortInformation, option, port);
QUORVELJ_CLASS(QViSNSPortInfo, port_valid, set_valid, isns_use, ip_address, port_num);
QUORVELJ_CLASS(QViSNSCTLInfo, port);
QUORVELJ_CLASS(QViSNSInformation, ctl);
QUORVELJ_CLASS(QViSCSIPingPort, port_valid, request_valid, ip_address, status, execute_count,
               success_count, schedule_count);
QUORVELJ_CLASS(QViSCSIPingCTL, port);
QUORVELJ_CLASS(QViSCSIPing, ctl);
QUORVELJ_CLASS(QViSCSIRemotePathSecret, secret);
QUORVELJ_CLASS(QViSCSIRemotePath, path_valid, other_serial_no, path);
QUORVELJ_CLASS(QViSCSIRemotePathInfo, arrayunit);

NATIVE_METHOD(jobject, GetiSCSIPortInformation, jstring unit, jobject session) {
  return query(env, QV_GetiSCSIPortInformation, unit, session);
}

NATIVE_METHOD(void, SetiSCSIPortInformation, jstring unit, jobject session, jobject ports) {
  update(env, QV_SetiSCSIPortInformation, unit, session, ports);
}

NATIVE_METHOD(jobject, GetiSCSITargetInformationAll, jstring unit, jobject session) {
  return query(env, QV_GetiSCSITargetInformationAll, unit, session);
}

NATIVE_METHOD(void, CreateiSCSITarget, jstring unit, jobject session, jint controller, jint port,
              jint number, jobject target) {
  update(env, QV_CreateiSCSITarget, unit, session, controller, port, number, target);
}

NATIVE_METHOD(void, ChangeiSCSITarget, jstring unit, jobject session, jint controller, jint port,
              jint number, jobject target) {
  update(env, QV_ChangeiSCSITarget, unit, session, controller, port, number, target);
}

NATIVE_METHOD(void, DeleteiSCSITarget, jstring unit, jobject session, jint controller, jint port,
              jobject targets) {
  update(env, QV_DeleteiSCSITarget, unit, session, controller, port, targets);
}

NATIVE_METHOD(void, InitiSCSITarget, jstring unit, jobject session, jint controller, jint port) {
  update(env, QV_InitiSCSITarget, unit, session, controller, port);
}

NATIVE_METHOD(void, ChangeiSCSITargetSecurity, jstring unit, jobject session, jint controller,
              jint port, jint security) {
  update(env, QV_ChangeiSCSITargetSecurity, unit, session, controller, port, security);
}

NATIVE_METHOD(jobject, GetiSCSIInitiatorInformationAll, jstring unit, jobject session) {
  return query(env, QV_GetiSCSIInitiatorInformationAll, unit, session);
}

NATIVE_METHOD(jobject, GetiSCSIInitiatorInformation, jstring unit, jobject session, jint controller,
              jint port) {
  return query(env, QV_GetiSCSIInitiatorInformation, unit, session, controller, port);
}

NATIVE_METHOD(void, SetiSCSIInitiatortInformation, jstring unit, jobject session, jint controller,
              jint port, jobject initiators) {
  update(env, QV_SetiSCSIInitiatortInformation, unit, session, controller, port, initiators);
}

NATIVE_METHOD(jobject, GetiSCSILoginInitiatorInformationAll, jstring unit, jobject session) {
  return query(env, QV_GetiSCSILoginInitiatorInformationAll, unit, session);
}

NATIVE_METHOD(jobject, GetiSCSICHAPUserInformationAll, jstring unit, jobject session) {
  return query(env, QV_GetiSCSICHAPUserInformationAll, unit, session);
}

NATIVE_METHOD(jobject, GetiSCSICHAPUserInformation, jstring unit, jobject session, jint controller,
              jint port) {
  return query(env, QV_GetiSCSICHAPUserInformation, unit, session, controller, port);
}

NATIVE_METHOD(void, SetiSCSICHAPUserInformation, jstring unit, jobject session, jint controller,
              jint port, jobject users) {
  update(env, QV_SetiSCSICHAPUserInformation, unit, session, controller, port, users);
}

NATIVE_METHOD(void, iSCSICHAPUserImport, jstring unit, jstring path, jobject session) {
  update(env, QV_iSCSICHAPUserImport, unit, session, path);
}

NATIVE_METHOD(jobject, GetiSNSInformation, jstring unit, jobject session) {
  return query(env, QV_GetiSNSInformation, unit, session);
}

NATIVE_METHOD(void, SetiSNSInformation, jstring unit, jobject session, jobject servers) {
  update(env, QV_SetiSNSInformation, unit, session, servers);
}

NATIVE_METHOD(void, RequestiSCSIPing, jstring unit, jobject session, jobject request) {
  update(env, QV_RequestiSCSIPing, unit, session, request);
}

NATIVE_METHOD(jobject, GetiSCSIPingStatus, jstring unit, jobject session) {
  return query(env, QV_GetiSCSIPingStatus, unit, session);
}

NATIVE_METHOD(jobject, GetiSCSIRemotePath, jstring unit, jobject session) {
  return query(env, QV_GetiSCSIRemotePath, unit, session);
}

NATIVE_METHOD(void, SetiSCSIRemotePath, jstring unit, jobject session, jobject path) {
  update(env, QV_SetiSCSIRemotePath, unit, session, path);
}

NATIVE_METHOD(void, DeliSCSIRemotePath, jstring unit, jobject session, jobject path) {
  update(env, QV_DeliSCSIRemotePath, unit, session, path);
}
