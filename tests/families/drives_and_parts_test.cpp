// Drives and parts.
#include <array>

#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using DrivesAndParts = RegisteredUnit;

const Members kDriveInformation =
    Members{textAt(0, 9, "vendor"),           textAt(9, 17, "product"),
            textAt(26, 6, "revision"),        int32At(32, "lastLBA"),
            textAt(36, 12, "drive_capacity"), int32At(48, "add_info_index"),
            textAt(52, 12, "serial")} +
    int32sAt(64, {"unit_type", "drive_type", "unit_type_sub_code", "drive_rotation"}) +
    Members{textAt(80, 12, "drive_type_name")};
const Members kDrive = int32sAt(0, {"port_no", "row_no", "mount", "attribute", "drv_state",
                                    "spare_of_disk_port", "spare_of_disk_row", "drv_alert_state"});
const Members kPart{int32At(0, "support_index"), int32At(4, "valid_index"), textAt(8, 9, "vendor"),
                    textAt(17, 17, "product"),   textAt(34, 5, "revision"), textAt(39, 9, "serial"),
                    textAt(48, 12, "type_name")};
const Members kFailedPart =
    int32sAt(0, {"obstparts_code", "valid_index", "ctl_num", "unit_num", "battery_num", "fan_num",
                 "ps_num", "hdu_num", "enc_num", "ups_num", "connector_num", "port_num",
                 "cache_num", "if_borad_num", "add_battery_num", "repair_insert_cnt"}) +
    Members{textAt(64, 9, "failure_code"), textAt(73, 11, "parts_order_code")};
const Members kRevision{int32At(0, "valid_index"), textAt(4, 7, "rev_main"),
                        textAt(11, 3, "rev_boot"), textAt(14, 3, "rev_ectl"),
                        textAt(17, 7, "rev_rtr"),  textAt(24, 7, "rev_ses"),
                        textAt(31, 9, "rev_sas")};
const Members kTime = int32sAt(0, {"year", "month", "day", "hour", "minute", "second"});

TEST_F(DrivesAndParts, DriveRecords) {
  expectFromUnit("QV_GetDriveInformation", 92, kDriveInformation, {3, 4});
  expectFromUnit("QV_GetDriveInformationAll", 41400,
                 at({{0, "[0]."}, {41308, "[449]."}}, kDriveInformation));
  expectFromUnit("QV_GetDiskDriveInformationAll", 165840,
                 at({{4, "unit[0].drives[0]."}, {2672, "unit[0].drives[29]."}}, kDriveInformation) +
                     Members{int32At(163076, "unit[59].drive_mount_count")} +
                     at(165748, "unit[59].drives[29].", kDriveInformation));
  expectFromUnit("QV_GetDriveStatus", 14400, at({{0, "[0]."}, {14368, "[449]."}}, kDrive));
  expectFromUnit("QV_GetDiskDriveStatusAll", 57840,
                 at({{4, "unit[0].drives[0]."}, {932, "unit[0].drives[29]."}}, kDrive) +
                     Members{int32At(56876, "unit[59].drive_mount_count")} +
                     at(57808, "unit[59].drives[29].", kDrive));
  expectFromUnit("QV_DriveReconstructInformation", 20,
                 int32sAt(0, {"valid", "status_code", "progress_ratio", "hdu_no", "unit_no"}),
                 {5, 6});
}

