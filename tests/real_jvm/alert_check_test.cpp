// Alerts and their mail in a real Java process.
#include <cstring>

#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

class AlertCheck : public RegisteredUnit {
 protected:
  /// What Java gets of a mail record with this number of recipients and no NUL in them.
  static jobject mailOf(std::int32_t recipients) {
    std::vector<char> record(2248, 'm');
    std::memcpy(record.data() + 244, &recipients, sizeof recipients);
    quorvelSimPrepareOutput("QV_GetEmailInfo", record.data(), record.size());
    const Called called = call("QV_GetEmailInfo", {});
    EXPECT_EQ(called.failure, "");
    EXPECT_EQ(get(called.result, "tonum"), std::to_string(recipients));
    return called.result;
  }
};

TEST_F(AlertCheck, Records) {
  const jobject mail = create("EmailInfo");
  for (int recipient = 0; recipient < 20; ++recipient) {
    set(mail, "to[" + std::to_string(recipient) + ']', "");
  }
  expectRead("QV_SetEmailInfo", {mail}, mail, 0, 2248,
             {int32At(0, "on_off"), int32At(244, "tonum"), textAt(4, 40, "domain"),
              textAt(44, 100, "smtp"), textAt(144, 100, "from"), textAt(248, 100, "to[0]"),
              textAt(2148, 100, "to[19]")});
  expectBuilt("QV_GetEmailInfo", {}, 2248,
              {int32At(0, "on_off"), textAt(4, 40, "domain"), textAt(44, 100, "smtp"),
               textAt(144, 100, "from"), int32At(244, "tonum")});
  expectBuilt("QV_AlertCheckEx", {unit_, session_, number(0)}, 12,
              int32sAt(0, {"valid_index", "alert", "alert_sa"}));
  const std::vector<Member> user{textAt(0, 257, "user_id"), textAt(257, 257, "passwd"),
                                 int32At(516, "account_enable")};
  const jobject checker = create("AlertCheckUser");
  expectRead("QV_SetAlertCheckUser", {checker}, checker, 0, 520, user);
  expectBuilt("QV_GetAlertCheckUser", {}, 520, user);

  expectBuilt("QV_GetEmailAlertInformation", {unit_, session_}, 804,
              {int32At(0, "send_mode"), int32At(4, "ctl_flag[0]"), int32At(8, "ctl_flag[1]"),
               int32At(12, "exec_flag"), int32At(16, "exec_result"), textAt(20, 64, "mail.smtp"),
               textAt(84, 256, "mail.domain"), textAt(340, 64, "mail.from_address"),
               textAt(404, 64, "mail.to_address[0]"), textAt(596, 64, "mail.to_address[3]"),
               textAt(660, 64, "mail.reply_address"), textAt(724, 64, "mail.additional_info"),
               int32At(788, "mail.send_type[0]"), int32At(800, "mail.send_type[3]")});
  const jobject alert = create("EmailAlertInfo");
  for (const char* const slot : {"[0]", "[1]", "[2]", "[3]"}) {
    set(alert, std::string("to_address") + slot, "");
  }
  expectRead("QV_SetEmailAlertInfo", {unit_, session_, alert}, alert, 2, 784,
             {textAt(0, 64, "smtp"), textAt(64, 256, "domain"), textAt(320, 64, "from_address"),
              textAt(384, 64, "to_address[0]"), textAt(576, 64, "to_address[3]"),
              textAt(640, 64, "reply_address"), textAt(704, 64, "additional_info"),
              int32At(768, "send_type[0]"), int32At(780, "send_type[3]")});
  const jobject test = create("EmailAlertTest");
  expectRead("QV_TestEmailAlert", {unit_, session_, test}, test, 2, 4, {int32At(0, "ctl")});
}

