// Logins, the array's own users and the clock.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

class UnitSession : public RegisteredUnit {
 protected:
  static jobject user(const char* name, const char* password) {
    return create("ArrayUser", {{"user", name}, {"passwd", password}});
  }
};

TEST_F(UnitSession, UserRecords) {
  const Members members = textsAt(0, 17, "user passwd");
  const jobject object = create("ArrayUser");
  for (const char* const method : {"QV_LoginQVUnit", "QV_RegistUser", "QV_DeleteUser"}) {
    expectRead(method, {unit_, number(7), object}, object, 2, 34, members);
    EXPECT_EQ(lastInt(method, 1), 7);
  }
  const jobject other = user("other", "");
  expectRead("QV_ChangeUser", {unit_, number(7), object, other}, object, 2, 34, members);
  expectRead("QV_ChangeUser", {unit_, number(7), other, object}, object, 3, 34, members);
  expectBuilt("QV_GetUserInformation", {unit_, number(7)}, 8, int32sAt(0, "num option"));

  EXPECT_EQ(call("QV_RegistUser", {unit_, number(0), user("eve", "apple")}).failure, "");
  EXPECT_EQ(call("QV_RegistUser", {unit_, number(0), user("eve", "pear")}).failure,
            "DiskArrayException 20104");
  call("QV_LoginQVUnit", {unit_, number(1), user("eve", "apple")});
  EXPECT_EQ(get(call("QV_CheckLogin", {unit_, number(1)}).result, ""), "1");
  expectFields(call("QV_GetLoginUser", {unit_, number(1)}).result,
               {{"[0]", "eve"}, {"[1]", "apple"}});
}

TEST_F(UnitSession, UnitRecords) {
  expectFromUnit("QV_GetUnitCTLPortKind", 8, int32sAt(0, "portkind_ctl0 portkind_ctl1"));
  expectFromUnit(
      "QV_GetUnitInformation", 508,
      at(0, "b_info.",
         Members{int32At(0, "add_info_index"), textAt(4, 9, "micro"),
                 textAt(13, 11, "next_road_micro")} +
             int32sAt(24,
                      "qv_type device_type device_type_QVK_sub_code port_type unit_conf "
                      "sup_rglevel reserved1 reserved2")) +
          at(0, "l_info.",
             int32sAt(
                 56,
                 "index index2 rg_count lu_count rg_lu_count perm_count cache_part_count "
                 "ext_bitmap hg_count reboot_time replace_time crosscall_reboot_time "
                 "max_reboot_time max_replace_time max_crosscall_replace_time iscsi_target_count "
                 "iscsi_initiator_count iscsi_login_initiator_count iscsi_chap_user_count "
                 "account_count role_count resource_count reserve_lu_count migration_pair_count "
                 "gm_pair_count gm_mirror_count ss_pair_count ss_mirror_count fl_pair_count "
                 "fle_pair_count gmss_ctg_count fl_ctg_count fle_ctg_count fle_ctg_pair_count "
                 "remote_path_count pool_count pool_lu_count integrate_count command_count "
                 "lu_mapping_count host_lu_count") +
                 Members{int32At(220, "reserved[0]"), int32At(316, "reserved[24]")}) +
          at(0, "p_info.",
             int32sAt(320,
                      "index index2 cache_count ps_count fan_count ac_count batt_count "
                      "battbk_count add_batt_count hdd_hdu_count hdd_unit_count sp_count enc_count "
                      "loop_count backendpath_count ifboard_count port_count unit_count "
                      "ps_unit_count fan_unit_count enc_unit_count connector_count hdd_sff_count "
                      "cpu_core_count nnc_count nnc_dimm_count nnc_ps_count nnc_fan_count "
                      "nnc_connector_count nnc_ext_slot_count repair_slot_count") +
                 Members{int32At(444, "reserved[0]"), int32At(504, "reserved[15]")}));

  // Of these two classes only some fields are known.
  const Members identifier = textsAt(0, 5, "equipment_id") + visited("ctl");
  expectFromUnit("QV_GetUnitIdentifier", 40, identifier);
  expectRequest("QV_SetUnitIdentifier", information("QV_GetUnitIdentifier"), 40, identifier);
  expectFields(information("QV_GetUnitIdentifier"),
               {{"ctl", "ControllerInfo[2]"}, {"ctl[1]", "ControllerInfo"}});
  expectFields(information("QV_GetTimeInfo"), {{"", "TimeInfo"}});
  expectRequest("QV_SetTimeInfo", "TimeInfo", 660, {});
}

TEST_F(UnitSession, LoginsReturnTwoTexts) {
  for (const char* const method : {"QV_LoginQVUnit", "QV_GetLoginUser"}) {
    std::vector<jobject> arguments{unit_, number(5)};
    if (method == std::string("QV_LoginQVUnit")) {
      arguments.push_back(user("a", "b"));
    }
    const auto texts = [&](const std::string& pair) {
      quorvelSimPrepareOutput(method, pair.data(), pair.size());
      const Called called = call(method, arguments);
      EXPECT_EQ(called.failure, "");
      return called.result;
    };
    // Without a NUL a text ends where its 17 bytes do.
    const std::string u(17, 'u');
    const std::string p(17, 'p');
    expectFields(texts(u + p), {{"", "String[2]"}, {"[0]", u}, {"[1]", p}});
    EXPECT_EQ(lastInt(method, 1), 5);
    const std::string named("user\0garbagexxxxx", 17);
    expectFields(texts(named + '\0' + p), {{"[0]", "user"}, {"[1]", ""}});
    // Nobody is logged in.
    EXPECT_EQ(texts('\0' + u + p), nullptr);
  }
}

