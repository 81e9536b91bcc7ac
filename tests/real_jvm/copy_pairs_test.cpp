// Copy pairs in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

const Members kTarget{
    int32At(0, "set_division"),
    int32At(4, "ctg_valid"),
    int32At(8, "ctg_info.ctg_set_flag"),
    int32At(12, "ctg_info.ctg_no"),
    textAt(16, 32, "ctg_info.ctg_name"),
    int32At(48, "pair_info.pair_set_flag"),
    textAt(52, 32, "pair_info.pair_name"),
    int32At(84, "pair_info.pvol_lun"),
    int32At(88, "pair_info.pair_lun"),
};

class CopyPairs : public RegisteredUnit {
 protected:
  void expectOperation(const char* method, const char* className, std::size_t size,
                       const Members& tail) {
    expectRequest(method, className, size, kTarget + tail);
  }
  /// A request that names one pair by its logical units.
  static jobject spec(const std::string& className, int primary, int secondary) {
    const jobject created = create(className.c_str());
    set(created, "ctg_info.ctg_name", "");
    set(created, "pair_info.pair_name", "");
    set(created, "pair_info.pvol_lun", std::to_string(primary));
    set(created, "pair_info.pair_lun", std::to_string(secondary));
    return created;
  }
};

TEST_F(CopyPairs, OperationRecords) {
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
  expectOperation("QV_CreateFarlinkPair", "CreateFarlinkPair", 120,
                  Members{int32At(92, "pvol_lu_device"), textAt(96, 9, "remote_serial")} +
                      int32sAt(108, {"copy_speed", "fence_lv", "no_copy"}));
  expectOperation("QV_SplitFarlinkPair", "SplitFarlinkPair", 112,
                  {serialAt92, int32At(104, "access_restrict"), int32At(108, "forced_rw")});
  expectOperation(
      "QV_CreateLonglinkPair", "CreateLonglinkPair", 128,
      Members{int32At(92, "pvol_lu_device"), textAt(96, 9, "remote_serial")} +
          int32sAt(108, {"auto_set", "local_pool_no", "remote_pool_no", "copy_speed", "no_copy"}));
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
  expectRequest(
      "QV_ChangeReplicationPair", "PairChange", 144,
      {int32At(0, "ctg_copytype"), int32At(4, "ctg_valid"), int32At(8, "ctg_info.ctg_set_flag"),
       int32At(12, "ctg_info.ctg_no"), textAt(16, 32, "ctg_info.ctg_name"),
       int32At(48, "pair_info.pair_set_flag"), textAt(52, 32, "pair_info.pair_name"),
       int32At(84, "pair_info.pvol_lun"), int32At(88, "pair_info.pair_lun"),
       int32At(92, "pair_attr"), textAt(96, 9, "remote_serial"), textAt(105, 32, "new_pair_name"),
       int32At(140, "copy_speed")});
  expectRequest("QV_ChangeCopyPace", "LuMigrationRequest", 49148,
                {int32At(0, "request_pair_count"), int32At(4, "owner_id"),
                 int32At(8, "lu[0].pvol_lun"), int32At(12, "lu[0].svol_lun"),
                 int32At(16, "lu[0].copying_pace"), int32At(49136, "lu[4094].pvol_lun"),
                 int32At(49140, "lu[4094].svol_lun"), int32At(49144, "lu[4094].copying_pace")});
  const Members option =
      int32sAt(0, {"option", "support_index", "valid_index", "ctrl_flag", "set_index", "cycle_time",
                   "cycle_time_message", "queue_inhibit_time"});
  expectRequest("QV_SetFarlinkAsyncOption", "FarlinkAsyncOption", 32, option);
  expectBuilt("QV_GetFarlinkAsyncOption", {unit_, session_}, 32, option);
}

