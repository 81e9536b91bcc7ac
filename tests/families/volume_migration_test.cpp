// Moving logical units, and whole arrays.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using VolumeMigration = RegisteredUnit;

TEST_F(VolumeMigration, Requests) {
  expectRequest("QV_AddLuMigrationReserveLU QV_DeleteLuMigrationReserveLU", "LuMigrationReserve",
                8192, "0:bytes8192 reserve_lu");
  expectRequest(
      "QV_StartLuMigration QV_CancelLuMigration QV_SplitLuMigration QV_SplitLuMigrationFreeOwner",
      "LuMigrationRequest", 49148,
      "0:int32 request_pair_count owner_id lu[0].pvol_lun lu[0].svol_lun lu[0].copying_pace "
      "lu[1].pvol_lun; 49144:int32 lu[4094].copying_pace");
  expectRequest("QV_StartAutoMigration QV_ChangeAutoMigrationCopyPace", "AutoMigrationPace", 4,
                "0:int32 copy_speed");
  const Members network =
      "0:int32 dhcp_mode; 4:text16 ip_address subnet gateway; 52:int32 linkspeed_duplex";
  expectRequest("QV_ChangeAutoMigrationAccessPath", "AutoMigrationAccessPath", 232,
                at("0:ctl[0] 56:ctl[1]", network) + "112:int32 mainte_ip_change_mode" +
                    at("116:newarray_ctl[0] 172:newarray_ctl[1]", network) +
                    "228:int32 newarray_mainte_ip_change_mode");
  expectPassed(
      "QV_DeleteAutoMigrationData us; QV_ResetAutoMigrationUsableStatus us; "
      "QV_RebootAutoMigrationUnit us; QV_ShutdownAutoMigrationUnit us");
}

TEST_F(VolumeMigration, Information) {
  expectFromUnit("QV_GetLuMigrationState", 32768, "0:int32 lun[0]; 32764:int32 lun[8191]");
  expectFromUnit(
      "QV_GetLuMigrationInformation", 180192,
      "0:int32 option reserve_lu_count pair_lu_count reserve_lu[0].lun reserve_lu[0].lu_state; "
      "32764:int32 reserve_lu[4094].lun reserve_lu[4094].lu_state pair_lu[0].pvol_lun" +
          at("180156:pair_lu[4094]",
             "0:int32 pvol_lun pvol_rg_num svol_lun svol_rg_num copying_pace owner_id "
             "migration_state percent migration_error"));
  expectFromUnit("QV_GetAutoMigrationInformation", 32,
                 "0:int32 state copy_percent delete_percent copy_speed migration_error "
                 "usable_status upgrade_func_valid upgrade_func");
}

TEST_F(VolumeMigration, ALogicalUnitMoves) {
  const jobject reserve = create("LuMigrationReserve", "reserve_lu#=8192; reserve_lu[8191]=1");
  const jobject request =
      create("LuMigrationRequest",
             "request_pair_count=1; owner_id=4; lu[0].pvol_lun=3; lu[0].svol_lun=8191");
  EXPECT_EQ(run("QV_StartLuMigration", request), "DiskArrayException 20721");
  update("QV_AddLuMigrationReserveLU", reserve);
  update("QV_StartLuMigration", request);
  expectFields(information("QV_GetLuMigrationInformation"),
               "reserve_lu=LuMigrationReserveLUInfo[4095]; pair_lu=LuMigrationPairInfo[4095]; "
               "reserve_lu[0].lun=8191; pair_lu[0].owner_id=4");
  EXPECT_EQ(get(information("QV_GetLuMigrationState"), "lun[3]"), "2");
}

}  // namespace
}  // namespace quorvelj::testing