TEST_F(DrivesAndParts, SettingRecords) {
  const auto expectBoth = [&](const std::string& operation, std::size_t size,
                              const Members& members) {
    expectFromUnit(("QV_Get" + operation).c_str(), size, members);
    expectRequest(("QV_Set" + operation).c_str(), operation.c_str(), size, members);
  };
  expectBoth("DiskDriveRestoration", 28,
             int32sAt(0, {"mode", "restoration", "dynamic_sparing", "interval", "unit_size",
                          "sparemode", "no_copyback_allunit"}));
  expectBoth(
      "DriveResponseDiag", 24,
      int32sAt(0, {"valid", "set_mode", "mode", "threshold", "sata_diag", "autodiag_threshold"}));
  expectBoth("BatteryConfig", 4, {int32At(0, "battery_count")});
  expectBoth("LocateLEDInformation", 248,
             int32sAt(0, {"valid_index", "ctu", "unit[0]", "unit[1]"}) +
                 Members{int32At(244, "unit[59]")});
  expectBoth("SATADriveRestoration", 4, {int32At(0, "collect_copy_times")});
  expectBoth(
      "SATADriveInformation", 40,
      int32sAt(0, {"sweep_info.sweep_valid", "sweep_info.interval_time", "sweep_info.stop_time",
                   "sweep_info.unload", "sweep_info.onlineVerify", "flash_info.compare_mode",
                   "flash_info.drv_flash_time", "flash_info.drv_flash_io_count",
                   "smart_info.smart_valid", "smart_info.reassign_thres"}));

  EXPECT_EQ(run("QV_SetDiskDriveRestoration", create("DiskDriveRestoration", {{"sparemode", "2"}})),
            "");
  expectFields(information("QV_GetDiskDriveRestoration"), {{"sparemode", "2"}, {"interval", "0"}});
  const jobject leds = create("LocateLEDInformation");
  setLength(leds, "unit", 59);
  expectTooShort("QV_SetLocateLEDInformation", {unit_, session_, leds});
}

TEST_F(DrivesAndParts, PartRecords) {
  expectFromUnit("QV_GetPartsList", 121048,
                 Members{int32At(0, "support_index"), int32At(4, "valid_index"),
                         textAt(8, 9, "array_serial"), textAt(17, 11, "array_id")} +
                     at({{28, "drive[0][0]."},
                         {1828, "drive[1][0]."},
                         {107968, "drive[59][29]."},
                         {108028, "connector[0][0][0]."},
                         {108148, "connector[0][1][0]."},
                         {108988, "connector[1][0][0]."},
                         {109888, "connector[1][7][1]."},
                         {109948, "controller[0]."},
                         {110008, "controller[1]."},
                         {110068, "unit[0]."},
                         {113668, "unit[60]."},
                         {113728, "enc[0][0]."},
                         {120988, "enc[60][1]."}},
                        kPart));
  expectFromUnit("QV_GetObstPartsInformation", 100340,
                 Members{textAt(0, 12, "registration_code")} + at(12, "cto_time.", kTime) +
                     int32sAt(36, {"ctu_num", "obst_report_parts_cnt"}) +
                     at({{44, "parts[0]."}, {100256, "parts[1193]."}}, kFailedPart));
  const Members enclosure = Members{int32At(0, "status")} + at(4, "enc_rev.", kRevision);
  expectFromUnit("QV_GetENCStatusList", 5904,
                 at({{0, "download_rev.bas_rev."},
                     {40, "download_rev.ext_rev."},
                     {80, "download_rev.ext_rev_plus[0]."}},
                    kRevision) +
                     Members{int32At(120, "exec_status")} +
                     at({{124, "start_time."}, {148, "now_time."}}, kTime) +
                     int32sAt(172, {"replacetime_min", "replacetime_max", "validCTU"}) +
                     at({{184, "ctu.enc[0]."},
                         {228, "ctu.enc[1]."},
                         {272, "unit[0].enc[0]."},
                         {5860, "unit[63].enc[1]."}},
                        enclosure));
}

TEST_F(DrivesAndParts, PowerSavingAndPinnedDataRecords) {
  expectFromUnit("QV_GetSpinDownUpInformation", 102316,
                 int32sAt(0, {"option", "rg_count"}) +
                     at({{8, "rg[0]."}, {3988, "rg[199]."}},
                        int32sAt(0, {"rgnum", "rg_power_saving_status", "rg_power_saving",
                                     "spin_down_count", "spin_error"})) +
                     Members{int32At(4008, "lu_count")} +
                     at({{4012, "lu[0]."}, {102304, "lu[8191]."}},
                        int32sAt(0, {"lun", "lu_power_saving", "lu_power_saving_detail"})));
  const Members detail = int32sAt(0, {"middle", "physical", "write_uncompleted"});
  expectFromUnit("QV_GetIntegrationPinInfo", 262148,
                 int32sAt(0, {"unite_option", "single_lu[0]"}) +
                     int32sAt(32768, {"single_lu[8191]", "unite_lu[0]"}) +
                     Members{int32At(65536, "unite_lu[8191]")} +
                     at({{65540, "single_lu_detail[0]."},
                         {163832, "single_lu_detail[8191]."},
                         {163844, "unite_lu_detail[0]."},
                         {262136, "unite_lu_detail[8191]."}},
                        detail));

  std::vector<std::int32_t> table(8192);
  table.front() = -7;
  table.back() = 0x7FFFFFFF;
  quorvelSimPrepareOutput("QV_GetPinInfo2", table.data(), table.size() * sizeof table[0]);
  const jobject ints = information("QV_GetPinInfo2");
  expectFields(ints, {{"[0]", "-7"}, {"[8191]", "2147483647"}});
  EXPECT_EQ(lengthOf(ints, ""), 8192);
  expectPassed("QV_GetPinInfo", "ui", true);
  expectPassed("QV_GetPinInfoGetTime", "ui", true);
  expectPassed("QV_FlushPinInfo", "us");
  expectPassed("QV_SpinDownDriveByRG", "usi");
  expectPassed("QV_SpinUpDriveByRG", "usi");
  expectPassed("QV_SetDriveMode", "usiii");
}

