// Host groups and LU mapping.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using HostGroups = RegisteredUnit;

const Members kGroup{uint8At(0, "valid"), textAt(1, 33, "hgname")};
const Members kHGList =
    Members{uint8At(0, "lun_manage"), uint8At(1, "ctl[0].port[0].security")} +
    at({{2, "ctl[0].port[0].hg[0]."}, {4320, "ctl[0].port[0].hg[127]."}}, kGroup) +
    Members{uint8At(4354, "ctl[0].port[1].security"), uint8At(30472, "ctl[0].port[7].security"),
            uint8At(34791, "ctl[0].port[7].hg[127].valid"),
            uint8At(34825, "ctl[1].port[0].security"), uint8At(65296, "ctl[1].port[7].security")} +
    at({{65297, "ctl[1].port[7].hg[0]."}, {69615, "ctl[1].port[7].hg[127]."}}, kGroup);
const Members kPortMapping =
    int32sAt(0, "security hg_tg_max_count hg[0].lu[0]") +
    int32sAt(8196, "hg[0].lu[2047] hg[1].lu[0]") +
    Members{int32At(16388, "hg[1].lu[2047]"), int32At(2080776, "hg[254].lu[0]"),
            int32At(2088964, "hg[254].lu[2047]")};
const Members kLuMapping = int32sAt(0, "HostGroupValid ctrl_flag mapping_mode") +
                           at(12, "ctl[0].port[0].", kPortMapping) +
                           Members{int32At(2088980, "ctl[0].port[1].security"),
                                   int32At(14622788, "ctl[0].port[7].security"),
                                   int32At(16711756, "ctl[1].port[0].security")} +
                           at(31334532, "ctl[1].port[7].", kPortMapping);
const Members kLuMappingPortList =
    int32sAt(0, "option mapping_mode") + at(8, "port.", kPortMapping);
const Members kMappingGuardList{bytesAt(0, 8192, "lumap_guard")};
const Members kOption = int32sAt(0,
                                 "option option2 option3 platform_id alternate_path_id failover_id "
                                 "special_mode_id middleware_id");
const Members kHGOption = visited("support_index valid_index") + int32sAt(160, "HostGroupValid") +
                          at({{164, "ctl[0].port[0].hg[0]."},
                              {9308, "ctl[0].port[0].hg[254]."},
                              {9344, "ctl[0].port[1].hg[0]."},
                              {147008, "ctl[1].port[7].hg[254]."}},
                             kOption);
const Members kPortOption =
    visited("support_index valid_index") +
    Members{int32At(16, "ctl[0].lip_mode[0]"),         int32At(44, "ctl[0].lip_mode[7]"),
            int32At(48, "ctl[0].port_common_opt[0]"),  int32At(76, "ctl[0].port_common_opt[7]"),
            int32At(80, "ctl[1].lip_mode[0]"),         int32At(108, "ctl[1].lip_mode[7]"),
            int32At(112, "ctl[1].port_common_opt[0]"), int32At(140, "ctl[1].port_common_opt[7]")};

TEST_F(HostGroups, Groups) {
  expectFromUnit("QV_GetHGList", 69649, kHGList);
  for (const char* const method : {"QV_CreateHG", "QV_ChangeHG"}) {
    expectRequest(method, "HGInfo", 33, {textAt(0, 33, "hgname")}, {1, 7, 127});
  }
  const Members listed{bytesAt(0, 64, "ctl[0].port[0].hg"), bytesAt(64, 64, "ctl[0].port[1].hg"),
                       bytesAt(448, 64, "ctl[0].port[7].hg"), bytesAt(512, 64, "ctl[1].port[0].hg"),
                       bytesAt(960, 64, "ctl[1].port[7].hg")};
  expectRequest("QV_DeleteHGList", "DeleteHGList", 1024, listed);
  expectRequest("QV_InitHGList", "InitHGList", 1024, listed);
  expectRequest("QV_DeleteHGPortList", "DeleteHGPortList", 64, {bytesAt(0, 64, "hg")}, {1, 7});
  expectRequest("QV_InitHGPortList", "InitHGPortList", 64, {bytesAt(0, 64, "hg")}, {1, 7});

  // One character more than the name takes.
  const jobject group = create("HGInfo", {{"hgname", std::string(33, 'h')}});
  EXPECT_EQ(run("QV_CreateHG", 1, 7, 127, group), "");
  EXPECT_EQ(run("QV_CreateHG", 1, 7, 128, group), "DiskArrayException 20602");
  expectFields(information("QV_GetHGList"),
               {{"ctl", "HGCtlInfo[2]"},
                {"ctl[1].port", "HGPortInfo[8]"},
                {"ctl[1].port[7].hg", "HGInfo[128]"},
                {"ctl[1].port[7].hg[127].valid", "1"},
                {"ctl[1].port[7].hg[127].hgname", std::string(32, 'h')}});
}

