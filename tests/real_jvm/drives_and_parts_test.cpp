// Drives and parts in a real Java process.
#include <cstdio>
#include <fstream>
#include <sstream>

#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

class DrivesAndParts : public RegisteredUnit {
 protected:
  static Members within(const std::string& prefix, const Members& members) {
    return at(0, prefix, members);
  }
  static Members joined(const std::vector<Members>& lists) {
    Members all;
    for (const Members& list : lists) {
      all = all + list;
    }
    return all;
  }
  jobject fromUnit(const char* method) { return call(method, {unit_, session_}).result; }
};

std::vector<Member> driveInformationAt(std::size_t offset) {
  return {textAt(offset, 9, "vendor"),
          textAt(offset + 9, 17, "product"),
          textAt(offset + 26, 6, "revision"),
          int32At(offset + 32, "lastLBA"),
          textAt(offset + 36, 12, "drive_capacity"),
          int32At(offset + 48, "add_info_index"),
          textAt(offset + 52, 12, "serial"),
          int32At(offset + 64, "unit_type"),
          int32At(offset + 68, "drive_type"),
          int32At(offset + 72, "unit_type_sub_code"),
          int32At(offset + 76, "drive_rotation"),
          textAt(offset + 80, 12, "drive_type_name")};
}

std::vector<Member> driveAt(std::size_t offset) {
  return int32sAt(offset, {"port_no", "row_no", "mount", "attribute", "drv_state",
                           "spare_of_disk_port", "spare_of_disk_row", "drv_alert_state"});
}

std::vector<Member> partAt(std::size_t offset) {
  return {int32At(offset, "support_index"),    int32At(offset + 4, "valid_index"),
          textAt(offset + 8, 9, "vendor"),     textAt(offset + 17, 17, "product"),
          textAt(offset + 34, 5, "revision"),  textAt(offset + 39, 9, "serial"),
          textAt(offset + 48, 12, "type_name")};
}

std::vector<Member> failedPartAt(std::size_t offset) {
  std::vector<Member> members = int32sAt(
      offset, {"obstparts_code", "valid_index", "ctl_num", "unit_num", "battery_num", "fan_num",
               "ps_num", "hdu_num", "enc_num", "ups_num", "connector_num", "port_num", "cache_num",
               "if_borad_num", "add_battery_num", "repair_insert_cnt"});
  members.push_back(textAt(offset + 64, 9, "failure_code"));
  members.push_back(textAt(offset + 73, 11, "parts_order_code"));
  return members;
}

std::vector<Member> revisionAt(std::size_t offset) {
  return {int32At(offset, "valid_index"),     textAt(offset + 4, 7, "rev_main"),
          textAt(offset + 11, 3, "rev_boot"), textAt(offset + 14, 3, "rev_ectl"),
          textAt(offset + 17, 7, "rev_rtr"),  textAt(offset + 24, 7, "rev_ses"),
          textAt(offset + 31, 9, "rev_sas")};
}

TEST_F(DrivesAndParts, DriveRecords) {
  expectBuilt("QV_GetDriveInformation", {unit_, session_, number(3), number(4)}, 92,
              driveInformationAt(0));
  EXPECT_EQ(lastInt("QV_GetDriveInformation", 2), 3);
  EXPECT_EQ(lastInt("QV_GetDriveInformation", 3), 4);
  expectFromUnit(
      "QV_GetDriveInformationAll", 41400,
      joined({within("[0].", driveInformationAt(0)), within("[449].", driveInformationAt(41308))}));
  expectFromUnit("QV_GetDiskDriveInformationAll", 165840,
                 joined({within("unit[0].drives[0].", driveInformationAt(4)),
                         within("unit[0].drives[29].", driveInformationAt(2672)),
                         {int32At(163076, "unit[59].drive_mount_count")},
                         within("unit[59].drives[29].", driveInformationAt(165748))}));
  expectFromUnit("QV_GetDriveStatus", 14400,
                 joined({within("[0].", driveAt(0)), within("[449].", driveAt(14368))}));
  expectFromUnit("QV_GetDiskDriveStatusAll", 57840,
                 joined({within("unit[0].drives[0].", driveAt(4)),
                         within("unit[0].drives[29].", driveAt(932)),
                         {int32At(56876, "unit[59].drive_mount_count")},
                         within("unit[59].drives[29].", driveAt(57808))}));
  expectBuilt("QV_DriveReconstructInformation", {unit_, session_, number(5), number(6)}, 20,
              int32sAt(0, {"valid", "status_code", "progress_ratio", "hdu_no", "unit_no"}));
  EXPECT_EQ(lastInt("QV_DriveReconstructInformation", 2), 5);
  EXPECT_EQ(lastInt("QV_DriveReconstructInformation", 3), 6);
}

