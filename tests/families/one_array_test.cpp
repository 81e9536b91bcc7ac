// What the library tells of one array in several places: the same question, asked in two ways.
#include <fstream>

#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

/// An array with RAID groups 0 and 3, the LUs 1, 5 and 4000, LU 5 in a pool, a copy pair and a host
/// group.
class OneArray : public RegisteredUnit {
 protected:
  OneArray() {
    EXPECT_EQ(createGroup(0), "");
    const jobject mirrored =
        create("CreateRaidGroup",
               {{"rgnum", "3"}, {"level", "1"}, {"parity_hdu_count", "2"}, {"parity_count", "2"}});
    setLength(mirrored, "rgdrv", 0);
    EXPECT_EQ(run("QV_CreateRaidGroup", mirrored), "");
    EXPECT_EQ(createLu(1, 0, 1, 7), "");
    EXPECT_EQ(createLu(5, 0, 0, 4096), "");
    EXPECT_EQ(createLu(4000, 3, 0, 8192), "");
    EXPECT_EQ(run("QV_PoolLUAdd", 2, 3, 5), "");
    EXPECT_EQ(run("QV_CreateHG", 1, 3, 9, create("HGInfo", {{"hgname", "hosts"}})), "");
    const jobject mapping = javaEnv()->GetObjectArrayElement(
        static_cast<jobjectArray>(information("QV_GetLuMappingList", 1, 3, 9)), 1);
    set(mapping, "lu[2047]", "4000");
    EXPECT_EQ(run("QV_SetLuMappingList", 1, 3, 9, mapping), "");
    EXPECT_EQ(run("QV_CreateGemlynPair", create("CreateGemlynPair", {{"ctg_info.ctg_name", ""},
                                                                     {"pair_info.pair_name", "p"},
                                                                     {"pair_info.pvol_lun", "1"},
                                                                     {"pair_info.pair_lun", "5"}})),
              "");
  }

  static std::int64_t intOf(jobject object, const std::string& path) {
    return std::stoll(get(object, path));
  }
  /// The blocks in two words whose paths end in "_h" and "_l".
  static std::int64_t blocksOf(jobject object, const std::string& path) {
    return intOf(object, path + "_h") << 32 | (intOf(object, path + "_l") & 0xFFFFFFFF);
  }
  /// The sum of an int over the elements of an array.
  static std::int64_t sum(jobject object, const std::string& array, int length,
                          const std::string& field) {
    std::int64_t total = 0;
    for (int index = 0; index < length; ++index) {
      total += intOf(object, array + '[' + std::to_string(index) + ']' + field);
    }
    return total;
  }
  static std::string slotAt(const std::string& array, int enclosure, int slot) {
    return array + '[' + std::to_string(enclosure) + "].drives[" + std::to_string(slot) + "].";
  }
  static std::string at(const std::string& array, int row, int column) {
    return array + '[' + std::to_string(row) + "][" + std::to_string(column) + ']';
  }
  jobject condition() {
    return call("QV_GetArrayCondition",
                {unit_,
                 create("ArrayConditionRequest",
                        {{"login_request", "1"}, {"user_id", "admin"}, {"passwd", "quorvel"}})})
        .result;
  }
  jobject slice(const std::string& name) {
    return information(("QV_GetAllInfo_" + name).c_str(), create("ControllerRequest"));
  }

  /// One answer of two pages, and not the one of a page that tells nothing.
  struct Same {
    jobject page;
    std::string path;
    jobject otherPage;
    std::string otherPath;
  };
  static void expectSame(const std::vector<Same>& pairs) {
    for (const Same& same : pairs) {
      const std::string value = get(same.page, same.path);
      EXPECT_EQ(value, get(same.otherPage, same.otherPath)) << same.path << ", " << same.otherPath;
      EXPECT_TRUE(value != "0" && !value.empty()) << same.path;
    }
  }
};

constexpr int kEnclosures = 60;
constexpr int kSlots = 30;

