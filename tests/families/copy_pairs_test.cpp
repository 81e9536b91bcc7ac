// Copy pairs.
#include <memory>

#include "arraylib/replication.h"
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

// What a request names: a group, or one pair.
const Members kNamed =
    "4:int32 ctg_valid ctg_info.ctg_set_flag ctg_info.ctg_no; 16:text32 ctg_info.ctg_name; "
    "48:int32 pair_info.pair_set_flag; 52:text32 pair_info.pair_name; 84:int32 pair_info.pvol_lun "
    "pair_info.pair_lun";
const Members kTime = "0:int32 year month day hour minute second";
const Members kTarget = "0:int32 set_division" + kNamed;

class CopyPairs : public RegisteredUnit {
 protected:
  /// A request that names one pair by its logical units.
  static jobject pairRequest(const char* className, const Fields& more = {}) {
    const jobject created = create(
        className,
        "ctg_info.ctg_name=; pair_info.pair_name=; pair_info.pvol_lun=10; pair_info.pair_lun=20");
    set(created, more);
    return created;
  }
  /// What a light form builds from a record without a zero.
  jobject light(const char* method) {
    const std::vector<unsigned char> full(26333420, 0x41);
    quorvelSimPrepareOutput("QV_GetPairInformation", full.data(), full.size());
    return information(method);
  }
};

TEST_F(CopyPairs, OperationRecords) {
  const auto expectOperation = [&](const char* methods, const char* className, std::size_t size,
                                   const Members& tail) {
    expectRequest(methods, className, size, kTarget + tail);
  };
  const Members serialAt92 = "92:text9 remote_serial";
  expectOperation("QV_CreateGemlynPair", "CreateGemlynPair", 108,
                  "92:int32 copy_speed auto_split no_read no_copy");
  expectOperation("QV_SplitGemlynPair", "SplitGemlynPair", 128,
                  "92:int32 forced_split; 96:text32 add_message");
  expectOperation("QV_CreateSnapShotPair", "CreateSnapShotPair", 104,
                  "92:int32 local_pool_no copy_speed auto_split");
  expectOperation("QV_SplitSnapShotPair", "SplitSnapShotPair", 124, "92:text32 add_message");
  expectOperation(
      "QV_SimpleGemlynPair QV_ResyncGemlynPair QV_RestoreGemlynPair QV_SimpleSnapShotPair "
      "QV_ResyncSnapShotPair QV_RestoreSnapShotPair",
      "PairOperation", 92, {});
  const Members device = "92:int32 pvol_lu_device; 96:text9 remote_serial";
  expectOperation("QV_CreateFarlinkPair", "CreateFarlinkPair", 120,
                  device + "108:int32 copy_speed fence_lv no_copy");
  expectOperation("QV_SplitFarlinkPair", "SplitFarlinkPair", 112,
                  serialAt92 + "104:int32 access_restrict forced_rw");
  expectOperation("QV_CreateLonglinkPair", "CreateLonglinkPair", 128,
                  device + "108:int32 auto_set local_pool_no remote_pool_no copy_speed no_copy");
  expectOperation("QV_SplitLonglinkPair", "SplitLonglinkPair", 112,
                  serialAt92 + "104:int32 access_restrict cascade_vvol_split");
  expectOperation("QV_SimpleFarlinkPair QV_SimpleLonglinkPair", "SimpleRemotePair", 108,
                  serialAt92 + "104:int32 simple_range");
  expectOperation(
      "QV_ResyncFarlinkPair QV_SwapFarlinkPair QV_ResyncLonglinkPair QV_SwapLonglinkPair",
      "RemotePairOperation", 104, serialAt92);
}

TEST_F(CopyPairs, ChangeRecords) {
  expectRequest("QV_ChangeReplicationPair", "PairChange", 144,
                "0:int32 ctg_copytype" + kNamed +
                    "92:int32 pair_attr; 96:text9 remote_serial; 105:text32 new_pair_name; "
                    "140:int32 copy_speed");
  expectRequest("QV_ChangeCopyPace", "LuMigrationRequest", 49148,
                "0:int32 request_pair_count owner_id" +
                    at("8:lu[0] 49136:lu[4094]", "0:int32 pvol_lun svol_lun copying_pace"));
  expectGetAndSet("FarlinkAsyncOption", "FarlinkAsyncOption", 32,
                  "0:int32 option support_index valid_index ctrl_flag set_index cycle_time "
                  "cycle_time_message queue_inhibit_time");
}

