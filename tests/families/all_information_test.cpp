// The whole array in one call: every member where the record has it, and of the right class.
#include <map>

#include "tests/families/registered_unit.h"
#include "tests/support/split.h"

namespace quorvelj::testing {
namespace {

/// The first and the last value of each member of the bundles, or of each element of it.
const std::map<std::string, Members> kEnds{
    {"unit_conditions", "0:text9 micro; 1828:text12 device_type_name"},
    {"drive_status", "0:int32 port_no; 28:int32 drv_alert_state"},
    {"drive_info", "0:text9 vendor; 80:text12 drive_type_name"},
    {"raid", "0:int32 rgnum; 52:int32 unit_type_sub_code"},
    {"raid_info", "0:int32 rg_count; 40000:int32 rgdrv[59][29].paritygroup_no"},
    {"lu", "0:int32 luNumber; 92:int32 unit_type_sub_code"},
    {"lu_coup", "0:int32 mrcf_lite; 1441796:int32 coupling[8191].copy_speed"},
    {"integration_lu", "0:int32 integration_lu; 1056768:int32 unite_info[511].child_lun[511]"},
    {"integration_lu2", "0:int32 integration_lu; 262148:int32 unite_info[8191].next_lun"},
    {"dm_lu", "0:int32 mode; 28:int32 dmlu[1].dmlu_lu"},
    {"target_id", "0:int32 ctrl_flag; 72:int32 target_config.multi[15]"},
    {"lan_info", "0:uint8 dhcp; 76:int32 negotiation"},
    {"qvuser_lan_info", "0:int32 ctl[0].support_index; 1008:int32 set_ipversion"},
    {"sync_ctrl", "0:int8 port_val[0].board_type; 7:int8 port_val[3].rate"},
    {"rest_info", "0:int32 mode; 24:int32 no_copyback_allunit"},
    {"fibre_info", "0:int32 lun_security; 305248:text8 product_number"},
    {"user_reg_info", "0:int32 num; 4:int32 option"},
    {"comdev", "0:int32 mrcf_lite; 2088:int32 cmddev[127].rm_security"},
    {"rvrfsrc", "0:int32 rvrfsrc_option; 1756:int32 arrayunit[7].line_band"},
    {"unit_info", "0:int32 b_info.add_info_index; 504:int32 p_info.reserved[15]"},
    {"hg", "0:uint8 lun_manage; 69616:text33 ctl[1].port[7].hg[127].hgname"},
    {"hgopt", "160:int32 HostGroupValid; 147036:int32 ctl[1].port[7].hg[254].middleware_id"},
    {"portopt", "16:int32 ctl[0].lip_mode[0]; 140:int32 ctl[1].port_common_opt[7]"},
    {"lumap", "0:int32 HostGroupValid; 33423496:int32 ctl[1].port[7].hg[254].lu[2047]"},
    {"wwn", "0:int32 lun_security_opt"},
    {"wwnhg", "0:int32 lun_manage"},
    {"port_num", "0:int32 ctl[0].valid_index; 36:int32 mode"},
    {"pool_info", "0:int32 option; 19284:int32 sys.pool[63].lu[63]"},
    {"pair_info", "0:int32 option; 26333416:int32 lu[4093].m_info[31].copy_speed"},
    {"luguard", "0:int32 option; 393220:int32 lu[8191].retention_term"},
    {"quickfmtopt", "0:int32 valid_index; 12:int32 format_mode"},
    {"quickfmtstatus", "0:int32 priority_mode; 131076:int32 lu[8191].waiting_number"},
    {"hgparamlist", "0:int32 platform_count; 324560:int32 specialinfo[19].hgoptinfo.middleware_id"},
    {"correctstatus", "0:int32 lu[0].status; 98300:int32 lu[8191].waiting_number"},
    {"zencopy", "0:int32 option; 114690:text6 lu[2047].remote_ldev"},
    {"mapguard", "0:bytes8192 lumap_guard"},
    {"unit_identifier", "0:text5 equipment_id"},
    {"farlink_info", "0:int32 option; 1146884:int32 lu[8191].fence_level"},
    {"flacopy_info", "0:int32 option; 1672580:int32 ctg[15].ctl[1].prediction_time.second"},
    {"flaopt_info", "0:int32 option; 28:int32 queue_inhibit_time"},
    {"maintelaninfo", "0:int32 ctl[0].valid_index; 1268:int32 nnc[3].connect_status"},
    {"mainte_avail", "0:int32 available_count; 540:int32 rule_ipv6_base_value"},
    {"nnclaninfo", "0:int8 nnclaninfo_valid[0]; 772:int32 set_nnclaninfo[3].set_status"},
    {"iscsi_port", "0:int32 ctl[0].port[0].port_valid; 2684:int32 ctl[1].port[7].host_count"},
    {"iscsi_target", "0:int32 option; 2317665:text35 ctl[1].port[7].target[254].secret"},
    {"iscsi_initiator",
     "0:int32 option; 1229025:bytes32 ctl[1].port[7].initiator[255].target_bitmap"},
    {"iscsi_logininitiator",
     "0:int32 ctl[0].port[0].port_valid; 933856:text224 ctl[1].port[7].initiator[255].iscsi_name"},
    {"chap_user", "0:int32 option; 2719970:bytes32 ctl[1].port[7].user[511].target_bitmap"},
    {"isns", "0:int32 ctl[0].port[0].port_valid; 892:int32 ctl[1].port[7].port_num"},
    {"drive_response_diag", "0:int32 valid; 20:int32 autodiag_threshold"},
    {"auditlog_info", "0:int32 option; 100:int32 auditlog_internallog.internallog_used"},
    {"lu_migration", "0:int32 option; 180188:int32 pair_lu[4094].migration_error"},
    {"role", "0:int32 role_valid_index; 7971:text257 role_info[31].role_name"},
    {"account", "4:text257 account_info[0].user_id; 11416:int32 account_info[20].account_enable"},
    {"account_option",
     "0:int32 option_info.password_min_length; 12:int32 additional_info.keep_alive_time"},
    {"spin_downup", "0:int32 option; 102312:int32 lu[8191].lu_power_saving_detail"},
    {"diskdrive_status",
     "0:int32 unit[0].drive_mount_count; 57836:int32 unit[59].drives[29].drv_alert_state"},
    {"diskdrive_info",
     "0:int32 unit[0].drive_mount_count; 165828:text12 unit[59].drives[29].drive_type_name"},
    {"rec_status", "0:int32 valid; 16:int32 unit_no"},
    {"battery_config", "0:int32 battery_count"},
    {"localled_info", "0:int32 valid_index; 244:int32 unit[59]"},
    {"hgparamid", "0:int32 plat_id_count; 6700:text40 middleware[15].middleware_name_str"},
    {"hgparamlist2", "0:int32 platform_count; 15360:int32 platinfo[19].middleware_count"},
    {"ctlportkind", "0:int32 portkind_ctl0; 4:int32 portkind_ctl1"},
    {"lumap_lun", "0:int32 lu_assign[0][0]; 65532:int32 lu_assign[8191][1]"},
    {"vvol_info", "0:int32 vvol_count; 131072:int32 lu[8191].capacity_l"},
    {"ctg_def", "0:int32 gmss_info[0].ctg_valid; 26620:int32 flfle_info[255].pair_status_detail1"},
    {"iscsi_rmt", "0:int32 arrayunit[0].path_valid; 606:text33 arrayunit[7].path[1].secret"},
    {"luowner", "0:int32 count; 229376:int32 lu[8191].cpucore_num"}};

/// These ends in a bundle, at "offset:member". A member without an offset is of a class of which no
/// field is known: it is visited.
Members ends(const std::string& places) {
  Members all;
  for (const std::string& place : split(places, " ")) {
    const std::size_t name = place.find(':') + 1;
    all = all + (name == 0 ? Members(("visited " + place).c_str())
                           : at(place, kEnds.at(place.substr(name, place.find('[') - name))));
  }
  return all;
}

using AllInformation = RegisteredUnit;

TEST_F(AllInformation, Whole) {
  expectFromUnit(
      "QV_GetAllInformation", 76038764,
      ends("0:unit_conditions[0] 1840:unit_conditions[1] 3680:drive_status[0] "
           "18048:drive_status[449] 18080:drive_info[0] 59388:drive_info[449] 59480:raid[0] "
           "64464:raid[89] 64520:raid_info 104524:lu[0] 497644:lu[4095] 497740:lu_coup "
           "1939540:integration_lu 2996312:integration_lu2 turbo_lu 3258508:dm_lu "
           "3258540:target_id[0][0] 3283344:target_id[1][1] 3291612:lan_info[0] "
           "3291692:lan_info[1] 3291772:qvuser_lan_info 3292784:sync_ctrl[0] 3292792:sync_ctrl[1] "
           "3292800:rest_info prefetch_info verify 3292860:fibre_info[0] 3598116:fibre_info[1] "
           "3903372:user_reg_info 3907180:comdev on_opt 3909368:rvrfsrc 3911128:unit_info") +
          "3911636:int32 alert[0] alert[1]" +
          ends("3911644:hg 3981296:hgopt 4128340:portopt 4128484:lumap 37551984:wwn 37849044:wwnhg "
               "boot_opt on_sysparam 38004964:port_num on_tuning tuning pre_tuning "
               "38236532:pool_info 38255820:pair_info 64589240:luguard 64982464:quickfmtopt "
               "64982480:quickfmtstatus 65113560:hgparamlist 65438128:correctstatus "
               "65536432:zencopy 65651128:mapguard 65659320:unit_identifier 65659360:farlink_info "
               "66806248:flacopy_info 68478832:flaopt_info cache_prt timezonelist timeinfo "
               "systemluall userluall 68529316:maintelaninfo 68530636:mainte_avail "
               "68531188:nnclaninfo nasosstatus 68532012:iscsi_port 68534700:iscsi_target "
               "70852400:iscsi_initiator 72081460:iscsi_logininitiator 73015540:chap_user "
               "75735544:isns 75736440:drive_response_diag 75736464:auditlog_info "
               "75736568:lu_migration 75916760:role 75924988:account 75936416:account_option "
               "75936432:spin_downup") +
          "76038748:int32 cfg ctrl_condition[0] ctrl_condition[1] last_lu");
}

// Objects of classes without a known field are made all the same.
TEST_F(AllInformation, ObjectsWithoutFields) {
  const jobject all = information("QV_GetAllInformation");
  expectFields(all,
               "turbo_lu=TurboLu; prefetch_info=PrefetchInformation; verify=OnlineVerify; "
               "on_opt=NowWZParameter[2]; on_opt[1]=NowWZParameter; boot_opt=BootOption; "
               "on_sysparam=OnlineSystemParam; on_tuning=OnlineTuningParam; tuning=TuningParam; "
               "pre_tuning=PrefetchTuning; cache_prt=CachePartition; timezonelist=TimeZoneList; "
               "timeinfo=TimeInfo; systemluall=NASSystemLUAll; userluall=NASUserLUAll; "
               "nasosstatus=NASOSStatusList; account.account_info[0].user_id=admin");
  const jobject request = create("ControllerRequest");
  expectFields(information("QV_GetAllInfo_PP", request),
               "turbo_lu=TurboLu; cache_prt=CachePartition; unit_powersaving=UnitPowerSavingInfo");
  expectFields(information("QV_GetAllInfo_Tuning", request),
               "on_tuning=OnlineTuningParam; pre_tuning=PrefetchTuning");
  expectFields(information("QV_GetAllInfo_Config", request),
               "timezonelist=TimeZoneList; verify=OnlineVerify; boot_opt=BootOption; "
               "on_sysparam=OnlineSystemParam");
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
        ends("4:unit_conditions[0] 1844:unit_conditions[1] 3684:unit_info") +
            "4192:int32 alert[0] alert[1] alert_sa ctrl_condition[0] ctrl_condition[1]" +
            ends("4212:diskdrive_status 62052:diskdrive_info") + "227892:int32 rec_status_valid" +
            ends("227896:rec_status 227916:raid_info 267920:lu[0] 1054256:lu[8191] 1054352:comdev "
                 "1056444:dm_lu 1056476:quickfmtstatus 1187556:correctstatus "
                 "1285860:integration_lu2") +
            "1551812:int32 mapping_mode" + ends("1551816:battery_config 1551820:localled_info") +
            "1552068:int32 connectedCTL");
  slice("BaseAdditional", 98804,
        ends("4:hgparamid[0] 6744:hgparamid[1] 13484:hgparamlist2 cache_prt 33260:ctlportkind "
             "33268:lumap_lun"));
  slice("HG", 225436, ends("4:hg 69656:wwnhg"));
  slice("iSCSI", 7204432,
        ends("4:iscsi_port 2692:iscsi_target 2320392:iscsi_initiator 3549452:iscsi_logininitiator "
             "4483532:chap_user 7203536:isns"));
  slice("Mapping", 33431696, ends("4:mapguard 8196:lumap"));
  slice("Host", 176692,
        ends("4:hgopt 147048:hgparamid[0] 153788:hgparamid[1] 160528:hgparamlist2"));
  slice("Config", 627648,
        ends("4:fibre_info[0] 305260:fibre_info[1] 610516:portopt 610660:qvuser_lan_info "
             "611672:port_num 611712:maintelaninfo 613032:mainte_avail timezonelist timeinfo "
             "627448:rest_info verify boot_opt on_sysparam 627628:quickfmtopt"));
  slice("PP", 699924,
        ends("turbo_lu 48:user_reg_info 56:luguard cache_prt 396892:auditlog_info 396996:role "
             "405224:account 416652:account_option 416668:lu_migration 596860:spin_downup "
             "unit_powersaving"));
  slice("Replication", 30774116,
        ends("4:pool_info 19292:rvrfsrc 21052:flaopt_info 21084:vvol_info 152160:ctg_def "
             "178784:lu_coup 1620584:pair_info 27954004:farlink_info 29100892:flacopy_info "
             "30773476:iscsi_rmt"));
  slice("Tuning", 460896, ends("on_tuning pre_tuning 231516:luowner"));
}

}  // namespace
}  // namespace quorvelj::testing
