// Alerts and their mail.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using AlertCheck = RegisteredUnit;

TEST_F(AlertCheck, Records) {
  const jobject mail = create("EmailInfo");
  for (int recipient = 0; recipient < 20; ++recipient) {
    set(mail, "to[" + std::to_string(recipient) + ']', "");
  }
  expectRequest(
      "QV_SetEmailInfo", mail, 2248,
      "0:int32 on_off; 244:int32 tonum; 4:text40 domain; 44:text100 smtp from; 248:text100 "
      "to[0]; 2148:text100 to[19]");
  set(mail, "tonum=1; to[0]=someone");
  EXPECT_EQ(call("QV_SetEmailInfo", {mail}).failure, "");
  expectFields(call("QV_GetEmailInfo", {}).result, "to=String[1]; to[0]=someone");
  expectBuilt("QV_GetEmailInfo", {}, 2248,
              "0:int32 on_off; 4:text40 domain; 44:text100 smtp from; 244:int32 tonum; visited to");
  const Members user = "0:text257 user_id passwd; 516:int32 account_enable";
  expectRequest("QV_SetAlertCheckUser", "AlertCheckUser", 520, user);
  expectBuilt("QV_GetAlertCheckUser", {}, 520, user);

  const Members alertMail =
      "0:text64 smtp; 64:text256 domain; 320:text64 from_address to_address[0]; 576:text64 "
      "to_address[3] reply_address additional_info; 768:int32 send_type[0]; 780:int32 send_type[3]";
  expectFromUnit(
      "QV_GetEmailAlertInformation", 804,
      "0:int32 send_mode ctl_flag[0] ctl_flag[1] exec_flag exec_result" + at("20:mail", alertMail));
  const jobject alert =
      create("EmailAlertInfo", "to_address[0]=; to_address[1]=; to_address[2]=; to_address[3]=");
  expectRequest("QV_SetEmailAlertInfo", alert, 784, alertMail);
  expectRequest("QV_TestEmailAlert", "EmailAlertTest", 4, "0:int32 ctl");
  expectFromUnit("QV_AlertCheckEx", 12, "0:int32 valid_index alert alert_sa", {-1});
}

TEST_F(AlertCheck, Arguments) {
  expectPassed("QV_SetAlertInterval i; QV_ClearEmailAlertInfo us; QV_ChangeEmailAlertMode usi");
  expectPassedAndReturned("QV_AlertCheck usi; QV_GetAlertInterval");

  EXPECT_EQ(get(information("QV_AlertCheck", 0), ""), "5");
  update("QV_ChangeEmailAlertMode", 2);
  EXPECT_EQ(get(information("QV_GetEmailAlertInformation"), "send_mode"), "2");
}

TEST_F(AlertCheck, RecipientsAreAsManyAsTheirNumberAndNeverMoreThanTheRecordHas) {
  // No text in the record ends in a NUL.
  const auto expectRecipients = [](const std::string& number, const char* bytes,
                                   const char* shown) {
    const std::string record =
        std::string(244, 'm') + std::string(bytes, 4) + std::string(2000, 'm');
    quorvelSimPrepareOutput("QV_GetEmailInfo", record.data(), record.size());
    const jobject mail = call("QV_GetEmailInfo", {}).result;
    expectFields(mail, {{"tonum", number}, {"to", shown}});
    return mail;
  };
  expectRecipients("0", "\0\0\0\0", "String[0]");
  expectRecipients("2", "\2\0\0\0", "String[2]");
  EXPECT_EQ(get(expectRecipients("20", "\x14\0\0\0", "String[20]"), "to[19]"),
            std::string(100, 'm'));
  expectRecipients("21", "\x15\0\0\0", "String[20]");
  expectRecipients("2147483647", "\xFF\xFF\xFF\x7F", "String[20]");
  expectRecipients("-1", "\xFF\xFF\xFF\xFF", "String[0]");
}

}  // namespace
}  // namespace quorvelj::testing
