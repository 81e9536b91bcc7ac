// Moving logical units, and whole arrays, in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

class VolumeMigration : public RegisteredUnit {
 protected:
  static jobject reservationOf(int lun) {
    const jobject reserve = create("LuMigrationReserve");
    setLength(reserve, "reserve_lu", 8192);
    set(reserve, "reserve_lu[" + std::to_string(lun) + "]", "1");
    return reserve;
  }
  static jobject requestOf(int primary, int secondary) {
    const jobject request = create("LuMigrationRequest");
    set(request, "request_pair_count", "1");
    set(request, "owner_id", "4");
    set(request, "lu[0].pvol_lun", std::to_string(primary));
    set(request, "lu[0].svol_lun", std::to_string(secondary));
    return request;
  }
};

TEST_F(VolumeMigration, Requests) {
  for (const char* const method : {"QV_AddLuMigrationReserveLU", "QV_DeleteLuMigrationReserveLU"}) {
    expectRequest(method, "LuMigrationReserve", 8192, {bytesAt(0, 8192, "reserve_lu")});
  }
  for (const char* const method : {"QV_StartLuMigration", "QV_CancelLuMigration",
                                   "QV_SplitLuMigration", "QV_SplitLuMigrationFreeOwner"}) {
    expectRequest(method, "LuMigrationRequest", 49148,
                  int32sAt(0, {"request_pair_count", "owner_id", "lu[0].pvol_lun", "lu[0].svol_lun",
                               "lu[0].copying_pace", "lu[1].pvol_lun"}) +
                      Members{int32At(49144, "lu[4094].copying_pace")});
  }
  for (const char* const method : {"QV_StartAutoMigration", "QV_ChangeAutoMigrationCopyPace"}) {
    expectRequest(method, "AutoMigrationPace", 4, {int32At(0, "copy_speed")});
  }
  const auto network = [](const std::string& path, std::size_t offset) {
    Members members{int32At(offset, "dhcp_mode"), textAt(offset + 4, 16, "ip_address"),
                    textAt(offset + 20, 16, "subnet"), textAt(offset + 36, 16, "gateway"),
                    int32At(offset + 52, "linkspeed_duplex")};
    for (Member& member : members) {
      member.path.insert(0, path + '.');
    }
    return members;
  };
  expectRequest("QV_ChangeAutoMigrationAccessPath", "AutoMigrationAccessPath", 232,
                network("ctl[0]", 0) + network("ctl[1]", 56) +
                    Members{int32At(112, "mainte_ip_change_mode")} +
                    network("newarray_ctl[0]", 116) + network("newarray_ctl[1]", 172) +
                    Members{int32At(228, "newarray_mainte_ip_change_mode")});
}

TEST_F(VolumeMigration, Information) {
  expectBuilt("QV_GetLuMigrationState", {unit_, session_}, 32768,
              {int32At(0, "lun[0]"), int32At(32764, "lun[8191]")});
  expectBuilt("QV_GetLuMigrationInformation", {unit_, session_}, 180192,
              int32sAt(0, {"option", "reserve_lu_count", "pair_lu_count", "reserve_lu[0].lun",
                           "reserve_lu[0].lu_state"}) +
                  int32sAt(32764, {"reserve_lu[4094].lun", "reserve_lu[4094].lu_state",
                                   "pair_lu[0].pvol_lun"}) +
                  int32sAt(180156, {"pair_lu[4094].pvol_lun", "pair_lu[4094].pvol_rg_num",
                                    "pair_lu[4094].svol_lun", "pair_lu[4094].svol_rg_num",
                                    "pair_lu[4094].copying_pace", "pair_lu[4094].owner_id",
                                    "pair_lu[4094].migration_state", "pair_lu[4094].percent",
                                    "pair_lu[4094].migration_error"}));
  expectBuilt(
      "QV_GetAutoMigrationInformation", {unit_, session_}, 32,
      int32sAt(0, {"state", "copy_percent", "delete_percent", "copy_speed", "migration_error",
                   "usable_status", "upgrade_func_valid", "upgrade_func"}));
}

