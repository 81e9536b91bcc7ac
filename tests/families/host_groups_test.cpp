// Host groups and LU mapping.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using HostGroups = RegisteredUnit;

const Members kGroup = "0:uint8 valid; 1:text33 hgname";
const Members kHGList = "0:uint8 lun_manage ctl[0].port[0].security" +
                        at("2:ctl[0].port[0].hg[0] 4320:ctl[0].port[0].hg[127]", kGroup) +
                        "4354:uint8 ctl[0].port[1].security; 30472:uint8 ctl[0].port[7].security; "
                        "34791:uint8 ctl[0].port[7].hg[127].valid; 34825:uint8 "
                        "ctl[1].port[0].security; 65296:uint8 ctl[1].port[7].security" +
                        at("65297:ctl[1].port[7].hg[0] 69615:ctl[1].port[7].hg[127]", kGroup);
const Members kPortMapping =
    "0:int32 security hg_tg_max_count hg[0].lu[0]; 8196:int32 hg[0].lu[2047] hg[1].lu[0]; "
    "16388:int32 hg[1].lu[2047]; 2080776:int32 hg[254].lu[0]; 2088964:int32 hg[254].lu[2047]";
const Members kLuMapping = "0:int32 HostGroupValid ctrl_flag mapping_mode" +
                           at("12:ctl[0].port[0]", kPortMapping) +
                           "2088980:int32 ctl[0].port[1].security; 14622788:int32 "
                           "ctl[0].port[7].security; 16711756:int32 ctl[1].port[0].security" +
                           at("31334532:ctl[1].port[7]", kPortMapping);
const Members kLuMappingPortList = "0:int32 option mapping_mode" + at("8:port", kPortMapping);
const Members kMappingGuardList = "0:bytes8192 lumap_guard";
const Members kOption =
    "0:int32 option option2 option3 platform_id alternate_path_id failover_id special_mode_id "
    "middleware_id";
const Members kHGOption = "visited support_index valid_index; 160:int32 HostGroupValid" +
                          at("164:ctl[0].port[0].hg[0] 9308:ctl[0].port[0].hg[254] "
                             "9344:ctl[0].port[1].hg[0] 147008:ctl[1].port[7].hg[254]",
                             kOption);
const Members kPortOption =
    "visited support_index valid_index; 16:int32 ctl[0].lip_mode[0]; 44:int32 ctl[0].lip_mode[7] "
    "ctl[0].port_common_opt[0]; 76:int32 ctl[0].port_common_opt[7] ctl[1].lip_mode[0]; 108:int32 "
    "ctl[1].lip_mode[7] ctl[1].port_common_opt[0]; 140:int32 ctl[1].port_common_opt[7]";

TEST_F(HostGroups, Groups) {
  expectFromUnit("QV_GetHGList", 69649, kHGList);
  expectRequest("QV_CreateHG QV_ChangeHG", "HGInfo", 33, "0:text33 hgname", {1, 7, 127});
  const Members listed =
      "0:bytes64 ctl[0].port[0].hg ctl[0].port[1].hg; 448:bytes64 ctl[0].port[7].hg "
      "ctl[1].port[0].hg; 960:bytes64 ctl[1].port[7].hg";
  expectRequest("QV_DeleteHGList", "DeleteHGList", 1024, listed);
  expectRequest("QV_InitHGList", "InitHGList", 1024, listed);
  expectRequest("QV_DeleteHGPortList", "DeleteHGPortList", 64, "0:bytes64 hg", {1, 7});
  expectRequest("QV_InitHGPortList", "InitHGPortList", 64, "0:bytes64 hg", {1, 7});

  // One character more than the name takes.
  const jobject group = create("HGInfo", {{"hgname", std::string(33, 'h')}});
  update("QV_CreateHG", 1, 7, 127, group);
  EXPECT_EQ(run("QV_CreateHG", 1, 7, 128, group), "DiskArrayException 20602");
  expectFields(information("QV_GetHGList"),
               "ctl=HGCtlInfo[2]; ctl[1].port=HGPortInfo[8]; ctl[1].port[7].hg=HGInfo[128]; "
               "ctl[1].port[7].hg[127].valid=1; ctl[1].port[7].hg[127].hgname=" +
                   std::string(32, 'h'));
}

