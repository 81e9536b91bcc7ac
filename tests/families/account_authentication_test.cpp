// Accounts and sessions.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using AccountAuthentication = RegisteredUnit;

const Members kSession = "0:bytes32 session_id";
const Members kAccount =
    "0:text257 user_id; 260:int32 set_passwd; 264:text257 passwd; 524:int32 account_type role "
    "account_enable";
const Members kOption =
    at("0:option_info", "0:int32 password_min_length session_timeout_used session_timeout") +
    "12:int32 additional_info.keep_alive_time";
const Members kBanner = "0:int32 warning_banner_display; 4:text6000 warning_banner";

TEST_F(AccountAuthentication, RequestRecords) {
  expectRequest("QV_LoginQVAccount", "LoginRequest", 648,
                "0:text257 user_id passwd; 516:int32 log_option; 520:text128 log_string");
  expectRequest("QV_LogoutQVAccount QV_LogoutQVAccountAlertCheck", "LogoutOption", 4,
                "0:int32 log_option");
  expectRequest("QV_ForcedLogoutQVAccount QV_DeleteAccount", "AccountIdentifier", 257,
                "0:text257 user_id");
  expectRequest("QV_CreateAccount QV_ChangeAccount", "Account", 536, kAccount);
  expectRequest("QV_ChangeOwnUserPassword", "OwnPasswordChange", 771,
                "0:text257 user_id old_passwd new_passwd");
}

TEST_F(AccountAuthentication, ResultRecords) {
  expectBuilt("QV_LoginQVAccount", {unit_, create("LoginRequest")}, 32, kSession);
  expectBuilt("QV_LoginQVAccountAlertCheck", {unit_, number(7)}, 32, kSession);
  EXPECT_EQ(lastInt("QV_LoginQVAccountAlertCheck", 1), 7);
  expectGetAndSet("AccountOption", "AccountOption", 16, kOption);
  expectFromUnit("QV_GetQVAccountRoleInformation", 8228,
                 "0:int32 role_valid_index; 4:text257 role_info[0].role_name; 7971:text257 "
                 "role_info[31].role_name");
  // 21 accounts of 544 bytes behind a word.
  expectFromUnit("QV_GetAccountInformation", 11428,
                 at("4:account_info[0] 10884:account_info[20]", kAccount));
  expectFromUnit("QV_GetOwnUserPermission", 76,
                 "0:int32 operation_auth[0]; 32:int32 operation_auth[8] "
                 "original_operation_auth[0]; 68:int32 original_operation_auth[8] role");
  expectBuilt("QV_GetAccountBanner", {unit_}, 6004, kBanner);
  expectGetAndSet("AccountBannerAuth", "AccountBanner", 6004, kBanner);
}

TEST_F(AccountAuthentication, Sessions) {
  EXPECT_EQ(login("admin", "wrong").failure, "DiskArrayException 20102");
  EXPECT_EQ(get(information("QV_GetOwnUserPermission"), "role"), "1");
  update("QV_LogoutQVAccount", create("LogoutOption"));
  EXPECT_EQ(run("QV_GetOwnUserPermission"), "DiskArrayException 20101");
  EXPECT_EQ(call("QV_GetOwnUserPermission", {unit_, nullptr}).failure, "DiskArrayException 20101");

  const jobject session = create("QVSessionInfo");
  set(session, "session_id#=31");
  expectTooShort("QV_LogoutQVAccount", {unit_, session, create("LogoutOption")});
}

TEST_F(AccountAuthentication, WhatIsSetIsReadBack) {
  const jobject eve =
      create("Account", "user_id=eve; set_passwd=1; passwd=apple; role=3; account_enable=1");
  update("QV_CreateAccount", eve);
  EXPECT_EQ(run("QV_CreateAccount", eve), "DiskArrayException 20104");
  expectFields(information("QV_GetAccountInformation"),
               "account_info[1].user_id=eve; account_info[1].passwd=");
  EXPECT_EQ(login("eve", "apple").failure, "");
  // A password that is not to be set stays.
  update("QV_ChangeAccount", create("Account", "user_id=eve; passwd=pear; account_enable=1"));
  EXPECT_EQ(login("eve", "apple").failure, "");

  const jobject banner = create("AccountBanner", "warning_banner=Größe: ungültig");
  update("QV_SetAccountBannerAuth", banner);
  EXPECT_EQ(get(call("QV_GetAccountBanner", {unit_}).result, "warning_banner"), "Größe: ungültig");
}

}  // namespace
}  // namespace quorvelj::testing
