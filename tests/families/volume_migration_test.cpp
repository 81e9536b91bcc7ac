// Moving logical units, and whole arrays.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using VolumeMigration = RegisteredUnit;

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
  const Members network{int32At(0, "dhcp_mode"), textAt(4, 16, "ip_address"),
                        textAt(20, 16, "subnet"), textAt(36, 16, "gateway"),
                        int32At(52, "linkspeed_duplex")};
  expectRequest("QV_ChangeAutoMigrationAccessPath", "AutoMigrationAccessPath", 232,
                at({{0, "ctl[0]."}, {56, "ctl[1]."}}, network) +
                    Members{int32At(112, "mainte_ip_change_mode")} +
                    at({{116, "newarray_ctl[0]."}, {172, "newarray_ctl[1]."}}, network) +
                    Members{int32At(228, "newarray_mainte_ip_change_mode")});
  for (const char* const method :
       {"QV_DeleteAutoMigrationData", "QV_ResetAutoMigrationUsableStatus",
        "QV_RebootAutoMigrationUnit", "QV_ShutdownAutoMigrationUnit"}) {
    expectPassed(method, "us");
  }
}

TEST_F(VolumeMigration, Information) {
  expectFromUnit("QV_GetLuMigrationState", 32768,
                 {int32At(0, "lun[0]"), int32At(32764, "lun[8191]")});
  expectFromUnit(
      "QV_GetLuMigrationInformation", 180192,
      int32sAt(0, {"option", "reserve_lu_count", "pair_lu_count", "reserve_lu[0].lun",
                   "reserve_lu[0].lu_state"}) +
          int32sAt(32764,
                   {"reserve_lu[4094].lun", "reserve_lu[4094].lu_state", "pair_lu[0].pvol_lun"}) +
          at(180156, "pair_lu[4094].",
             int32sAt(0, {"pvol_lun", "pvol_rg_num", "svol_lun", "svol_rg_num", "copying_pace",
                          "owner_id", "migration_state", "percent", "migration_error"})));
  expectFromUnit(
      "QV_GetAutoMigrationInformation", 32,
      int32sAt(0, {"state", "copy_percent", "delete_percent", "copy_speed", "migration_error",
                   "usable_status", "upgrade_func_valid", "upgrade_func"}));
}

TEST_F(VolumeMigration, ALogicalUnitMoves) {
  const jobject reserve = create("LuMigrationReserve");
  setLength(reserve, "reserve_lu", 8192);
  set(reserve, "reserve_lu[8191]", "1");
  const jobject request = create("LuMigrationRequest", {{"request_pair_count", "1"},
                                                        {"owner_id", "4"},
                                                        {"lu[0].pvol_lun", "3"},
                                                        {"lu[0].svol_lun", "8191"}});
  EXPECT_EQ(run("QV_StartLuMigration", request), "DiskArrayException 20721");
  EXPECT_EQ(run("QV_AddLuMigrationReserveLU", reserve), "");
  EXPECT_EQ(run("QV_StartLuMigration", request), "");
  expectFields(information("QV_GetLuMigrationInformation"),
               {{"reserve_lu", "LuMigrationReserveLUInfo[4095]"},
                {"pair_lu", "LuMigrationPairInfo[4095]"},
                {"reserve_lu[0].lun", "8191"},
                {"pair_lu[0].owner_id", "4"}});
  EXPECT_EQ(get(information("QV_GetLuMigrationState"), "lun[3]"), "2");

  setLength(reserve, "reserve_lu", 8191);
  expectTooShort("QV_AddLuMigrationReserveLU", {unit_, session_, reserve});
}

}  // namespace
}  // namespace quorvelj::testing
