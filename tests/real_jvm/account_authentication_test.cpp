// Accounts and sessions in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

class AccountAuthentication : public RegisteredUnit {
 protected:
  static jobject account(const char* user, const char* password, bool enabled) {
    const jobject created = create("Account");
    set(created, "user_id", user);
    set(created, "set_passwd", "1");
    set(created, "passwd", password);
    set(created, "role", "3");
    set(created, "account_enable", enabled ? "1" : "0");
    return created;
  }
  static jobject named(const char* user) {
    const jobject identifier = create("AccountIdentifier");
    set(identifier, "user_id", user);
    return identifier;
  }
};

TEST_F(AccountAuthentication, RequestRecords) {
  const jobject session = create("QVSessionInfo");
  const auto inSession = [&](const char* method, const char* className, std::size_t size,
                             const std::vector<Member>& members) {
    const jobject object = create(className);
    expectRead(method, {unit_, session, object}, object, 2, size, members);
    expectRead(method, {unit_, session, object}, session, 1, 32, {bytesAt(0, 32, "session_id")});
  };
  const jobject request = create("LoginRequest");
  expectRead("QV_LoginQVAccount", {unit_, request}, request, 1, 648,
             {textAt(0, 257, "user_id"), textAt(257, 257, "passwd"), int32At(516, "log_option"),
              textAt(520, 128, "log_string")});
  for (const char* const method : {"QV_LogoutQVAccount", "QV_LogoutQVAccountAlertCheck"}) {
    inSession(method, "LogoutOption", 4, {int32At(0, "log_option")});
  }
  for (const char* const method : {"QV_ForcedLogoutQVAccount", "QV_DeleteAccount"}) {
    inSession(method, "AccountIdentifier", 257, {textAt(0, 257, "user_id")});
  }
  for (const char* const method : {"QV_CreateAccount", "QV_ChangeAccount"}) {
    inSession(method, "Account", 536,
              {textAt(0, 257, "user_id"), int32At(260, "set_passwd"), textAt(264, 257, "passwd"),
               int32At(524, "account_type"), int32At(528, "role"), int32At(532, "account_enable")});
  }
  inSession(
      "QV_ChangeOwnUserPassword", "OwnPasswordChange", 771,
      {textAt(0, 257, "user_id"), textAt(257, 257, "old_passwd"), textAt(514, 257, "new_passwd")});
  inSession("QV_SetAccountOption", "AccountOption", 16,
            int32sAt(0, {"option_info.password_min_length", "option_info.session_timeout_used",
                         "option_info.session_timeout", "additional_info.keep_alive_time"}));
  inSession("QV_SetAccountBannerAuth", "AccountBanner", 6004,
            {int32At(0, "warning_banner_display"), textAt(4, 6000, "warning_banner")});
}

TEST_F(AccountAuthentication, ResultRecords) {
  const jobject session = login("admin", "quorvel").result;
  expectBuilt("QV_LoginQVAccount", {unit_, create("LoginRequest")}, 32,
              {bytesAt(0, 32, "session_id")});
  expectBuilt("QV_LoginQVAccountAlertCheck", {unit_, number(7)}, 32,
              {bytesAt(0, 32, "session_id")});
  int option = 0;
  quorvelSimLastInput("QV_LoginQVAccountAlertCheck", 1, &option, sizeof option);
  EXPECT_EQ(option, 7);
  expectBuilt("QV_GetAccountOption", {unit_, session}, 16,
              int32sAt(0, {"option_info.password_min_length", "option_info.session_timeout_used",
                           "option_info.session_timeout", "additional_info.keep_alive_time"}));
  expectBuilt("QV_GetQVAccountRoleInformation", {unit_, session}, 8228,
              {int32At(0, "role_valid_index"), textAt(4, 257, "role_info[0].role_name"),
               textAt(7971, 257, "role_info[31].role_name")});
  // 21 accounts of 536 bytes.
  expectBuilt(
      "QV_GetAccountInformation", {unit_, session}, 11428,
      {textAt(0, 257, "account_info[0].user_id"), textAt(10720, 257, "account_info[20].user_id"),
       int32At(10980, "account_info[20].set_passwd"), textAt(10984, 257, "account_info[20].passwd"),
       int32At(11244, "account_info[20].account_type"), int32At(11248, "account_info[20].role"),
       int32At(11252, "account_info[20].account_enable")});
  expectBuilt("QV_GetOwnUserPermission", {unit_, session}, 76,
              {int32At(0, "operation_auth[0]"), int32At(32, "operation_auth[8]"),
               int32At(36, "original_operation_auth[0]"), int32At(68, "original_operation_auth[8]"),
               int32At(72, "role")});
  const std::vector<Member> banner{int32At(0, "warning_banner_display"),
                                   textAt(4, 6000, "warning_banner")};
  expectBuilt("QV_GetAccountBanner", {unit_}, 6004, banner);
  expectBuilt("QV_GetAccountBannerAuth", {unit_, session}, 6004, banner);
}