TEST_F(UnitSession, NamesReachTheLibraryInTheLongBufferOrAreCut) {
  const jobject name = text(std::string(100, 'n'));
  const jobject anybody = user("a", "b");
  const jobject one = number(1);
  const std::vector<std::pair<const char*, std::vector<jobject>>> longOnes{
      {"QV_LoginQVUnit", {name, one, anybody}}, {"QV_GetLoginUser", {name, one}},
      {"QV_LogoutQVUnit", {name, one}},         {"QV_CheckLogin", {name, one}},
      {"QV_ResetLogin", {name, one}},           {"QV_UnitReboot", {name, session_}},
      {"QV_RegistUser", {name, one, anybody}},  {"QV_ChangeUser", {name, one, anybody, anybody}},
      {"QV_DeleteUser", {name, one, anybody}},  {"QV_DeleteAllUser", {name, one}},
      {"QV_GetUserInformation", {name, one}}};
  for (const auto& [method, arguments] : longOnes) {
    EXPECT_EQ(call(method, arguments).failure, "DiskArrayException 20001") << method;
    EXPECT_EQ(lastText(method, 0), std::string(100, 'n')) << method;
  }
  const std::vector<std::pair<const char*, std::vector<jobject>>> cutOnes{
      {"QV_KeepSession", {name, session_}},
      {"QV_TestUnitReady", {name, one}},
      {"QV_GetUnitTime", {name, session_}},
      {"QV_SetUnitTimeNow", {name, session_}}};
  for (const auto& [method, arguments] : cutOnes) {
    EXPECT_EQ(call(method, arguments).failure, "DiskArrayException 20001") << method;
    EXPECT_EQ(lastText(method, 0), std::string(64, 'n')) << method;
  }
  for (const char* const method :
       {"QV_LogoutQVUnit", "QV_ResetLogin", "QV_DeleteAllUser", "QV_TestUnitReady"}) {
    EXPECT_EQ(call(method, {unit_, number(-3)}).failure, "") << method;
    EXPECT_EQ(lastInt(method, 1), -3) << method;
  }
}

TEST_F(UnitSession, PasswordOfTheLibrary) {
  const auto checked = [](const std::string& password) {
    return get(call("QV_PasswdCheck", {text(password)}).result, "");
  };
  EXPECT_EQ(call("QV_PasswdChange", {text("apple")}).failure, "");
  EXPECT_EQ(checked("apple"), "0");
  EXPECT_EQ(checked("pear"), "-1");
  EXPECT_EQ(lastText("QV_PasswdCheck", 0), "pear");
  // The check copies nothing: a text is as long as it is.
  checked(std::string(5000, 'x'));
  EXPECT_EQ(lastInput("QV_PasswdCheck", 0).size(), 5001U);
  quorvelSimForceResult("QV_PasswdCheck", 7, 1);
  EXPECT_EQ(call("QV_PasswdCheck", {text("apple")}).failure, "DiskArrayException 7");
  quorvelSimForceResult("QV_PasswdCheck", 256, 1);
  EXPECT_EQ(checked("apple"), "256");
}

TEST_F(UnitSession, Clock) {
  const Members time =
      int32sAt(0, "tm_sec tm_min tm_hour tm_mday tm_mon tm_year tm_wday tm_yday tm_isdst");
  expectFromUnit("QV_GetUnitTime", 36, time);
  expectRequest("QV_SetUnitTime", "QVTime", 36, time);
  const jobject nine = create("QVTime", {{"tm_hour", "9"}});
  EXPECT_EQ(run("QV_SetUnitTime", nine), "");
  EXPECT_EQ(get(information("QV_GetUnitTime"), "tm_hour"), "9");
  const int calls = quorvelSimCallCount("QV_SetUnitTime");
  EXPECT_EQ(run("QV_SetUnitTime", nullptr), "DiskArrayException -1");
  EXPECT_EQ(quorvelSimCallCount("QV_SetUnitTime"), calls);
  EXPECT_EQ(run("QV_SetUnitTimeNow"), "");
  EXPECT_GT(std::stoi(get(information("QV_GetUnitTime"), "tm_year")), 112);

  // A null name is taken for an empty one.
  EXPECT_EQ(call("QV_GetUnitTime", {nullptr, session_}).failure, "DiskArrayException 20001");
  EXPECT_EQ(call("QV_SetUnitTime", {nullptr, session_, nine}).failure, "DiskArrayException 20001");
  EXPECT_EQ(call("QV_SetUnitTimeNow", {nullptr, session_}).failure, "DiskArrayException 20001");
  EXPECT_EQ(lastText("QV_SetUnitTimeNow", 0), "");
  EXPECT_EQ(call("QV_GetUnitTime", {unit_, nullptr}).failure, "DiskArrayException 20101");

  EXPECT_EQ(run("QV_KeepSession"), "");
  EXPECT_EQ(run("QV_UnitReboot"), "");
  EXPECT_EQ(run("QV_KeepSession"), "DiskArrayException 20101") << "a reboot ends sessions";
}

}  // namespace
}  // namespace quorvelj::testing