TEST_F(CopyPairs, FullForm) {
  // The last mirror begins at 812 + 4093 x 6432 + 32 + 31 x 200.
  expectBuilt("QV_GetPairInformation", {unit_, session_}, 26333420,
              {int32At(0, "option"),
               int32At(4, "ctl[0].pool_enable_count"),
               int32At(8, "ctl[0].pool[0].pool_no"),
               int32At(12, "ctl[0].pool[0].poolcapa_h"),
               int32At(16, "ctl[0].pool[0].poolcapa_l"),
               int32At(20, "ctl[1].pool_enable_count"),
               int32At(32, "ctl[1].pool[0].poolcapa_l"),
               int32At(36, "sys.pool_enable_count"),
               int32At(40, "sys.pool[0].pool_no"),
               int32At(804, "sys.pool[63].poolcapa_l"),
               int32At(808, "pair_count"),
               int32At(812, "lu[0].lun"),
               int32At(816, "lu[0].capacity"),
               int32At(820, "lu[0].capacity_h"),
               int32At(824, "lu[0].capacity_l"),
               int32At(828, "lu[0].pool_usedcapa_h"),
               int32At(832, "lu[0].pool_usedcapa_l"),
               int32At(836, "lu[0].pool_usedrate"),
               int32At(840, "lu[0].mirror_count"),
               int32At(844, "lu[0].m_info[0].mirror_no"),
               int32At(26326988, "lu[4093].lun"),
               int32At(26327016, "lu[4093].mirror_count"),
               int32At(26333220, "lu[4093].m_info[31].mirror_no"),
               int32At(26333224, "lu[4093].m_info[31].lun"),
               int32At(26333228, "lu[4093].m_info[31].ctl_no"),
               int32At(26333232, "lu[4093].m_info[31].pool_no"),
               int32At(26333236, "lu[4093].m_info[31].pair_status"),
               int32At(26333240, "lu[4093].m_info[31].pair_status_detail"),
               int32At(26333244, "lu[4093].m_info[31].usedcapa"),
               int32At(26333248, "lu[4093].m_info[31].usedcapa_h"),
               int32At(26333252, "lu[4093].m_info[31].usedcapa_l"),
               int32At(26333256, "lu[4093].m_info[31].changed_rate"),
               int32At(26333260, "lu[4093].m_info[31].synchronized_rate"),
               int32At(26333264, "lu[4093].m_info[31].time.year"),
               int32At(26333284, "lu[4093].m_info[31].time.second"),
               int32At(26333288, "lu[4093].m_info[31].split_time.year"),
               int32At(26333308, "lu[4093].m_info[31].split_time.second"),
               textAt(26333312, 32, "lu[4093].m_info[31].add_message"),
               int32At(26333344, "lu[4093].m_info[31].ctg_valid"),
               int32At(26333348, "lu[4093].m_info[31].ctg_no"),
               textAt(26333352, 32, "lu[4093].m_info[31].ctg_name"),
               textAt(26333384, 32, "lu[4093].m_info[31].pair_name"),
               int32At(26333416, "lu[4093].m_info[31].copy_speed")});
}

/// Expects fields that were never set.
void expectDefaults(jobject object, const std::string& at, const std::vector<const char*>& ints,
                    const std::vector<const char*>& objects) {
  for (const char* const field : ints) {
    EXPECT_EQ(get(object, at + field), "0") << at << field;
  }
  for (const char* const field : objects) {
    EXPECT_EQ(get(object, at + field), "null") << at << field;
  }
}

