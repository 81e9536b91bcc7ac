// The whole array in one call: every member where the record has it, and of the right class.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

using AllInformation = RegisteredUnit;

TEST_F(AllInformation, Whole) {
  // The first and the last word of members all over the record, and of the record itself.
  expectFromUnit(
      "QV_GetAllInformation", 76038764,
      Members{textAt(0, 9, "unit_conditions[0].micro"),
              textAt(3668, 12, "unit_conditions[1].device_type_name"),
              int32At(3680, "drive_status[0].port_no"),
              int32At(18076, "drive_status[449].drv_alert_state"),
              textAt(18080, 9, "drive_info[0].vendor"),
              textAt(59468, 12, "drive_info[449].drive_type_name"), int32At(59480, "raid[0].rgnum"),
              int32At(64516, "raid[89].unit_type_sub_code"), int32At(64520, "raid_info.rg_count"),
              int32At(104520, "raid_info.rgdrv[59][29].paritygroup_no"),
              int32At(104524, "lu[0].luNumber"), int32At(497736, "lu[4095].unit_type_sub_code")} +
          Members{int32At(497740, "lu_coup.mrcf_lite"),
                  int32At(1939536, "lu_coup.coupling[8191].copy_speed"),
                  int32At(1939540, "integration_lu.integration_lu"),
                  int32At(2996312, "integration_lu2.integration_lu"),
                  int32At(3258460, "integration_lu2.unite_info[8191].next_lun"),
                  int32At(3258508, "dm_lu.mode"), int32At(3258540, "target_id[0][0].ctrl_flag"),
                  int32At(3283344, "target_id[1][1].ctrl_flag"),
                  int32At(3291768, "lan_info[1].negotiation"),
                  int32At(3292776, "qvuser_lan_info.ipv6_used"),
                  int8At(3292784, "sync_ctrl[0].port_val[0].board_type"),
                  int8At(3292799, "sync_ctrl[1].port_val[3].rate"),
                  int32At(3292824, "rest_info.no_copyback_allunit"),
                  textAt(3598108, 8, "fibre_info[0].product_number")} +
          Members{textAt(3903364, 8, "fibre_info[1].product_number"),
                  int32At(3903372, "user_reg_info.num"), int32At(3907180, "comdev.mrcf_lite"),
                  int32At(3909368, "rvrfsrc.rvrfsrc_option"),
                  int32At(3911128, "unit_info.b_info.add_info_index"), int32At(3911636, "alert[0]"),
                  int32At(3911640, "alert[1]"), uint8At(3911644, "hg.lun_manage"),
                  textAt(3981260, 33, "hg.ctl[1].port[7].hg[127].hgname"),
                  int32At(4128484, "lumap.HostGroupValid")} +
          Members{int32At(37551980, "lumap.ctl[1].port[7].hg[254].lu[2047]"),
                  int32At(37551984, "wwn.lun_security_opt"), int32At(37849044, "wwnhg.lun_manage"),
                  int32At(38005000, "port_num.mode"), int32At(38236532, "pool_info.option"),
                  int32At(38255820, "pair_info.option"),
                  int32At(64589236, "pair_info.lu[4093].m_info[31].copy_speed"),
                  int32At(64589240, "luguard.option"),
                  int32At(64982460, "luguard.lu[8191].retention_term"),
                  int32At(64982476, "quickfmtopt.format_mode"),
                  int32At(65113556, "quickfmtstatus.lu[8191].waiting_number")} +
          Members{int32At(65113560, "hgparamlist.platform_count"),
                  int32At(65536428, "correctstatus.lu[8191].waiting_number"),
                  int32At(65536432, "zencopy.option"),
                  bytesAt(65651128, 8192, "mapguard.lumap_guard"),
                  textAt(65659320, 5, "unit_identifier.equipment_id"),
                  int32At(65659360, "farlink_info.option"),
                  int32At(66806248, "flacopy_info.option"), int32At(68478832, "flaopt_info.option"),
                  int32At(68529316, "maintelaninfo.ctl[0].valid_index"),
                  int32At(68530636, "mainte_avail.available_count")} +
          Members{int32At(68532012, "iscsi_port.ctl[0].port[0].port_valid"),
                  int32At(68534700, "iscsi_target.option"),
                  int32At(70852400, "iscsi_initiator.option"),
                  int32At(72081460, "iscsi_logininitiator.ctl[0].port[0].port_valid"),
                  int32At(73015540, "chap_user.option"),
                  int32At(75735544, "isns.ctl[0].port[0].port_valid"),
                  int32At(75736440, "drive_response_diag.valid"),
                  int32At(75736464, "auditlog_info.option"),
                  int32At(75736564, "auditlog_info.auditlog_internallog.internallog_used")} +
          Members{int32At(75736568, "lu_migration.option"),
                  int32At(75916760, "role.role_valid_index"),
                  textAt(75924988, 257, "account.account_info[0].user_id"),
                  int32At(75936416, "account_option.option_info.password_min_length"),
                  int32At(75936432, "spin_downup.option"),
                  int32At(76038744, "spin_downup.lu[8191].lu_power_saving_detail"),
                  int32At(76038748, "cfg"), int32At(76038752, "ctrl_condition[0]"),
                  int32At(76038756, "ctrl_condition[1]"), int32At(76038760, "last_lu")});
}

