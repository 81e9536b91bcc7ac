// RAID groups.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using RaidGroups = RegisteredUnit;

const Members kRaidGroup =
    "0:int32 rgnum level port row width depth minimum_capa lastLBASet lastLBA rest_h rest "
    "lumaxcapa unit_type unit_type_sub_code";
const Members kRgDetail =
    "0:int32 valid_index rgnum level start_unit_no start_hdu_no parity_hdu_count parity_count "
    "minimum_capa total_capa_h total_capa_l rest_capa_h rest_capa_l rg_type lu_count";
const Members kDrive = "0:int32 valid_index next_unit_no next_hdu_no paritygroup_no";
const Members kArea = "0:int32 areakind lun befor_lun area_capa_h area_capa_l";
const Members kRequest =
    "0:int32 create_mode rgnum level drive_type drive_capa parity_hdu_count parity_count" +
    at("28:rgdrv[0] 14420:rgdrv[1799]", "0:int32 unit_no hdu_no");

TEST_F(RaidGroups, Records) {
  expectBuilt("QV_GetRaidGroups", {unit_}, 5040, at("0:[0] 4984:[89]", kRaidGroup));
  expectFromUnit(
      "QV_GetRaidGroupInformation", 40004,
      "0:int32 rg_count" + at("4:rg[0] 11148:rg[199]", kRgDetail) +
          at("11204:rgdrv[0][0] 11668:rgdrv[0][29] 11684:rgdrv[1][0] 39988:rgdrv[59][29]", kDrive));
  expectFromUnit("QV_GetRGAreaInformation", 163880,
                 "0:int32 rgnum lumaxcapa lumaxcapa_h lumaxcapa_l area_count" +
                     at("20:area[0] 163860:area[8192]", kArea),
                 {-1});
  expectRequest("QV_RaidGroupAdd QV_RaidGroupExpand", "RaidGroup", 56, kRaidGroup);
  expectRequest("QV_CreateRaidGroup QV_GetRaidGroupCreationCapacity", "CreateRaidGroup", 14428,
                kRequest);
  expectBuilt("QV_GetRaidGroupCreationCapacity", {unit_, session_, create("CreateRaidGroup")}, 56,
              kRgDetail);
  expectPassed("QV_GetRaidGroups u; QV_RaidGroupDelete usi; QV_RaidGroupAllDelete us");
}

// Java may hand over any number of drives; the record holds 1,800.
TEST_F(RaidGroups, DrivesOfARequest) {
  const jobject request = create("CreateRaidGroup", "parity_count=9");
  const auto expectSent = [&] {
    quorvelSimForceResult("QV_CreateRaidGroup", 0, 1);
    update("QV_CreateRaidGroup", request);
    EXPECT_EQ(lastInt("QV_CreateRaidGroup", 2, 24), 9);
  };
  expectSent();  // null
  set(request, "rgdrv#=0");
  expectSent();
  set(request, "rgdrv[1799].hdu_no=1799; rgdrv[1800].hdu_no=1800");
  expectSent();
  EXPECT_EQ(lastInt("QV_CreateRaidGroup", 2, 14424), 1799);
}

TEST_F(RaidGroups, CapacitiesOfAGroup) {
  EXPECT_EQ(createGroup(7), "");
  EXPECT_EQ(createGroup(7), "DiskArrayException 20502");
  EXPECT_EQ(createLu(1, 7, 1, INT32_MIN), "");
  expectFields(
      information("QV_GetRaidGroupInformation"),
      "rg=RgDetail[200]; rg[0].total_capa_h=3; rg[0].total_capa_l=-1551667840; rg[0].lu_count=1; "
      "rg[1].valid_index=0; rgdrv[59]=RgDriveInfo[30]; rgdrv[0][9].next_hdu_no=-1");
  expectFields(information("QV_GetRGAreaInformation", 7), "area=AreaInfo[8193]; area[0].lun=1");
  const jobject groups = call("QV_GetRaidGroups", {unit_}).result;
  expectFields(groups, "=RaidGroup[90]; [0].rgnum=7; [1].rgnum=-1");
}

}  // namespace
}  // namespace quorvelj::testing