TEST_F(CopyPairs, LightForm) {
  expectBuilt("QV_GetPairInformationLite", {unit_, session_}, 26333420,
              {int32At(0, "option"), int32At(808, "pair_count"), int32At(812, "lu[0].lun"),
               int32At(836, "lu[0].pool_usedrate"), int32At(840, "lu[0].mirror_count"),
               int32At(844, "lu[0].m_info[0].mirror_no"),
               int32At(26333220, "lu[4093].m_info[31].mirror_no"),
               int32At(26333224, "lu[4093].m_info[31].lun"),
               int32At(26333232, "lu[4093].m_info[31].pool_no"),
               int32At(26333236, "lu[4093].m_info[31].pair_status"),
               int32At(26333240, "lu[4093].m_info[31].pair_status_detail"),
               int32At(26333344, "lu[4093].m_info[31].ctg_valid"),
               int32At(26333348, "lu[4093].m_info[31].ctg_no"),
               textAt(26333352, 32, "lu[4093].m_info[31].ctg_name"),
               textAt(26333384, 32, "lu[4093].m_info[31].pair_name"),
               int32At(26333416, "lu[4093].m_info[31].copy_speed"),
               int32At(26333260, "lu[4093].m_info[31].synchronized_rate"),
               int32At(26333288, "lu[4093].m_info[31].split_time.year"),
               textAt(26333312, 32, "lu[4093].m_info[31].add_message")},
              "QV_GetPairInformation");
  const std::vector<unsigned char> full(26333420, 0x41);
  quorvelSimPrepareOutput("QV_GetPairInformation", full.data(), full.size());
  const jobject light = information("QV_GetPairInformationLite");
  EXPECT_EQ(get(light, "lu"), "PairLUInfo[4094]");
  EXPECT_EQ(get(light, "lu[4093].m_info"), "MirrorLUInfo[32]");
  expectDefaults(light, "", {}, {"ctl", "sys"});
  expectDefaults(light, "lu[4093].",
                 {"capacity", "capacity_h", "capacity_l", "pool_usedcapa_h", "pool_usedcapa_l"},
                 {});
  expectDefaults(light, "lu[4093].m_info[31].",
                 {"ctl_no", "usedcapa", "usedcapa_h", "usedcapa_l", "changed_rate"}, {"time"});
}

TEST_F(CopyPairs, SecondLightForm) {
  // Of 2046 logical units the last begins at 812 + 2045 x 6432.
  expectBuilt("QV_GetPairInformationLite2", {unit_, session_}, 26333420,
              {int32At(0, "option"),
               int32At(4, "ctl[0].pool_enable_count"),
               int32At(32, "ctl[1].pool[0].poolcapa_l"),
               int32At(808, "pair_count"),
               int32At(812, "lu[0].lun"),
               int32At(816, "lu[0].capacity"),
               int32At(828, "lu[0].pool_usedcapa_h"),
               int32At(832, "lu[0].pool_usedcapa_l"),
               int32At(836, "lu[0].pool_usedrate"),
               int32At(840, "lu[0].mirror_count"),
               int32At(844, "lu[0].m_info[0].mirror_no"),
               int32At(13154252, "lu[2045].lun"),
               int32At(13160484, "lu[2045].m_info[31].mirror_no"),
               int32At(13160488, "lu[2045].m_info[31].lun"),
               int32At(13160492, "lu[2045].m_info[31].ctl_no"),
               int32At(13160496, "lu[2045].m_info[31].pool_no"),
               int32At(13160500, "lu[2045].m_info[31].pair_status"),
               int32At(13160508, "lu[2045].m_info[31].usedcapa"),
               int32At(13160520, "lu[2045].m_info[31].changed_rate"),
               int32At(13160528, "lu[2045].m_info[31].time.year"),
               int32At(13160548, "lu[2045].m_info[31].time.second")},
              "QV_GetPairInformation");
  const std::vector<unsigned char> full(26333420, 0x41);
  quorvelSimPrepareOutput("QV_GetPairInformation", full.data(), full.size());
  const jobject light = information("QV_GetPairInformationLite2");
  EXPECT_EQ(get(light, "lu"), "PairLUInfo[2046]");
  EXPECT_EQ(get(light, "lu[2045].m_info"), "MirrorLUInfo[32]");
  expectDefaults(light, "", {}, {"sys"});
  expectDefaults(light, "lu[2045].", {"capacity_h", "capacity_l"}, {});
  expectDefaults(light, "lu[2045].m_info[31].",
                 {"pair_status_detail", "usedcapa_h", "usedcapa_l", "synchronized_rate",
                  "ctg_valid", "ctg_no", "copy_speed"},
                 {"split_time", "add_message", "ctg_name", "pair_name"});
}

