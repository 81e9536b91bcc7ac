// The whole array in one call: every member where the record has it, and of the right class.
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

/// The first and the last value of each member of the bundles, or of each element of it, at their
/// offsets in the record of the member.
struct Ends {
  std::string_view field;
  Member first;
  Member last{};
};
constexpr Ends kEnds[] = {
    {"unit_conditions", textAt(0, 9, "micro"), textAt(1828, 12, "device_type_name")},
    {"drive_status", int32At(0, "port_no"), int32At(28, "drv_alert_state")},
    {"drive_info", textAt(0, 9, "vendor"), textAt(80, 12, "drive_type_name")},
    {"raid", int32At(0, "rgnum"), int32At(52, "unit_type_sub_code")},
    {"raid_info", int32At(0, "rg_count"), int32At(40000, "rgdrv[59][29].paritygroup_no")},
    {"lu", int32At(0, "luNumber"), int32At(92, "unit_type_sub_code")},
    {"lu_coup", int32At(0, "mrcf_lite"), int32At(1441796, "coupling[8191].copy_speed")},
    {"integration_lu", int32At(0, "integration_lu"),
     int32At(1056768, "unite_info[511].child_lun[511]")},
    {"integration_lu2", int32At(0, "integration_lu"), int32At(262148, "unite_info[8191].next_lun")},
    {"dm_lu", int32At(0, "mode"), int32At(28, "dmlu[1].dmlu_lu")},
    {"target_id", int32At(0, "ctrl_flag"), int32At(72, "target_config.multi[15]")},
    {"lan_info", uint8At(0, "dhcp"), int32At(76, "negotiation")},
    {"qvuser_lan_info", int32At(0, "ctl[0].support_index"), int32At(1008, "set_ipversion")},
    {"sync_ctrl", int8At(0, "port_val[0].board_type"), int8At(7, "port_val[3].rate")},
    {"rest_info", int32At(0, "mode"), int32At(24, "no_copyback_allunit")},
    {"fibre_info", int32At(0, "lun_security"), textAt(305248, 8, "product_number")},
    {"user_reg_info", int32At(0, "num"), int32At(4, "option")},
    {"comdev", int32At(0, "mrcf_lite"), int32At(2088, "cmddev[127].rm_security")},
    {"rvrfsrc", int32At(0, "rvrfsrc_option"), int32At(1756, "arrayunit[7].line_band")},
    {"unit_info", int32At(0, "b_info.add_info_index"), int32At(504, "p_info.reserved[15]")},
    {"hg", uint8At(0, "lun_manage"), textAt(69616, 33, "ctl[1].port[7].hg[127].hgname")},
    {"hgopt", int32At(160, "HostGroupValid"),
     int32At(147036, "ctl[1].port[7].hg[254].middleware_id")},
    {"portopt", int32At(16, "ctl[0].lip_mode[0]"), int32At(140, "ctl[1].port_common_opt[7]")},
    {"lumap", int32At(0, "HostGroupValid"), int32At(33423496, "ctl[1].port[7].hg[254].lu[2047]")},
    {"wwn", int32At(0, "lun_security_opt")},
    {"wwnhg", int32At(0, "lun_manage")},
    {"port_num", int32At(0, "ctl[0].valid_index"), int32At(36, "mode")},
    {"pool_info", int32At(0, "option"), int32At(19284, "sys.pool[63].lu[63]")},
    {"pair_info", int32At(0, "option"), int32At(26333416, "lu[4093].m_info[31].copy_speed")},
    {"luguard", int32At(0, "option"), int32At(393220, "lu[8191].retention_term")},
    {"quickfmtopt", int32At(0, "valid_index"), int32At(12, "format_mode")},
    {"quickfmtstatus", int32At(0, "priority_mode"), int32At(131076, "lu[8191].waiting_number")},
    {"hgparamlist", int32At(0, "platform_count"),
     int32At(324560, "specialinfo[19].hgoptinfo.middleware_id")},
    {"correctstatus", int32At(0, "lu[0].status"), int32At(98300, "lu[8191].waiting_number")},
    {"zencopy", int32At(0, "option"), textAt(114690, 6, "lu[2047].remote_ldev")},
    {"mapguard", bytesAt(0, 8192, "lumap_guard")},
    {"unit_identifier", textAt(0, 5, "equipment_id")},
    {"farlink_info", int32At(0, "option"), int32At(1146884, "lu[8191].fence_level")},
    {"flacopy_info", int32At(0, "option"),
     int32At(1672580, "ctg[15].ctl[1].prediction_time.second")},
    {"flaopt_info", int32At(0, "option"), int32At(28, "queue_inhibit_time")},
    {"maintelaninfo", int32At(0, "ctl[0].valid_index"), int32At(1268, "nnc[3].connect_status")},
    {"mainte_avail", int32At(0, "available_count"), int32At(540, "rule_ipv6_base_value")},
    {"nnclaninfo", int8At(0, "nnclaninfo_valid[0]"), int32At(772, "set_nnclaninfo[3].set_status")},
    {"iscsi_port", int32At(0, "ctl[0].port[0].port_valid"),
     int32At(2684, "ctl[1].port[7].host_count")},
    {"iscsi_target", int32At(0, "option"),
     textAt(2317665, 35, "ctl[1].port[7].target[254].secret")},
    {"iscsi_initiator", int32At(0, "option"),
     bytesAt(1229025, 32, "ctl[1].port[7].initiator[255].target_bitmap")},
    {"iscsi_logininitiator", int32At(0, "ctl[0].port[0].port_valid"),
     textAt(933856, 224, "ctl[1].port[7].initiator[255].iscsi_name")},
    {"chap_user", int32At(0, "option"),
     bytesAt(2719970, 32, "ctl[1].port[7].user[511].target_bitmap")},
    {"isns", int32At(0, "ctl[0].port[0].port_valid"), int32At(892, "ctl[1].port[7].port_num")},
    {"drive_response_diag", int32At(0, "valid"), int32At(20, "autodiag_threshold")},
    {"auditlog_info", int32At(0, "option"), int32At(100, "auditlog_internallog.internallog_used")},
    {"lu_migration", int32At(0, "option"), int32At(180188, "pair_lu[4094].migration_error")},
    {"role", int32At(0, "role_valid_index"), textAt(7971, 257, "role_info[31].role_name")},
    {"account", textAt(0, 257, "account_info[0].user_id"),
     int32At(11252, "account_info[20].account_enable")},
    {"account_option", int32At(0, "option_info.password_min_length"),
     int32At(12, "additional_info.keep_alive_time")},
    {"spin_downup", int32At(0, "option"), int32At(102312, "lu[8191].lu_power_saving_detail")},
    {"diskdrive_status", int32At(0, "unit[0].drive_mount_count"),
     int32At(57836, "unit[59].drives[29].drv_alert_state")},
    {"diskdrive_info", int32At(0, "unit[0].drive_mount_count"),
     textAt(165828, 12, "unit[59].drives[29].drive_type_name")},
    {"rec_status", int32At(0, "valid"), int32At(16, "unit_no")},
    {"battery_config", int32At(0, "battery_count")},
    {"localled_info", int32At(0, "valid_index"), int32At(244, "unit[59]")},
    {"hgparamid", int32At(0, "plat_id_count"),
     textAt(6700, 40, "middleware[15].middleware_name_str")},
    {"hgparamlist2", int32At(0, "platform_count"), int32At(15360, "platinfo[19].middleware_count")},
    {"ctlportkind", int32At(0, "portkind_ctl0"), int32At(4, "portkind_ctl1")},
    {"lumap_lun", int32At(0, "lu_assign[0][0]"), int32At(65532, "lu_assign[8191][1]")},
    {"vvol_info", int32At(0, "vvol_count"), int32At(131072, "lu[8191].capacity_l")},
    {"ctg_def", int32At(0, "gmss_info[0].ctg_valid"),
     int32At(26620, "flfle_info[255].pair_status_detail1")},
    {"iscsi_rmt", int32At(0, "arrayunit[0].path_valid"),
     textAt(606, 33, "arrayunit[7].path[1].secret")},
    {"luowner", int32At(0, "count"), int32At(229376, "lu[8191].cpucore_num")}};