TEST_F(HostGroups, Mappings) {
  expectFromUnit("QV_GetLuMappingListAll", 33423500, kLuMapping);
  expectBuilt("QV_GetLuMappingListAllLite", {unit_, session_}, 33423500, kLuMapping,
              "QV_GetLuMappingListAll");
  expectFromUnit("QV_GetLuMappingPortList", 2088976, kLuMappingPortList, {1, 7});
  expectFromUnit("QV_GetMappingGuardList", 8192, kMappingGuardList);
  expectBuilt("QV_GetLuMappingPortAssignInfo", {unit_, session_, create("ControllerRequest")},
              65536,
              int32sAt(0, "lu_assign[0][0] lu_assign[0][1]") +
                  int32sAt(65528, "lu_assign[8191][0] lu_assign[8191][1]"));
  expectRequest("QV_GetLuMappingPortAssignInfo", "ControllerRequest", 4,
                {int32At(0, "requestCTL")});

  expectRequest("QV_SetLuMappingListAll", "LuMapping", 33423500, kLuMapping);
  expectRequest("QV_SetLuMappingPortList", "LuMappingPortList", 2088976, kLuMappingPortList,
                {1, 7});
  expectRequest("QV_SetLuMappingList", "LuMappingHGInfo", 8192,
                {int32At(0, "lu[0]"), int32At(8188, "lu[2047]")}, {1, 7, 254});
  expectRequest("QV_SetMappingGuardList", "MappingGuardList", 8192, kMappingGuardList);
  expectPassed("QV_ChangeMappingMode", "usi");

  const jobject guard = create("MappingGuardList");
  setLength(guard, "lumap_guard", 8191);
  expectTooShort("QV_SetMappingGuardList", {unit_, session_, guard});
  const jobject mapping = create("LuMappingHGInfo");
  setLength(mapping, "lu", 2047);
  expectTooShort("QV_SetLuMappingList",
                 {unit_, session_, number(0), number(0), number(0), mapping});
  expectTooShort("QV_SetLuMappingListAll",
                 {unit_, session_, create("LuMapping", {{"ctl[0].port[0].hg[0].lu[2046]", "1"}})});
}