TEST_F(CopyPairs, OtherInformationRecords) {
  expectBuilt("QV_GetPairInformationSimple", {unit_, session_}, 32760,
              int32sAt(0, {"option", "pair_count", "pair[0].pvol_lun", "pair[0].svol_lun"}) +
                  int32sAt(32752, {"pair[4093].pvol_lun", "pair[4093].svol_lun"}));
  expectBuilt(
      "QV_GetFarlinkPairInformation", {unit_, session_}, 1146888,
      int32sAt(0, {"option", "pair_count", "lu[0].support_index"}) +
          int32sAt(1146748, {"lu[8191].support_index", "lu[8191].valid_index", "lu[8191].lun",
                             "lu[8191].pair_status", "lu[8191].pair_status_detail",
                             "lu[8191].pair_attr", "lu[8191].changed_rate"}) +
          Members{textAt(1146776, 20, "lu[8191].remote_serial")} +
          int32sAt(1146796, {"lu[8191].remote_lu", "lu[8191].capacity_h", "lu[8191].capacity_l",
                             "lu[8191].ctg_valid", "lu[8191].ctg_no"}) +
          Members{
              textAt(1146816, 32, "lu[8191].ctg_name"), textAt(1146848, 32, "lu[8191].pair_name"),
              int32At(1146880, "lu[8191].copy_speed"), int32At(1146884, "lu[8191].fence_level")});
  expectBuilt(
      "QV_GetFarlinkAsyncPairInformation", {unit_, session_}, 1672584,
      int32sAt(0, {"option", "pair_count", "lu[0].lun"}) +
          int32sAt(1670972,
                   {"lu[8191].lun", "lu[8191].pair_status", "lu[8191].pair_status_dist_flag",
                    "lu[8191].pair_attr", "lu[8191].ctg_num"}) +
          Members{textAt(1670992, 32, "lu[8191].ctg_name"),
                  textAt(1671024, 32, "lu[8191].pair_name")} +
          int32sAt(1671056, {"lu[8191].lu_capacity", "lu[8191].lu_capacity_h",
                             "lu[8191].lu_capacity_l", "lu[8191].remote_lu"}) +
          Members{textAt(1671072, 20, "lu[8191].remote_serial")} +
          int32sAt(1671092, {"lu[8191].member_valid", "lu[8191].synchronized_rate",
                             "lu[8191].difference_capacity", "lu[8191].difference_capacity_h",
                             "lu[8191].difference_capacity_l", "lu[8191].difference_rate",
                             "lu[8191].synchronized_time.year"}) +
          int32sAt(
              1671136,
              {"lu[8191].synchronized_time.second", "lu[8191].pool_no", "lu[8191].pool_usedrate",
               "lu[8191].copy_speed", "lu[8191].fence_level", "lu[8191].synchronized_sequence_no",
               "lu[8191].svol_synchronized_sequence_no", "lu[8191].pvol_resync_count",
               "lu[8191].svol_resync_count", "lu[8191].cycle_time", "ctg[0].ctl[0].ctg_valid"}) +
          int32sAt(1672540,
                   {"ctg[15].ctl[1].ctg_valid", "ctg[15].ctl[1].lapsed_time.hour",
                    "ctg[15].ctl[1].lapsed_time.minute", "ctg[15].ctl[1].lapsed_time.second",
                    "ctg[15].ctl[1].remains_difference", "ctg[15].ctl[1].rate_status",
                    "ctg[15].ctl[1].transfer_rate", "ctg[15].ctl[1].prediction_status",
                    "ctg[15].ctl[1].prediction_time.hour", "ctg[15].ctl[1].prediction_time.minute",
                    "ctg[15].ctl[1].prediction_time.second"}));
  expectBuilt("QV_GetZencopyInformation", {unit_}, 114696,
              int32sAt(0, {"option", "pair_count", "lu[0].lun"}) +
                  int32sAt(114640, {"lu[2047].lun", "lu[2047].pair_status", "lu[2047].pair_attr",
                                    "lu[2047].changed_rate"}) +
                  Members{textAt(114656, 17, "lu[2047].remote_type"),
                          textAt(114673, 17, "lu[2047].remote_serial"),
                          textAt(114690, 6, "lu[2047].remote_ldev")});
}

TEST_F(CopyPairs, ArraysAreBuiltWholeWithoutAPair) {
  const jobject none = information("QV_GetPairInformation");
  EXPECT_EQ(get(none, "pair_count"), "0");
  EXPECT_EQ(get(none, "lu"), "PairLUInfo[4094]");
  EXPECT_EQ(get(none, "lu[0].m_info"), "MirrorLUInfo[32]");
  EXPECT_EQ(get(none, "lu[4093].m_info[31].pair_name"), "");
  EXPECT_EQ(get(none, "sys.pool"), "PoolDetailCapa[64]");
}

