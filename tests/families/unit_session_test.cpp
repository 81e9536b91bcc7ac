// Logins, the array's own users and the clock.
#include "tests/families/registered_unit.h"
#include "tests/support/split.h"

namespace quorvelj::testing {
namespace {

class UnitSession : public RegisteredUnit {
 protected:
  static jobject user(const char* name, const char* password) {
    return create("ArrayUser", {{"user", name}, {"passwd", password}});
  }
};

TEST_F(UnitSession, UserRecords) {
  const Members members = "0:text17 user passwd";
  const jobject object = create("ArrayUser");
  expectRequest("QV_LoginQVUnit QV_RegistUser QV_DeleteUser", "ArrayUser", 34, members, {7});
  const jobject other = user("other", "");
  expectRead("QV_ChangeUser", {unit_, number(7), object, other}, object, 2, 34, members);
  expectRead("QV_ChangeUser", {unit_, number(7), other, object}, object, 3, 34, members);
  expectBuilt("QV_GetUserInformation", {unit_, number(7)}, 8, "0:int32 num option");

  EXPECT_EQ(call("QV_RegistUser", {unit_, number(0), user("eve", "apple")}).failure, "");
  EXPECT_EQ(call("QV_RegistUser", {unit_, number(0), user("eve", "pear")}).failure,
            "DiskArrayException 20104");
  call("QV_LoginQVUnit", {unit_, number(1), user("eve", "apple")});
  EXPECT_EQ(get(call("QV_CheckLogin", {unit_, number(1)}).result, ""), "1");
  expectFields(call("QV_GetLoginUser", {unit_, number(1)}).result, "[0]=eve; [1]=apple");
}

TEST_F(UnitSession, UnitRecords) {
  expectFromUnit("QV_GetUnitCTLPortKind", 8, "0:int32 portkind_ctl0 portkind_ctl1");
  expectFromUnit(
      "QV_GetUnitInformation", 508,
      at("0:b_info",
         "0:int32 add_info_index; 4:text9 micro; 13:text11 next_road_micro; 24:int32 qv_type "
         "device_type device_type_QVK_sub_code port_type unit_conf sup_rglevel reserved1 "
         "reserved2") +
          at("0:l_info",
             "56:int32 index index2 rg_count lu_count rg_lu_count perm_count cache_part_count "
             "ext_bitmap hg_count reboot_time replace_time crosscall_reboot_time max_reboot_time "
             "max_replace_time max_crosscall_replace_time iscsi_target_count iscsi_initiator_count "
             "iscsi_login_initiator_count iscsi_chap_user_count account_count role_count "
             "resource_count reserve_lu_count migration_pair_count gm_pair_count gm_mirror_count "
             "ss_pair_count ss_mirror_count fl_pair_count fle_pair_count gmss_ctg_count "
             "fl_ctg_count fle_ctg_count fle_ctg_pair_count remote_path_count pool_count "
             "pool_lu_count integrate_count command_count lu_mapping_count host_lu_count "
             "reserved[0]; 316:int32 reserved[24]") +
          at("0:p_info",
             "320:int32 index index2 cache_count ps_count fan_count ac_count batt_count "
             "battbk_count add_batt_count hdd_hdu_count hdd_unit_count sp_count enc_count "
             "loop_count backendpath_count ifboard_count port_count unit_count ps_unit_count "
             "fan_unit_count enc_unit_count connector_count hdd_sff_count cpu_core_count nnc_count "
             "nnc_dimm_count nnc_ps_count nnc_fan_count nnc_connector_count nnc_ext_slot_count "
             "repair_slot_count reserved[0]; 504:int32 reserved[15]"));

  // Of these two classes only some fields are known.
  const Members identifier = "0:text5 equipment_id; visited ctl";
  expectFromUnit("QV_GetUnitIdentifier", 40, identifier);
  expectRequest("QV_SetUnitIdentifier", information("QV_GetUnitIdentifier"), 40, identifier);
  expectFields(information("QV_GetUnitIdentifier"), "ctl=ControllerInfo[2]; ctl[1]=ControllerInfo");
  expectFields(information("QV_GetTimeInfo"), "=TimeInfo");
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
    expectFields(texts(named + '\0' + p), "[0]=user; [1]=");
    // Nobody is logged in.
    EXPECT_EQ(texts('\0' + u + p), nullptr);
  }
}

TEST_F(UnitSession, NamesReachTheLibraryInTheLongBufferOrAreCut) {
  // The kinds of the further arguments: i an int, s the session and a a user of the array.
  const auto expectName = [&](std::size_t length, const std::string& methods) {
    for (const std::string& listed : split(methods, "; ")) {
      const std::vector<std::string> words = split(listed, " ");
      const std::string& method = words[0];
      std::vector<jobject> arguments{text(std::string(100, 'n'))};
      for (const char kind : words[1]) {
        arguments.push_back(kind == 'i' ? number(1) : kind == 's' ? session_ : user("a", "b"));
      }
      EXPECT_EQ(call(method.c_str(), arguments).failure, "DiskArrayException 20001") << method;
      EXPECT_EQ(lastText(method.c_str(), 0), std::string(length, 'n')) << method;
    }
  };
  expectName(100,
             "QV_LoginQVUnit ia; QV_GetLoginUser i; QV_LogoutQVUnit i; QV_CheckLogin i; "
             "QV_ResetLogin i; QV_UnitReboot s; QV_RegistUser ia; QV_ChangeUser iaa; QV_DeleteUser "
             "ia; QV_DeleteAllUser i; QV_GetUserInformation i");
  expectName(64, "QV_KeepSession s; QV_TestUnitReady i; QV_GetUnitTime s; QV_SetUnitTimeNow s");
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
}

TEST_F(UnitSession, Clock) {
  expectGetAndSet("UnitTime", "QVTime", 36,
                  "0:int32 tm_sec tm_min tm_hour tm_mday tm_mon tm_year tm_wday tm_yday tm_isdst");
  const jobject nine = create("QVTime", "tm_hour=9");
  update("QV_SetUnitTime", nine);
  EXPECT_EQ(get(information("QV_GetUnitTime"), "tm_hour"), "9");
  EXPECT_EQ(run("QV_SetUnitTime", nullptr), "DiskArrayException -1");
  update("QV_SetUnitTimeNow");
  EXPECT_GT(std::stoi(get(information("QV_GetUnitTime"), "tm_year")), 112);

  // A null name is taken for an empty one.
  EXPECT_EQ(call("QV_SetUnitTimeNow", {nullptr, session_}).failure, "DiskArrayException 20001");
  EXPECT_EQ(lastText("QV_SetUnitTimeNow", 0), "");
  EXPECT_EQ(call("QV_GetUnitTime", {unit_, nullptr}).failure, "DiskArrayException 20101");

  update("QV_KeepSession");
  update("QV_UnitReboot");
  EXPECT_EQ(run("QV_KeepSession"), "DiskArrayException 20101") << "a reboot ends sessions";
}

}  // namespace
}  // namespace quorvelj::testing