TEST_F(OneArray, RaidGroupsAreMadeOfMountedDrives) {
  const jobject groups = information("QV_GetRaidGroupInformation");
  const jobject status = information("QV_GetDiskDriveStatusAll");
  int used = 0;
  int mounted = 0;
  for (int enclosure = 0; enclosure < kEnclosures; ++enclosure) {
    for (int slot = 0; slot < kSlots; ++slot) {
      const bool isMounted = get(status, slotAt("unit", enclosure, slot) + "mount") == "1";
      const bool isUsed = get(groups, at("rgdrv", enclosure, slot) + ".valid_index") == "1";
      EXPECT_TRUE(isMounted || !isUsed) << enclosure << ", " << slot;
      mounted += isMounted ? 1 : 0;
      used += isUsed ? 1 : 0;
    }
  }
  EXPECT_EQ(used, 14) << "2 x 5 and 2 x 2 drives";
  const jobject summary = condition();
  EXPECT_EQ(intOf(summary, "drive_count"), mounted);
  EXPECT_EQ(intOf(summary, "unused_drive_count"), mounted - used);
  EXPECT_EQ(sum(status, "unit", kEnclosures, ".drive_mount_count"), mounted);
  EXPECT_EQ(blocksOf(summary, "all_drive_capa") - blocksOf(summary, "unused_drive_capa"),
            10 * intOf(groups, "rg[0].minimum_capa") + 4 * intOf(groups, "rg[1].minimum_capa"));
  EXPECT_EQ(run("QV_CreateRaidGroup", create("CreateRaidGroup", {{"rgnum", "4"},
                                                                 {"level", "0"},
                                                                 {"parity_hdu_count", "5"},
                                                                 {"parity_count", "1"},
                                                                 {"rgdrv[0].unit_no", "0"}})),
            "DiskArrayException 20503")
      << "no enclosure has 5 drives left";
}

TEST_F(OneArray, FlatDrivesAreThoseByEnclosure) {
  const jobject flat = information("QV_GetDriveInformationAll");
  const jobject flatStatus = information("QV_GetDriveStatus");
  const jobject all = information("QV_GetDiskDriveInformationAll");
  const jobject allStatus = information("QV_GetDiskDriveStatusAll");
  const jobject parts = information("QV_GetPartsList");
  for (int index = 0; index < 450; ++index) {
    const std::string place = '[' + std::to_string(index) + "].";
    const std::string slot = slotAt("unit", index / kSlots, index % kSlots);
    const std::string serial = get(flat, place + "serial");
    EXPECT_EQ(serial, get(all, slot + "serial")) << index;
    EXPECT_EQ(serial, get(parts, at("drive", index / kSlots, index % kSlots) + ".serial")) << index;
    EXPECT_EQ(get(flatStatus, place + "mount"), serial.empty() ? "0" : "1") << index;
    EXPECT_EQ(get(allStatus, slot + "mount"), serial.empty() ? "0" : "1") << index;
  }
  expectSame(
      {{information("QV_GetDriveInformation", 1, 3), "serial", all, "unit[1].drives[3].serial"}});
}

TEST_F(OneArray, LogicalUnits) {
  const jobject list = information("QV_GetLogicalUnit");
  const jobject groups = information("QV_GetRaidGroupInformation");
  const jobject guards = information("QV_GetLuGuardInformation");
  const jobject summary = condition();
  EXPECT_EQ(sum(list, "", 8192, ".lu_valid"), 3);
  EXPECT_EQ(sum(guards, "lu", 8192, ".lu_valid"), 3);
  EXPECT_EQ(intOf(information("QV_GetLuOwnership"), "count"), 3);
  EXPECT_EQ(intOf(summary, "lu_count"), 3);
  EXPECT_EQ(sum(groups, "rg", 200, ".lu_count"), 3);
  EXPECT_EQ(intOf(call("QV_GetLastLogicalUnit", {unit_}).result, ""), 4000);

  std::int64_t ofLus = 0;
  for (const std::string lun : {"[1].", "[5].", "[4000]."}) {
    ofLus += blocksOf(list, lun + "capacity");
  }
  EXPECT_EQ(blocksOf(summary, "all_lu_capa"), ofLus);
  const jobject flat = call("QV_GetRaidGroups", {unit_}).result;
  std::int64_t taken = 0;
  for (const std::string group : {"0", "1"}) {
    const std::string detail = "rg[" + group + "].";
    taken += blocksOf(groups, detail + "total_capa") - blocksOf(groups, detail + "rest_capa");
    EXPECT_EQ(get(flat, '[' + group + "].rgnum"), get(groups, detail + "rgnum"));
    EXPECT_EQ(get(flat, '[' + group + "].rest"), get(groups, detail + "rest_capa_l"));
    const jobject areas =
        information("QV_GetRGAreaInformation", static_cast<int>(intOf(groups, detail + "rgnum")));
    std::int64_t lus = 0;
    std::int64_t rest = 0;
    for (int index = 0; index < intOf(areas, "area_count"); ++index) {
      const std::string area = "area[" + std::to_string(index) + "].";
      const bool free = get(areas, area + "lun") == "-1";
      lus += free ? 0 : 1;
      rest += free ? blocksOf(areas, area + "area_capa") : 0;
    }
    EXPECT_EQ(lus, intOf(groups, detail + "lu_count")) << group;
    EXPECT_EQ(rest, blocksOf(groups, detail + "rest_capa")) << group;
  }
  EXPECT_EQ(taken, ofLus);
  EXPECT_EQ(intOf(groups, "rg_count"), 2);
  EXPECT_EQ(get(flat, "[2].rgnum"), "-1");
}

