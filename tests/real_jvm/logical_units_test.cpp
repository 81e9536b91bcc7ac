// Logical units and the work on them in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

using LogicalUnits = RegisteredUnit;

const std::vector<const char*> kLogicalUnit{"luNumber",
                                            "rgNumber",
                                            "raid_level",
                                            "staging",
                                            "capacity",
                                            "capacity_h",
                                            "capacity_l",
                                            "befor_lun",
                                            "cachepart_no",
                                            "pair_cachepart_valid",
                                            "pair_cachepart_no",
                                            "current_cachepart_no",
                                            "stripe",
                                            "lu_use_type",
                                            "defaultCTL",
                                            "currentCTL",
                                            "status",
                                            "hostblock",
                                            "lu_valid",
                                            "qf_status",
                                            "correction_status",
                                            "rg_last_lu",
                                            "unit_type",
                                            "unit_type_sub_code"};
const std::vector<const char*> kFormat{"entry", "status", "percent", "err_code_sense_key",
                                       "err_code_sense_code"};
const std::vector<const char*> kLuFormat{"status", "percent", "err_code_sense_key",
                                         "err_code_sense_code"};
const std::vector<const char*> kOption{"valid_index", "change_index", "priority_mode",
                                       "format_mode"};
const std::vector<const char*> kQuickFormat{"entry", "status", "percent", "waiting_number"};
const std::vector<const char*> kCorrection{"status", "percent", "waiting_number"};
const std::vector<const char*> kOwner{"lu_num", "rg_num",    "lu_type",    "d_ctl",
                                      "c_ctl",  "cache_num", "cpucore_num"};

TEST_F(LogicalUnits, BuiltRecords) {
  expectBuilt(
      "QV_GetLogicalUnit", {unit_, session_}, 786432,
      at(0, "[0].", int32sAt(0, kLogicalUnit)) + at(786336, "[8191].", int32sAt(0, kLogicalUnit)));
  expectBuilt("QV_GetLogicalUnit1", {unit_, session_, number(0)}, 96, int32sAt(0, kLogicalUnit));
  expectBuilt("QV_GetFormatStatusList", {unit_}, 40972,
              int32sAt(0, {"mode", "totalpercent", "resttime"}) +
                  at(12, "lu[0].", int32sAt(0, kFormat)) +
                  at(40952, "lu[2047].", int32sAt(0, kFormat)));
  expectBuilt(
      "QV_LogicalUnitFormatStatusList", {unit_}, 32768,
      at(0, "lu[0].", int32sAt(0, kLuFormat)) + at(32752, "lu[2047].", int32sAt(0, kLuFormat)));
  expectBuilt("QV_GetQuickFormatOption", {unit_, session_}, 16, int32sAt(0, kOption));
  expectBuilt("QV_GetQuickFormatStatusList", {unit_, session_}, 131080,
              int32sAt(0, {"priority_mode", "format_mode"}) +
                  at(8, "lu[0].", int32sAt(0, kQuickFormat)) +
                  at(131064, "lu[8191].", int32sAt(0, kQuickFormat)));
  expectBuilt(
      "QV_GetParityCorrectionStatusList", {unit_, session_}, 98304,
      at(0, "lu[0].", int32sAt(0, kCorrection)) + at(98292, "lu[8191].", int32sAt(0, kCorrection)));
  expectBuilt("QV_GetLuOwnership", {unit_, session_}, 229380,
              int32sAt(0, {"count"}) + at(4, "lu[0].", int32sAt(0, kOwner)) +
                  at(229352, "lu[8191].", int32sAt(0, kOwner)));
}

