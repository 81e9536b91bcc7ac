// The whole array in one call: every member where the record has it, and of the right class.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using AllInformation = RegisteredUnit;

// Of each record in a bundle the first known value shows its place; the record has a test of its
// own. Where there is a light form, the last value shows that it is the whole one.
TEST_F(AllInformation, Whole) {
  expectFromUnit(
      "QV_GetAllInformation", 76038764,
      "0:text9 unit_conditions[0].micro; 1840:text9 unit_conditions[1].micro; 3680:int32 "
      "drive_status[0].port_no; 18048:int32 drive_status[449].port_no; 18080:text9 "
      "drive_info[0].vendor; 59388:text9 drive_info[449].vendor; 59480:int32 raid[0].rgnum; "
      "64464:int32 raid[89].rgnum; 64520:int32 raid_info.rg_count; 104524:int32 lu[0].luNumber; "
      "497644:int32 lu[4095].luNumber; 497740:int32 lu_coup.mrcf_lite; 1939540:int32 "
      "integration_lu.integration_lu; 2996312:int32 integration_lu2.integration_lu; visited "
      "turbo_lu; 3258508:int32 dm_lu.mode; 3258540:int32 target_id[0][0].ctrl_flag; 3283344:int32 "
      "target_id[1][1].ctrl_flag; 3291612:uint8 lan_info[0].dhcp; 3291692:uint8 lan_info[1].dhcp; "
      "3291772:int32 qvuser_lan_info.ctl[0].support_index; 3292784:int8 "
      "sync_ctrl[0].port_val[0].board_type; 3292792:int8 sync_ctrl[1].port_val[0].board_type; "
      "3292800:int32 rest_info.mode; visited prefetch_info verify; 3292860:int32 "
      "fibre_info[0].lun_security; 3598116:int32 fibre_info[1].lun_security; 3903372:int32 "
      "user_reg_info.num; 3907180:int32 comdev.mrcf_lite; visited on_opt; 3909368:int32 "
      "rvrfsrc.rvrfsrc_option; 3911128:int32 unit_info.b_info.add_info_index; 3911636:int32 "
      "alert[0] alert[1]; 3911644:uint8 hg.lun_manage; 3981456:int32 hgopt.HostGroupValid; "
      "4128356:int32 portopt.ctl[0].lip_mode[0]; 4128484:int32 lumap.HostGroupValid; "
      "37551980:int32 lumap.ctl[1].port[7].hg[254].lu[2047]; "
      "37551984:int32 wwn.lun_security_opt; 37849044:int32 wwnhg.lun_manage; visited boot_opt "
      "on_sysparam; 38004964:int32 port_num.ctl[0].valid_index; visited on_tuning tuning "
      "pre_tuning; 38236532:int32 pool_info.option; 38255820:int32 pair_info.option; "
      "64589236:int32 pair_info.lu[4093].m_info[31].copy_speed; "
      "64589240:int32 luguard.option; 64982464:int32 quickfmtopt.valid_index; 64982480:int32 "
      "quickfmtstatus.priority_mode; 65113560:int32 hgparamlist.platform_count; 65438128:int32 "
      "correctstatus.lu[0].status; 65536432:int32 zencopy.option; 65651128:bytes8192 "
      "mapguard.lumap_guard; 65659320:text5 unit_identifier.equipment_id; 65659360:int32 "
      "farlink_info.option; 66806248:int32 flacopy_info.option; 68478832:int32 flaopt_info.option; "
      "visited cache_prt timezonelist timeinfo systemluall userluall; 68529316:int32 "
      "maintelaninfo.ctl[0].valid_index; 68530636:int32 mainte_avail.available_count; "
      "68531188:int8 nnclaninfo.nnclaninfo_valid[0]; visited nasosstatus; 68532012:int32 "
      "iscsi_port.ctl[0].port[0].port_valid; 68534700:int32 iscsi_target.option; 70852400:int32 "
      "iscsi_initiator.option; 72081460:int32 iscsi_logininitiator.ctl[0].port[0].port_valid; "
      "73015540:int32 chap_user.option; 75735544:int32 isns.ctl[0].port[0].port_valid; "
      "75736440:int32 drive_response_diag.valid; 75736464:int32 auditlog_info.option; "
      "75736568:int32 lu_migration.option; 75916760:int32 role.role_valid_index; 75924992:text257 "
      "account.account_info[0].user_id; 75936416:int32 "
      "account_option.option_info.password_min_length; 75936432:int32 spin_downup.option; "
      "76038748:int32 cfg ctrl_condition[0] ctrl_condition[1] last_lu");
}

TEST_F(AllInformation, LightForm) {
  expectFields(information("QV_GetAllInformationLite"),
               "pair_info.lu=PairLUInfo[2046]; pair_info.ctl=PoolCtlCapa[2]; pair_info.sys=null; "
               "lumap.ctl[1].port[7].hg=LuMappingHGInfo[255]; lu=LogicalUnit[4096]");
  EXPECT_EQ(quorvelSimCallCount("QV_GetAllInformation"), 1);
}

