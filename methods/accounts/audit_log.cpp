// The audit log of an array.
#include "arraylib/accounts.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(QVAuditLogSyslogServer, server_used, ip_address);
QUORVELJ_CLASS(QVAuditLogSyslogServerInfo, serverall_used, server);
QUORVELJ_CLASS(QVAuditLogInternalLog, internallog_used);
QUORVELJ_CLASS(QVAuditLogInformation, option, set_valid, auditlog_server, auditlog_internallog);
QUORVELJ_CLASS(AuditLogInitRequest, set_valid);

NATIVE_METHOD(jobject, GetQVAuditLogInformation, jstring unit, jobject session) {
  return query(env, QV_GetQVAuditLogInformation, unit, session);
}

NATIVE_METHOD(void, SetQVAuditLogInformation, jstring unit, jobject session, jobject information) {
  update(env, QV_SetQVAuditLogInformation, unit, session, information);
}

NATIVE_METHOD(void, QVAuditLogExport, jstring unit, jobject session, jstring path) {
  update(env, QV_QVAuditLogExport, unit, session, path);
}

NATIVE_METHOD(void, InitQVAuditLog, jstring unit, jobject session, jobject request) {
  update(env, QV_InitQVAuditLog, unit, session, request);
}
