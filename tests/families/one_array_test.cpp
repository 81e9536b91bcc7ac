// What the library tells of one array in several places: the same question, asked in two ways.
#include <cctype>
#include <fstream>
#include <map>

#include "tests/families/registered_unit.h"
#include "tests/support/native_methods.h"
#include "tests/support/split.h"

namespace quorvelj::testing {
namespace {

/// An array with RAID groups 0 and 3, the LUs 1, 5 and 4000, LU 5 in a pool, a copy pair and a host
/// group.
class OneArray : public RegisteredUnit {
 protected:
  OneArray() {
    EXPECT_EQ(createGroup(0), "");
    update("QV_CreateRaidGroup",
           create("CreateRaidGroup",
                  "rgnum=3; level=1; parity_hdu_count=2; parity_count=2; rgdrv#=0"));
    EXPECT_EQ(createLu(1, 0, 1, 7), "");
    EXPECT_EQ(createLu(5, 0, 0, 4096), "");
    EXPECT_EQ(createLu(4000, 3, 0, 8192), "");
    update("QV_PoolLUAdd", 2, 3, 5);
    update("QV_CreateHG", 1, 3, 9, create("HGInfo", "hgname=hosts"));
    const jobject mapping = element(information("QV_GetLuMappingList", 1, 3, 9), 1);
    set(mapping, "lu[2047]=4000");
    update("QV_SetLuMappingList", 1, 3, 9, mapping);
    update("QV_CreateGemlynPair", create("CreateGemlynPair",
                                         "ctg_info.ctg_name=; pair_info.pair_name=p; "
                                         "pair_info.pvol_lun=1; pair_info.pair_lun=5"));
  }

  /// What "QV_Get" and a name return, asked once.
  jobject page(const std::string& name) {
    jobject& answer = pages_[name];
    if (answer == nullptr) {
      const std::string method = "QV_Get" + name;
      std::vector<jobject> arguments;
      for (const std::string& type : nativeMethod(method).argumentTypes()) {
        arguments.push_back(arguments_.at(type.substr(type.rfind('/') + 1)));
      }
      answer = call(method.c_str(), arguments).result;
    }
    return answer;
  }
  /// What a page tells at a place, "RaidGroupInformation.rg[0].level", or the sum of several. Of
  /// "[*]" all elements are added up, and "_hl" are the two words of a number of blocks. A number
  /// is its own value.
  std::string told(const std::string& place) {
    const std::size_t star = place.find("[*]");
    if (const std::size_t plus = place.find(" + "); plus != std::string::npos) {
      return std::to_string(numberAt(place.substr(0, plus)) + numberAt(place.substr(plus + 3)));
    }
    if (star != std::string::npos) {
      std::int64_t sum = 0;
      for (std::int64_t index = numberAt(place.substr(0, star) + '#'); index-- > 0;) {
        sum += numberAt(std::string(place).replace(star + 1, 1, std::to_string(index)));
      }
      return std::to_string(sum);
    }
    if (place.ends_with("_hl")) {
      const std::string words = place.substr(0, place.size() - 2);
      return std::to_string(numberAt(words + 'h') << 32 | (numberAt(words + 'l') & 0xFFFFFFFF));
    }
    const std::string name = place.substr(0, place.find_first_of(".[#"));
    const bool isNumber = std::isalpha(static_cast<unsigned char>(place[0])) == 0;
    return isNumber ? place : get(page(name), place.substr(name.size()));
  }
  std::int64_t numberAt(const std::string& place) { return std::stoll(told(place)); }
  /// "place = place; place = 3": the same in both, and neither 0 nor empty.
  void expectSame(const std::string& pairs) { expectSame("", pairs); }
  /// The same of pairs whose first places are all in one page.
  void expectSame(const std::string& first, const std::string& pairs) {
    for (const std::string& pair : split(pairs, "; ")) {
      const std::vector<std::string> places = split(pair, " = ");
      const std::string value = told(first.empty() ? places[0] : first + '.' + places[0]);
      EXPECT_EQ(value, told(places[1])) << pair;
      EXPECT_TRUE(value != "0" && !value.empty()) << pair;
    }
  }