TEST_F(LogicalUnits, ReadRecords) {
  const jobject creation = create("LogicalUnitCreationRequest");
  // What a longer array has behind its 128 elements does not come near the members after it.
  set(creation, "befor_lun[199]", "7");
  set(creation, "befor_lun[128]", "7");
  expectRead("QV_CreateLogicalUnit", {unit_, session_, creation}, creation, 2, 556,
             int32sAt(0, {"luNumber", "rgNumber", "lu_capacity_h", "lu_capacity_l",
                          "befor_lun_count", "befor_lun[0]", "befor_lun[1]"}) +
                 int32sAt(528, {"befor_lun[127]", "cachepart_no", "pair_cachepart_valid",
                                "pair_cachepart_no", "stripe", "lu_use_type", "hostblock"}));
  const jobject record = create("LogicalUnit");
  expectRead("QV_LogicalUnitAdd", {unit_, session_, record}, record, 2, 96,
             int32sAt(0, kLogicalUnit));
  const jobject reallocation = create("LogicalUnitReallocationRequest");
  expectRead("QV_LogicalUnitRealloc", {unit_, reallocation}, reallocation, 1, 12,
             int32sAt(0, {"lun", "lusize", "newlun"}));
  const jobject option = create("QuickFormatOption");
  expectRead("QV_SetQuickFormatOption", {unit_, session_, option}, option, 2, 16,
             int32sAt(0, kOption));
  const jobject correction = create("ParityCorrectionRequest");
  set(correction, "lu[8192]", "7");
  expectRead("QV_EntryParityCorrectionList", {unit_, session_, correction}, correction, 2, 32776,
             int32sAt(0, {"correction_mode", "lu_count", "lu[0]"}) + int32sAt(32772, {"lu[8191]"}));
  const jobject owner = create("LuOwnershipInfo");
  expectRead("QV_SetLuOwnership", {unit_, session_, owner}, owner, 2, 28, int32sAt(0, kOwner));

  const jobject formats = create("FormatEntryList");
  set(formats, "lu[2047]", "-1");
  set(formats, "lu[2048]", "7");
  quorvelSimForceResult("QV_EntryFormatList", 0, 1);
  EXPECT_EQ(call("QV_EntryFormatList", {unit_, formats}).failure, "");
  EXPECT_EQ(lastInput("QV_EntryFormatList", 1), std::string(2047, '\0') + '\xFF');
  const jobject quickFormats = create("QuickFormatEntryList");
  set(quickFormats, "lu[8191]", "-128");
  set(quickFormats, "lu[8192]", "7");
  quorvelSimForceResult("QV_EntryQuickFormatList", 0, 1);
  EXPECT_EQ(call("QV_EntryQuickFormatList", {unit_, session_, quickFormats}).failure, "");
  EXPECT_EQ(lastInput("QV_EntryQuickFormatList", 2), std::string(8191, '\0') + '\x80');
}

TEST_F(LogicalUnits, Arguments) {
  expectPassed("QV_GetLogicalUnit", "us");
  expectPassed("QV_GetLogicalUnit1", "usi");
  expectPassed("QV_GetLastLogicalUnit", "u");
  expectPassed("QV_LogicalUnitDelete", "u");
  expectPassed("QV_LogicalUnitDeleteAll", "u");
  expectPassed("QV_LogicalUnitDeleteByLUN", "usi");
  expectPassed("QV_LogicalUnitExpand", "uii");
  expectPassed("QV_LogicalUnitChangeStaging", "usii");
  expectPassed("QV_LogicalUnitChangeCtl", "usi");
  expectPassed("QV_LogicalUnitInvalid", "ui");
  expectPassed("QV_LogicalUnitRestore", "ui");
  expectPassed("QV_LogicalUnitFormat", "uii");
  expectPassed("QV_LogicalUnitFormatStatus", "ui");
  expectPassed("QV_LogicalUnitFormatImmediateCTL", "uii");
  expectPassed("QV_LogicalUnitFormatStatusList", "u");
  expectPassed("QV_GetFormatStatusList", "u");
  expectPassed("QV_GetQuickFormatOption", "us");
  expectPassed("QV_GetQuickFormatStatusList", "us");
  expectPassed("QV_GetParityCorrectionStatusList", "us");
  expectPassed("QV_GetLuOwnership", "us");
}

TEST_F(LogicalUnits, WrittenIntsAreReturned) {
  const std::int32_t written = -20;
  for (const auto& [method, arguments] : std::vector<std::pair<const char*, std::vector<jobject>>>{
           {"QV_GetLastLogicalUnit", {unit_}},
           {"QV_LogicalUnitFormatStatus", {unit_, number(1)}},
           {"QV_LogicalUnitFormatImmediateCTL", {unit_, number(1), number(2)}}}) {
    quorvelSimPrepareOutput(method, &written, sizeof written);
    EXPECT_EQ(get(call(method, arguments).result, ""), "-20");
  }
}