TEST_F(DrivesAndParts, ArraysHaveTheirFullLength) {
  for (const auto& [method, path, shown] : std::vector<std::array<const char*, 3>>{
           {"QV_GetDriveInformationAll", "", "DiskDriveInformation[450]"},
           {"QV_GetDriveStatus", "", "DiskDrive[450]"},
           {"QV_GetDiskDriveInformationAll", "unit", "DiskDriveUnitInfo[60]"},
           {"QV_GetDiskDriveInformationAll", "unit[40].drives", "DiskDriveInformation[30]"},
           {"QV_GetDiskDriveStatusAll", "unit", "DiskDriveStatusUnit[60]"},
           {"QV_GetDiskDriveStatusAll", "unit[1].drives", "DiskDrive[30]"},
           {"QV_GetPartsList", "drive[59]", "VendorInfo[30]"},
           {"QV_GetPartsList", "connector[1][7]", "VendorInfo[2]"},
           {"QV_GetPartsList", "unit", "VendorInfo[61]"},
           {"QV_GetPartsList", "enc[60]", "VendorInfo[2]"},
           {"QV_GetObstPartsInformation", "parts", "ObstPartsInfo[1194]"},
           {"QV_GetENCStatusList", "unit", "ENCUnitStatus[64]"},
           {"QV_GetENCStatusList", "download_rev.ext_rev_plus", "ENCRevision[1]"},
           {"QV_GetSpinDownUpInformation", "rg", "SpinDownUpRGInfo[200]"},
           {"QV_GetSpinDownUpInformation", "lu", "SpinDownUpLuInfo[8192]"},
           {"QV_GetIntegrationPinInfo", "single_lu_detail", "PINInfoDetail[8192]"},
           {"QV_GetIntegrationPinInfo", "unite_lu_detail", "PINInfoDetail[8192]"}}) {
    EXPECT_EQ(get(information(method), path), shown) << method;
  }
  EXPECT_EQ(lengthOf(information("QV_GetIntegrationPinInfo"), "unite_lu"), 8192);
  EXPECT_EQ(lengthOf(information("QV_GetLocateLEDInformation"), "unit"), 60);
}

TEST_F(DrivesAndParts, PartsAreWrittenToAFile) {
  const std::string path = temporary("parts.csv");
  EXPECT_EQ(run("QV_PartsListExport", path), "");
  const std::string written = contentOf(path);
  EXPECT_NE(written.find("SATA,TD-2000N7,D1-3\n"), std::string::npos);
  // 19 drives, 2 controllers, 2 enclosures and their 4 controllers.
  EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 27);
  run("QV_PartsListExport", "/nowhere/" + std::string(2000, 'x'));
  EXPECT_EQ(lastText("QV_PartsListExport", 2).size(), 1023U);
}

TEST_F(DrivesAndParts, OnlyTheFlatStatusTakesNoName) {
  EXPECT_EQ(call("QV_GetDriveStatus", {nullptr, session_}).failure, "DiskArrayException 20001");
  EXPECT_EQ(lastText("QV_GetDriveStatus", 0), "");
  EXPECT_EQ(call("QV_GetDriveInformationAll", {nullptr, session_}).failure,
            "DiskArrayException 258");
}

}  // namespace
}  // namespace quorvelj::testing