// The last mirror begins at 812 + 4093 x 6432 + 32 + 31 x 200.
TEST_F(CopyPairs, FullForm) {
  expectFromUnit(
      "QV_GetPairInformation", 26333420,
      "0:int32 option ctl[0].pool_enable_count ctl[0].pool[0].pool_no ctl[0].pool[0].poolcapa_h "
      "ctl[0].pool[0].poolcapa_l ctl[1].pool_enable_count; 32:int32 ctl[1].pool[0].poolcapa_l "
      "sys.pool_enable_count sys.pool[0].pool_no; 804:int32 sys.pool[63].poolcapa_l pair_count "
      "lu[0].lun lu[0].capacity lu[0].capacity_h lu[0].capacity_l lu[0].pool_usedcapa_h "
      "lu[0].pool_usedcapa_l lu[0].pool_usedrate lu[0].mirror_count lu[0].m_info[0].mirror_no; "
      "26326988:int32 lu[4093].lun; 26327016:int32 lu[4093].mirror_count" +
          at("26333220:lu[4093].m_info[31]",
             "0:int32 mirror_no lun ctl_no pool_no pair_status pair_status_detail usedcapa "
             "usedcapa_h usedcapa_l changed_rate synchronized_rate" +
                 at("44:time 68:split_time", kTime) +
                 "92:text32 add_message; 124:int32 ctg_valid ctg_no; 132:text32 ctg_name "
                 "pair_name; 196:int32 copy_speed"));
}

TEST_F(CopyPairs, LightForm) {
  expectBuilt("QV_GetPairInformationLite", {unit_, session_}, 26333420,
              "0:int32 option; 808:int32 pair_count lu[0].lun; 836:int32 lu[0].pool_usedrate "
              "lu[0].mirror_count lu[0].m_info[0].mirror_no" +
                  at("26333220:lu[4093].m_info[31]",
                     "0:int32 mirror_no lun; 12:int32 pool_no pair_status pair_status_detail; "
                     "124:int32 ctg_valid ctg_no; 132:text32 ctg_name pair_name; 196:int32 "
                     "copy_speed; 40:int32 synchronized_rate" +
                         at("68:split_time", kTime) + "92:text32 add_message"),
              "QV_GetPairInformation");
  expectFields(light("QV_GetPairInformationLite"),
               "lu=PairLUInfo[4094]; lu[4093].m_info=MirrorLUInfo[32]; ctl=null; sys=null; "
               "lu[4093].m_info[31].time=null; lu[4093].capacity=0; lu[4093].capacity_h=0; "
               "lu[4093].capacity_l=0; lu[4093].pool_usedcapa_h=0; lu[4093].pool_usedcapa_l=0; "
               "lu[4093].m_info[31].ctl_no=0; lu[4093].m_info[31].usedcapa=0; "
               "lu[4093].m_info[31].usedcapa_h=0; lu[4093].m_info[31].usedcapa_l=0; "
               "lu[4093].m_info[31].changed_rate=0");
}

TEST_F(CopyPairs, SecondLightForm) {
  // Of 2046 logical units the last begins at 812 + 2045 x 6432.
  expectBuilt("QV_GetPairInformationLite2", {unit_, session_}, 26333420,
              "0:int32 option ctl[0].pool_enable_count; 32:int32 ctl[1].pool[0].poolcapa_l; "
              "808:int32 pair_count lu[0].lun lu[0].capacity; 828:int32 lu[0].pool_usedcapa_h "
              "lu[0].pool_usedcapa_l lu[0].pool_usedrate lu[0].mirror_count "
              "lu[0].m_info[0].mirror_no; 13154252:int32 lu[2045].lun" +
                  at("13160484:lu[2045].m_info[31]",
                     "0:int32 mirror_no lun ctl_no pool_no pair_status; 24:int32 usedcapa; "
                     "36:int32 changed_rate" +
                         at("44:time", kTime)),
              "QV_GetPairInformation");
  expectFields(
      light("QV_GetPairInformationLite2"),
      "lu=PairLUInfo[2046]; lu[2045].m_info=MirrorLUInfo[32]; sys=null; lu[2045].capacity_h=0; "
      "lu[2045].capacity_l=0; lu[2045].m_info[31].pair_status_detail=0; "
      "lu[2045].m_info[31].usedcapa_h=0; lu[2045].m_info[31].usedcapa_l=0; "
      "lu[2045].m_info[31].synchronized_rate=0; lu[2045].m_info[31].ctg_valid=0; "
      "lu[2045].m_info[31].ctg_no=0; lu[2045].m_info[31].copy_speed=0; "
      "lu[2045].m_info[31].split_time=null; lu[2045].m_info[31].add_message=null; "
      "lu[2045].m_info[31].ctg_name=null; lu[2045].m_info[31].pair_name=null");
}

