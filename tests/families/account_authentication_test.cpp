// Accounts and sessions.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using AccountAuthentication = RegisteredUnit;

const Members kSession{bytesAt(0, 32, "session_id")};
const Members kAccount{textAt(0, 257, "user_id"),  int32At(260, "set_passwd"),
                       textAt(264, 257, "passwd"), int32At(524, "account_type"),
                       int32At(528, "role"),       int32At(532, "account_enable")};
const Members kOption =
    at(0, "option_info.", int32sAt(0, "password_min_length session_timeout_used session_timeout")) +
    int32sAt(12, "additional_info.keep_alive_time");
const Members kBanner{int32At(0, "warning_banner_display"), textAt(4, 6000, "warning_banner")};

TEST_F(AccountAuthentication, RequestRecords) {
  const jobject request = create("LoginRequest");
  expectRead("QV_LoginQVAccount", {unit_, request}, request, 1, 648,
             {textAt(0, 257, "user_id"), textAt(257, 257, "passwd"), int32At(516, "log_option"),
              textAt(520, 128, "log_string")});
  for (const char* const method : {"QV_LogoutQVAccount", "QV_LogoutQVAccountAlertCheck"}) {
    expectRequest(method, "LogoutOption", 4, {int32At(0, "log_option")});
  }
  for (const char* const method : {"QV_ForcedLogoutQVAccount", "QV_DeleteAccount"}) {
    expectRequest(method, "AccountIdentifier", 257, {textAt(0, 257, "user_id")});
  }
  for (const char* const method : {"QV_CreateAccount", "QV_ChangeAccount"}) {
    expectRequest(method, "Account", 536, kAccount);
  }
  expectRequest("QV_ChangeOwnUserPassword", "OwnPasswordChange", 771,
                textsAt(0, 257, "user_id old_passwd new_passwd"));
  expectRequest("QV_SetAccountOption", "AccountOption", 16, kOption);
  expectRequest("QV_SetAccountBannerAuth", "AccountBanner", 6004, kBanner);
}

TEST_F(AccountAuthentication, ResultRecords) {
  expectBuilt("QV_LoginQVAccount", {unit_, create("LoginRequest")}, 32, kSession);
  expectBuilt("QV_LoginQVAccountAlertCheck", {unit_, number(7)}, 32, kSession);
  EXPECT_EQ(lastInt("QV_LoginQVAccountAlertCheck", 1), 7);
  expectFromUnit("QV_GetAccountOption", 16, kOption);
  expectFromUnit("QV_GetQVAccountRoleInformation", 8228,
                 {int32At(0, "role_valid_index"), textAt(4, 257, "role_info[0].role_name"),
                  textAt(7971, 257, "role_info[31].role_name")});
  // 21 accounts of 536 bytes.
  expectFromUnit("QV_GetAccountInformation", 11428,
                 at({{0, "account_info[0]."}, {10720, "account_info[20]."}}, kAccount));
  EXPECT_EQ(get(information("QV_GetAccountInformation"), "account_info"), "QVAccountBaseInfo[21]");
  expectFromUnit("QV_GetOwnUserPermission", 76,
                 {int32At(0, "operation_auth[0]"), int32At(32, "operation_auth[8]"),
                  int32At(36, "original_operation_auth[0]"),
                  int32At(68, "original_operation_auth[8]"), int32At(72, "role")});
  expectBuilt("QV_GetAccountBanner", {unit_}, 6004, kBanner);
  expectFromUnit("QV_GetAccountBannerAuth", 6004, kBanner);
}

TEST_F(AccountAuthentication, Sessions) {
  EXPECT_EQ(login("admin", "wrong").failure, "DiskArrayException 20102");
  EXPECT_EQ(get(information("QV_GetOwnUserPermission"), "role"), "1");
  EXPECT_EQ(run("QV_LogoutQVAccount", create("LogoutOption")), "");
  EXPECT_EQ(run("QV_GetOwnUserPermission"), "DiskArrayException 20101");
  EXPECT_EQ(call("QV_GetOwnUserPermission", {unit_, nullptr}).failure, "DiskArrayException 20101");

  const jobject session = create("QVSessionInfo");
  setLength(session, "session_id", 31);
  expectTooShort("QV_LogoutQVAccount", {unit_, session, create("LogoutOption")});
  setLength(session, "session_id", -1);
  quorvelSimForceResult("QV_LogoutQVAccount", 0, 1);
  EXPECT_EQ(call("QV_LogoutQVAccount", {unit_, session, create("LogoutOption")}).failure, "");
}

TEST_F(AccountAuthentication, WhatIsSetIsReadBack) {
  const jobject eve = create("Account", {{"user_id", "eve"},
                                         {"set_passwd", "1"},
                                         {"passwd", "apple"},
                                         {"role", "3"},
                                         {"account_enable", "1"}});
  EXPECT_EQ(run("QV_CreateAccount", eve), "");
  EXPECT_EQ(run("QV_CreateAccount", eve), "DiskArrayException 20104");
  expectFields(information("QV_GetAccountInformation"),
               {{"account_info[1].user_id", "eve"}, {"account_info[1].passwd", ""}});
  EXPECT_EQ(login("eve", "apple").failure, "");

  const jobject banner = create("AccountBanner", {{"warning_banner", "Größe: ungültig"}});
  EXPECT_EQ(run("QV_SetAccountBannerAuth", banner), "");
  EXPECT_EQ(get(call("QV_GetAccountBanner", {unit_}).result, "warning_banner"), "Größe: ungültig");
}

}  // namespace
}  // namespace quorvelj::testing
