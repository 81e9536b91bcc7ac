// Copy pairs.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

// What a request names: a group, or one pair.
const Members kNamed{int32At(4, "ctg_valid"),
                     int32At(8, "ctg_info.ctg_set_flag"),
                     int32At(12, "ctg_info.ctg_no"),
                     textAt(16, 32, "ctg_info.ctg_name"),
                     int32At(48, "pair_info.pair_set_flag"),
                     textAt(52, 32, "pair_info.pair_name"),
                     int32At(84, "pair_info.pvol_lun"),
                     int32At(88, "pair_info.pair_lun")};
const Members kTime = int32sAt(0, "year month day hour minute second");
const Members kTarget = Members{int32At(0, "set_division")} + kNamed;

class CopyPairs : public RegisteredUnit {
 protected:
  /// A request that names one pair by its logical units.
  static jobject pairRequest(const char* className, Fields more = {}) {
    const jobject created = create(className, {{"ctg_info.ctg_name", ""},
                                               {"pair_info.pair_name", ""},
                                               {"pair_info.pvol_lun", "10"},
                                               {"pair_info.pair_lun", "20"}});
    set(created, more);
    return created;
  }
  /// What a light form builds from a record without a zero.
  jobject light(const char* method) {
    const std::vector<unsigned char> full(26333420, 0x41);
    quorvelSimPrepareOutput("QV_GetPairInformation", full.data(), full.size());
    return information(method);
  }
  static void expectAll(const char* value, jobject object, const std::string& path,
                        const std::vector<const char*>& fields) {
    for (const char* const field : fields) {
      EXPECT_EQ(get(object, path + field), value) << path << field;
    }
  }
};

TEST_F(CopyPairs, OperationRecords) {
  const auto expectOperation = [&](const char* method, const char* className, std::size_t size,
                                   const Members& tail) {
    expectRequest(method, className, size, kTarget + tail);
  };
  const Member serialAt92 = textAt(92, 9, "remote_serial");
  expectOperation("QV_CreateGemlynPair", "CreateGemlynPair", 108,
                  int32sAt(92, {"copy_speed", "auto_split", "no_read", "no_copy"}));
  expectOperation("QV_SplitGemlynPair", "SplitGemlynPair", 128,
                  {int32At(92, "forced_split"), textAt(96, 32, "add_message")});
  expectOperation("QV_CreateSnapShotPair", "CreateSnapShotPair", 104,
                  int32sAt(92, {"local_pool_no", "copy_speed", "auto_split"}));
  expectOperation("QV_SplitSnapShotPair", "SplitSnapShotPair", 124,
                  {textAt(92, 32, "add_message")});
  for (const char* const method :
       {"QV_SimpleGemlynPair", "QV_ResyncGemlynPair", "QV_RestoreGemlynPair",
        "QV_SimpleSnapShotPair", "QV_ResyncSnapShotPair", "QV_RestoreSnapShotPair"}) {
    expectOperation(method, "PairOperation", 92, {});
  }
  const Members device{int32At(92, "pvol_lu_device"), textAt(96, 9, "remote_serial")};
  expectOperation("QV_CreateFarlinkPair", "CreateFarlinkPair", 120,
                  device + int32sAt(108, {"copy_speed", "fence_lv", "no_copy"}));
  expectOperation("QV_SplitFarlinkPair", "SplitFarlinkPair", 112,
                  {serialAt92, int32At(104, "access_restrict"), int32At(108, "forced_rw")});
  expectOperation("QV_CreateLonglinkPair", "CreateLonglinkPair", 128,
                  device + int32sAt(108, {"auto_set", "local_pool_no", "remote_pool_no",
                                          "copy_speed", "no_copy"}));
  expectOperation(
      "QV_SplitLonglinkPair", "SplitLonglinkPair", 112,
      {serialAt92, int32At(104, "access_restrict"), int32At(108, "cascade_vvol_split")});
  for (const char* const method : {"QV_SimpleFarlinkPair", "QV_SimpleLonglinkPair"}) {
    expectOperation(method, "SimpleRemotePair", 108, {serialAt92, int32At(104, "simple_range")});
  }
  for (const char* const method : {"QV_ResyncFarlinkPair", "QV_SwapFarlinkPair",
                                   "QV_ResyncLonglinkPair", "QV_SwapLonglinkPair"}) {
    expectOperation(method, "RemotePairOperation", 104, {serialAt92});
  }
}

