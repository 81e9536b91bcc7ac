// Checking for alerts, and sending them by e-mail.
#include <algorithm>
#include <iterator>

#include "arraylib/alerts.h"
#include "methods/native_methods.h"

using namespace quorvelj;

// EmailInfo is read in this order and built in another.
QUORVELJ_CLASS(EmailInfo, on_off, tonum, domain, smtp, from, to);
QUORVELJ_CLASS(AlertCheckEx, valid_index, alert, alert_sa);
QUORVELJ_CLASS(AlertCheckUser, user_id, passwd, account_enable);
QUORVELJ_CLASS(EmailAlertInfo, smtp, domain, from_address, to_address, reply_address,
               additional_info, send_type);
QUORVELJ_CLASS(EmailAlertInformation, send_mode, ctl_flag, exec_flag, exec_result, mail);
QUORVELJ_CLASS(EmailAlertTest, ctl);

NATIVE_METHOD(void, SetEmailInfo, jobject info) { update(env, QV_SetEmailInfo, info); }

NATIVE_METHOD(jint, AlertCheck, jstring unit, jobject session, jint option) {
  return value(env, QV_AlertCheck, unit, session, option);
}

NATIVE_METHOD(jobject, AlertCheckEx, jstring unit, jobject session, jint option) {
  return query(env, QV_AlertCheckEx, unit, session, option);
}

NATIVE_METHOD(jint, GetAlertInterval) { return value(env, QV_GetAlertInterval); }
NATIVE_METHOD(void, SetAlertInterval, jint interval) { update(env, QV_SetAlertInterval, interval); }

NATIVE_METHOD(jobject, GetAlertCheckUser) { return query(env, QV_GetAlertCheckUser); }
NATIVE_METHOD(void, SetAlertCheckUser, jobject user) { update(env, QV_SetAlertCheckUser, user); }

NATIVE_METHOD(jobject, GetEmailAlertInformation, jstring unit, jobject session) {
  return query(env, QV_GetEmailAlertInformation, unit, session);
}

NATIVE_METHOD(void, SetEmailAlertInfo, jstring unit, jobject session, jobject info) {
  update(env, QV_SetEmailAlertInfo, unit, session, info);
}

NATIVE_METHOD(void, ClearEmailAlertInfo, jstring unit, jobject session) {
  update(env, QV_ClearEmailAlertInfo, unit, session);
}

NATIVE_METHOD(void, ChangeEmailAlertMode, jstring unit, jobject session, jint mode) {
  update(env, QV_ChangeEmailAlertMode, unit, session, mode);
}

NATIVE_METHOD(void, TestEmailAlert, jstring unit, jobject session, jobject test) {
  update(env, QV_TestEmailAlert, unit, session, test);
}

DEPARTS(GetEmailInfo,
        "flushes nothing itself, returns an object that cannot be built as null without 2817, and "
        "builds as many elements of `to` as there are recipients, from none to all that the record "
        "holds; the record lies on the stack and begins as zeros");
NATIVE_METHOD(jobject, GetEmailInfo) {
  EmailInfo info{};
  const int result = QV_GetEmailInfo(&info);
  if (result != 0) {
    throwArrayException(env, result);
    return nullptr;
  }
  Field to = QUORVELJ_FIELD(EmailInfo, to);
  to.extents[0] = static_cast<std::uint32_t>(
      std::clamp(info.tonum, std::int32_t{0}, static_cast<std::int32_t>(std::size(info.to))));
  const Field fields[] = {QUORVELJ_FIELD(EmailInfo, on_off), QUORVELJ_FIELD(EmailInfo, domain),
                          QUORVELJ_FIELD(EmailInfo, smtp),   QUORVELJ_FIELD(EmailInfo, from),
                          QUORVELJ_FIELD(EmailInfo, tonum),  to};
  return build(env, {ClassOf<EmailInfo>::kName, fields}, &info);
}