TEST_F(DrivesAndParts, SettingRecords) {
  const auto expectBoth = [&](const std::string& operation, std::size_t size,
                              const std::vector<Member>& members) {
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
             {int32At(0, "valid_index"), int32At(4, "ctu"), int32At(8, "unit[0]"),
              int32At(12, "unit[1]"), int32At(244, "unit[59]")});
  expectBoth("SATADriveRestoration", 4, {int32At(0, "collect_copy_times")});
  expectBoth(
      "SATADriveInformation", 40,
      int32sAt(0, {"sweep_info.sweep_valid", "sweep_info.interval_time", "sweep_info.stop_time",
                   "sweep_info.unload", "sweep_info.onlineVerify", "flash_info.compare_mode",
                   "flash_info.drv_flash_time", "flash_info.drv_flash_io_count",
                   "smart_info.smart_valid", "smart_info.reassign_thres"}));
  // An object that is missing reaches the library all the same.
  EXPECT_EQ(call("QV_SetSATADriveRestoration", {unit_, session_, nullptr}).failure, "");
}

TEST_F(DrivesAndParts, PartRecords) {
  expectFromUnit("QV_GetPartsList", 121048,
                 joined({{int32At(0, "support_index"), int32At(4, "valid_index"),
                          textAt(8, 9, "array_serial"), textAt(17, 11, "array_id")},
                         within("drive[0][0].", partAt(28)),
                         within("drive[1][0].", partAt(1828)),
                         within("drive[59][29].", partAt(107968)),
                         within("connector[0][0][0].", partAt(108028)),
                         within("connector[0][1][0].", partAt(108148)),
                         within("connector[1][0][0].", partAt(108988)),
                         within("connector[1][7][1].", partAt(109888)),
                         within("controller[0].", partAt(109948)),
                         within("controller[1].", partAt(110008)),
                         within("unit[0].", partAt(110068)),
                         within("unit[60].", partAt(113668)),
                         within("enc[0][0].", partAt(113728)),
                         within("enc[60][1].", partAt(120988))}));
  expectFromUnit("QV_GetObstPartsInformation", 100340,
                 joined({{textAt(0, 12, "registration_code")},
                         within("cto_time.",
                                int32sAt(12, {"year", "month", "day", "hour", "minute", "second"})),
                         int32sAt(36, {"ctu_num", "obst_report_parts_cnt"}),
                         within("parts[0].", failedPartAt(44)),
                         within("parts[1193].", failedPartAt(100256))}));
  const auto timeAt = [](std::size_t offset) {
    return int32sAt(offset, {"year", "month", "day", "hour", "minute", "second"});
  };
  expectFromUnit("QV_GetENCStatusList", 5904,
                 joined({within("download_rev.bas_rev.", revisionAt(0)),
                         within("download_rev.ext_rev.", revisionAt(40)),
                         within("download_rev.ext_rev_plus[0].", revisionAt(80)),
                         {int32At(120, "exec_status")},
                         within("start_time.", timeAt(124)),
                         within("now_time.", timeAt(148)),
                         int32sAt(172, {"replacetime_min", "replacetime_max", "validCTU"}),
                         {int32At(184, "ctu.enc[0].status")},
                         within("ctu.enc[0].enc_rev.", revisionAt(188)),
                         {int32At(228, "ctu.enc[1].status")},
                         within("ctu.enc[1].enc_rev.", revisionAt(232)),
                         {int32At(272, "unit[0].enc[0].status")},
                         within("unit[0].enc[0].enc_rev.", revisionAt(276)),
                         {int32At(5860, "unit[63].enc[1].status")},
                         within("unit[63].enc[1].enc_rev.", revisionAt(5864))}));
}