TEST_F(HostGroups, Mappings) {
  expectGetAndSet("LuMappingListAll", "LuMapping", 33423500, kLuMapping);
  expectBuilt("QV_GetLuMappingListAllLite", {unit_, session_}, 33423500, kLuMapping,
              "QV_GetLuMappingListAll");
  expectGetAndSet("LuMappingPortList", "LuMappingPortList", 2088976, kLuMappingPortList, {1, 7});
  expectGetAndSet("MappingGuardList", "MappingGuardList", 8192, kMappingGuardList);
  expectBuilt(
      "QV_GetLuMappingPortAssignInfo", {unit_, session_, create("ControllerRequest")}, 65536,
      "0:int32 lu_assign[0][0] lu_assign[0][1]; 65528:int32 lu_assign[8191][0] lu_assign[8191][1]");
  expectRequest("QV_GetLuMappingPortAssignInfo", "ControllerRequest", 4, "0:int32 requestCTL");

  expectRequest("QV_SetLuMappingList", "LuMappingHGInfo", 8192,
                "0:int32 lu[0]; 8188:int32 lu[2047]", {1, 7, 254});
  expectPassed("QV_ChangeMappingMode usi");

  expectTooShort("QV_SetMappingGuardList",
                 {unit_, session_, create("MappingGuardList", "lumap_guard#=8191")});
  expectTooShort("QV_SetLuMappingList", {unit_, session_, number(0), number(0), number(0),
                                         create("LuMappingHGInfo", "lu#=2047")});
  expectTooShort("QV_SetLuMappingListAll",
                 {unit_, session_, create("LuMapping", "ctl[0].port[0].hg[0].lu[2046]=1")});
}

TEST_F(HostGroups, MappingIsOneForAllItsForms) {
  update("QV_ChangeMappingMode", 2);
  // What was read can be set back as it is, a port or all at once.
  const jobject port = information("QV_GetLuMappingPortList", 1, 7);
  set(port, "port.hg[0].lu[0]=100; port.hg[254].lu[0]=0; port.hg[254].lu[1]=8191");
  update("QV_SetLuMappingPortList", 1, 7, port);
  for (const char* const method : {"QV_GetLuMappingListAll", "QV_GetLuMappingListAllLite"}) {
    SCOPED_TRACE(method);
    const jobject all = information(method);
    expectFields(all,
                 "mapping_mode=2; ctl=LuMappingCtlInfo[2]; ctl[0].port=LuMappingPortInfo[8]; "
                 "ctl[1].port[7].hg=LuMappingHGInfo[255]; ctl[1].port[7].hg_tg_max_count=128; "
                 "ctl[1].port[7].hg[0].lu[0]=100; ctl[1].port[7].hg[254].lu[1]=8191; "
                 "ctl[1].port[7].hg[254].lu[2047]=-1; ctl[0].port[0].hg[0].lu[0]=-1");
    set(all, "ctl[0].port[0].hg[0].lu[2047]", "3");
    update("QV_SetLuMappingListAll", all);
  }
  EXPECT_EQ(quorvelSimCallCount("QV_GetLuMappingListAll"), 2);
  EXPECT_EQ(get(information("QV_GetLuMappingPortList", 0, 0), "port.hg[0].lu[2047]"), "3");
  // The mapping of one group is returned with the mode in front of it.
  expectFields(information("QV_GetLuMappingList", 1, 7, 254),
               "=Object[2]; [0]=2; [1].lu[0]=0; [1].lu[1]=8191; [1].lu[2047]=-1");
  expectPassed("QV_GetLuMappingList usiii");
  EXPECT_EQ(run("QV_GetLuMappingList", 1, 7, 255), "DiskArrayException 20602");
  // A group takes its mapping and its options along. A new one in its place begins without.
  update("QV_SetHGOption", 1, 7, 0, create("HGOptionInfo", "platform_id=4"));
  update("QV_DeleteHGPortList", 1, 7, create("DeleteHGPortList", "hg[0]=1"));
  EXPECT_EQ(run("QV_GetLuMappingList", 1, 7, 0), "DiskArrayException 20602");
  update("QV_CreateHG", 1, 7, 0, create("HGInfo", "hgname=again"));
  EXPECT_EQ(get(information("QV_GetLuMappingList", 1, 7, 0), "[1].lu[0]"), "-1");
  EXPECT_EQ(get(information("QV_GetHGOptionAll"), "ctl[1].port[7].hg[0].platform_id"), "0");
}