TEST_F(CopyPairs, ChangeRecords) {
  expectRequest("QV_ChangeReplicationPair", "PairChange", 144,
                Members{int32At(0, "ctg_copytype")} + kNamed +
                    Members{int32At(92, "pair_attr"), textAt(96, 9, "remote_serial"),
                            textAt(105, 32, "new_pair_name"), int32At(140, "copy_speed")});
  const Members pair = int32sAt(0, {"pvol_lun", "svol_lun", "copying_pace"});
  expectRequest("QV_ChangeCopyPace", "LuMigrationRequest", 49148,
                int32sAt(0, {"request_pair_count", "owner_id"}) +
                    at({{8, "lu[0]."}, {49136, "lu[4094]."}}, pair));
  const Members option =
      int32sAt(0, {"option", "support_index", "valid_index", "ctrl_flag", "set_index", "cycle_time",
                   "cycle_time_message", "queue_inhibit_time"});
  expectRequest("QV_SetFarlinkAsyncOption", "FarlinkAsyncOption", 32, option);
  expectFromUnit("QV_GetFarlinkAsyncOption", 32, option);
}

// The last mirror begins at 812 + 4093 x 6432 + 32 + 31 x 200.
constexpr std::size_t kLastMirror = 26333220;

TEST_F(CopyPairs, FullForm) {
  expectFromUnit(
      "QV_GetPairInformation", 26333420,
      int32sAt(0, {"option", "ctl[0].pool_enable_count", "ctl[0].pool[0].pool_no",
                   "ctl[0].pool[0].poolcapa_h", "ctl[0].pool[0].poolcapa_l",
                   "ctl[1].pool_enable_count"}) +
          int32sAt(32,
                   {"ctl[1].pool[0].poolcapa_l", "sys.pool_enable_count", "sys.pool[0].pool_no"}) +
          int32sAt(804, {"sys.pool[63].poolcapa_l", "pair_count", "lu[0].lun", "lu[0].capacity",
                         "lu[0].capacity_h", "lu[0].capacity_l", "lu[0].pool_usedcapa_h",
                         "lu[0].pool_usedcapa_l", "lu[0].pool_usedrate", "lu[0].mirror_count",
                         "lu[0].m_info[0].mirror_no"}) +
          Members{int32At(26326988, "lu[4093].lun"), int32At(26327016, "lu[4093].mirror_count")} +
          at(kLastMirror, "lu[4093].m_info[31].",
             int32sAt(
                 0, {"mirror_no", "lun", "ctl_no", "pool_no", "pair_status", "pair_status_detail",
                     "usedcapa", "usedcapa_h", "usedcapa_l", "changed_rate", "synchronized_rate"}) +
                 at({{44, "time."}, {68, "split_time."}}, kTime) +
                 Members{textAt(92, 32, "add_message"), int32At(124, "ctg_valid"),
                         int32At(128, "ctg_no"), textAt(132, 32, "ctg_name"),
                         textAt(164, 32, "pair_name"), int32At(196, "copy_speed")}));
}

TEST_F(CopyPairs, LightForm) {
  expectBuilt("QV_GetPairInformationLite", {unit_, session_}, 26333420,
              Members{int32At(0, "option"), int32At(808, "pair_count"), int32At(812, "lu[0].lun"),
                      int32At(836, "lu[0].pool_usedrate"), int32At(840, "lu[0].mirror_count"),
                      int32At(844, "lu[0].m_info[0].mirror_no")} +
                  at(kLastMirror, "lu[4093].m_info[31].",
                     Members{
                         int32At(0, "mirror_no"),
                         int32At(4, "lun"),
                         int32At(12, "pool_no"),
                         int32At(16, "pair_status"),
                         int32At(20, "pair_status_detail"),
                         int32At(124, "ctg_valid"),
                         int32At(128, "ctg_no"),
                         textAt(132, 32, "ctg_name"),
                         textAt(164, 32, "pair_name"),
                         int32At(196, "copy_speed"),
                         int32At(40, "synchronized_rate"),
                     } + at(68, "split_time.", kTime) +
                         Members{textAt(92, 32, "add_message")}),
              "QV_GetPairInformation");
  const jobject form = light("QV_GetPairInformationLite");
  expectFields(form, {{"lu", "PairLUInfo[4094]"}, {"lu[4093].m_info", "MirrorLUInfo[32]"}});
  expectAll("null", form, "", {"ctl", "sys", "lu[4093].m_info[31].time"});
  expectAll("0", form, "lu[4093].",
            {"capacity", "capacity_h", "capacity_l", "pool_usedcapa_h", "pool_usedcapa_l"});
  expectAll("0", form, "lu[4093].m_info[31].",
            {"ctl_no", "usedcapa", "usedcapa_h", "usedcapa_l", "changed_rate"});
}