TEST_F(OneArray, PairsPoolsAndCounters) {
  const jobject list = information("QV_GetLogicalUnit");
  const jobject pairs = information("QV_GetPairInformation");
  const jobject pools = information("QV_GetPoolInformation");
  expectSame({{pairs, "pair_count", information("QV_GetPairInformationSimple"), "pair_count"},
              {pairs, "pair_count", information("QV_GetCouplingInfo"), "coupling_num"},
              {pairs, "lu[0].capacity_l", list, "[1].capacity_l"},
              {pairs, "sys.pool[0].pool_no", pools, "sys.pool[3].pool_no"},
              {pairs, "sys.pool[0].poolcapa_l", pools, "sys.pool[3].allcapa_l"},
              {pairs, "sys.pool_enable_count", pools, "sys.pool_enable_count"},
              {pools, "sys.pool[3].allcapa_l", list, "[5].capacity_l"}});
  const jobject counters = information("QV_GetPerformanceAll", 0);
  const jobject groups = information("QV_GetRaidGroupInformation");
  EXPECT_EQ(sum(counters, "[0].lu", 8192, ".valid"), 3);
  EXPECT_EQ(sum(counters, "[0].rg", 200, ".valid"), 2);
  EXPECT_EQ(sum(counters, "[0].lu", 8192, ".read_count"),
            sum(counters, "[0].rg", 200, ".read_count"));
  EXPECT_EQ(sum(counters, "[0].port", 8, ".valid"), 8);
  for (int slot = 0; slot < kSlots; ++slot) {
    EXPECT_EQ(get(counters, at("[0].drive", 0, slot) + ".drive_info.valid"),
              get(groups, at("rgdrv", 0, slot) + ".valid_index"))
        << slot;
  }
}

TEST_F(OneArray, PortsAndHostGroups) {
  const jobject list = information("QV_GetHGList");
  const jobject mapping = information("QV_GetLuMappingListAll");
  const jobject fibre = information("QV_GetFibreInformation");
  const jobject iscsi = information("QV_GetiSCSIPortInformation");
  const jobject targets = information("QV_GetiSCSITargetInformationAll");
  const jobject shown = information("QV_GetUnitCondition", 0);
  std::int64_t groups = 0;
  for (const std::string controller : {"0", "1"}) {
    for (int number = 0; number < 8; ++number) {
      const std::string port = "].port[" + std::to_string(number) + ']';
      const bool isFibre = !get(fibre, '[' + controller + port + ".port_name").empty();
      const bool isIscsi = get(iscsi, "ctl[" + controller + port + ".port_valid") == "1";
      EXPECT_NE(isFibre, isIscsi) << controller << port;
      EXPECT_EQ(intOf(fibre, '[' + controller + "].port_valid") >> number & 1, isFibre ? 1 : 0);
      EXPECT_EQ(get(shown, "ctl" + controller + "_port[" + std::to_string(number) + ']'), "1");
      groups += sum(list, "ctl[" + controller + port + ".hg", 128, ".valid");
      EXPECT_EQ(get(mapping, "ctl[" + controller + port + ".hg_tg_max_count"), "128");
      EXPECT_EQ(sum(targets, "ctl[" + controller + port + ".target", 255, ".target_valid"),
                intOf(targets, "ctl[" + controller + port + ".target_count"));
    }
  }
  EXPECT_EQ(groups, 17) << "one group of each port, and one more";
  EXPECT_EQ(get(mapping, "ctl[1].port[3].hg[9].lu[2047]"), "4000");
  const jobject assigned =
      information("QV_GetLuMappingPortAssignInfo", create("ControllerRequest"));
  EXPECT_EQ(get(assigned, "lu_assign[4000]"), "[0, 8]");
}