TEST_F(HostGroups, Options) {
  expectFromUnit("QV_GetHGOptionAll", 147044, kHGOption);
  expectGetAndSet("HGOption", "HGOptionInfo", 36, kOption, {1, 7, 254});
  expectFromUnit("QV_GetPortOption", 144, kPortOption);
  // Their two indexes have no field to set, and without them the reader ends: results have them.
  expectRequest("QV_SetHGOptionAll", information("QV_GetHGOptionAll"), 147044, kHGOption);
  expectRequest("QV_SetPortOption", information("QV_GetPortOption"), 144, kPortOption);

  expectFromUnit("QV_GetHGParameterList", 324568,
                 "0:int32 platform_count; visited platinfo; 323764:int32 special_mode_count "
                 "specialinfo[0].specialmode_id" +
                     at("323772:specialinfo[0].hgoptinfo", kOption) +
                     "324528:int32 specialinfo[19].specialmode_id" +
                     at("324532:specialinfo[19].hgoptinfo", kOption));
  expectFromUnit("QV_GetHGParameterList2", 16164,
                 "0:int32 platform_count" +
                     at("4:platinfo[0] 15356:platinfo[19]",
                        "0:int32 platform_id middleware_count; visited middlewareinfo"));
  expectFromUnit("QV_GetHGParameterID", 6740,
                 "0:int32 plat_id_count; visited platform; 1348:int32 altpath_id_count; visited "
                 "alternatepath; 2696:int32 fail_id_count; visited failover; 4044:int32 "
                 "special_id_count; visited specialmode" +
                     at("5396:middleware[0] 6656:middleware[15]",
                        "0:int32 middleware_id; 4:text40 middleware_name middleware_name_str"),
                 {1});

  update("QV_SetHGOption", 1, 0, 0, create("HGOptionInfo", "middleware_id=4"));
  expectFields(information("QV_GetHGOptionAll"),
               "ctl=HGOptionCtlInfo[2]; ctl[1].port=HGOptionPortInfo[8]; "
               "ctl[1].port[0].hg=HGOptionInfo[255]; ctl[1].port[0].hg[0].middleware_id=4");
}

TEST_F(HostGroups, WorldWideNamesAndTargets) {
  const Members wwn = "0:int32 lun_security_opt; visited ctl";
  expectBuilt("QV_GetWWNInformation", {unit_}, 297060, wwn);
  expectGetAndSet("WWNHGInformation", "WWNHGInformation", 155780,
                  "0:int32 lun_manage; visited ctl");
  expectRequest("QV_SetWWNInformation", "WWNInformation", 297060, wwn);

  const Members target =
      "0:int32 ctrl_flag target_id_mode target_config.single target_config.multi[0]; 72:int32 "
      "target_config.multi[15]; visited target_config.mapping";
  const Members targets = at("0:[0] 8268:[1]", target);
  expectBuilt("QV_GetTargetId", {unit_, number(1)}, 16536, targets);
  EXPECT_EQ(lastInt("QV_GetTargetId", 1), 1);
  expectBuilt("QV_TargetIdImport", {unit_, text("file")}, 16536, targets);
  expectBuilt("QV_WZTargetIdImport", {unit_, text("first"), text("second")}, 16536,
              at("0:[0] 8268:[1]", "0:int32 ctrl_flag target_id_mode; visited target_config"));
  expectRequest("QV_SetTargetId", "TargetId", 8268, target, {1});
}

}  // namespace
}  // namespace quorvelj::testing