/// The offset of a member whose class has no known field: it is visited.
constexpr std::size_t kNowhere = SIZE_MAX;

class AllInformation : public RegisteredUnit {
 protected:
  /// The ends of members at their places in a bundle.
  static Members ends(std::initializer_list<Location> locations) {
    Members all;
    for (const auto& [offset, path] : locations) {
      if (offset == kNowhere) {
        all = all + visited(std::string(path));
        continue;
      }
      const std::string_view field = path.substr(0, path.find('['));
      const auto* const found = std::find_if(std::begin(kEnds), std::end(kEnds),
                                             [&](const Ends& row) { return row.field == field; });
      Members members{found->first};
      if (found->last.path != nullptr) {
        members.push_back(found->last);
      }
      all = all + at(offset, std::string(path) + '.', members);
    }
    return all;
  }
};

TEST_F(AllInformation, Whole) {
  expectFromUnit("QV_GetAllInformation", 76038764,
                 ends({{0, "unit_conditions[0]"},    {1840, "unit_conditions[1]"},
                       {3680, "drive_status[0]"},    {18048, "drive_status[449]"},
                       {18080, "drive_info[0]"},     {59388, "drive_info[449]"},
                       {59480, "raid[0]"},           {64464, "raid[89]"},
                       {64520, "raid_info"},         {104524, "lu[0]"},
                       {497644, "lu[4095]"},         {497740, "lu_coup"},
                       {1939540, "integration_lu"},  {2996312, "integration_lu2"},
                       {kNowhere, "turbo_lu"},       {3258508, "dm_lu"},
                       {3258540, "target_id[0][0]"}, {3283344, "target_id[1][1]"},
                       {3291612, "lan_info[0]"},     {3291692, "lan_info[1]"},
                       {3291772, "qvuser_lan_info"}, {3292784, "sync_ctrl[0]"},
                       {3292792, "sync_ctrl[1]"},    {3292800, "rest_info"},
                       {kNowhere, "prefetch_info"},  {kNowhere, "verify"},
                       {3292860, "fibre_info[0]"},   {3598116, "fibre_info[1]"},
                       {3903372, "user_reg_info"},   {3907180, "comdev"},
                       {kNowhere, "on_opt"},         {3909368, "rvrfsrc"},
                       {3911128, "unit_info"}}) +
                     int32sAt(3911636, "alert[0] alert[1]") +
                     ends({{3911644, "hg"},
                           {3981296, "hgopt"},
                           {4128340, "portopt"},
                           {4128484, "lumap"},
                           {37551984, "wwn"},
                           {37849044, "wwnhg"},
                           {kNowhere, "boot_opt"},
                           {kNowhere, "on_sysparam"},
                           {38004964, "port_num"},
                           {kNowhere, "on_tuning"},
                           {kNowhere, "tuning"},
                           {kNowhere, "pre_tuning"},
                           {38236532, "pool_info"},
                           {38255820, "pair_info"},
                           {64589240, "luguard"},
                           {64982464, "quickfmtopt"},
                           {64982480, "quickfmtstatus"},
                           {65113560, "hgparamlist"},
                           {65438128, "correctstatus"},
                           {65536432, "zencopy"},
                           {65651128, "mapguard"},
                           {65659320, "unit_identifier"},
                           {65659360, "farlink_info"},
                           {66806248, "flacopy_info"},
                           {68478832, "flaopt_info"},
                           {kNowhere, "cache_prt"},
                           {kNowhere, "timezonelist"},
                           {kNowhere, "timeinfo"},
                           {kNowhere, "systemluall"},
                           {kNowhere, "userluall"},
                           {68529316, "maintelaninfo"},
                           {68530636, "mainte_avail"},
                           {68531188, "nnclaninfo"},
                           {kNowhere, "nasosstatus"},
                           {68532012, "iscsi_port"},
                           {68534700, "iscsi_target"},
                           {70852400, "iscsi_initiator"},
                           {72081460, "iscsi_logininitiator"},
                           {73015540, "chap_user"},
                           {75735544, "isns"},
                           {75736440, "drive_response_diag"},
                           {75736464, "auditlog_info"},
                           {75736568, "lu_migration"},
                           {75916760, "role"},
                           {75924988, "account"},
                           {75936416, "account_option"},
                           {75936432, "spin_downup"}}) +
                     int32sAt(76038748, "cfg ctrl_condition[0] ctrl_condition[1] last_lu"));
}

