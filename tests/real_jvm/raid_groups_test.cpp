// RAID groups in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

using RaidGroups = RegisteredUnit;

const std::vector<const char*> kRaidGroup{
    "rgnum",      "level",   "port",   "row",  "width",     "depth",     "minimum_capa",
    "lastLBASet", "lastLBA", "rest_h", "rest", "lumaxcapa", "unit_type", "unit_type_sub_code"};
const std::vector<const char*> kRgDetail{
    "valid_index",      "rgnum",        "level",        "start_unit_no", "start_hdu_no",
    "parity_hdu_count", "parity_count", "minimum_capa", "total_capa_h",  "total_capa_l",
    "rest_capa_h",      "rest_capa_l",  "rg_type",      "lu_count"};
const std::vector<const char*> kDrive{"valid_index", "next_unit_no", "next_hdu_no",
                                      "paritygroup_no"};
const std::vector<const char*> kArea{"areakind", "lun", "befor_lun", "area_capa_h", "area_capa_l"};

TEST_F(RaidGroups, Records) {
  expectBuilt("QV_GetRaidGroups", {unit_}, 5040,
              at(0, "[0].", int32sAt(0, kRaidGroup)) + at(4984, "[89].", int32sAt(0, kRaidGroup)));
  expectBuilt("QV_GetRaidGroupInformation", {unit_, session_}, 40004,
              int32sAt(0, {"rg_count"}) + at(4, "rg[0].", int32sAt(0, kRgDetail)) +
                  at(11148, "rg[199].", int32sAt(0, kRgDetail)) +
                  at(11204, "rgdrv[0][0].", int32sAt(0, kDrive)) +
                  at(11668, "rgdrv[0][29].", int32sAt(0, kDrive)) +
                  at(11684, "rgdrv[1][0].", int32sAt(0, kDrive)) +
                  at(39988, "rgdrv[59][29].", int32sAt(0, kDrive)));
  expectBuilt("QV_GetRGAreaInformation", {unit_, session_, number(1)}, 163880,
              int32sAt(0, {"rgnum", "lumaxcapa", "lumaxcapa_h", "lumaxcapa_l", "area_count"}) +
                  at(20, "area[0].", int32sAt(0, kArea)) +
                  at(163860, "area[8192].", int32sAt(0, kArea)));

  const jobject group = create("RaidGroup");
  expectRead("QV_RaidGroupAdd", {unit_, group}, group, 1, 56, int32sAt(0, kRaidGroup));
  expectRead("QV_RaidGroupExpand", {unit_, group}, group, 1, 56, int32sAt(0, kRaidGroup));

  const jobject request = create("CreateRaidGroup");
  const std::vector<Member> members =
      int32sAt(0, {"create_mode", "rgnum", "level", "drive_type", "drive_capa", "parity_hdu_count",
                   "parity_count"}) +
      at(28, "rgdrv[0].", int32sAt(0, {"unit_no", "hdu_no"})) +
      at(14420, "rgdrv[1799].", int32sAt(0, {"unit_no", "hdu_no"}));
  expectRead("QV_CreateRaidGroup", {unit_, session_, request}, request, 2, 14428, members);
  expectRead("QV_GetRaidGroupCreationCapacity", {unit_, session_, request}, request, 2, 14428,
             members);
  expectBuilt("QV_GetRaidGroupCreationCapacity", {unit_, session_, request}, 56,
              int32sAt(0, kRgDetail));
}

TEST_F(RaidGroups, Arguments) {
  expectPassed("QV_GetRaidGroups", "u");
  expectPassed("QV_RaidGroupDelete", "usi");
  expectPassed("QV_RaidGroupAllDelete", "us");
  expectPassed("QV_GetRaidGroupInformation", "us");
  expectPassed("QV_GetRGAreaInformation", "usi");
}

