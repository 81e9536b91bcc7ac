// Logging in and out of a unit, the array's own users, and the unit's clock.
#include <cstring>

#include "arraylib/units.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(ArrayUser, user, passwd);
QUORVELJ_CLASS(QVUserRegist, num, option);
QUORVELJ_CLASS(CTLPortKind, portkind_ctl0, portkind_ctl1);
QUORVELJ_CLASS(BaseInformation, add_info_index, micro, next_road_micro, qv_type, device_type,
               device_type_QVK_sub_code, port_type, unit_conf, sup_rglevel, reserved1, reserved2);
QUORVELJ_CLASS(LogicalInformation, index, index2, rg_count, lu_count, rg_lu_count, perm_count,
               cache_part_count, ext_bitmap, hg_count, reboot_time, replace_time,
               crosscall_reboot_time, max_reboot_time, max_replace_time, max_crosscall_replace_time,
               iscsi_target_count, iscsi_initiator_count, iscsi_login_initiator_count,
               iscsi_chap_user_count, account_count, role_count, resource_count, reserve_lu_count,
               migration_pair_count, gm_pair_count, gm_mirror_count, ss_pair_count, ss_mirror_count,
               fl_pair_count, fle_pair_count, gmss_ctg_count, fl_ctg_count, fle_ctg_count,
               fle_ctg_pair_count, remote_path_count, pool_count, pool_lu_count, integrate_count,
               command_count, lu_mapping_count, host_lu_count, reserved);
QUORVELJ_CLASS(PhysicalInformation, index, index2, cache_count, ps_count, fan_count, ac_count,
               batt_count, battbk_count, add_batt_count, hdd_hdu_count, hdd_unit_count, sp_count,
               enc_count, loop_count, backendpath_count, ifboard_count, port_count, unit_count,
               ps_unit_count, fan_unit_count, enc_unit_count, connector_count, hdd_sff_count,
               cpu_core_count, nnc_count, nnc_dimm_count, nnc_ps_count, nnc_fan_count,
               nnc_connector_count, nnc_ext_slot_count, repair_slot_count, reserved);
QUORVELJ_CLASS(UnitInformation, b_info, l_info, p_info);
QUORVELJ_CLASS(UnitIdentifier, equipment_id, ctl);

QUORVELJ_OPAQUE_CLASS(ControllerInfo);
QUORVELJ_OPAQUE_CLASS(TimeInfo);

NATIVE_METHOD(void, LogoutQVUnit, jstring unit, jint mode) {
  update(env, QV_LogoutQVUnit, unit, mode);
}

NATIVE_METHOD(jint, CheckLogin, jstring unit, jint mode) {
  return value(env, QV_CheckLogin, unit, mode);
}

NATIVE_METHOD(void, ResetLogin, jstring unit, jint mode) { update(env, QV_ResetLogin, unit, mode); }

NATIVE_METHOD(void, KeepSession, jstring unit, jobject session) {
  update(env, QV_KeepSession, unit, session);
}

NATIVE_METHOD(void, TestUnitReady, jstring unit, jint mode) {
  update(env, QV_TestUnitReady, unit, mode);
}

NATIVE_METHOD(void, UnitReboot, jstring unit, jobject session) {
  update(env, QV_UnitReboot, unit, session);
}

NATIVE_METHOD(void, PasswdChange, jstring password) { update(env, QV_PasswdChange, password); }

NATIVE_METHOD(void, RegistUser, jstring unit, jint number, jobject user) {
  update(env, QV_RegistUser, unit, number, user);
}

NATIVE_METHOD(void, ChangeUser, jstring unit, jint number, jobject oldUser, jobject newUser) {
  update(env, QV_ChangeUser, unit, number, oldUser, newUser);
}

NATIVE_METHOD(void, DeleteUser, jstring unit, jint number, jobject user) {
  update(env, QV_DeleteUser, unit, number, user);
}

NATIVE_METHOD(void, DeleteAllUser, jstring unit, jint number) {
  update(env, QV_DeleteAllUser, unit, number);
}

NATIVE_METHOD(jobject, GetUserInformation, jstring unit, jint number) {
  return query(env, QV_GetUserInformation, unit, number);
}

NATIVE_METHOD(jobject, GetUnitInformation, jstring unit, jobject session) {
  return query(env, QV_GetUnitInformation, unit, session);
}

NATIVE_METHOD(jobject, GetUnitCTLPortKind, jstring unit, jobject session) {
  return query(env, QV_GetUnitCTLPortKind, unit, session);
}

NATIVE_METHOD(jobject, GetUnitIdentifier, jstring unit, jobject session) {
  return query(env, QV_GetUnitIdentifier, unit, session);
}

NATIVE_METHOD(void, SetUnitIdentifier, jstring unit, jobject session, jobject identifier) {
  update(env, QV_SetUnitIdentifier, unit, session, identifier);
}

NATIVE_METHOD(jobject, GetTimeInfo, jstring unit, jobject session) {
  return query(env, QV_GetTimeInfo, unit, session);
}

NATIVE_METHOD(void, SetTimeInfo, jstring unit, jobject session, jobject info) {
  update(env, QV_SetTimeInfo, unit, session, info);
}