TEST_F(CopyPairs, LifeOfAPair) {
  const jobject creation = spec("CreateGemlynPair", 10, 20);
  set(creation, "pair_info.pair_name", "daily");
  set(creation, "copy_speed", "2");
  EXPECT_EQ(run("QV_CreateGemlynPair", creation), "");
  EXPECT_EQ(run("QV_CreateGemlynPair", creation), "DiskArrayException 20702");
  const auto expectPair = [&](const char* status, const char* rate) {
    const jobject info = information("QV_GetPairInformationLite");
    EXPECT_EQ(get(info, "pair_count"), "1");
    EXPECT_EQ(get(info, "lu[0].lun"), "10");
    EXPECT_EQ(get(info, "lu[0].m_info[0].lun"), "20");
    EXPECT_EQ(get(info, "lu[0].m_info[0].pair_name"), "daily");
    EXPECT_EQ(get(info, "lu[0].m_info[0].pair_status"), status);
    EXPECT_EQ(get(info, "lu[0].m_info[0].synchronized_rate"), rate);
    return info;
  };
  expectPair("1", "0");
  expectPair("1", "50");
  expectPair("2", "100");

  const jobject operation = spec("PairOperation", 10, 20);
  EXPECT_EQ(run("QV_ResyncGemlynPair", operation), "DiskArrayException 20704");
  const jobject split = spec("SplitGemlynPair", 10, 20);
  set(split, "add_message", "before the update");
  EXPECT_EQ(run("QV_SplitGemlynPair", split), "");
  const jobject info = expectPair("3", "100");
  EXPECT_EQ(get(info, "lu[0].m_info[0].add_message"), "before the update");
  EXPECT_EQ(get(info, "lu[0].m_info[0].split_time.year"), "2024");
  const auto expectCoupling = [&](const char* status, const char* rate) {
    const jobject couplings = information("QV_GetCouplingInfo");
    EXPECT_EQ(get(couplings, "coupling[0].primary_stat"), status);
    EXPECT_EQ(get(couplings, "coupling[0].synchronized_rate"), rate);
  };
  EXPECT_EQ(run("QV_ResyncGemlynPair", operation), "");
  expectCoupling("1", "50");
  EXPECT_EQ(run("QV_SplitGemlynPair", split), "");
  EXPECT_EQ(run("QV_RestoreGemlynPair", operation), "");
  expectCoupling("4", "0");
  EXPECT_EQ(run("QV_SimpleSnapShotPair", operation), "DiskArrayException 20701");
  EXPECT_EQ(run("QV_SimpleGemlynPair", operation), "");
  EXPECT_EQ(get(information("QV_GetPairInformationSimple"), "pair_count"), "0");
}

TEST_F(CopyPairs, ChangedAttributes) {
  EXPECT_EQ(run("QV_CreateSnapShotPair", spec("CreateSnapShotPair", 1, 2)), "");
  const jobject change = spec("PairChange", 1, 2);
  set(change, "remote_serial", "");
  set(change, "new_pair_name", "renamed");
  set(change, "copy_speed", "3");
  EXPECT_EQ(run("QV_ChangeReplicationPair", change), "");
  const jobject info = information("QV_GetPairInformation");
  EXPECT_EQ(get(info, "lu[0].m_info[0].pair_name"), "renamed");
  EXPECT_EQ(get(info, "lu[0].m_info[0].copy_speed"), "3");
  EXPECT_EQ(get(info, "sys.pool_enable_count"), "1");
  EXPECT_EQ(get(information("QV_GetPairInformationSimple"), "pair[0].svol_lun"), "2");
}