TEST_F(RaidGroups, ArraysAreAsLongAsEver) {
  EXPECT_EQ(get(call("QV_GetRaidGroups", {unit_}).result, ""), "RaidGroup[90]");
  const jobject none = call("QV_GetRaidGroupInformation", {unit_, session_}).result;
  EXPECT_EQ(get(none, "rg_count"), "0");
  EXPECT_EQ(get(none, "rg"), "RgDetail[200]");
  EXPECT_EQ(get(none, "rg[199].valid_index"), "0");
  EXPECT_EQ(get(none, "rgdrv[59]"), "RgDriveInfo[30]");
  createGroup(3);
  EXPECT_EQ(get(call("QV_GetRGAreaInformation", {unit_, session_, number(3)}).result, "area"),
            "AreaInfo[8193]");
}

// Any number of drives is handed over, and the record holds 1,800.
TEST_F(RaidGroups, DrivesOfARequest) {
  const jobject request = create("CreateRaidGroup");
  set(request, "parity_count", "9");
  const auto sent = [&] {
    quorvelSimForceResult("QV_CreateRaidGroup", 0, 1);
    const std::string failure = call("QV_CreateRaidGroup", {unit_, session_, request}).failure;
    EXPECT_EQ(lastInt("QV_CreateRaidGroup", 2, 24), 9);
    return failure;
  };
  EXPECT_EQ(sent(), "");  // null
  setLength(request, "rgdrv", 0);
  EXPECT_EQ(sent(), "");
  set(request, "rgdrv[1799].hdu_no", "1799");
  set(request, "rgdrv[1800].hdu_no", "1800");
  EXPECT_EQ(sent(), "");
  EXPECT_EQ(lastInt("QV_CreateRaidGroup", 2, 14424), 1799);
  EXPECT_EQ(quorvelSimCallCount("QV_CreateRaidGroup"), 3);
}

TEST_F(RaidGroups, MissingObjectsReachTheLibraryUnread) {
  for (const char* const method : {"QV_RaidGroupAdd", "QV_RaidGroupExpand"}) {
    quorvelSimForceResult(method, 0, 1);
    EXPECT_EQ(call(method, {unit_, nullptr}).failure, "");
  }
  quorvelSimForceResult("QV_CreateRaidGroup", 20503, 1);
  EXPECT_EQ(call("QV_CreateRaidGroup", {unit_, nullptr, nullptr}).failure,
            "DiskArrayException 20503");
  EXPECT_EQ(quorvelSimCallCount("QV_CreateRaidGroup"), 1);
  EXPECT_EQ(call("QV_GetRaidGroups", {nullptr}).failure, "DiskArrayException 258");
  EXPECT_EQ(quorvelSimCallCount("QV_GetRaidGroups"), 0);
}