// The region copy of a short array ends the reading, not the call.
TEST_F(LogicalUnits, ShortArrays) {
  const auto expectBounds = [&](const char* method, const std::vector<jobject>& arguments) {
    quorvelSimForceResult(method, 0, 1);
    EXPECT_TRUE(call(method, arguments).failure.starts_with("ArrayIndexOutOfBoundsException"))
        << method;
    quorvelSimForceResult(method, 20503, 1);
    EXPECT_EQ(call(method, arguments).failure, "DiskArrayException 20503") << method;
    EXPECT_EQ(quorvelSimCallCount(method), 2) << method;
  };
  const jobject creation = create("LogicalUnitCreationRequest");
  set(creation, "befor_lun_count", "500");
  setLength(creation, "befor_lun", 127);
  expectBounds("QV_CreateLogicalUnit", {unit_, session_, creation});
  EXPECT_EQ(lastInt("QV_CreateLogicalUnit", 2, 16), 500);
  const jobject correction = create("ParityCorrectionRequest");
  setLength(correction, "lu", 8191);
  expectBounds("QV_EntryParityCorrectionList", {unit_, session_, correction});
  const jobject formats = create("FormatEntryList");
  setLength(formats, "lu", 2047);
  expectBounds("QV_EntryFormatList", {unit_, formats});
  const jobject quickFormats = create("QuickFormatEntryList");
  setLength(quickFormats, "lu", 8191);
  expectBounds("QV_EntryQuickFormatList", {unit_, session_, quickFormats});
}

TEST_F(LogicalUnits, OnlyOneListTakesANullName) {
  EXPECT_EQ(call("QV_LogicalUnitFormatStatusList", {nullptr}).failure, "DiskArrayException 20001");
  EXPECT_EQ(lastInput("QV_LogicalUnitFormatStatusList", 0), std::string(65, '\0'));
  for (const char* const method : {"QV_GetFormatStatusList", "QV_GetLastLogicalUnit"}) {
    EXPECT_EQ(call(method, {nullptr}).failure, "DiskArrayException 258");
    EXPECT_EQ(quorvelSimCallCount(method), 0);
  }
}

TEST_F(LogicalUnits, CreatedChangedAndDeleted) {
  createGroup(0);
  EXPECT_EQ(createLu(8192, 0, 0, 2048), "DiskArrayException 20501");
  EXPECT_EQ(createLu(8191, 0, 1, INT32_MIN), "");
  EXPECT_EQ(createLu(5, 0, 0, 2048), "");
  EXPECT_EQ(createLu(5, 0, 0, 2048), "DiskArrayException 20502");
  const jobject list = call("QV_GetLogicalUnit", {unit_, session_}).result;
  EXPECT_EQ(get(list, ""), "LogicalUnit[8192]");
  EXPECT_EQ(get(list, "[8190].lu_valid"), "0");
  EXPECT_EQ(get(list, "[8191].capacity_h"), "1");
  EXPECT_EQ(get(list, "[8191].capacity_l"), "-2147483648");
  EXPECT_EQ(get(list, "[5].befor_lun"), "8191");
  EXPECT_EQ(get(list, "[5].rg_last_lu"), "1");
  EXPECT_EQ(get(call("QV_GetLastLogicalUnit", {unit_}).result, ""), "8191");

  EXPECT_EQ(call("QV_LogicalUnitExpand", {unit_, number(5), number(3)}).failure, "");
  EXPECT_EQ(call("QV_LogicalUnitChangeStaging", {unit_, session_, number(5), number(2)}).failure,
            "");
  EXPECT_EQ(call("QV_LogicalUnitChangeCtl", {unit_, session_, number(5)}).failure, "");
  EXPECT_EQ(call("QV_LogicalUnitInvalid", {unit_, number(5)}).failure, "");
  const jobject changed = call("QV_GetLogicalUnit1", {unit_, session_, number(5)}).result;
  EXPECT_EQ(get(changed, "capacity"), "8192");
  EXPECT_EQ(get(changed, "staging"), "2");
  EXPECT_EQ(get(changed, "currentCTL"), "1");
  EXPECT_EQ(get(changed, "status"), "2");
  EXPECT_EQ(call("QV_LogicalUnitRestore", {unit_, number(5)}).failure, "");
  EXPECT_EQ(get(call("QV_GetLogicalUnit1", {unit_, session_, number(5)}).result, "status"), "0");

  const jobject owner = create("LuOwnershipInfo");
  set(owner, {{"lu_num", "5"}, {"d_ctl", "1"}, {"c_ctl", "0"}});
  EXPECT_EQ(call("QV_SetLuOwnership", {unit_, session_, owner}).failure, "");
  const jobject owners = call("QV_GetLuOwnership", {unit_, session_}).result;
  EXPECT_EQ(get(owners, "count"), "2");
  EXPECT_EQ(get(owners, "lu"), "LuOwnershipInfo[8192]");
  EXPECT_EQ(get(owners, "lu[0].d_ctl"), "1");

  const jobject reallocation = create("LogicalUnitReallocationRequest");
  set(reallocation, {{"lun", "5"}, {"lusize", "2"}, {"newlun", "6"}});
  EXPECT_EQ(call("QV_LogicalUnitRealloc", {unit_, reallocation}).failure, "");
  EXPECT_EQ(get(call("QV_GetLogicalUnit1", {unit_, session_, number(6)}).result, "capacity"),
            "4096");
  EXPECT_EQ(call("QV_LogicalUnitDelete", {unit_}).failure, "");
  EXPECT_EQ(call("QV_LogicalUnitDeleteByLUN", {unit_, session_, number(6)}).failure, "");
  EXPECT_EQ(call("QV_LogicalUnitDelete", {unit_}).failure, "DiskArrayException 20501");
}