TEST_F(AlertCheck, Arguments) {
  expectPassed("QV_AlertCheck", "usi", true);
  expectPassed("QV_AlertCheckEx", "usi");
  expectPassed("QV_GetAlertInterval", "", true);
  expectPassed("QV_SetAlertInterval", "i");
  expectPassed("QV_GetEmailAlertInformation", "us");
  expectPassed("QV_ClearEmailAlertInfo", "us");
  expectPassed("QV_ChangeEmailAlertMode", "usi");
}

TEST_F(AlertCheck, RecipientsAreAsManyAsTheirNumberAndNeverMoreThanTheRecordHas) {
  const std::string slot(100, 'm');
  EXPECT_EQ(get(mailOf(0), "to"), "String[0]");
  EXPECT_EQ(get(mailOf(2), "to"), "String[2]");
  EXPECT_EQ(get(mailOf(20), "to[19]"), slot);
  EXPECT_EQ(get(mailOf(21), "to"), "String[20]");
  EXPECT_EQ(get(mailOf(0x7FFFFFFF), "to"), "String[20]");
  EXPECT_EQ(get(mailOf(-1), "to"), "String[0]");
  quorvelSimForceResult("QV_GetEmailInfo", 12, 1);
  EXPECT_EQ(call("QV_GetEmailInfo", {}).failure, "DiskArrayException 12");
}

TEST_F(AlertCheck, RecipientsThatAreSet) {
  const jobject mail = create("EmailInfo");
  for (const char* const field : {"domain", "smtp", "from", "to[0]", "to[1]", "to[2]"}) {
    set(mail, field, std::string("the ") + field);
  }
  set(mail, "tonum", "5");
  EXPECT_EQ(call("QV_SetEmailInfo", {mail}).failure, "");
  const std::string record = lastInput("QV_SetEmailInfo", 0);
  EXPECT_EQ(record[244], 5);
  EXPECT_STREQ(record.data() + 448, "the to[2]");
  const jobject kept = call("QV_GetEmailInfo", {}).result;
  EXPECT_EQ(get(kept, "to"), "String[5]");
  EXPECT_EQ(get(kept, "to[1]"), "the to[1]");

  // Elements beyond the record's are left where they are.
  set(mail, "to[24]", "far");
  for (int recipient = 3; recipient < 24; ++recipient) {
    set(mail, "to[" + std::to_string(recipient) + ']', "near");
  }
  EXPECT_EQ(call("QV_SetEmailInfo", {mail}).failure, "");
  EXPECT_STREQ(lastInput("QV_SetEmailInfo", 0).data() + 2148, "near");
}

TEST_F(AlertCheck, AlertsAndMail) {
  EXPECT_EQ(get(call("QV_AlertCheck", {unit_, session_, number(0)}).result, ""), "5");
  call("QV_SetAlertInterval", {number(300)});
  EXPECT_EQ(get(call("QV_GetAlertInterval", {}).result, ""), "300");
  quorvelSimForceResult("QV_GetAlertInterval", 256, 1);
  EXPECT_EQ(get(call("QV_GetAlertInterval", {}).result, ""), "0");

  const auto state = [&](const char* path) {
    return get(call("QV_GetEmailAlertInformation", {unit_, session_}).result, path);
  };
  const jobject test = create("EmailAlertTest");
  set(test, "ctl", "1");
  EXPECT_EQ(call("QV_TestEmailAlert", {unit_, session_, test}).failure, "");
  EXPECT_EQ(state("ctl_flag"), "[0, 1]");
  EXPECT_EQ(state("exec_result"), "1");
  set(test, "ctl", "2");
  EXPECT_EQ(call("QV_TestEmailAlert", {unit_, session_, test}).failure, "DiskArrayException 20004");
  call("QV_ChangeEmailAlertMode", {unit_, session_, number(2)});
  EXPECT_EQ(state("send_mode"), "2");
  EXPECT_EQ(call("QV_ClearEmailAlertInfo", {unit_, session_}).failure, "");
  EXPECT_EQ(state("ctl_flag"), "[0, 0]");
}

}  // namespace
}  // namespace quorvelj::testing