TEST_F(DrivesAndParts, PowerSavingAndPinnedDataRecords) {
  expectFromUnit(
      "QV_GetSpinDownUpInformation", 102316,
      joined(
          {int32sAt(0, {"option", "rg_count"}),
           within("rg[0].", int32sAt(8, {"rgnum", "rg_power_saving_status", "rg_power_saving",
                                         "spin_down_count", "spin_error"})),
           {int32At(3988, "rg[199].rgnum"), int32At(4004, "rg[199].spin_error"),
            int32At(4008, "lu_count")},
           within("lu[0].", int32sAt(4012, {"lun", "lu_power_saving", "lu_power_saving_detail"})),
           {int32At(102304, "lu[8191].lun"), int32At(102312, "lu[8191].lu_power_saving_detail")}}));
  const std::vector<const char*> detail{"middle", "physical", "write_uncompleted"};
  expectFromUnit("QV_GetIntegrationPinInfo", 262148,
                 joined({{int32At(0, "unite_option"), int32At(4, "single_lu[0]"),
                          int32At(32768, "single_lu[8191]"), int32At(32772, "unite_lu[0]"),
                          int32At(65536, "unite_lu[8191]")},
                         within("single_lu_detail[0].", int32sAt(65540, detail)),
                         within("single_lu_detail[8191].", int32sAt(163832, detail)),
                         within("unite_lu_detail[0].", int32sAt(163844, detail)),
                         within("unite_lu_detail[8191].", int32sAt(262136, detail))}));

  std::vector<std::int32_t> table(8192);
  table.front() = -7;
  table.back() = 0x7FFFFFFF;
  quorvelSimPrepareOutput("QV_GetPinInfo2", table.data(), table.size() * sizeof table[0]);
  const jobject ints = fromUnit("QV_GetPinInfo2");
  EXPECT_EQ(get(ints, "[0]"), "-7");
  EXPECT_EQ(get(ints, "[8191]"), "2147483647");
  EXPECT_EQ(lengthOf(ints, ""), 8192);

  for (const char* const method : {"QV_GetPinInfo", "QV_GetPinInfoGetTime"}) {
    const std::int32_t number6 = 0x12345678;
    quorvelSimPrepareOutput(method, &number6, sizeof number6);
    EXPECT_EQ(get(call(method, {unit_, number(6)}).result, ""), "305419896");
    EXPECT_EQ(lastInt(method, 1), 6);
  }
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
    EXPECT_EQ(get(fromUnit(method), path), shown) << method;
  }
  EXPECT_EQ(lengthOf(fromUnit("QV_GetIntegrationPinInfo"), "unite_lu"), 8192);
  EXPECT_EQ(lengthOf(fromUnit("QV_GetLocateLEDInformation"), "unit"), 60);
}

TEST_F(DrivesAndParts, MountedDrives) {
  jobject drive = call("QV_GetDriveInformation", {unit_, session_, number(1), number(3)}).result;
  EXPECT_EQ(get(drive, "drive_capacity"), "2.0TB");
  EXPECT_EQ(call("QV_GetDriveInformation", {unit_, session_, number(1), number(4)}).failure,
            "DiskArrayException 20004");
  EXPECT_EQ(call("QV_GetDriveInformation", {unit_, session_, number(-1), number(0)}).failure,
            "DiskArrayException 20004");
  EXPECT_EQ(get(fromUnit("QV_GetDriveInformationAll"), "[33].serial"), "D1-3");
  EXPECT_EQ(get(fromUnit("QV_GetDiskDriveStatusAll"), "unit[1].drive_mount_count"), "4");

  const std::vector<jobject> mode{unit_, session_, number(1), number(3), number(8)};
  EXPECT_EQ(call("QV_SetDriveMode", mode).failure, "");
  EXPECT_EQ(lastInt("QV_SetDriveMode", 2), 1);
  EXPECT_EQ(lastInt("QV_SetDriveMode", 3), 3);
  EXPECT_EQ(lastInt("QV_SetDriveMode", 4), 8);
  EXPECT_EQ(get(fromUnit("QV_GetDriveStatus"), "[33].drv_state"), "8");
}