// The areas behind the LUs of a list are joined into one LU.
TEST_F(LogicalUnits, MadeOfScatteredAreas) {
  createGroup(0);
  for (const int lun : {0, 1, 2, 3}) {
    EXPECT_EQ(createLu(lun, 0, 0, 4096), "");
  }
  for (const int lun : {1, 3}) {
    call("QV_LogicalUnitDeleteByLUN", {unit_, session_, number(lun)}).failure;
  }
  const jobject request = create("LogicalUnitCreationRequest");
  set(request, {{"luNumber", "9"}, {"lu_capacity_l", "8192"}, {"befor_lun_count", "2"}});
  set(request, "befor_lun[1]", "2");
  setLength(request, "befor_lun", 128);
  set(request, "befor_lun[1]", "2");
  EXPECT_EQ(call("QV_CreateLogicalUnit", {unit_, session_, request}).failure, "");
  const jobject areas = call("QV_GetRGAreaInformation", {unit_, session_, number(0)}).result;
  EXPECT_EQ(get(areas, "area_count"), "5");
  EXPECT_EQ(get(areas, "area[1].lun"), "9");
  EXPECT_EQ(get(areas, "area[3].lun"), "9");
  EXPECT_EQ(get(areas, "area[3].area_capa_l"), "4096");
}

TEST_F(LogicalUnits, WorkGetsOnWithEachQuestion) {
  createGroup(0);
  createLu(0, 0, 0, 2048);
  createLu(1, 0, 0, 2048);
  EXPECT_EQ(call("QV_LogicalUnitFormat", {unit_, number(0), number(0)}).failure, "");
  for (const char* const percent : {"25", "50", "75", "100", "100"}) {
    EXPECT_EQ(get(call("QV_LogicalUnitFormatStatus", {unit_, number(0)}).result, ""), percent);
  }
  EXPECT_EQ(get(call("QV_LogicalUnitFormatImmediateCTL", {unit_, number(0), number(1)}).result, ""),
            "100");

  const jobject entries = create("FormatEntryList");
  setLength(entries, "lu", 2048);
  set(entries, "lu[0]", "1");
  set(entries, "lu[1]", "1");
  EXPECT_EQ(call("QV_EntryFormatList", {unit_, entries}).failure, "");
  EXPECT_EQ(get(call("QV_GetFormatStatusList", {unit_}).result, "totalpercent"), "25");
  EXPECT_EQ(get(call("QV_LogicalUnitFormatStatusList", {unit_}).result, "lu[1].percent"), "50");
  EXPECT_EQ(get(call("QV_GetFormatStatusList", {unit_}).result, "resttime"), "5");
  EXPECT_EQ(get(call("QV_GetFormatStatusList", {unit_}).result, "mode"), "0");

  const jobject quickEntries = create("QuickFormatEntryList");
  setLength(quickEntries, "lu", 8192);
  set(quickEntries, "lu[0]", "1");
  set(quickEntries, "lu[1]", "1");
  EXPECT_EQ(call("QV_EntryQuickFormatList", {unit_, session_, quickEntries}).failure, "");
  const jobject option = create("QuickFormatOption");
  set(option, "priority_mode", "2");
  EXPECT_EQ(call("QV_SetQuickFormatOption", {unit_, session_, option}).failure, "");
  const jobject quick = call("QV_GetQuickFormatStatusList", {unit_, session_}).result;
  EXPECT_EQ(get(quick, "priority_mode"), "2");
  EXPECT_EQ(get(quick, "lu[0].percent"), "25");
  EXPECT_EQ(get(quick, "lu[1].waiting_number"), "1");

  const jobject correction = create("ParityCorrectionRequest");
  setLength(correction, "lu", 8192);
  set(correction, "lu_count", "1");
  set(correction, "lu[0]", "1");
  EXPECT_EQ(call("QV_EntryParityCorrectionList", {unit_, session_, correction}).failure, "");
  EXPECT_EQ(
      get(call("QV_GetParityCorrectionStatusList", {unit_, session_}).result, "lu[1].percent"),
      "25");
}

}  // namespace
}  // namespace quorvelj::testing