TEST_F(CopyPairs, OtherInformationRecords) {
  expectFromUnit("QV_GetPairInformationSimple", 32760,
                 "0:int32 option pair_count pair[0].pvol_lun pair[0].svol_lun; 32752:int32 "
                 "pair[4093].pvol_lun pair[4093].svol_lun");
  expectFromUnit(
      "QV_GetFarlinkPairInformation", 1146888,
      "0:int32 option pair_count lu[0].support_index" +
          at("1146748:lu[8191]",
             "0:int32 support_index valid_index lun pair_status pair_status_detail pair_attr "
             "changed_rate; 28:text20 remote_serial; 48:int32 remote_lu capacity_h capacity_l "
             "ctg_valid ctg_no; 68:text32 ctg_name pair_name; 132:int32 copy_speed fence_level"));
  expectFromUnit(
      "QV_GetFarlinkAsyncPairInformation", 1672584,
      "0:int32 option pair_count lu[0].lun" +
          at("1670972:lu[8191]",
             "0:int32 lun pair_status pair_status_dist_flag pair_attr ctg_num; 20:text32 ctg_name "
             "pair_name; 84:int32 lu_capacity lu_capacity_h lu_capacity_l remote_lu; 100:text20 "
             "remote_serial; 120:int32 member_valid synchronized_rate difference_capacity "
             "difference_capacity_h difference_capacity_l difference_rate" +
                 at("144:synchronized_time", kTime) +
                 "168:int32 pool_no pool_usedrate copy_speed fence_level synchronized_sequence_no "
                 "svol_synchronized_sequence_no pvol_resync_count svol_resync_count cycle_time") +
          "1671176:int32 ctg[0].ctl[0].ctg_valid" +
          at("1672540:ctg[15].ctl[1]",
             "0:int32 ctg_valid lapsed_time.hour lapsed_time.minute lapsed_time.second "
             "remains_difference rate_status transfer_rate prediction_status prediction_time.hour "
             "prediction_time.minute prediction_time.second"));
  expectBuilt("QV_GetZencopyInformation", {unit_}, 114696,
              "0:int32 option pair_count lu[0].lun" +
                  at("114640:lu[2047]",
                     "0:int32 lun pair_status pair_attr changed_rate; 16:text17 remote_type "
                     "remote_serial; 50:text6 remote_ldev"));
  expectPassed("QV_SplitZencopyPair ui");
}

TEST_F(CopyPairs, LifeOfAPair) {
  const jobject none = information("QV_GetPairInformation");
  expectFields(none,
               "pair_count=0; lu=PairLUInfo[4094]; lu[0].m_info=MirrorLUInfo[32]; "
               "lu[4093].m_info[31].pair_name=; sys.pool=PoolDetailCapa[64]");
  const jobject creation = pairRequest("CreateGemlynPair", "pair_info.pair_name=daily");
  update("QV_CreateGemlynPair", creation);
  EXPECT_EQ(run("QV_CreateGemlynPair", creation), "DiskArrayException 20702");
  update("QV_SplitGemlynPair", pairRequest("SplitGemlynPair", "add_message=nightly"));
  expectFields(information("QV_GetPairInformationLite"),
               "pair_count=1; lu[0].lun=10; lu[0].m_info[0].lun=20; "
               "lu[0].m_info[0].pair_name=daily; lu[0].m_info[0].add_message=nightly");
  update("QV_SimpleGemlynPair", pairRequest("PairOperation"));
  EXPECT_EQ(get(information("QV_GetPairInformationSimple"), "pair_count"), "0");
}

// The library's own record is looked at: to build objects from it six times takes long.
TEST_F(CopyPairs, APairIsWholeAtTheThirdReading) {
  update("QV_CreateGemlynPair", pairRequest("CreateGemlynPair", "pair_info.pair_name=daily"));
  const UnitName unit = "north";
  QVSessionInfo session{};
  lastInput("QV_CreateGemlynPair", 1).copy(reinterpret_cast<char*>(&session), sizeof session);
  const auto pairs = std::make_unique<PairInfo>();
  const MirrorLUInfo& pair = pairs->lu[0].m_info[0];
  const auto expectWhole = [&] {
    for (const int rate : {0, 50, 100}) {
      EXPECT_EQ(QV_GetPairInformation(&unit, &session, pairs.get()), 0);
      EXPECT_EQ(pair.synchronized_rate, rate);
    }
    EXPECT_EQ(pair.pair_status, 2);
    EXPECT_EQ(pair.changed_rate, 0);
    EXPECT_EQ(pair.time.hour, 0);
    EXPECT_EQ(pair.time.minute, 1);
  };
  expectWhole();
  update("QV_SplitGemlynPair", pairRequest("SplitGemlynPair"));
  update("QV_RestoreGemlynPair", pairRequest("PairOperation"));
  expectWhole();
}

TEST_F(CopyPairs, IncompleteRequestsReachTheLibraryAsFarAsTheyWereRead) {
  // The reader goes on behind a nested object that it read in part, and stops at a missing one.
  const char* const method = "QV_CreateGemlynPair";
  const jobject creation =
      pairRequest("CreateGemlynPair", "set_division=7; copy_speed=5; ctg_info.ctg_no=9");
  setNull(creation, "ctg_info.ctg_name");
  quorvelSimForceResult(method, 0, 3);
  update(method, creation);
  EXPECT_EQ(lastInt(method, 2), 7);
  EXPECT_EQ(lastInt(method, 2, 12), 9);
  EXPECT_EQ(lastInt(method, 2, 84), 10);
  EXPECT_EQ(lastInt(method, 2, 92), 5);

  setNull(creation, "ctg_info");
  set(creation, "set_division", "8");
  update(method, creation);
  EXPECT_EQ(lastInt(method, 2), 8);
  update(method, nullptr);
  EXPECT_EQ(quorvelSimCallCount(method), 3);
}

}  // namespace
}  // namespace quorvelj::testing