TEST_F(OneArray, BundlesTellWhatThePagesTell) {
  call("QV_RegistUser", {unit_, number(0), create("ArrayUser", {{"user", "u"}, {"passwd", "p"}})});
  const jobject all = information("QV_GetAllInformation");
  const jobject base = slice("Base");
  const jobject groups = information("QV_GetRaidGroupInformation");
  const jobject list = information("QV_GetLogicalUnit");
  const jobject replication = slice("Replication");
  const jobject alert = information("QV_AlertCheck", 0);
  const std::string group = "ctl[1].port[3].hg[9].hgname";
  const std::string mapped = "ctl[1].port[3].hg[9].lu[2047]";
  expectSame(
      {{all, "raid_info.rg_count", groups, "rg_count"},
       {all, "raid_info.rg[1].lu_count", groups, "rg[1].lu_count"},
       {all, "lu[4000].capacity_l", list, "[4000].capacity_l"},
       {all, "last_lu", call("QV_GetLastLogicalUnit", {unit_}).result, ""},
       {all, "raid[1].rgnum", groups, "rg[1].rgnum"},
       {all, "drive_status[33].mount", information("QV_GetDriveStatus"), "[33].mount"},
       {all, "drive_info[33].serial", base, "diskdrive_info.unit[1].drives[3].serial"},
       {all, "hg." + group, information("QV_GetHGList"), group},
       {all, "lumap." + mapped, information("QV_GetLuMappingListAll"), mapped},
       {all, "pair_info.pair_count", information("QV_GetPairInformation"), "pair_count"},
       {all, "alert[1]", alert, ""},
       {all, "user_reg_info.num", slice("PP"), "user_reg_info.num"},
       {all, "fibre_info[1].port_valid", slice("Config"), "fibre_info[1].port_valid"},
       {all, "unit_info.l_info.lu_count", information("QV_GetUnitInformation"), "l_info.lu_count"},
       {base, "raid_info.rg_count", all, "raid_info.rg_count"},
       {base, "raid_info.rgdrv[0][13].valid_index", all, "raid_info.rgdrv[0][13].valid_index"},
       {base, "lu[4000].capacity_l", all, "lu[4000].capacity_l"},
       {base, "diskdrive_status.unit[1].drive_mount_count", information("QV_GetDiskDriveStatusAll"),
        "unit[1].drive_mount_count"},
       {base, "alert[0]", alert, ""},
       {base, "mapping_mode", all, "lumap.mapping_mode"},
       {slice("BaseAdditional"), "lumap_lun.lu_assign[4000][1]",
        information("QV_GetLuMappingPortAssignInfo", create("ControllerRequest")),
        "lu_assign[4000][1]"},
       {slice("HG"), "hg." + group, all, "hg." + group},
       {slice("iSCSI"), "iscsi_target.ctl[1].port[1].target_count", all,
        "iscsi_target.ctl[1].port[1].target_count"},
       {slice("Mapping"), "lumap." + mapped, all, "lumap." + mapped},
       {replication, "pair_info.pair_count", all, "lu_coup.coupling_num"},
       {replication, "pool_info.sys.pool_enable_count", all, "pool_info.sys.pool_enable_count"},
       {slice("Tuning"), "luowner.count", condition(), "lu_count"}});
}