// Objects of classes without a known field are made all the same.
TEST_F(AllInformation, ObjectsWithoutFields) {
  const jobject all = information("QV_GetAllInformation");
  expectFields(all, {{"turbo_lu", "TurboLu"},
                     {"prefetch_info", "PrefetchInformation"},
                     {"verify", "OnlineVerify"},
                     {"on_opt", "NowWZParameter[2]"},
                     {"on_opt[1]", "NowWZParameter"},
                     {"boot_opt", "BootOption"},
                     {"on_sysparam", "OnlineSystemParam"},
                     {"on_tuning", "OnlineTuningParam"},
                     {"tuning", "TuningParam"},
                     {"pre_tuning", "PrefetchTuning"},
                     {"cache_prt", "CachePartition"},
                     {"timezonelist", "TimeZoneList"},
                     {"timeinfo", "TimeInfo"},
                     {"systemluall", "NASSystemLUAll"},
                     {"userluall", "NASUserLUAll"},
                     {"nasosstatus", "NASOSStatusList"},
                     {"account.account_info[0].user_id", "admin"}});
  const jobject request = create("ControllerRequest");
  expectFields(information("QV_GetAllInfo_PP", request),
               {{"turbo_lu", "TurboLu"},
                {"cache_prt", "CachePartition"},
                {"unit_powersaving", "UnitPowerSavingInfo"}});
  expectFields(information("QV_GetAllInfo_Tuning", request),
               {{"on_tuning", "OnlineTuningParam"}, {"pre_tuning", "PrefetchTuning"}});
  expectFields(information("QV_GetAllInfo_Config", request),
               {{"timezonelist", "TimeZoneList"},
                {"verify", "OnlineVerify"},
                {"boot_opt", "BootOption"},
                {"on_sysparam", "OnlineSystemParam"}});
}