TEST_F(HostGroups, MappingIsOneForAllItsForms) {
  EXPECT_EQ(run("QV_ChangeMappingMode", 2), "");
  // What was read can be set back as it is, a port or all at once.
  const jobject port = information("QV_GetLuMappingPortList", 1, 7);
  set(port, {{"port.hg[0].lu[0]", "100"}, {"port.hg[254].lu[1]", "8191"}});
  EXPECT_EQ(run("QV_SetLuMappingPortList", 1, 7, port), "");
  for (const char* const method : {"QV_GetLuMappingListAll", "QV_GetLuMappingListAllLite"}) {
    SCOPED_TRACE(method);
    const jobject all = information(method);
    expectFields(all, {{"mapping_mode", "2"},
                       {"ctl", "LuMappingCtlInfo[2]"},
                       {"ctl[0].port", "LuMappingPortInfo[8]"},
                       {"ctl[1].port[7].hg", "LuMappingHGInfo[255]"},
                       {"ctl[1].port[7].hg_tg_max_count", "128"},
                       {"ctl[1].port[7].hg[0].lu[0]", "100"},
                       {"ctl[1].port[7].hg[254].lu[1]", "8191"},
                       {"ctl[1].port[7].hg[254].lu[2047]", "-1"},
                       {"ctl[0].port[0].hg[0].lu[0]", "-1"}});
    set(all, "ctl[0].port[0].hg[0].lu[2047]", "3");
    EXPECT_EQ(run("QV_SetLuMappingListAll", all), "");
  }
  EXPECT_EQ(quorvelSimCallCount("QV_GetLuMappingListAll"), 2);
  EXPECT_EQ(get(information("QV_GetLuMappingPortList", 0, 0), "port.hg[0].lu[2047]"), "3");
  // The mapping of one group is returned with the mode in front of it.
  expectFields(information("QV_GetLuMappingList", 1, 7, 254), {{"", "Object[2]"},
                                                               {"[0]", "2"},
                                                               {"[1].lu[0]", "-1"},
                                                               {"[1].lu[1]", "8191"},
                                                               {"[1].lu[2047]", "-1"}});
  expectPassed("QV_GetLuMappingList", "usiii");
  EXPECT_EQ(run("QV_GetLuMappingList", 1, 7, 255), "DiskArrayException 20602");
}

TEST_F(HostGroups, Options) {
  expectFromUnit("QV_GetHGOptionAll", 147044, kHGOption);
  expectFromUnit("QV_GetHGOption", 36, kOption, {1, 7, 254});
  expectFromUnit("QV_GetPortOption", 144, kPortOption);
  // Their two indexes have no field to set, and without them the reader ends: results have them.
  expectRequest("QV_SetHGOptionAll", information("QV_GetHGOptionAll"), 147044, kHGOption);
  expectRequest("QV_SetPortOption", information("QV_GetPortOption"), 144, kPortOption);
  expectRequest("QV_SetHGOption", "HGOptionInfo", 36, kOption, {1, 7, 254});

  expectFromUnit("QV_GetHGParameterList", 324568,
                 int32sAt(0, "platform_count") + visited("platinfo") +
                     Members{int32At(323764, "special_mode_count"),
                             int32At(323768, "specialinfo[0].specialmode_id")} +
                     at(323772, "specialinfo[0].hgoptinfo.", kOption) +
                     Members{int32At(324528, "specialinfo[19].specialmode_id")} +
                     at(324532, "specialinfo[19].hgoptinfo.", kOption));
  expectFromUnit("QV_GetHGParameterList2", 16164,
                 int32sAt(0, "platform_count") +
                     at({{4, "platinfo[0]."}, {15356, "platinfo[19]."}},
                        int32sAt(0, "platform_id middleware_count") + visited("middlewareinfo")));
  expectFromUnit("QV_GetHGParameterID", 6740,
                 int32sAt(0, "plat_id_count") + visited("platform") +
                     int32sAt(1348, "altpath_id_count") + visited("alternatepath") +
                     int32sAt(2696, "fail_id_count") + visited("failover") +
                     int32sAt(4044, "special_id_count") + visited("specialmode") +
                     at({{5396, "middleware[0]."}, {6656, "middleware[15]."}},
                        {int32At(0, "middleware_id"), textAt(4, 40, "middleware_name"),
                         textAt(44, 40, "middleware_name_str")}),
                 {1});

  EXPECT_EQ(run("QV_SetHGOption", 1, 0, 0, create("HGOptionInfo", {{"middleware_id", "4"}})), "");
  expectFields(information("QV_GetHGOptionAll"), {{"ctl", "HGOptionCtlInfo[2]"},
                                                  {"ctl[1].port", "HGOptionPortInfo[8]"},
                                                  {"ctl[1].port[0].hg", "HGOptionInfo[255]"},
                                                  {"ctl[1].port[0].hg[0].middleware_id", "4"}});
}