TEST_F(CopyPairs, SecondLightForm) {
  // Of 2046 logical units the last begins at 812 + 2045 x 6432.
  expectBuilt(
      "QV_GetPairInformationLite2", {unit_, session_}, 26333420,
      Members{int32At(0, "option"), int32At(4, "ctl[0].pool_enable_count"),
              int32At(32, "ctl[1].pool[0].poolcapa_l"), int32At(808, "pair_count"),
              int32At(812, "lu[0].lun"), int32At(816, "lu[0].capacity")} +
          int32sAt(828, {"lu[0].pool_usedcapa_h", "lu[0].pool_usedcapa_l", "lu[0].pool_usedrate",
                         "lu[0].mirror_count", "lu[0].m_info[0].mirror_no"}) +
          Members{int32At(13154252, "lu[2045].lun")} +
          at(13160484, "lu[2045].m_info[31].",
             int32sAt(0, {"mirror_no", "lun", "ctl_no", "pool_no", "pair_status"}) +
                 Members{int32At(24, "usedcapa"), int32At(36, "changed_rate")} +
                 at(44, "time.", kTime)),
      "QV_GetPairInformation");
  const jobject form = light("QV_GetPairInformationLite2");
  expectFields(form, {{"lu", "PairLUInfo[2046]"}, {"lu[2045].m_info", "MirrorLUInfo[32]"}});
  expectAll("null", form, "", {"sys"});
  expectAll("0", form, "lu[2045].", {"capacity_h", "capacity_l"});
  expectAll("0", form, "lu[2045].m_info[31].",
            {"pair_status_detail", "usedcapa_h", "usedcapa_l", "synchronized_rate", "ctg_valid",
             "ctg_no", "copy_speed"});
  expectAll("null", form, "lu[2045].m_info[31].",
            {"split_time", "add_message", "ctg_name", "pair_name"});
}

TEST_F(CopyPairs, OtherInformationRecords) {
  expectFromUnit("QV_GetPairInformationSimple", 32760,
                 int32sAt(0, {"option", "pair_count", "pair[0].pvol_lun", "pair[0].svol_lun"}) +
                     int32sAt(32752, {"pair[4093].pvol_lun", "pair[4093].svol_lun"}));
  expectFromUnit(
      "QV_GetFarlinkPairInformation", 1146888,
      int32sAt(0, {"option", "pair_count", "lu[0].support_index"}) +
          at(1146748, "lu[8191].",
             int32sAt(0, {"support_index", "valid_index", "lun", "pair_status",
                          "pair_status_detail", "pair_attr", "changed_rate"}) +
                 Members{textAt(28, 20, "remote_serial")} +
                 int32sAt(48, {"remote_lu", "capacity_h", "capacity_l", "ctg_valid", "ctg_no"}) +
                 Members{textAt(68, 32, "ctg_name"), textAt(100, 32, "pair_name"),
                         int32At(132, "copy_speed"), int32At(136, "fence_level")}));
  expectFromUnit(
      "QV_GetFarlinkAsyncPairInformation", 1672584,
      int32sAt(0, {"option", "pair_count", "lu[0].lun"}) +
          at(1670972, "lu[8191].",
             int32sAt(0, {"lun", "pair_status", "pair_status_dist_flag", "pair_attr", "ctg_num"}) +
                 Members{textAt(20, 32, "ctg_name"), textAt(52, 32, "pair_name")} +
                 int32sAt(84, {"lu_capacity", "lu_capacity_h", "lu_capacity_l", "remote_lu"}) +
                 Members{textAt(100, 20, "remote_serial")} +
                 int32sAt(120,
                          {"member_valid", "synchronized_rate", "difference_capacity",
                           "difference_capacity_h", "difference_capacity_l", "difference_rate"}) +
                 at(144, "synchronized_time.", kTime) +
                 int32sAt(168, {"pool_no", "pool_usedrate", "copy_speed", "fence_level",
                                "synchronized_sequence_no", "svol_synchronized_sequence_no",
                                "pvol_resync_count", "svol_resync_count", "cycle_time"})) +
          Members{int32At(1671176, "ctg[0].ctl[0].ctg_valid")} +
          at(1672540, "ctg[15].ctl[1].",
             int32sAt(
                 0, {"ctg_valid", "lapsed_time.hour", "lapsed_time.minute", "lapsed_time.second",
                     "remains_difference", "rate_status", "transfer_rate", "prediction_status",
                     "prediction_time.hour", "prediction_time.minute", "prediction_time.second"})));
  expectBuilt("QV_GetZencopyInformation", {unit_}, 114696,
              int32sAt(0, {"option", "pair_count", "lu[0].lun"}) +
                  at(114640, "lu[2047].",
                     int32sAt(0, {"lun", "pair_status", "pair_attr", "changed_rate"}) +
                         Members{textAt(16, 17, "remote_type"), textAt(33, 17, "remote_serial"),
                                 textAt(50, 6, "remote_ldev")}));
  expectPassed("QV_SplitZencopyPair", "ui");
}

