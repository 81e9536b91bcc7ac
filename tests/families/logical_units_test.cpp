// Logical units and the work on them.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using LogicalUnits = RegisteredUnit;

const Members kLogicalUnit =
    "0:int32 luNumber rgNumber raid_level staging capacity capacity_h capacity_l befor_lun "
    "cachepart_no pair_cachepart_valid pair_cachepart_no current_cachepart_no stripe lu_use_type "
    "defaultCTL currentCTL status hostblock lu_valid qf_status correction_status rg_last_lu "
    "unit_type unit_type_sub_code";
const Members kFormat = "0:int32 entry status percent err_code_sense_key err_code_sense_code";
const Members kLuFormat = "0:int32 status percent err_code_sense_key err_code_sense_code";
const Members kOption = "0:int32 valid_index change_index priority_mode format_mode";
const Members kQuickFormat = "0:int32 entry status percent waiting_number";
const Members kCorrection = "0:int32 status percent waiting_number";
const Members kOwner = "0:int32 lu_num rg_num lu_type d_ctl c_ctl cache_num cpucore_num";

TEST_F(LogicalUnits, BuiltRecords) {
  expectFromUnit("QV_GetLogicalUnit", 786432, at("0:[0] 786336:[8191]", kLogicalUnit));
  expectFromUnit("QV_GetLogicalUnit1", 96, kLogicalUnit, {-7});
  expectBuilt("QV_GetFormatStatusList", {unit_}, 40972,
              "0:int32 mode totalpercent resttime" + at("12:lu[0] 40952:lu[2047]", kFormat));
  expectBuilt("QV_LogicalUnitFormatStatusList", {unit_}, 32768,
              at("0:lu[0] 32752:lu[2047]", kLuFormat));
  expectGetAndSet("QuickFormatOption", "QuickFormatOption", 16, kOption);
  expectFromUnit("QV_GetQuickFormatStatusList", 131080,
                 "0:int32 priority_mode format_mode" + at("8:lu[0] 131064:lu[8191]", kQuickFormat));
  expectFromUnit("QV_GetParityCorrectionStatusList", 98304,
                 at("0:lu[0] 98292:lu[8191]", kCorrection));
  expectFromUnit("QV_GetLuOwnership", 229380,
                 "0:int32 count" + at("4:lu[0] 229352:lu[8191]", kOwner));
}

// Of a longer array the elements beyond the record's are left out.
TEST_F(LogicalUnits, ReadRecords) {
  const jobject creation = create("LogicalUnitCreationRequest", "befor_lun[128]=7");
  expectRequest("QV_CreateLogicalUnit", creation, 556,
                "0:int32 luNumber rgNumber lu_capacity_h lu_capacity_l befor_lun_count "
                "befor_lun[0] befor_lun[1]; 528:int32 befor_lun[127] cachepart_no "
                "pair_cachepart_valid pair_cachepart_no stripe lu_use_type hostblock");
  // An array that is too short ends the reading.
  set(creation, "befor_lun_count=500; befor_lun#=127");
  expectTooShort("QV_CreateLogicalUnit", {unit_, session_, creation});
  EXPECT_EQ(lastInt("QV_CreateLogicalUnit", 2, 16), 500);
  // The library's code replaces Java's exception.
  quorvelSimForceResult("QV_CreateLogicalUnit", 20503, 1);
  EXPECT_EQ(run("QV_CreateLogicalUnit", creation), "DiskArrayException 20503");

  const jobject correction = create("ParityCorrectionRequest", "lu[8192]=7");
  expectRequest("QV_EntryParityCorrectionList", correction, 32776,
                "0:int32 correction_mode lu_count lu[0]; 32772:int32 lu[8191]");

  const jobject formats = create("FormatEntryList", "lu[2048]=7");
  expectRequest("QV_EntryFormatList", formats, 2048, "0:bytes2048 lu");
  const jobject quick = create("QuickFormatEntryList", "lu[8192]=7");
  expectRequest("QV_EntryQuickFormatList", quick, 8192, "0:bytes8192 lu");

  expectRequest("QV_LogicalUnitRealloc", "LogicalUnitReallocationRequest", 12,
                "0:int32 lun lusize newlun");
  expectRequest("QV_LogicalUnitAdd", "LogicalUnit", 96, kLogicalUnit);
  expectRequest("QV_SetLuOwnership", "LuOwnershipInfo", 28, kOwner);
}

TEST_F(LogicalUnits, Arguments) {
  expectPassed(
      "QV_LogicalUnitDelete u; QV_LogicalUnitDeleteAll u; QV_LogicalUnitDeleteByLUN usi; "
      "QV_LogicalUnitExpand uii; QV_LogicalUnitChangeStaging usii; QV_LogicalUnitChangeCtl usi; "
      "QV_LogicalUnitInvalid ui; QV_LogicalUnitRestore ui; QV_LogicalUnitFormat uii; "
      "QV_LogicalUnitFormatStatusList u; QV_GetFormatStatusList u");
  expectPassedAndReturned(
      "QV_GetLastLogicalUnit u; QV_LogicalUnitFormatStatus ui; QV_LogicalUnitFormatImmediateCTL "
      "uii");
}

TEST_F(LogicalUnits, CreatedAndChanged) {
  createGroup(0);
  EXPECT_EQ(createLu(8191, 0, 1, INT32_MIN), "");
  EXPECT_EQ(createLu(8191, 0, 0, 2048), "DiskArrayException 20502");
  update("QV_LogicalUnitChangeStaging", 8191, 2);
  expectFields(
      information("QV_GetLogicalUnit"),
      "[8190].lu_valid=0; [8191].capacity_h=1; [8191].capacity_l=-2147483648; [8191].staging=2");
  EXPECT_EQ(get(call("QV_GetLastLogicalUnit", {unit_}).result, ""), "8191");
  EXPECT_EQ(call("QV_LogicalUnitFormat", {unit_, number(8191), number(0)}).failure, "");
  EXPECT_EQ(get(call("QV_LogicalUnitFormatStatus", {unit_, number(8191)}).result, ""), "25");
}

TEST_F(LogicalUnits, FreedAreasServeALargerOne) {
  createGroup(0);
  const jobject groups = information("QV_GetRaidGroupInformation");
  const int high = std::stoi(get(groups, "rg[0].total_capa_h"));
  const int low = std::stoi(get(groups, "rg[0].total_capa_l"));
  EXPECT_EQ(createLu(1, 0, high, 0), "");
  EXPECT_EQ(createLu(2, 0, 0, low), "");
  update("QV_LogicalUnitDeleteByLUN", 1);
  update("QV_LogicalUnitDeleteByLUN", 2);
  EXPECT_EQ(createLu(3, 0, high, low), "");
}

}  // namespace
}  // namespace quorvelj::testing
