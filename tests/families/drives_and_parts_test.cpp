// Drives and parts.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using DrivesAndParts = RegisteredUnit;

const Members kDriveInformation =
    "0:text9 vendor; 9:text17 product; 26:text6 revision; 32:int32 lastLBA; 36:text12 "
    "drive_capacity; 48:int32 add_info_index; 52:text12 serial; 64:int32 unit_type drive_type "
    "unit_type_sub_code drive_rotation; 80:text12 drive_type_name";
const Members kDrive =
    "0:int32 port_no row_no mount attribute drv_state spare_of_disk_port spare_of_disk_row "
    "drv_alert_state";
const Members kPart =
    "0:int32 support_index valid_index; 8:text9 vendor; 17:text17 product; 34:text5 revision; "
    "39:text9 serial; 48:text12 type_name";
const Members kFailedPart =
    "0:int32 obstparts_code valid_index ctl_num unit_num battery_num fan_num ps_num hdu_num "
    "enc_num ups_num connector_num port_num cache_num if_borad_num add_battery_num "
    "repair_insert_cnt; 64:text9 failure_code; 73:text11 parts_order_code";
const Members kRevision =
    "0:int32 valid_index; 4:text7 rev_main; 11:text3 rev_boot rev_ectl; 17:text7 rev_rtr rev_ses; "
    "31:text9 rev_sas";
const Members kTime = "0:int32 year month day hour minute second";

TEST_F(DrivesAndParts, DriveRecords) {
  expectFromUnit("QV_GetDriveInformation", 92, kDriveInformation, {3, 4});
  expectFromUnit("QV_GetDriveInformationAll", 41400, at("0:[0] 41308:[449]", kDriveInformation));
  expectFromUnit("QV_GetDiskDriveInformationAll", 165840,
                 at("4:unit[0].drives[0] 2672:unit[0].drives[29]", kDriveInformation) +
                     "163076:int32 unit[59].drive_mount_count" +
                     at("165748:unit[59].drives[29]", kDriveInformation));
  expectFromUnit("QV_GetDriveStatus", 14400, at("0:[0] 14368:[449]", kDrive));
  expectFromUnit("QV_GetDiskDriveStatusAll", 57840,
                 at("4:unit[0].drives[0] 932:unit[0].drives[29]", kDrive) +
                     "56876:int32 unit[59].drive_mount_count" +
                     at("57808:unit[59].drives[29]", kDrive));
  expectFromUnit("QV_DriveReconstructInformation", 20,
                 "0:int32 valid status_code progress_ratio hdu_no unit_no", {5, 6});
}

TEST_F(DrivesAndParts, SettingRecords) {
  expectGetAndSet(
      "DiskDriveRestoration", "DiskDriveRestoration", 28,
      "0:int32 mode restoration dynamic_sparing interval unit_size sparemode no_copyback_allunit");
  expectGetAndSet("DriveResponseDiag", "DriveResponseDiag", 24,
                  "0:int32 valid set_mode mode threshold sata_diag autodiag_threshold");
  expectGetAndSet("BatteryConfig", "BatteryConfig", 4, "0:int32 battery_count");
  expectGetAndSet("LocateLEDInformation", "LocateLEDInformation", 248,
                  "0:int32 valid_index ctu unit[0] unit[1]; 244:int32 unit[59]");
  expectGetAndSet("SATADriveRestoration", "SATADriveRestoration", 4, "0:int32 collect_copy_times");
  expectGetAndSet(
      "SATADriveInformation", "SATADriveInformation", 40,
      "0:int32 sweep_info.sweep_valid sweep_info.interval_time sweep_info.stop_time "
      "sweep_info.unload sweep_info.onlineVerify flash_info.compare_mode flash_info.drv_flash_time "
      "flash_info.drv_flash_io_count smart_info.smart_valid smart_info.reassign_thres");

  update("QV_SetDiskDriveRestoration", create("DiskDriveRestoration", "sparemode=2"));
  expectFields(information("QV_GetDiskDriveRestoration"), "sparemode=2; interval=0");
}

