// Logging in and out of an array, and its accounts.
#include "arraylib/accounts.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(QVSessionInfo, session_id);
QUORVELJ_CLASS(LoginRequest, user_id, passwd, log_option, log_string);
QUORVELJ_CLASS(LogoutOption, log_option);
QUORVELJ_CLASS(Account, user_id, set_passwd, passwd, account_type, role, account_enable);
QUORVELJ_CLASS(AccountIdentifier, user_id);
QUORVELJ_CLASS(OwnPasswordChange, user_id, old_passwd, new_passwd);
QUORVELJ_CLASS(AccountOptionInfo, password_min_length, session_timeout_used, session_timeout);
QUORVELJ_CLASS(AccountAdditionalInfo, keep_alive_time);
QUORVELJ_CLASS(AccountOption, option_info, additional_info);
QUORVELJ_CLASS(QVAccountRole, role_name);
QUORVELJ_CLASS(QVAccountRoleInformation, role_valid_index, role_info);
QUORVELJ_CLASS(QVAccountBaseInfo, user_id, set_passwd, passwd, account_type, role, account_enable);
QUORVELJ_CLASS(QVAccountInfoList, account_info);
QUORVELJ_CLASS(OwnUserPermission, operation_auth, original_operation_auth, role);
QUORVELJ_CLASS(AccountBanner, warning_banner_display, warning_banner);

NATIVE_METHOD(jobject, LoginQVAccount, jstring unit, jobject request) {
  return query(env, QV_LoginQVAccount, unit, request);
}

NATIVE_METHOD(jobject, LoginQVAccountAlertCheck, jstring unit, jint option) {
  return query(env, QV_LoginQVAccountAlertCheck, unit, option);
}

NATIVE_METHOD(void, LogoutQVAccount, jstring unit, jobject session, jobject option) {
  update(env, QV_LogoutQVAccount, unit, session, option);
}

NATIVE_METHOD(void, LogoutQVAccountAlertCheck, jstring unit, jobject session, jobject option) {
  update(env, QV_LogoutQVAccountAlertCheck, unit, session, option);
}

NATIVE_METHOD(void, ForcedLogoutQVAccount, jstring unit, jobject session, jobject account) {
  update(env, QV_ForcedLogoutQVAccount, unit, session, account);
}

NATIVE_METHOD(void, DeleteAccount, jstring unit, jobject session, jobject account) {
  update(env, QV_DeleteAccount, unit, session, account);
}

NATIVE_METHOD(void, CreateAccount, jstring unit, jobject session, jobject account) {
  update(env, QV_CreateAccount, unit, session, account);
}

NATIVE_METHOD(void, ChangeAccount, jstring unit, jobject session, jobject account) {
  update(env, QV_ChangeAccount, unit, session, account);
}

NATIVE_METHOD(void, ChangeOwnUserPassword, jstring unit, jobject session, jobject change) {
  update(env, QV_ChangeOwnUserPassword, unit, session, change);
}

NATIVE_METHOD(jobject, GetAccountOption, jstring unit, jobject session) {
  return query(env, QV_GetAccountOption, unit, session);
}

NATIVE_METHOD(void, SetAccountOption, jstring unit, jobject session, jobject option) {
  update(env, QV_SetAccountOption, unit, session, option);
}

NATIVE_METHOD(jobject, GetQVAccountRoleInformation, jstring unit, jobject session) {
  return query(env, QV_GetQVAccountRoleInformation, unit, session);
}

NATIVE_METHOD(jobject, GetAccountInformation, jstring unit, jobject session) {
  return query(env, QV_GetAccountInformation, unit, session);
}

NATIVE_METHOD(jobject, GetOwnUserPermission, jstring unit, jobject session) {
  return query(env, QV_GetOwnUserPermission, unit, session);
}

NATIVE_METHOD(jobject, GetAccountBanner, jstring unit) {
  return query(env, QV_GetAccountBanner, unit);
}

NATIVE_METHOD(jobject, GetAccountBannerAuth, jstring unit, jobject session) {
  return query(env, QV_GetAccountBannerAuth, unit, session);
}

NATIVE_METHOD(void, SetAccountBannerAuth, jstring unit, jobject session, jobject banner) {
  update(env, QV_SetAccountBannerAuth, unit, session, banner);
}