TEST_F(AllInformation, WholeByTheSimulator) {
  const jobject all = information("QV_GetAllInformation");
  // What is there of classes of which no field is known.
  for (const char* const member :
       {"turbo_lu", "prefetch_info", "verify", "boot_opt", "on_sysparam", "on_tuning", "tuning",
        "pre_tuning", "cache_prt", "timezonelist", "timeinfo", "systemluall", "userluall",
        "nasosstatus", "hgopt", "portopt", "nnclaninfo"}) {
    EXPECT_NE(get(all, member), "null") << member;
  }
  expectFields(all, {{"unit_conditions", "UnitCondition[2]"},
                     {"on_opt", "NowWZParameter[2]"},
                     {"pair_info.lu", "PairLUInfo[4094]"},
                     {"account.account_info[0].user_id", "admin"}});
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
        Members{textAt(4, 9, "unit_conditions[0].micro")} +
            int32sAt(4192, {"alert[0]", "alert[1]", "alert_sa", "ctrl_condition[0]"}) +
            Members{int32At(4212, "diskdrive_status.unit[0].drive_mount_count"),
                    int32At(227892, "rec_status_valid"), int32At(227912, "rec_status.unit_no"),
                    int32At(227916, "raid_info.rg_count"), int32At(267920, "lu[0].luNumber"),
                    int32At(1054348, "lu[8191].unit_type_sub_code")} +
            int32sAt(1551812, {"mapping_mode", "battery_config.battery_count"}) +
            int32sAt(1552064, {"localled_info.unit[59]", "connectedCTL"}));
  slice("BaseAdditional", 98804,
        {int32At(4, "hgparamid[0].plat_id_count"), int32At(6744, "hgparamid[1].plat_id_count"),
         int32At(13484, "hgparamlist2.platform_count"), int32At(33260, "ctlportkind.portkind_ctl0"),
         int32At(98800, "lumap_lun.lu_assign[8191][1]")});
  slice("HG", 225436, {uint8At(4, "hg.lun_manage"), int32At(69656, "wwnhg.lun_manage")});
  slice("iSCSI", 7204432,
        {int32At(4, "iscsi_port.ctl[0].port[0].port_valid"), int32At(2692, "iscsi_target.option"),
         int32At(7203536, "isns.ctl[0].port[0].port_valid"),
         int32At(7204428, "isns.ctl[1].port[7].port_num")});
  slice("Mapping", 33431696,
        {bytesAt(4, 8192, "mapguard.lumap_guard"), int32At(8196, "lumap.HostGroupValid"),
         int32At(33431692, "lumap.ctl[1].port[7].hg[254].lu[2047]")});
  slice("Host", 176692,
        {int32At(147048, "hgparamid[0].plat_id_count"),
         int32At(160528, "hgparamlist2.platform_count")});
  slice("Config", 627648,
        {textAt(610508, 8, "fibre_info[1].product_number"),
         int32At(611672, "port_num.ctl[0].valid_index"), int32At(627448, "rest_info.mode"),
         int32At(627640, "quickfmtopt.format_mode")});
  slice("PP", 699924,
        {int32At(48, "user_reg_info.num"), int32At(56, "luguard.option"),
         int32At(416652, "account_option.option_info.password_min_length"),
         int32At(699172, "spin_downup.lu[8191].lu_power_saving_detail")});
  slice("Replication", 30774116,
        {int32At(4, "pool_info.option"), int32At(19292, "rvrfsrc.rvrfsrc_option"),
         int32At(21052, "flaopt_info.option"), int32At(21084, "vvol_info.vvol_count"),
         int32At(152160, "ctg_def.gmss_info[0].ctg_valid"), int32At(1620584, "pair_info.option"),
         int32At(30773476, "iscsi_rmt.arrayunit[0].path_valid")});
  slice("Tuning", 460896,
        {int32At(231516, "luowner.count"), int32At(460892, "luowner.lu[8191].cpucore_num")});
}

}  // namespace
}  // namespace quorvelj::testing