TEST_F(HostGroups, WorldWideNamesAndTargets) {
  const Members wwn = int32sAt(0, "lun_security_opt") + visited("ctl");
  const Members wwnOfGroups = int32sAt(0, "lun_manage") + visited("ctl");
  expectBuilt("QV_GetWWNInformation", {unit_}, 297060, wwn);
  expectFromUnit("QV_GetWWNHGInformation", 155780, wwnOfGroups);
  const jobject names = create("WWNInformation");
  expectRead("QV_SetWWNInformation", {unit_, names}, names, 1, 297060, wwn);
  expectRequest("QV_SetWWNHGInformation", "WWNHGInformation", 155780, wwnOfGroups);

  const Members target = int32sAt(0,
                                  "ctrl_flag target_id_mode target_config.single "
                                  "target_config.multi[0]") +
                         Members{int32At(72, "target_config.multi[15]")} +
                         visited("target_config.mapping");
  const Members targets = at({{0, "[0]."}, {8268, "[1]."}}, target);
  expectBuilt("QV_GetTargetId", {unit_, number(1)}, 16536, targets);
  EXPECT_EQ(lastInt("QV_GetTargetId", 1), 1);
  expectBuilt("QV_TargetIdImport", {unit_, text("file")}, 16536, targets);
  expectBuilt("QV_WZTargetIdImport", {unit_, text("first"), text("second")}, 16536,
              at({{0, "[0]."}, {8268, "[1]."}},
                 int32sAt(0, "ctrl_flag target_id_mode") + visited("target_config")));
  const jobject id = create("TargetId");
  expectRead("QV_SetTargetId", {unit_, number(1), id}, id, 2, 8268, target);
  EXPECT_EQ(lastInt("QV_SetTargetId", 1), 1);

  const std::string path(1100, 'p');
  call("QV_WZTargetIdImport", {unit_, text(path), text("second")});
  EXPECT_EQ(lastText("QV_WZTargetIdImport", 1), std::string(1023, 'p'));
  EXPECT_EQ(lastText("QV_WZTargetIdImport", 2), "second");
  call("QV_TargetIdImport", {unit_, text(path)});
  EXPECT_EQ(lastText("QV_TargetIdImport", 1), std::string(1023, 'p'));
}

TEST_F(HostGroups, ClassesOfUnknownFieldsAreBuilt) {
  expectFields(information("QV_GetHGOptionAll"),
               {{"support_index", "HGOptionValidIndex"}, {"valid_index", "HGOptionValidIndex"}});
  expectFields(information("QV_GetPortOption"), {{"support_index", "PortOptionValidIndex"},
                                                 {"valid_index", "PortOptionValidIndex"}});
  expectFields(information("QV_GetHGParameterList"),
               {{"platinfo", "PlatformInfo[20]"}, {"platinfo[19]", "PlatformInfo"}});
  expectFields(information("QV_GetHGParameterList2"),
               {{"platinfo[19].middlewareinfo", "MiddlewareInfo[20]"},
                {"platinfo[19].middlewareinfo[19]", "MiddlewareInfo"}});
  expectFields(information("QV_GetHGParameterID", 0), {{"platform", "PlatFormID[16]"},
                                                       {"platform[15]", "PlatFormID"},
                                                       {"alternatepath", "AlternatePathID[16]"},
                                                       {"alternatepath[15]", "AlternatePathID"},
                                                       {"failover", "FailOverID[16]"},
                                                       {"failover[15]", "FailOverID"},
                                                       {"specialmode", "SpecialModeID[16]"},
                                                       {"specialmode[15]", "SpecialModeID"}});
  expectFields(call("QV_GetWWNInformation", {unit_}).result,
               {{"ctl[1].port", "WWNPortInfo[8]"}, {"ctl[1].port[7]", "WWNPortInfo"}});
  expectFields(information("QV_GetWWNHGInformation"),
               {{"ctl[1].port", "WWNHGPortInfo[8]"}, {"ctl[1].port[7]", "WWNHGPortInfo"}});
  expectFields(call("QV_GetTargetId", {unit_, number(0)}).result,
               {{"[1].target_config.mapping", "TargetLunList[16]"},
                {"[1].target_config.mapping[15]", "TargetLunList"}});
  expectFields(call("QV_WZTargetIdImport", {unit_, text("a"), text("b")}).result,
               {{"[1].target_config", "WZTargetConfig"}});
}

}  // namespace
}  // namespace quorvelj::testing