namespace {

/// A text of a login pair. One without its NUL ends where its member does.
template <std::size_t N>
jstring newTextOf(Env env, const char (&member)[N]) {
  char text[N + 1];
  std::memcpy(text, member, N);
  text[N] = '\0';
  return env->NewStringUTF(text);
}

/// Ends a login: throws what the library returned, or returns the two texts. Nothing is thrown
/// where the first is empty, nor for a text that could not be made, whose element stays null.
jobjectArray finishLogin(Env env, int result, const LoginPair& pair) {
  if (result != 0) {
    throwArrayException(env, result);
    return nullptr;
  }
  if (pair[0][0] == '\0') {
    return nullptr;
  }
  const jstring texts[] = {newTextOf(env, pair[0]), newTextOf(env, pair[1])};
  const jobjectArray array = newObjectArrayByName(env, "java/lang/String", 2);
  if (array == nullptr) {
    throwArrayException(env, kFailed);
    return nullptr;
  }
  for (jsize index = 0; index < 2; ++index) {
    if (texts[index] != nullptr) {
      env->SetObjectArrayElement(array, index, texts[index]);
    }
  }
  for (const jstring text : texts) {
    deleteLocalRef(env, text);
  }
  flushOutput();
  return array;
}

}  // namespace

DEPARTS(LoginQVUnit,
        "the user and the result lie on the stack and begin as zeros, and the result is a "
        "`String[]`, or null where nobody is named",
        .nullOfZeros = true);
NATIVE_METHOD(jobjectArray, LoginQVUnit, jstring unit, jint mode, jobject user) {
  LibraryCall library(env, QV_LoginQVUnit, unit, mode);
  if (!library.begin()) {
    return nullptr;
  }
  ArrayUser record{};
  read(env, ClassOf<ArrayUser>::kMap, user, &record);
  LoginPair pair{};
  return finishLogin(env, library.call(&record, &pair), pair);
}

DEPARTS(GetLoginUser,
        "the result lies on the stack, begins as zeros, and is a `String[]`, or null where nobody "
        "is named",
        .nullOfZeros = true);
NATIVE_METHOD(jobjectArray, GetLoginUser, jstring unit, jint mode) {
  LibraryCall library(env, QV_GetLoginUser, unit, mode);
  if (!library.begin()) {
    return nullptr;
  }
  LoginPair pair{};
  return finishLogin(env, library.call(&pair), pair);
}

DEPARTS(
    PasswdCheck,
    "returns the library's result, of which 0 and -1 are no failures; the library gets Java's "
    "own characters, which are never released; characters that cannot be had are 2817, returned "
    "and not thrown",
    .failureValue = -1, .neverReleasedCharacters = 1, .stopsUnread = true, .returnsResult = true);
NATIVE_METHOD(jint, PasswdCheck, jstring password) {
  flushOutput();
  if (password == nullptr) {
    throwArrayException(env, kMissingArgument);
    return -1;
  }
  const char* const characters = env->GetStringUTFChars(password, nullptr);
  if (characters == nullptr) {
    return kFailed;
  }
  const int result = QV_PasswdCheck(characters);
  if (result != 0 && result != -1) {
    throwArrayException(env, result);
    return result;
  }
  flushOutput();
  return result;
}

namespace {

/// The unit and the session of a method of the clock.
struct ClockInputs {
  UnitName unit;
  QVSessionInfo* session;
  /// The session left an exception pending.
  bool stopped;
};

/// Copies the name and reads the session, or throws 65535 and returns false.
bool accept(Env env, jstring unit, jobject session, ClockInputs& inputs) {
  copyOptionalText(env, unit, inputs.unit);
  inputs.session = allocate<QVSessionInfo>();
  if (inputs.session == nullptr) {
    throwArrayException(env, kOutOfMemory);
    return false;
  }
  inputs.stopped = read(env, ClassOf<QVSessionInfo>::kMap, session, inputs.session) != kOk &&
                   exceptionPending(env);
  return true;
}

}  // namespace

DEPARTS(
    GetUnitTime,
    "flushes nothing itself, takes a null name for an empty one, never releases the session's "
    "record, and returns a time that cannot be built as null without 2817; the time lies on the "
    "stack",
    .neverReleased = 1, .acceptsNullText = true);
NATIVE_METHOD(jobject, GetUnitTime, jstring unit, jobject session) {
  ClockInputs inputs;
  if (!accept(env, unit, session, inputs)) {
    return nullptr;
  }
  QVTime time{};
  const int result = QV_GetUnitTime(&inputs.unit, inputs.session, &time);
  if (result != 0) {
    throwArrayException(env, result);
    return nullptr;
  }
  return build(env, ClassOf<QVTime>::kMap, &time);
}

DEPARTS(
    SetUnitTime,
    "flushes nothing, takes a null name for an empty one, never releases the session's record, "
    "and throws what the reader of the time returns, -1 for a null time, instead of calling the "
    "library; the time lies on the stack",
    .neverReleased = 1, .acceptsNullText = true, .stopsUnread = true);
NATIVE_METHOD(void, SetUnitTime, jstring unit, jobject session, jobject time) {
  ClockInputs inputs;
  if (!accept(env, unit, session, inputs)) {
    return;
  }
  QVTime record{};
  int result = inputs.stopped ? kFailed : read(env, ClassOf<QVTime>::kMap, time, &record);
  if (result == kOk) {
    result = QV_SetUnitTime(&inputs.unit, inputs.session, &record);
  }
  if (result != 0) {
    throwArrayException(env, result);
  }
}

DEPARTS(SetUnitTimeNow,
        "flushes nothing, takes a null name for an empty one, and never releases the session's "
        "record",
        .neverReleased = 1, .acceptsNullText = true);
NATIVE_METHOD(void, SetUnitTimeNow, jstring unit, jobject session) {
  ClockInputs inputs;
  if (!accept(env, unit, session, inputs)) {
    return;
  }
  const int result = QV_SetUnitTimeNow(&inputs.unit, inputs.session);
  if (result != 0) {
    throwArrayException(env, result);
  }
}