TEST_F(AllInformation, Slices) {
  const jobject request = create("ControllerRequest");
  const std::vector<jobject> arguments{unit_, session_, request};
  expectRead("QV_GetAllInfo_HG", arguments, request, 2, 4, "0:int32 requestCTL");
  const auto slice = [&](const std::string& name, std::size_t size, const Members& members) {
    expectBuilt(("QV_GetAllInfo_" + name).c_str(), arguments, size,
                "0:int32 valid_index" + members);
  };
  slice("Base", 1552072,
        "4:text9 unit_conditions[0].micro; 1844:text9 unit_conditions[1].micro; 3684:int32 "
        "unit_info.b_info.add_info_index; 4192:int32 alert[0] alert[1] alert_sa ctrl_condition[0] "
        "ctrl_condition[1]; 4212:int32 diskdrive_status.unit[0].drive_mount_count; 62052:int32 "
        "diskdrive_info.unit[0].drive_mount_count; 227892:int32 rec_status_valid; 227896:int32 "
        "rec_status.valid; 227916:int32 raid_info.rg_count; 267920:int32 lu[0].luNumber; "
        "1054256:int32 lu[8191].luNumber; 1054352:int32 comdev.mrcf_lite; 1056444:int32 "
        "dm_lu.mode; 1056476:int32 quickfmtstatus.priority_mode; 1187556:int32 "
        "correctstatus.lu[0].status; 1285860:int32 integration_lu2.integration_lu; 1551812:int32 "
        "mapping_mode; 1551816:int32 battery_config.battery_count; 1551820:int32 "
        "localled_info.valid_index; 1552068:int32 connectedCTL");
  slice("BaseAdditional", 98804,
        "4:int32 hgparamid[0].plat_id_count; 6744:int32 hgparamid[1].plat_id_count; 13484:int32 "
        "hgparamlist2.platform_count; visited cache_prt; 33260:int32 ctlportkind.portkind_ctl0; "
        "33268:int32 lumap_lun.lu_assign[0][0]");
  slice("HG", 225436, "4:uint8 hg.lun_manage; 69656:int32 wwnhg.lun_manage");
  slice(
      "iSCSI", 7204432,
      "4:int32 iscsi_port.ctl[0].port[0].port_valid; 2692:int32 iscsi_target.option; 2320392:int32 "
      "iscsi_initiator.option; 3549452:int32 iscsi_logininitiator.ctl[0].port[0].port_valid; "
      "4483532:int32 chap_user.option; 7203536:int32 isns.ctl[0].port[0].port_valid");
  slice("Mapping", 33431696,
        "4:bytes8192 mapguard.lumap_guard; 8196:int32 lumap.HostGroupValid; 33431692:int32 "
        "lumap.ctl[1].port[7].hg[254].lu[2047]");
  slice("Host", 176692,
        "164:int32 hgopt.HostGroupValid; 147048:int32 hgparamid[0].plat_id_count; 153788:int32 "
        "hgparamid[1].plat_id_count; 160528:int32 hgparamlist2.platform_count");
  slice(
      "Config", 627648,
      "4:int32 fibre_info[0].lun_security; 305260:int32 fibre_info[1].lun_security; 610532:int32 "
      "portopt.ctl[0].lip_mode[0]; 610660:int32 qvuser_lan_info.ctl[0].support_index; 611672:int32 "
      "port_num.ctl[0].valid_index; 611712:int32 maintelaninfo.ctl[0].valid_index; 613032:int32 "
      "mainte_avail.available_count; visited timezonelist timeinfo; 627448:int32 rest_info.mode; "
      "visited verify boot_opt on_sysparam; 627628:int32 quickfmtopt.valid_index");
  slice("PP", 699924,
        "visited turbo_lu; 48:int32 user_reg_info.num; 56:int32 luguard.option; visited cache_prt; "
        "396892:int32 auditlog_info.option; 396996:int32 role.role_valid_index; 405228:text257 "
        "account.account_info[0].user_id; 416652:int32 "
        "account_option.option_info.password_min_length; 416668:int32 lu_migration.option; "
        "596860:int32 spin_downup.option; visited unit_powersaving");
  slice("Replication", 30774116,
        "4:int32 pool_info.option; 19292:int32 rvrfsrc.rvrfsrc_option; 21052:int32 "
        "flaopt_info.option; 21084:int32 vvol_info.vvol_count; 152160:int32 "
        "ctg_def.gmss_info[0].ctg_valid; 178784:int32 lu_coup.mrcf_lite; 1620584:int32 "
        "pair_info.option; 27954000:int32 pair_info.lu[4093].m_info[31].copy_speed; 27954004:int32 "
        "farlink_info.option; 29100892:int32 flacopy_info.option; "
        "30773476:int32 iscsi_rmt.arrayunit[0].path_valid");
  slice("Tuning", 460896, "visited on_tuning pre_tuning; 231516:int32 luowner.count");
}

}  // namespace
}  // namespace quorvelj::testing