TEST_F(CopyPairs, RemotePairs) {
  for (const std::string kind : {"Farlink", "Longlink"}) {
    SCOPED_TRACE(kind);
    const auto operate = [&](const std::string& operation, const std::string& className) {
      const jobject object = spec(className, 5, 6);
      set(object, "remote_serial", "85000202");
      if (operation == "Create") {
        set(object, "no_copy", "1");
      }
      return run(("QV_" + operation + kind + "Pair").c_str(), object);
    };
    EXPECT_EQ(operate("Create", "Create" + kind + "Pair"), "");
    EXPECT_EQ(operate("Swap", "RemotePairOperation"), "DiskArrayException 20704");
    EXPECT_EQ(operate("Split", "Split" + kind + "Pair"), "");
    EXPECT_EQ(operate("Swap", "RemotePairOperation"), "");
    const jobject info = information(kind == "Farlink" ? "QV_GetFarlinkPairInformation"
                                                       : "QV_GetFarlinkAsyncPairInformation");
    EXPECT_EQ(get(info, "pair_count"), "1");
    EXPECT_EQ(get(info, "lu[0].remote_serial"), "85000202");
    EXPECT_EQ(get(info, "lu[0].pair_status"), "2");
    EXPECT_EQ(get(info, "lu[0].pair_attr"), "1");
    EXPECT_EQ(operate("Split", "Split" + kind + "Pair"), "");
    EXPECT_EQ(operate("Resync", "RemotePairOperation"), "");
    EXPECT_EQ(operate("Simple", "SimpleRemotePair"), "");
    EXPECT_EQ(operate("Simple", "SimpleRemotePair"), "DiskArrayException 20701");
  }
}

TEST_F(CopyPairs, ZencopyPairsNeedNoSession) {
  EXPECT_EQ(call("QV_SplitZencopyPair", {unit_, number(101)}).failure, "");
  EXPECT_EQ(call("QV_SplitZencopyPair", {unit_, number(7)}).failure, "DiskArrayException 20701");
  int given = 0;
  quorvelSimLastInput("QV_SplitZencopyPair", 1, &given, sizeof given);
  EXPECT_EQ(given, 7);
  const jobject info = call("QV_GetZencopyInformation", {unit_}).result;
  EXPECT_EQ(get(info, "lu[0].pair_status"), "2");
  EXPECT_EQ(get(info, "lu[1].pair_status"), "3");
  EXPECT_EQ(get(info, "lu[1].remote_serial"), "0000000000054321");
}

TEST_F(CopyPairs, IncompleteRequestsReachTheLibraryAsFarAsTheyWereRead) {
  // A nested object that stops inside does not stop the reader, one that is missing does.
  const jobject creation = spec("CreateGemlynPair", 10, 20);
  set(creation, "set_division", "7");
  set(creation, "copy_speed", "5");
  set(creation, "ctg_info.ctg_no", "9");
  setNull(creation, "ctg_info.ctg_name");
  quorvelSimForceResult("QV_CreateGemlynPair", 0, 3);
  EXPECT_EQ(run("QV_CreateGemlynPair", creation), "");
  std::int32_t record[27] = {};
  quorvelSimLastInput("QV_CreateGemlynPair", 2, record, sizeof record);
  EXPECT_EQ(record[0], 7);
  EXPECT_EQ(record[3], 9);
  EXPECT_EQ(record[21], 10);
  EXPECT_EQ(record[23], 5);

  setNull(creation, "ctg_info");
  set(creation, "set_division", "8");
  EXPECT_EQ(run("QV_CreateGemlynPair", creation), "");
  quorvelSimLastInput("QV_CreateGemlynPair", 2, record, sizeof record);
  EXPECT_EQ(record[0], 8);
  EXPECT_EQ(run("QV_CreateGemlynPair", nullptr), "");
  EXPECT_EQ(quorvelSimCallCount("QV_CreateGemlynPair"), 3);
}

TEST_F(CopyPairs, RequestsBeyondTheRecordAreLeftOut) {
  const jobject request = create("LuMigrationRequest");
  set(request, "lu[4095].pvol_lun", "1");
  set(request, "lu[4094].copying_pace", "77");
  quorvelSimForceResult("QV_ChangeCopyPace", 0, 1);
  EXPECT_EQ(run("QV_ChangeCopyPace", request), "");
  std::vector<std::int32_t> record(49148 / 4);
  EXPECT_EQ(quorvelSimLastInput("QV_ChangeCopyPace", 2, record.data(), 49148), 49148U);
  EXPECT_EQ(record.back(), 77);
}

}  // namespace
}  // namespace quorvelj::testing