TEST_F(AccountAuthentication, Sessions) {
  EXPECT_EQ(login("admin", "wrong").failure, "DiskArrayException 20102");
  const jobject session = login("admin", "quorvel").result;
  EXPECT_EQ(get(call("QV_GetOwnUserPermission", {unit_, session}).result, "role"), "1");
  const jobject option = create("LogoutOption");
  EXPECT_EQ(call("QV_LogoutQVAccount", {unit_, session, option}).failure, "");
  EXPECT_EQ(call("QV_GetOwnUserPermission", {unit_, session}).failure, "DiskArrayException 20101");
  EXPECT_EQ(call("QV_GetOwnUserPermission", {unit_, create("QVSessionInfo")}).failure,
            "DiskArrayException 20101");
  EXPECT_EQ(call("QV_GetOwnUserPermission", {unit_, nullptr}).failure, "DiskArrayException 20101");
}

TEST_F(AccountAuthentication, ShortOrMissingSessionIdentifiers) {
  const jobject session = create("QVSessionInfo");
  setLength(session, "session_id", 31);
  quorvelSimForceResult("QV_LogoutQVAccount", 0, 1);
  EXPECT_EQ(
      call("QV_LogoutQVAccount", {unit_, session, create("LogoutOption")}).failure.substr(0, 30),
      "ArrayIndexOutOfBoundsException");
  EXPECT_EQ(quorvelSimCallCount("QV_LogoutQVAccount"), 1);
  setLength(session, "session_id", -1);
  quorvelSimForceResult("QV_LogoutQVAccount", 0, 1);
  EXPECT_EQ(call("QV_LogoutQVAccount", {unit_, session, create("LogoutOption")}).failure, "");
}

TEST_F(AccountAuthentication, AccountsLiveOnTheArray) {
  const jobject session = login("admin", "quorvel").result;
  EXPECT_EQ(call("QV_CreateAccount", {unit_, session, account("eve", "apple", true)}).failure, "");
  EXPECT_EQ(call("QV_CreateAccount", {unit_, session, account("eve", "apple", true)}).failure,
            "DiskArrayException 20104");
  const jobject list = call("QV_GetAccountInformation", {unit_, session}).result;
  EXPECT_EQ(get(list, "account_info"), "QVAccountBaseInfo[21]");
  EXPECT_EQ(get(list, "account_info[1].user_id"), "eve");
  EXPECT_EQ(get(list, "account_info[1].passwd"), "");

  const jobject eves = login("eve", "apple").result;
  const jobject change = create("OwnPasswordChange");
  set(change, "user_id", "eve");
  set(change, "old_passwd", "apple");
  set(change, "new_passwd", "pear");
  EXPECT_EQ(call("QV_ChangeOwnUserPassword", {unit_, eves, change}).failure, "");
  EXPECT_EQ(login("eve", "apple").failure, "DiskArrayException 20102");
  EXPECT_EQ(login("eve", "pear").failure, "");
  EXPECT_EQ(call("QV_ForcedLogoutQVAccount", {unit_, session, named("eve")}).failure, "");
  EXPECT_EQ(call("QV_GetOwnUserPermission", {unit_, eves}).failure, "DiskArrayException 20101");
  call("QV_ChangeAccount", {unit_, session, account("eve", "pear", false)});
  EXPECT_EQ(login("eve", "pear").failure, "DiskArrayException 20102");
  EXPECT_EQ(call("QV_DeleteAccount", {unit_, session, named("eve")}).failure, "");
  EXPECT_EQ(call("QV_DeleteAccount", {unit_, session, named("eve")}).failure,
            "DiskArrayException 20103");
}

TEST_F(AccountAuthentication, SettingsAreKept) {
  const jobject session = login("admin", "quorvel").result;
  const jobject option = create("AccountOption");
  set(option, "option_info.session_timeout", "30");
  set(option, "additional_info.keep_alive_time", "12");
  EXPECT_EQ(call("QV_SetAccountOption", {unit_, session, option}).failure, "");
  const jobject kept = call("QV_GetAccountOption", {unit_, session}).result;
  EXPECT_EQ(get(kept, "option_info.session_timeout"), "30");
  EXPECT_EQ(get(kept, "additional_info.keep_alive_time"), "12");

  const jobject banner = create("AccountBanner");
  set(banner, "warning_banner", "Größe: ungültig");
  EXPECT_EQ(call("QV_SetAccountBannerAuth", {unit_, session, banner}).failure, "");
  EXPECT_EQ(get(call("QV_GetAccountBanner", {unit_}).result, "warning_banner"), "Größe: ungültig");
}

}  // namespace
}  // namespace quorvelj::testing