TEST_F(RaidGroups, CapacitiesAddUp) {
  const jobject request = create("CreateRaidGroup");
  set(request, {{"rgnum", "7"}, {"level", "5"}, {"parity_hdu_count", "5"}, {"parity_count", "2"}});
  setLength(request, "rgdrv", 0);
  const jobject planned =
      call("QV_GetRaidGroupCreationCapacity", {unit_, session_, request}).result;
  EXPECT_EQ(get(planned, "total_capa_h"), "3");
  EXPECT_EQ(get(planned, "total_capa_l"), "-1551667840");
  EXPECT_EQ(get(call("QV_GetRaidGroupInformation", {unit_, session_}).result, "rg_count"), "0");

  EXPECT_EQ(createGroup(7), "");
  EXPECT_EQ(createGroup(7), "DiskArrayException 20502");
  EXPECT_EQ(createLu(1, 7, 1, INT32_MIN), "");
  EXPECT_EQ(createLu(2, 7, 2, 595815808), "");
  EXPECT_EQ(createLu(3, 7, 0, 1), "DiskArrayException 20503");
  EXPECT_EQ(call("QV_LogicalUnitDeleteByLUN", {unit_, session_, number(1)}).failure, "");

  const jobject information = call("QV_GetRaidGroupInformation", {unit_, session_}).result;
  EXPECT_EQ(get(information, "rg[0].total_capa_h"), "3");
  EXPECT_EQ(get(information, "rg[0].rest_capa_h"), "1");
  EXPECT_EQ(get(information, "rg[0].rest_capa_l"), "-2147483648");
  EXPECT_EQ(get(information, "rg[0].lu_count"), "1");
  EXPECT_EQ(get(information, "rgdrv[0][0].next_hdu_no"), "1");
  EXPECT_EQ(get(information, "rgdrv[0][9].next_hdu_no"), "-1");
  EXPECT_EQ(get(information, "rgdrv[0][9].paritygroup_no"), "1");
  EXPECT_EQ(get(information, "rgdrv[0][10].valid_index"), "0");

  const jobject areas = call("QV_GetRGAreaInformation", {unit_, session_, number(7)}).result;
  EXPECT_EQ(get(areas, "area_count"), "2");
  EXPECT_EQ(get(areas, "lumaxcapa_h"), "1");
  EXPECT_EQ(get(areas, "lumaxcapa"), "2147483647");
  EXPECT_EQ(get(areas, "area[0].lun"), "-1");
  EXPECT_EQ(get(areas, "area[1].lun"), "2");

  EXPECT_EQ(call("QV_RaidGroupDelete", {unit_, session_, number(7)}).failure,
            "DiskArrayException 20504");
  EXPECT_EQ(call("QV_LogicalUnitDelete", {unit_}).failure, "");
  EXPECT_EQ(call("QV_RaidGroupDelete", {unit_, session_, number(7)}).failure, "");
  EXPECT_EQ(call("QV_RaidGroupDelete", {unit_, session_, number(7)}).failure,
            "DiskArrayException 20501");
}

TEST_F(RaidGroups, ShortForm) {
  const jobject group = create("RaidGroup");
  set(group, {{"rgnum", "4"}, {"level", "6"}, {"width", "6"}, {"depth", "1"}});
  EXPECT_EQ(call("QV_RaidGroupAdd", {unit_, group}).failure, "");
  set(group, "depth", "3");
  EXPECT_EQ(call("QV_RaidGroupExpand", {unit_, group}).failure, "");
  EXPECT_EQ(call("QV_RaidGroupExpand", {unit_, group}).failure, "DiskArrayException 20503");
  const jobject groups = call("QV_GetRaidGroups", {unit_}).result;
  EXPECT_EQ(get(groups, "[0].rgnum"), "4");
  EXPECT_EQ(get(groups, "[0].depth"), "3");
  EXPECT_EQ(get(groups, "[0].rest_h"), "5");
  EXPECT_EQ(get(groups, "[1].rgnum"), "-1");
  set(group, "width", "121");
  set(group, "rgnum", "5");
  EXPECT_EQ(call("QV_RaidGroupAdd", {unit_, group}).failure, "DiskArrayException 20503");
  EXPECT_EQ(call("QV_RaidGroupAllDelete", {unit_, session_}).failure, "");
  EXPECT_EQ(get(call("QV_GetRaidGroups", {unit_}).result, "[0].rgnum"), "-1");
}

TEST_F(RaidGroups, ChosenDrives) {
  const jobject request = create("CreateRaidGroup");
  set(request,
      {{"create_mode", "1"}, {"level", "1"}, {"parity_hdu_count", "2"}, {"parity_count", "1"}});
  set(request, "rgdrv[0].unit_no", "7");
  set(request, "rgdrv[0].hdu_no", "14");
  set(request, "rgdrv[1].unit_no", "2");
  EXPECT_EQ(call("QV_CreateRaidGroup", {unit_, session_, request}).failure, "");
  const jobject information = call("QV_GetRaidGroupInformation", {unit_, session_}).result;
  EXPECT_EQ(get(information, "rg[0].start_unit_no"), "7");
  EXPECT_EQ(get(information, "rgdrv[7][14].next_unit_no"), "2");
  set(request, "rgnum", "1");
  EXPECT_EQ(call("QV_CreateRaidGroup", {unit_, session_, request}).failure,
            "DiskArrayException 20504");
}

}  // namespace
}  // namespace quorvelj::testing