TEST_F(DrivesAndParts, PartRecords) {
  expectFromUnit(
      "QV_GetPartsList", 121048,
      "0:int32 support_index valid_index; 8:text9 array_serial; 17:text11 array_id" +
          at("28:drive[0][0] 1828:drive[1][0] 107968:drive[59][29] 108028:connector[0][0][0] "
             "108148:connector[0][1][0] 108988:connector[1][0][0] 109888:connector[1][7][1] "
             "109948:controller[0] 110008:controller[1] 110068:unit[0] 113668:unit[60] "
             "113728:enc[0][0] 120988:enc[60][1]",
             kPart));
  expectFromUnit("QV_GetObstPartsInformation", 100340,
                 "0:text12 registration_code" + at("12:cto_time", kTime) +
                     "36:int32 ctu_num obst_report_parts_cnt" +
                     at("44:parts[0] 100256:parts[1193]", kFailedPart));
  expectFromUnit(
      "QV_GetENCStatusList", 5904,
      at("0:download_rev.bas_rev 40:download_rev.ext_rev 80:download_rev.ext_rev_plus[0]",
         kRevision) +
          "120:int32 exec_status" + at("124:start_time 148:now_time", kTime) +
          "172:int32 replacetime_min replacetime_max validCTU" +
          at("184:ctu.enc[0] 228:ctu.enc[1] 272:unit[0].enc[0] 5860:unit[63].enc[1]",
             "0:int32 status" + at("4:enc_rev", kRevision)));
}

TEST_F(DrivesAndParts, PowerSavingAndPinnedDataRecords) {
  expectFromUnit(
      "QV_GetSpinDownUpInformation", 102316,
      "0:int32 option rg_count" +
          at("8:rg[0] 3988:rg[199]",
             "0:int32 rgnum rg_power_saving_status rg_power_saving spin_down_count spin_error") +
          "4008:int32 lu_count" +
          at("4012:lu[0] 102304:lu[8191]", "0:int32 lun lu_power_saving lu_power_saving_detail"));
  expectFromUnit("QV_GetIntegrationPinInfo", 262148,
                 "0:int32 unite_option single_lu[0]; 32768:int32 single_lu[8191] unite_lu[0]; "
                 "65536:int32 unite_lu[8191]" +
                     at("65540:single_lu_detail[0] 163832:single_lu_detail[8191] "
                        "163844:unite_lu_detail[0] 262136:unite_lu_detail[8191]",
                        "0:int32 middle physical write_uncompleted"));

  std::vector<std::int32_t> table(8192);
  table.front() = -7;
  table.back() = 0x7FFFFFFF;
  quorvelSimPrepareOutput("QV_GetPinInfo2", table.data(), table.size() * sizeof table[0]);
  expectFields(information("QV_GetPinInfo2"), "[0]=-7; [8191]=2147483647; #=8192");
  expectPassed(
      "QV_FlushPinInfo us; QV_SpinDownDriveByRG usi; QV_SpinUpDriveByRG usi; QV_SetDriveMode "
      "usiii");
  expectPassedAndReturned("QV_GetPinInfo ui; QV_GetPinInfoGetTime ui");
}

TEST_F(DrivesAndParts, PartsAreWrittenToAFile) {
  const std::string path = temporary("parts.csv");
  update("QV_PartsListExport", path);
  const std::string written = contentOf(path);
  EXPECT_NE(written.find("SATA,TD-2000N7,D1-3\n"), std::string::npos);
  // 19 drives, 2 controllers, 2 enclosures and their 4 controllers.
  EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 27);
  run("QV_PartsListExport", "/nowhere/" + std::string(2000, 'x'));
  EXPECT_EQ(lastText("QV_PartsListExport", 2).size(), 1023U);
}

}  // namespace
}  // namespace quorvelj::testing