TEST_F(OneArray, FirmwareAndAddresses) {
  const std::string file = temporary("firmware");
  const std::string collection = temporary("collection");
  std::ofstream(file) << "0B22/C";
  for (const char* const revision : {"0957/A", "0B22/C"}) {
    const jobject shown = information("QV_GetUnitCondition", 0);
    const jobject base = slice("Base");
    EXPECT_EQ(
        call("QV_PerformanceDataInitialize", {session_, text(collection), number(60), number(0)})
            .failure,
        "");
    for (const auto& [page, path] :
         {std::pair{shown, "micro"}, std::pair{shown, "micro_pair"},
          std::pair{information("QV_GetUnitInformation"), "b_info.micro"},
          std::pair{base, "unit_info.b_info.micro"}, std::pair{base, "unit_conditions[1].micro"},
          std::pair{call("QV_PerformanceInputMngFile", {text(collection)}).result, "microver"}}) {
      EXPECT_EQ(get(page, path), revision) << path;
    }
    EXPECT_EQ(run("QV_MicroFileConcatEx", file), "");
    EXPECT_EQ(run("QV_MicroDownload", 0, 0, 0), "");
    for (int question = 0; question < 4; ++question) {
      call("QV_GetMicroDownloadCount", {unit_});
    }
    EXPECT_EQ(run("QV_MicroReplaceEx", 0), "");
    EXPECT_EQ(run("QV_MicroReplaceEx", 0), "");
    EXPECT_EQ(run("QV_CompleteMicroReplace", 0), "");
  }
  const jobject lan = information("QV_GetLANInformation", 1);
  const jobject shown = information("QV_GetUnitCondition", 0);
  expectSame(
      {{information("QV_GetENCMicroInformationEx"), "read_rev.bas_rev.rev_main",
        information("QV_GetENCStatusList"), "unit[1].enc[1].enc_rev.rev_main"},
       {lan, "ip_address", shown, "ctl1_ip"},
       {lan, "ip_address", call("QV_GetUnitParam", {unit_}).result, "ctl1"},
       {lan, "ip_address", information("QV_GetQVUserLANInformation"), "ctl[1].current_ipaddress"},
       {shown, "serial", information("QV_GetPartsList"), "array_serial"},
       {shown, "serial", information("QV_GetRvrfSrcPath"), "self_serial_no"}});
}

TEST_F(OneArray, LimitsAreTheLengthsOfTheLists) {
  const jobject limits = information("QV_GetUnitInformation");
  const jobject status = information("QV_GetDiskDriveStatusAll");
  const jobject targets = information("QV_GetiSCSITargetInformationAll");
  const jobject users = information("QV_GetiSCSICHAPUserInformationAll");
  const jobject initiators = information("QV_GetiSCSIInitiatorInformationAll");
  const jobject roles = information("QV_GetQVAccountRoleInformation");
  int named = 0;
  for (int role = 0; role < 32; ++role) {
    named += get(roles, "role_info[" + std::to_string(role) + "].role_name").empty() ? 0 : 1;
  }
  EXPECT_EQ(intOf(limits, "l_info.role_count"), named);
  const auto expectLength = [&](const char* limit, const jobject page, const char* path) {
    const std::string shown = get(page, path);
    EXPECT_EQ('[' + get(limits, limit) + ']', shown.substr(shown.find('['))) << limit;
  };
  expectLength("l_info.rg_count", information("QV_GetRaidGroupInformation"), "rg");
  expectLength("l_info.lu_count", information("QV_GetLogicalUnit"), "");
  expectLength("l_info.hg_count", information("QV_GetHGList"), "ctl[0].port[0].hg");
  expectLength("l_info.account_count", information("QV_GetAccountInformation"), "account_info");
  expectLength("l_info.pool_count", information("QV_GetPoolInformation"), "sys.pool");
  expectLength("l_info.iscsi_target_count", targets, "ctl[0].port[0].target");
  expectLength("l_info.iscsi_chap_user_count", users, "ctl[0].port[0].user");
  expectLength("p_info.unit_count", status, "unit");
  expectLength("p_info.hdd_hdu_count", status, "unit[0].drives");
  const jobject shown = information("QV_GetUnitCondition", 0);
  EXPECT_EQ(intOf(limits, "p_info.port_count"),
            sum(shown, "ctl0_port", 8, "") + sum(shown, "ctl1_port", 8, ""));
  expectSame(
      {{limits, "l_info.iscsi_target_count", targets, "ctl[1].port[1].target_max_count"},
       {limits, "l_info.iscsi_chap_user_count", users, "ctl[1].port[1].user_max_count"},
       {limits, "l_info.iscsi_initiator_count", initiators, "ctl[1].port[1].initiator_max_count"}});
}

}  // namespace
}  // namespace quorvelj::testing