  std::map<std::string, jobject> pages_;
  const std::map<std::string, jobject> arguments_{
      {"String;", unit_},
      {"QVSessionInfo;", session_},
      {"I", number(0)},
      {"ControllerRequest;", create("ControllerRequest")},
      {"ArrayConditionRequest;",
       create("ArrayConditionRequest", "login_request=1; user_id=admin; passwd=quorvel")}};
};

/// The place of one of 30 drives of an enclosure.
std::string placeOf(int drive, const char* between = "") {
  return '[' + std::to_string(drive / 30) + ']' + between + '[' + std::to_string(drive % 30) + "].";
}

TEST_F(OneArray, RaidGroupsAreMadeOfMountedDrives) {
  for (int drive = 0; drive < 1800; ++drive) {
    EXPECT_TRUE(told("DiskDriveStatusAll.unit" + placeOf(drive, ".drives") + "mount") == "1" ||
                told("RaidGroupInformation.rgdrv" + placeOf(drive) + "valid_index") != "1")
        << drive;
  }
  // 2 x 5 and 2 x 2 drives.
  expectSame(
      "RaidGroupInformation.rgdrv[*][*].valid_index = 14; ArrayCondition.drive_count = "
      "ArrayCondition.unused_drive_count + 14; ArrayCondition.drive_count = "
      "DiskDriveStatusAll.unit[*].drives[*].mount; ArrayCondition.drive_count = "
      "DiskDriveStatusAll.unit[*].drive_mount_count");
  EXPECT_EQ(numberAt("ArrayCondition.all_drive_capa_hl"),
            numberAt("ArrayCondition.unused_drive_capa_hl") +
                10 * numberAt("RaidGroupInformation.rg[0].minimum_capa") +
                4 * numberAt("RaidGroupInformation.rg[1].minimum_capa"));
  const jobject larger =
      create("CreateRaidGroup",
             "rgnum=4; level=0; parity_hdu_count=5; parity_count=1; rgdrv[0].unit_no=0");
  EXPECT_EQ(run("QV_CreateRaidGroup", larger), "DiskArrayException 20503")
      << "no enclosure has 5 drives left";
}

TEST_F(OneArray, FlatDrivesAreThoseByEnclosure) {
  for (int drive = 0; drive < 450; ++drive) {
    const std::string flat = "[" + std::to_string(drive) + "].";
    const std::string serial = told("DriveInformationAll" + flat + "serial");
    const std::string mount = serial.empty() ? "0" : "1";
    const std::string place = placeOf(drive, ".drives");
    EXPECT_EQ(serial, told("DiskDriveInformationAll.unit" + place + "serial")) << drive;
    EXPECT_EQ(serial, told("PartsList.drive" + placeOf(drive) + "serial")) << drive;
    EXPECT_EQ(mount, told("DriveStatus" + flat + "mount")) << drive;
    EXPECT_EQ(mount, told("DiskDriveStatusAll.unit" + place + "mount")) << drive;
  }
  pages_["DriveInformation"] = information("QV_GetDriveInformation", 1, 3);
  expectSame("DriveInformation.serial = DiskDriveInformationAll.unit[1].drives[3].serial");
}

TEST_F(OneArray, LogicalUnits) {
  expectSame(
      "LogicalUnit[*].lu_valid = 3; LuGuardInformation.lu[*].lu_valid = 3; LuOwnership.count = 3; "
      "ArrayCondition.lu_count = 3; RaidGroupInformation.rg[*].lu_count = 3; LastLogicalUnit = "
      "4000; RaidGroupInformation.rg_count = 2; RaidGroups[2].rgnum = -1; "
      "ArrayCondition.all_lu_capa_hl = LogicalUnit[1].capacity_hl + LogicalUnit[5].capacity_hl + "
      "LogicalUnit[4000].capacity_hl; RaidGroupInformation.rg[0].total_capa_hl + "
      "RaidGroupInformation.rg[1].total_capa_hl = RaidGroupInformation.rg[0].rest_capa_hl + "
      "RaidGroupInformation.rg[1].rest_capa_hl + ArrayCondition.all_lu_capa_hl");
  for (const std::string group : {"0", "1"}) {
    const std::string detail = "RaidGroupInformation.rg[" + group + "].";
    const std::string flat = "RaidGroups[" + group + "].";
    EXPECT_EQ(told(flat + "rgnum"), told(detail + "rgnum"));
    EXPECT_EQ(told(flat + "rest"), told(detail + "rest_capa_l"));
    const int number = static_cast<int>(numberAt(detail + "rgnum"));
    pages_["Areas"] = information("QV_GetRGAreaInformation", number);
    std::int64_t lus = 0;
    std::int64_t rest = 0;
    for (int index = 0; index < numberAt("Areas.area_count"); ++index) {
      const std::string area = "Areas.area[" + std::to_string(index) + "].";
      const bool free = told(area + "lun") == "-1";
      lus += free ? 0 : 1;
      rest += free ? numberAt(area + "area_capa_hl") : 0;
    }
    EXPECT_EQ(lus, numberAt(detail + "lu_count")) << group;
    EXPECT_EQ(rest, numberAt(detail + "rest_capa_hl")) << group;
  }
}

TEST_F(OneArray, PairsPoolsAndCounters) {
  expectSame(
      "PairInformation.pair_count = PairInformationSimple.pair_count; PairInformation.pair_count = "
      "CouplingInfo.coupling_num; PairInformation.lu[0].capacity_l = LogicalUnit[1].capacity_l; "
      "PairInformation.sys.pool[0].pool_no = PoolInformation.sys.pool[3].pool_no; "
      "PairInformation.sys.pool[0].poolcapa_l = PoolInformation.sys.pool[3].allcapa_l; "
      "PairInformation.sys.pool_enable_count = PoolInformation.sys.pool_enable_count; "
      "PoolInformation.sys.pool[3].allcapa_l = LogicalUnit[5].capacity_l; "
      "PerformanceAll[0].lu[*].valid = 3; PerformanceAll[0].rg[*].valid = 2; "
      "PerformanceAll[0].port[*].valid = 8; PerformanceAll[0].lu[*].read_count = "
      "PerformanceAll[0].rg[*].read_count");
  for (int drive = 0; drive < 30; ++drive) {
    EXPECT_EQ(told("PerformanceAll[0].drive" + placeOf(drive) + "drive_info.valid"),
              told("RaidGroupInformation.rgdrv" + placeOf(drive) + "valid_index"));
  }
}

TEST_F(OneArray, PortsAndHostGroups) {
  std::int64_t groups = 0;
  for (int number = 0; number < 16; ++number) {
    const std::string controller = std::to_string(number / 8);
    const std::string place = std::to_string(number % 8);
    const std::string inController = '[' + controller + "].port[" + place + "].";
    const std::string port = ".ctl" + inController;
    SCOPED_TRACE(port);
    const bool isFibre = !told("FibreInformation" + inController + "port_name").empty();
    EXPECT_EQ(told("iSCSIPortInformation" + port + "port_valid") == "1", !isFibre);
    EXPECT_EQ(numberAt("FibreInformation[" + controller + "].port_valid") >> number % 8 & 1,
              isFibre ? 1 : 0);
    expectSame("UnitCondition.ctl" + controller + "_port[" + place + "] = 1; LuMappingListAll" +
               port + "hg_tg_max_count = 128");
    groups += numberAt("HGList" + port + "hg[*].valid");
    EXPECT_EQ(told("iSCSITargetInformationAll" + port + "target[*].target_valid"),
              told("iSCSITargetInformationAll" + port + "target_count"));
  }
  EXPECT_EQ(groups, 17) << "one group of each port, and one more";
  EXPECT_EQ(told("LuMappingListAll.ctl[1].port[3].hg[9].lu[2047]"), "4000");
  EXPECT_EQ(told("LuMappingPortAssignInfo.lu_assign[4000]"), "[0, 8]");
}

TEST_F(OneArray, BundlesTellWhatThePagesTell) {
  call("QV_RegistUser", {unit_, number(0), create("ArrayUser", "user=u; passwd=p")});
  pages_["Alert"] = information("QV_AlertCheck", 0);
  expectSame(
      "AllInformation",
      "raid_info.rg_count = RaidGroupInformation.rg_count; raid_info.rg[1].lu_count = "
      "RaidGroupInformation.rg[1].lu_count; lu[4000].capacity_l = LogicalUnit[4000].capacity_l; "
      "last_lu = LastLogicalUnit; raid[1].rgnum = RaidGroupInformation.rg[1].rgnum; "
      "drive_status[33].mount = DriveStatus[33].mount; drive_info[33].serial = "
      "AllInfo_Base.diskdrive_info.unit[1].drives[3].serial; hg.ctl[1].port[3].hg[9].hgname = "
      "HGList.ctl[1].port[3].hg[9].hgname; lumap.ctl[1].port[3].hg[9].lu[2047] = "
      "LuMappingListAll.ctl[1].port[3].hg[9].lu[2047]; pair_info.pair_count = "
      "PairInformation.pair_count; alert[1] = Alert; user_reg_info.num = "
      "AllInfo_PP.user_reg_info.num; fibre_info[1].port_valid = "
      "AllInfo_Config.fibre_info[1].port_valid; unit_info.l_info.lu_count = "
      "UnitInformation.l_info.lu_count");
  expectSame(
      "AllInfo_Base",
      "raid_info.rg_count = AllInformation.raid_info.rg_count; raid_info.rgdrv[0][13].valid_index "
      "= AllInformation.raid_info.rgdrv[0][13].valid_index; lu[4000].capacity_l = "
      "AllInformation.lu[4000].capacity_l; diskdrive_status.unit[1].drive_mount_count = "
      "DiskDriveStatusAll.unit[1].drive_mount_count; alert[0] = Alert; mapping_mode = "
      "AllInformation.lumap.mapping_mode");
  expectSame(
      "AllInfo_BaseAdditional.lumap_lun.lu_assign[4000][1] = "
      "LuMappingPortAssignInfo.lu_assign[4000][1]; AllInfo_HG.hg.ctl[1].port[3].hg[9].hgname = "
      "AllInformation.hg.ctl[1].port[3].hg[9].hgname; "
      "AllInfo_iSCSI.iscsi_target.ctl[1].port[1].target_count = "
      "AllInformation.iscsi_target.ctl[1].port[1].target_count; "
      "AllInfo_Mapping.lumap.ctl[1].port[3].hg[9].lu[2047] = "
      "AllInformation.lumap.ctl[1].port[3].hg[9].lu[2047]; "
      "AllInfo_Replication.pair_info.pair_count = AllInformation.lu_coup.coupling_num; "
      "AllInfo_Replication.pool_info.sys.pool_enable_count = "
      "AllInformation.pool_info.sys.pool_enable_count; AllInfo_Tuning.luowner.count = "
      "ArrayCondition.lu_count");
  // Objects of classes without a known field are made all the same.
  expectFields(pages_["AllInformation"],
               "turbo_lu=TurboLu; prefetch_info=PrefetchInformation; verify=OnlineVerify; "
               "on_opt=NowWZParameter[2]; on_opt[1]=NowWZParameter; boot_opt=BootOption; "
               "on_sysparam=OnlineSystemParam; on_tuning=OnlineTuningParam; tuning=TuningParam; "
               "pre_tuning=PrefetchTuning; cache_prt=CachePartition; timezonelist=TimeZoneList; "
               "timeinfo=TimeInfo; systemluall=NASSystemLUAll; userluall=NASUserLUAll; "
               "nasosstatus=NASOSStatusList; account.account_info[0].user_id=admin");
}

TEST_F(OneArray, FirmwareAndAddresses) {
  const std::string file = temporary("firmware");
  const jobject collection = text(temporary("collection"));
  std::ofstream(file) << "0B22/C";
  for (const std::string revision : {"0957/A", "0B22/C"}) {
    pages_.clear();
    const std::vector<jobject> started{session_, collection, number(60), number(0)};
    EXPECT_EQ(call("QV_PerformanceDataInitialize", started).failure, "");
    pages_["Collection"] = call("QV_PerformanceInputMngFile", {collection}).result;
    for (const char* const place :
         {"UnitCondition.micro", "UnitCondition.micro_pair", "UnitInformation.b_info.micro",
          "AllInfo_Base.unit_info.b_info.micro", "AllInfo_Base.unit_conditions[1].micro",
          "Collection.microver"}) {
      EXPECT_EQ(told(place), revision) << place;
    }
    update("QV_MicroFileConcatEx", file);
    update("QV_MicroDownload", 0, 0, 0);
    for (int question = 0; question < 4; ++question) {
      call("QV_GetMicroDownloadCount", {unit_});
    }
    update("QV_MicroReplaceEx", 0);
    update("QV_MicroReplaceEx", 0);
    update("QV_CompleteMicroReplace", 0);
  }
  pages_.clear();
  pages_["LANInformation"] = information("QV_GetLANInformation", 1);
  expectSame(
      "ENCMicroInformationEx.read_rev.bas_rev.rev_main = "
      "ENCStatusList.unit[1].enc[1].enc_rev.rev_main; LANInformation.ip_address = "
      "UnitCondition.ctl1_ip; LANInformation.ip_address = UnitParam.ctl1; "
      "LANInformation.ip_address = QVUserLANInformation.ctl[1].current_ipaddress; "
      "UnitCondition.serial = PartsList.array_serial; UnitCondition.serial = "
      "RvrfSrcPath.self_serial_no");
}

TEST_F(OneArray, LimitsAreTheLengthsOfTheLists) {
  int named = 0;
  for (int role = 0; role < 32; ++role) {
    const std::string place = "QVAccountRoleInformation.role_info[" + std::to_string(role) + ']';
    named += told(place + ".role_name").empty() ? 0 : 1;
  }
  EXPECT_EQ(numberAt("UnitInformation.l_info.role_count"), named);
  expectSame(
      "UnitInformation",
      "l_info.rg_count = RaidGroupInformation.rg#; l_info.lu_count = LogicalUnit#; l_info.hg_count "
      "= HGList.ctl[0].port[0].hg#; l_info.account_count = AccountInformation.account_info#; "
      "l_info.pool_count = PoolInformation.sys.pool#; l_info.iscsi_target_count = "
      "iSCSITargetInformationAll.ctl[0].port[0].target#; l_info.iscsi_target_count = "
      "iSCSITargetInformationAll.ctl[1].port[1].target_max_count; l_info.iscsi_chap_user_count = "
      "iSCSICHAPUserInformationAll.ctl[0].port[0].user#; l_info.iscsi_chap_user_count = "
      "iSCSICHAPUserInformationAll.ctl[1].port[1].user_max_count; l_info.iscsi_initiator_count = "
      "iSCSIInitiatorInformationAll.ctl[1].port[1].initiator_max_count; p_info.unit_count = "
      "DiskDriveStatusAll.unit#; p_info.hdd_hdu_count = DiskDriveStatusAll.unit[0].drives#; "
      "p_info.port_count = UnitCondition.ctl0_port[*] + UnitCondition.ctl1_port[*]");
}

}  // namespace
}  // namespace quorvelj::testing