TEST_F(VolumeMigration, ALogicalUnitMoves) {
  EXPECT_EQ(run("QV_StartLuMigration", requestOf(3, 8191)), "DiskArrayException 20721");
  EXPECT_EQ(run("QV_AddLuMigrationReserveLU", reservationOf(8191)), "");
  EXPECT_EQ(run("QV_StartLuMigration", requestOf(3, 8191)), "");
  EXPECT_EQ(run("QV_StartLuMigration", requestOf(4, 8191)), "DiskArrayException 20722");
  EXPECT_EQ(run("QV_DeleteLuMigrationReserveLU", reservationOf(8191)), "DiskArrayException 20722");
  jobject info = information("QV_GetLuMigrationInformation");
  EXPECT_EQ(get(info, "reserve_lu"), "LuMigrationReserveLUInfo[4095]");
  EXPECT_EQ(get(info, "pair_lu"), "LuMigrationPairInfo[4095]");
  EXPECT_EQ(get(info, "reserve_lu[0].lun"), "8191");
  EXPECT_EQ(get(info, "pair_lu[0].owner_id"), "4");
  EXPECT_EQ(get(info, "pair_lu[0].percent"), "0");
  EXPECT_EQ(get(information("QV_GetLuMigrationInformation"), "pair_lu[0].percent"), "25");
  EXPECT_EQ(get(information("QV_GetLuMigrationState"), "lun[3]"), "2");

  const jobject faster = requestOf(3, 8191);
  set(faster, "lu[0].copying_pace", "1");
  EXPECT_EQ(run("QV_ChangeCopyPace", faster), "");
  EXPECT_EQ(run("QV_SplitLuMigration", faster), "DiskArrayException 20704");
  EXPECT_EQ(get(information("QV_GetLuMigrationInformation"), "pair_lu[0].percent"), "50");
  info = information("QV_GetLuMigrationInformation");
  EXPECT_EQ(get(info, "pair_lu[0].percent"), "100");
  EXPECT_EQ(get(info, "pair_lu[0].migration_state"), "3");
  EXPECT_EQ(run("QV_CancelLuMigration", faster), "DiskArrayException 20704");
  EXPECT_EQ(run("QV_SplitLuMigrationFreeOwner", faster), "");
  EXPECT_EQ(get(information("QV_GetLuMigrationInformation"), "pair_lu[0].owner_id"), "-1");
  EXPECT_EQ(run("QV_SplitLuMigration", faster), "");
  EXPECT_EQ(run("QV_DeleteLuMigrationReserveLU", reservationOf(8191)), "");
  EXPECT_EQ(get(information("QV_GetLuMigrationInformation"), "reserve_lu_count"), "0");
}

TEST_F(VolumeMigration, AWholeArrayMoves) {
  const jobject pace = create("AutoMigrationPace");
  set(pace, "copy_speed", "3");
  EXPECT_EQ(run("QV_ChangeAutoMigrationCopyPace", pace), "DiskArrayException 20704");
  EXPECT_EQ(run("QV_StartAutoMigration", pace), "");
  EXPECT_EQ(run("QV_DeleteAutoMigrationData"), "DiskArrayException 20704");
  EXPECT_EQ(get(information("QV_GetAutoMigrationInformation"), "copy_percent"), "0");
  EXPECT_EQ(get(information("QV_GetAutoMigrationInformation"), "copy_percent"), "100");
  for (const char* const method :
       {"QV_DeleteAutoMigrationData", "QV_ResetAutoMigrationUsableStatus",
        "QV_RebootAutoMigrationUnit", "QV_ShutdownAutoMigrationUnit"}) {
    EXPECT_EQ(run(method), "") << method;
  }
  const jobject info = information("QV_GetAutoMigrationInformation");
  EXPECT_EQ(get(info, "delete_percent"), "100");
  EXPECT_EQ(get(info, "usable_status"), "0");
}

TEST_F(VolumeMigration, ShortReservationIsRefusedByJavaAndStillReachesTheLibrary) {
  const jobject reserve = create("LuMigrationReserve");
  setLength(reserve, "reserve_lu", 8191);
  quorvelSimForceResult("QV_AddLuMigrationReserveLU", 0, 1);
  EXPECT_EQ(run("QV_AddLuMigrationReserveLU", reserve).substr(0, 30),
            "ArrayIndexOutOfBoundsException");
  EXPECT_EQ(quorvelSimCallCount("QV_AddLuMigrationReserveLU"), 1);
}

}  // namespace
}  // namespace quorvelj::testing