TEST_F(AllInformation, LightForm) {
  expectFields(information("QV_GetAllInformationLite"),
               {{"pair_info.lu", "PairLUInfo[2046]"},
                {"pair_info.ctl", "PoolCtlCapa[2]"},
                {"pair_info.sys", "null"},
                {"lumap.ctl[1].port[7].hg", "LuMappingHGInfo[255]"},
                {"lu", "LogicalUnit[4096]"}});
  EXPECT_EQ(quorvelSimCallCount("QV_GetAllInformation"), 1);
}

TEST_F(AllInformation, Slices) {
  const jobject request = create("ControllerRequest");
  const std::vector<jobject> arguments{unit_, session_, request};
  expectRead("QV_GetAllInfo_HG", arguments, request, 2, 4, {int32At(0, "requestCTL")});
  const auto slice = [&](const std::string& name, std::size_t size, const Members& members) {
    expectBuilt(("QV_GetAllInfo_" + name).c_str(), arguments, size,
                Members{int32At(0, "valid_index")} + members);
  };
  slice("Base", 1552072,
        ends({{4, "unit_conditions[0]"}, {1844, "unit_conditions[1]"}, {3684, "unit_info"}}) +
            int32sAt(4192, "alert[0] alert[1] alert_sa ctrl_condition[0] ctrl_condition[1]") +
            ends({{4212, "diskdrive_status"}, {62052, "diskdrive_info"}}) +
            int32sAt(227892, "rec_status_valid") +
            ends({{227896, "rec_status"},
                  {227916, "raid_info"},
                  {267920, "lu[0]"},
                  {1054256, "lu[8191]"},
                  {1054352, "comdev"},
                  {1056444, "dm_lu"},
                  {1056476, "quickfmtstatus"},
                  {1187556, "correctstatus"},
                  {1285860, "integration_lu2"}}) +
            int32sAt(1551812, "mapping_mode") +
            ends({{1551816, "battery_config"}, {1551820, "localled_info"}}) +
            int32sAt(1552068, "connectedCTL"));
  slice("BaseAdditional", 98804,
        ends({{4, "hgparamid[0]"},
              {6744, "hgparamid[1]"},
              {13484, "hgparamlist2"},
              {kNowhere, "cache_prt"},
              {33260, "ctlportkind"},
              {33268, "lumap_lun"}}));
  slice("HG", 225436, ends({{4, "hg"}, {69656, "wwnhg"}}));
  slice("iSCSI", 7204432,
        ends({{4, "iscsi_port"},
              {2692, "iscsi_target"},
              {2320392, "iscsi_initiator"},
              {3549452, "iscsi_logininitiator"},
              {4483532, "chap_user"},
              {7203536, "isns"}}));
  slice("Mapping", 33431696, ends({{4, "mapguard"}, {8196, "lumap"}}));
  slice("Host", 176692,
        ends({{4, "hgopt"},
              {147048, "hgparamid[0]"},
              {153788, "hgparamid[1]"},
              {160528, "hgparamlist2"}}));
  slice("Config", 627648,
        ends({{4, "fibre_info[0]"},
              {305260, "fibre_info[1]"},
              {610516, "portopt"},
              {610660, "qvuser_lan_info"},
              {611672, "port_num"},
              {611712, "maintelaninfo"},
              {613032, "mainte_avail"},
              {kNowhere, "timezonelist"},
              {kNowhere, "timeinfo"},
              {627448, "rest_info"},
              {kNowhere, "verify"},
              {kNowhere, "boot_opt"},
              {kNowhere, "on_sysparam"},
              {627628, "quickfmtopt"}}));
  slice("PP", 699924,
        ends({{kNowhere, "turbo_lu"},
              {48, "user_reg_info"},
              {56, "luguard"},
              {kNowhere, "cache_prt"},
              {396892, "auditlog_info"},
              {396996, "role"},
              {405224, "account"},
              {416652, "account_option"},
              {416668, "lu_migration"},
              {596860, "spin_downup"},
              {kNowhere, "unit_powersaving"}}));
  slice("Replication", 30774116,
        ends({{4, "pool_info"},
              {19292, "rvrfsrc"},
              {21052, "flaopt_info"},
              {21084, "vvol_info"},
              {152160, "ctg_def"},
              {178784, "lu_coup"},
              {1620584, "pair_info"},
              {27954004, "farlink_info"},
              {29100892, "flacopy_info"},
              {30773476, "iscsi_rmt"}}));
  slice("Tuning", 460896,
        ends({{kNowhere, "on_tuning"}, {kNowhere, "pre_tuning"}, {231516, "luowner"}}));
}

}  // namespace
}  // namespace quorvelj::testing