TEST_F(CopyPairs, LifeOfAPair) {
  const jobject none = information("QV_GetPairInformation");
  expectFields(none, {{"pair_count", "0"},
                      {"lu", "PairLUInfo[4094]"},
                      {"lu[0].m_info", "MirrorLUInfo[32]"},
                      {"lu[4093].m_info[31].pair_name", ""},
                      {"sys.pool", "PoolDetailCapa[64]"}});
  const jobject creation = pairRequest("CreateGemlynPair", {{"pair_info.pair_name", "daily"}});
  EXPECT_EQ(run("QV_CreateGemlynPair", creation), "");
  EXPECT_EQ(run("QV_CreateGemlynPair", creation), "DiskArrayException 20702");
  EXPECT_EQ(run("QV_SplitGemlynPair", pairRequest("SplitGemlynPair", {{"add_message", "nightly"}})),
            "");
  expectFields(information("QV_GetPairInformationLite"),
               {{"pair_count", "1"},
                {"lu[0].lun", "10"},
                {"lu[0].m_info[0].lun", "20"},
                {"lu[0].m_info[0].pair_name", "daily"},
                {"lu[0].m_info[0].add_message", "nightly"}});
  EXPECT_EQ(run("QV_SimpleGemlynPair", pairRequest("PairOperation")), "");
  EXPECT_EQ(get(information("QV_GetPairInformationSimple"), "pair_count"), "0");
}

TEST_F(CopyPairs, IncompleteRequestsReachTheLibraryAsFarAsTheyWereRead) {
  // The reader goes on behind a nested object that it read in part, and stops at a missing one.
  const char* const method = "QV_CreateGemlynPair";
  const jobject creation = pairRequest(
      "CreateGemlynPair", {{"set_division", "7"}, {"copy_speed", "5"}, {"ctg_info.ctg_no", "9"}});
  setNull(creation, "ctg_info.ctg_name");
  quorvelSimForceResult(method, 0, 3);
  EXPECT_EQ(run(method, creation), "");
  EXPECT_EQ(lastInt(method, 2), 7);
  EXPECT_EQ(lastInt(method, 2, 12), 9);
  EXPECT_EQ(lastInt(method, 2, 84), 10);
  EXPECT_EQ(lastInt(method, 2, 92), 5);

  setNull(creation, "ctg_info");
  set(creation, "set_division", "8");
  EXPECT_EQ(run(method, creation), "");
  EXPECT_EQ(lastInt(method, 2), 8);
  EXPECT_EQ(run(method, nullptr), "");
  EXPECT_EQ(quorvelSimCallCount(method), 3);
}

TEST_F(CopyPairs, RequestsBeyondTheRecordAreLeftOut) {
  const jobject request =
      create("LuMigrationRequest", {{"lu[4095].pvol_lun", "1"}, {"lu[4094].copying_pace", "77"}});
  quorvelSimForceResult("QV_ChangeCopyPace", 0, 1);
  EXPECT_EQ(run("QV_ChangeCopyPace", request), "");
  EXPECT_EQ(lastInput("QV_ChangeCopyPace", 2).size(), 49148U);
  EXPECT_EQ(lastInt("QV_ChangeCopyPace", 2, 49144), 77);
}

}  // namespace
}  // namespace quorvelj::testing