TEST_F(DrivesAndParts, SettingsAreKept) {
  const jobject restoration = create("DiskDriveRestoration");
  set(restoration, "sparemode", "2");
  EXPECT_EQ(call("QV_SetDiskDriveRestoration", {unit_, session_, restoration}).failure, "");
  EXPECT_EQ(get(fromUnit("QV_GetDiskDriveRestoration"), "sparemode"), "2");
  EXPECT_EQ(get(fromUnit("QV_GetDiskDriveRestoration"), "interval"), "0");

  const jobject leds = create("LocateLEDInformation");
  setLength(leds, "unit", 60);
  set(leds, "unit[7]", "1");
  EXPECT_EQ(call("QV_SetLocateLEDInformation", {unit_, session_, leds}).failure, "");
  EXPECT_EQ(get(fromUnit("QV_GetLocateLEDInformation"), "unit[7]"), "1");
  setLength(leds, "unit", 59);
  EXPECT_EQ(call("QV_SetLocateLEDInformation", {unit_, session_, leds}).failure.substr(0, 30),
            "ArrayIndexOutOfBoundsException");

  EXPECT_EQ(call("QV_SpinDownDriveByRG", {unit_, session_, number(12)}).failure, "");
  EXPECT_EQ(call("QV_SpinDownDriveByRG", {unit_, session_, number(200)}).failure,
            "DiskArrayException 20004");
  jobject power = fromUnit("QV_GetSpinDownUpInformation");
  EXPECT_EQ(get(power, "rg_count"), "1");
  EXPECT_EQ(get(power, "rg[0].rgnum"), "12");
  EXPECT_EQ(get(power, "rg[0].rg_power_saving"), "1");
  EXPECT_EQ(call("QV_SpinUpDriveByRG", {unit_, session_, number(12)}).failure, "");
  power = fromUnit("QV_GetSpinDownUpInformation");
  EXPECT_EQ(get(power, "rg[0].rg_power_saving"), "0");
  EXPECT_EQ(get(power, "rg[0].spin_down_count"), "1");
  EXPECT_EQ(call("QV_FlushPinInfo", {unit_, session_}).failure, "");
}

TEST_F(DrivesAndParts, PartsAreWrittenToAFile) {
  const std::string path = ::testing::TempDir() + "quorvelj-parts.csv";
  EXPECT_EQ(call("QV_PartsListExport", {unit_, session_, text(path)}).failure, "");
  std::stringstream written;
  written << std::ifstream(path).rdbuf();
  std::remove(path.c_str());
  EXPECT_NE(written.str().find("SATA,TD-2000N7,D1-3\n"), std::string::npos);
  // 19 drives, 2 controllers, 2 enclosures and their 4 controllers.
  const std::string lines = written.str();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 27);
  EXPECT_EQ(call("QV_PartsListExport", {unit_, session_, nullptr}).failure,
            "DiskArrayException 258");
  call("QV_PartsListExport", {unit_, session_, text("/nowhere/" + std::string(2000, 'x'))});
  EXPECT_EQ(lastText("QV_PartsListExport", 2).size(), 1023U);
}

TEST_F(DrivesAndParts, OnlyTheFlatStatusTakesNoName) {
  EXPECT_EQ(call("QV_GetDriveStatus", {nullptr, session_}).failure, "DiskArrayException 20001");
  EXPECT_EQ(lastText("QV_GetDriveStatus", 0), "");
  for (const char* const method :
       {"QV_GetDriveInformationAll", "QV_GetPinInfo2", "QV_FlushPinInfo", "QV_GetPartsList"}) {
    EXPECT_EQ(call(method, {nullptr, session_}).failure, "DiskArrayException 258") << method;
  }
  quorvelSimForceResult("QV_GetPinInfo2", 7, 1);
  EXPECT_EQ(call("QV_GetPinInfo2", {unit_, session_}).failure, "DiskArrayException 7");
}

}  // namespace
}  // namespace quorvelj::testing
