// Host groups and LU mapping in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

const std::vector<const char*> kOption{"option",          "option2",           "option3",
                                       "platform_id",     "alternate_path_id", "failover_id",
                                       "special_mode_id", "middleware_id"};

/// The ints of a host group's options from an offset on.
std::vector<Member> optionAt(std::size_t offset, const std::string& path) {
  std::vector<Member> members;
  for (const char* const name : kOption) {
    members.push_back(int32At(offset, (path + name).c_str()));
    offset += 4;
  }
  return members;
}

const std::vector<Member> kHGList{
    uint8At(0, "lun_manage"),
    uint8At(1, "ctl[0].port[0].security"),
    uint8At(2, "ctl[0].port[0].hg[0].valid"),
    textAt(3, 33, "ctl[0].port[0].hg[0].hgname"),
    uint8At(4320, "ctl[0].port[0].hg[127].valid"),
    textAt(4321, 33, "ctl[0].port[0].hg[127].hgname"),
    uint8At(4354, "ctl[0].port[1].security"),
    uint8At(30472, "ctl[0].port[7].security"),
    uint8At(34791, "ctl[0].port[7].hg[127].valid"),
    uint8At(34825, "ctl[1].port[0].security"),
    uint8At(65296, "ctl[1].port[7].security"),
    uint8At(65297, "ctl[1].port[7].hg[0].valid"),
    textAt(65298, 33, "ctl[1].port[7].hg[0].hgname"),
    uint8At(69615, "ctl[1].port[7].hg[127].valid"),
    textAt(69616, 33, "ctl[1].port[7].hg[127].hgname"),
};
const std::vector<Member> kLuMapping{
    int32At(0, "HostGroupValid"),
    int32At(4, "ctrl_flag"),
    int32At(8, "mapping_mode"),
    int32At(12, "ctl[0].port[0].security"),
    int32At(16, "ctl[0].port[0].hg_tg_max_count"),
    int32At(20, "ctl[0].port[0].hg[0].lu[0]"),
    int32At(8208, "ctl[0].port[0].hg[0].lu[2047]"),
    int32At(8212, "ctl[0].port[0].hg[1].lu[0]"),
    int32At(16400, "ctl[0].port[0].hg[1].lu[2047]"),
    int32At(2088976, "ctl[0].port[0].hg[254].lu[2047]"),
    int32At(2088980, "ctl[0].port[1].security"),
    int32At(14622788, "ctl[0].port[7].security"),
    int32At(16711756, "ctl[1].port[0].security"),
    int32At(31334532, "ctl[1].port[7].security"),
    int32At(31334536, "ctl[1].port[7].hg_tg_max_count"),
    int32At(31334540, "ctl[1].port[7].hg[0].lu[0]"),
    int32At(31342728, "ctl[1].port[7].hg[0].lu[2047]"),
    int32At(33415308, "ctl[1].port[7].hg[254].lu[0]"),
    int32At(33423496, "ctl[1].port[7].hg[254].lu[2047]"),
};
const std::vector<Member> kLuMappingPortList{
    int32At(0, "option"),
    int32At(4, "mapping_mode"),
    int32At(8, "port.security"),
    int32At(12, "port.hg_tg_max_count"),
    int32At(16, "port.hg[0].lu[0]"),
    int32At(8204, "port.hg[0].lu[2047]"),
    int32At(2080784, "port.hg[254].lu[0]"),
    int32At(2088972, "port.hg[254].lu[2047]"),
};
const std::vector<Member> kLuMappingHGInfo{int32At(0, "lu[0]"), int32At(8188, "lu[2047]")};
const std::vector<Member> kMappingGuardList{bytesAt(0, 8192, "lumap_guard")};
const std::vector<Member> kHGOption =
    std::vector<Member>{int32At(160, "HostGroupValid")} + optionAt(164, "ctl[0].port[0].hg[0].") +
    optionAt(9308, "ctl[0].port[0].hg[254].") + optionAt(9344, "ctl[0].port[1].hg[0].") +
    optionAt(147008, "ctl[1].port[7].hg[254].");
const std::vector<Member> kPortOption{
    int32At(16, "ctl[0].lip_mode[0]"),         int32At(44, "ctl[0].lip_mode[7]"),
    int32At(48, "ctl[0].port_common_opt[0]"),  int32At(76, "ctl[0].port_common_opt[7]"),
    int32At(80, "ctl[1].lip_mode[0]"),         int32At(108, "ctl[1].lip_mode[7]"),
    int32At(112, "ctl[1].port_common_opt[0]"), int32At(140, "ctl[1].port_common_opt[7]"),
};

class HostGroups : public RegisteredUnit {
 protected:
  /// Checks a record that is read in a session, with ints before it or without.
  void inSession(const char* method, const char* className, std::size_t size,
                 const std::vector<Member>& members, const std::vector<int>& ints = {}) {
    inSession(method, create(className), size, members, ints);
  }
  void inSession(const char* method, jobject object, std::size_t size,
                 const std::vector<Member>& members, const std::vector<int>& ints = {}) {
    const jobject session = create("QVSessionInfo");
    std::vector<jobject> arguments{unit_, session};
    for (const int value : ints) {
      arguments.push_back(number(value));
    }
    arguments.push_back(object);
    const auto last = static_cast<int>(arguments.size()) - 1;
    expectRead(method, arguments, object, last, size, members);
    expectRead(method, arguments, session, 1, 32, {bytesAt(0, 32, "session_id")});
    expectInts(method, 2, ints);
  }
  static void expectInts(const char* method, int first, const std::vector<int>& ints) {
    for (const int expected : ints) {
      int given = 0;
      EXPECT_EQ(quorvelSimLastInput(method, first++, &given, sizeof given), sizeof given);
      EXPECT_EQ(given, expected) << method;
    }
  }

  /// Options whose two indexes are there; without them a reader ends.
  static jobject createOptions(const char* className, const std::string& indexClass) {
    const jobject options = create(className);
    const jclass type = realJvm()->GetObjectClass(options);
    const std::string signature = "Ltessaly/str/diskarray/" + indexClass + ';';
    for (const char* const field : {"support_index", "valid_index"}) {
      realJvm()->SetObjectField(options, realJvm()->GetFieldID(type, field, signature.c_str()),
                                create(indexClass.c_str()));
    }
    return options;
  }

  static jobject named(const std::string& name) {
    const jobject group = create("HGInfo");
    set(group, "hgname", name);
    return group;
  }
  std::string createGroup(int controller, int port, int group, const std::string& name) {
    return call("QV_CreateHG",
                {unit_, session_, number(controller), number(port), number(group), named(name)})
        .failure;
  }
  std::string changeGroup(int group, const std::string& name) {
    return call("QV_ChangeHG", {unit_, session_, number(0), number(0), number(group), named(name)})
        .failure;
  }
  std::string group(int controller, int port, int number) {
    const std::string path = "ctl[" + std::to_string(controller) + "].port[" +
                             std::to_string(port) + "].hg[" + std::to_string(number) + "].";
    const jobject list = call("QV_GetHGList", {unit_, session_}).result;
    return get(list, path + "valid") + ' ' + get(list, path + "hgname");
  }
  static jobject lus(const std::vector<int>& mapped) {
    const jobject mapping = create("LuMappingHGInfo");
    std::vector<jint> all(2048, -1);
    std::copy(mapped.begin(), mapped.end(), all.begin());
    setLength(mapping, "lu", 2048);
    const jclass type = realJvm()->GetObjectClass(mapping);
    const jobject array =
        realJvm()->GetObjectField(mapping, realJvm()->GetFieldID(type, "lu", "[I"));
    realJvm()->SetIntArrayRegion(static_cast<jintArray>(array), 0, 2048, all.data());
    return mapping;
  }
  std::string mapLus(int controller, int port, int group, jobject mapping) {
    return call("QV_SetLuMappingList",
                {unit_, session_, number(controller), number(port), number(group), mapping})
        .failure;
  }
};

TEST_F(HostGroups, Lists) {
  expectBuilt("QV_GetHGList", {unit_, session_}, 69649, kHGList);
  const jobject list = call("QV_GetHGList", {unit_, session_}).result;
  EXPECT_EQ(get(list, "ctl"), "HGCtlInfo[2]");
  EXPECT_EQ(get(list, "ctl[1].port"), "HGPortInfo[8]");
  EXPECT_EQ(get(list, "ctl[1].port[7].hg"), "HGInfo[128]");

  for (const char* const method : {"QV_CreateHG", "QV_ChangeHG"}) {
    inSession(method, "HGInfo", 33, {textAt(0, 33, "hgname")}, {1, 7, 127});
  }
  const std::vector<Member> listed{
      bytesAt(0, 64, "ctl[0].port[0].hg"), bytesAt(64, 64, "ctl[0].port[1].hg"),
      bytesAt(448, 64, "ctl[0].port[7].hg"), bytesAt(512, 64, "ctl[1].port[0].hg"),
      bytesAt(960, 64, "ctl[1].port[7].hg")};
  inSession("QV_DeleteHGList", "DeleteHGList", 1024, listed);
  inSession("QV_InitHGList", "InitHGList", 1024, listed);
  inSession("QV_DeleteHGPortList", "DeleteHGPortList", 64, {bytesAt(0, 64, "hg")}, {1, 7});
  inSession("QV_InitHGPortList", "InitHGPortList", 64, {bytesAt(0, 64, "hg")}, {1, 7});
}

TEST_F(HostGroups, MappingRecords) {
  expectBuilt("QV_GetLuMappingListAll", {unit_, session_}, 33423500, kLuMapping);
  expectBuilt("QV_GetLuMappingPortList", {unit_, session_, number(1), number(7)}, 2088976,
              kLuMappingPortList);
  expectInts("QV_GetLuMappingPortList", 2, {1, 7});
  expectBuilt("QV_GetMappingGuardList", {unit_, session_}, 8192, kMappingGuardList);
  expectBuilt("QV_GetLuMappingPortAssignInfo", {unit_, session_, create("ControllerRequest")},
              65536,
              {int32At(0, "lu_assign[0][0]"), int32At(4, "lu_assign[0][1]"),
               int32At(65528, "lu_assign[8191][0]"), int32At(65532, "lu_assign[8191][1]")});

  inSession("QV_SetLuMappingListAll", "LuMapping", 33423500, kLuMapping);
  inSession("QV_SetLuMappingPortList", "LuMappingPortList", 2088976, kLuMappingPortList, {1, 7});
  inSession("QV_SetLuMappingList", "LuMappingHGInfo", 8192, kLuMappingHGInfo, {1, 7, 254});
  inSession("QV_SetMappingGuardList", "MappingGuardList", 8192, kMappingGuardList);
  inSession("QV_GetLuMappingPortAssignInfo", "ControllerRequest", 4, {int32At(0, "requestCTL")});
}

TEST_F(HostGroups, OptionRecords) {
  expectBuilt("QV_GetHGOptionAll", {unit_, session_}, 147044, kHGOption);
  expectBuilt("QV_GetHGOption", {unit_, session_, number(1), number(7), number(254)}, 36,
              optionAt(0, ""));
  expectInts("QV_GetHGOption", 2, {1, 7, 254});
  expectBuilt("QV_GetPortOption", {unit_, session_}, 144, kPortOption);
  inSession("QV_SetHGOptionAll", createOptions("HGOption", "HGOptionValidIndex"), 147044,
            kHGOption);
  inSession("QV_SetHGOption", "HGOptionInfo", 36, optionAt(0, ""), {1, 7, 254});
  inSession("QV_SetPortOption", createOptions("PortOption", "PortOptionValidIndex"), 144,
            kPortOption);

  expectBuilt(
      "QV_GetHGParameterList", {unit_, session_}, 324568,
      std::vector<Member>{int32At(0, "platform_count"), int32At(323764, "special_mode_count"),
                          int32At(323768, "specialinfo[0].specialmode_id")} +
          optionAt(323772, "specialinfo[0].hgoptinfo.") +
          std::vector<Member>{int32At(324528, "specialinfo[19].specialmode_id")} +
          optionAt(324532, "specialinfo[19].hgoptinfo."));
  expectBuilt(
      "QV_GetHGParameterList2", {unit_, session_}, 16164,
      {int32At(0, "platform_count"), int32At(4, "platinfo[0].platform_id"),
       int32At(8, "platinfo[0].middleware_count"), int32At(15356, "platinfo[19].platform_id"),
       int32At(15360, "platinfo[19].middleware_count")});
  expectBuilt("QV_GetHGParameterID", {unit_, session_, number(1)}, 6740,
              {int32At(0, "plat_id_count"), int32At(1348, "altpath_id_count"),
               int32At(2696, "fail_id_count"), int32At(4044, "special_id_count"),
               int32At(5396, "middleware[0].middleware_id"),
               textAt(5400, 40, "middleware[0].middleware_name"),
               textAt(5440, 40, "middleware[0].middleware_name_str"),
               int32At(6656, "middleware[15].middleware_id"),
               textAt(6660, 40, "middleware[15].middleware_name"),
               textAt(6700, 40, "middleware[15].middleware_name_str")});
  expectInts("QV_GetHGParameterID", 2, {1});
}

TEST_F(HostGroups, WorldWideNameAndTargetRecords) {
  const std::vector<Member> wwn{int32At(0, "lun_security_opt")};
  const std::vector<Member> wwnOfGroups{int32At(0, "lun_manage")};
  expectBuilt("QV_GetWWNInformation", {unit_}, 297060, wwn);
  expectBuilt("QV_GetWWNHGInformation", {unit_, session_}, 155780, wwnOfGroups);
  const jobject information = create("WWNInformation");
  expectRead("QV_SetWWNInformation", {unit_, information}, information, 1, 297060, wwn);
  inSession("QV_SetWWNHGInformation", "WWNHGInformation", 155780, wwnOfGroups);

  const std::vector<Member> target{
      int32At(0, "ctrl_flag"), int32At(4, "target_id_mode"), int32At(8, "target_config.single"),
      int32At(12, "target_config.multi[0]"), int32At(72, "target_config.multi[15]")};
  std::vector<Member> targets;
  for (const std::size_t index : {0, 1}) {
    for (Member member : target) {
      member.offset += index * 8268;
      member.path = '[' + std::to_string(index) + "]." + member.path;
      targets.push_back(member);
    }
  }
  expectBuilt("QV_GetTargetId", {unit_, number(1)}, 16536, targets);
  expectInts("QV_GetTargetId", 1, {1});
  expectBuilt("QV_TargetIdImport", {unit_, text("file")}, 16536, targets);
  expectBuilt("QV_WZTargetIdImport", {unit_, text("first"), text("second")}, 16536,
              {int32At(0, "[0].ctrl_flag"), int32At(4, "[0].target_id_mode"),
               int32At(8268, "[1].ctrl_flag"), int32At(8272, "[1].target_id_mode")});
  const jobject id = create("TargetId");
  expectRead("QV_SetTargetId", {unit_, number(1), id}, id, 2, 8268, target);
  expectInts("QV_SetTargetId", 1, {1});
}

TEST_F(HostGroups, ClassesOfUnknownFieldsAreBuilt) {
  const auto expectLast = [](jobject result, const std::string& array, const char* className,
                             int length) {
    EXPECT_EQ(get(result, array), className + ('[' + std::to_string(length) + ']'));
    const std::string last = get(result, array + '[' + std::to_string(length - 1) + ']');
    EXPECT_EQ(last.find(std::string("tessaly.str.diskarray.") + className + '@'), 0U) << last;
  };
  const auto expectOne = [](jobject result, const char* field, const char* className) {
    EXPECT_EQ(get(result, field).find(std::string("tessaly.str.diskarray.") + className + '@'), 0U);
  };
  const jobject options = call("QV_GetHGOptionAll", {unit_, session_}).result;
  expectOne(options, "support_index", "HGOptionValidIndex");
  expectOne(options, "valid_index", "HGOptionValidIndex");
  const jobject ports = call("QV_GetPortOption", {unit_, session_}).result;
  expectOne(ports, "support_index", "PortOptionValidIndex");
  expectOne(ports, "valid_index", "PortOptionValidIndex");
  expectLast(call("QV_GetHGParameterList", {unit_, session_}).result, "platinfo", "PlatformInfo",
             20);
  expectLast(call("QV_GetHGParameterList2", {unit_, session_}).result,
             "platinfo[19].middlewareinfo", "MiddlewareInfo", 20);
  const jobject identifiers = call("QV_GetHGParameterID", {unit_, session_, number(0)}).result;
  expectLast(identifiers, "platform", "PlatFormID", 16);
  expectLast(identifiers, "alternatepath", "AlternatePathID", 16);
  expectLast(identifiers, "failover", "FailOverID", 16);
  expectLast(identifiers, "specialmode", "SpecialModeID", 16);
  expectLast(call("QV_GetWWNInformation", {unit_}).result, "ctl[1].port", "WWNPortInfo", 8);
  expectLast(call("QV_GetWWNHGInformation", {unit_, session_}).result, "ctl[1].port",
             "WWNHGPortInfo", 8);
  expectLast(call("QV_GetTargetId", {unit_, number(0)}).result, "[1].target_config.mapping",
             "TargetLunList", 16);
  expectOne(call("QV_WZTargetIdImport", {unit_, text("a"), text("b")}).result, "[1].target_config",
            "WZTargetConfig");
}

TEST_F(HostGroups, GroupsLiveOnTheirPorts) {
  const std::string name(32, 'h');
  EXPECT_EQ(group(1, 7, 0), "1 G000");
  EXPECT_EQ(createGroup(1, 7, 127, name), "");
  EXPECT_EQ(group(1, 7, 127), "1 " + name);
  EXPECT_EQ(group(1, 6, 127), "0 ");
  EXPECT_EQ(createGroup(1, 7, 126, name), "DiskArrayException 20603");
  EXPECT_EQ(createGroup(1, 7, 128, "x"), "DiskArrayException 20602");
  EXPECT_EQ(createGroup(2, 0, 1, "x"), "DiskArrayException 20601");
  // One character more than the name takes.
  EXPECT_EQ(createGroup(0, 0, 1, name + "!"), "");
  EXPECT_EQ(group(0, 0, 1), "1 " + name);
  EXPECT_EQ(changeGroup(1, "renamed"), "");
  EXPECT_EQ(group(0, 0, 1), "1 renamed");
  EXPECT_EQ(changeGroup(2, "renamed"), "DiskArrayException 20602");

  const jobject all = create("InitHGList");
  for (const int controller : {0, 1}) {
    for (int port = 0; port < 8; ++port) {
      set(all, "ctl[" + std::to_string(controller) + "].port[" + std::to_string(port) + "].hg[63]",
          "0");
    }
  }
  set(all, "ctl[1].port[7].hg[15]", "-128");  // the last of 128 bits
  EXPECT_EQ(call("QV_InitHGList", {unit_, session_, all}).failure, "");
  EXPECT_EQ(group(1, 7, 127), "1 G127");
  EXPECT_EQ(group(0, 0, 1), "1 renamed");
  const jobject one = create("DeleteHGPortList");
  set(one, "hg[63]", "0");
  set(one, "hg[0]", "2");
  EXPECT_EQ(call("QV_DeleteHGPortList", {unit_, session_, number(0), number(0), one}).failure, "");
  EXPECT_EQ(group(0, 0, 1), "0 ");
  EXPECT_EQ(group(0, 0, 0), "1 G000");
}

TEST_F(HostGroups, MappingIsOneForAllItsForms) {
  EXPECT_EQ(mapLus(1, 7, 5, lus({100, 8191})), "DiskArrayException 20602");
  createGroup(1, 7, 5, "cluster");
  EXPECT_EQ(mapLus(1, 7, 5, lus({100, 8191})), "");
  EXPECT_EQ(mapLus(1, 7, 254, lus({7})), "");  // a target
  EXPECT_EQ(call("QV_ChangeMappingMode", {unit_, session_, number(2)}).failure, "");

  for (const char* const method : {"QV_GetLuMappingListAll", "QV_GetLuMappingListAllLite"}) {
    SCOPED_TRACE(method);
    const jobject all = call(method, {unit_, session_}).result;
    EXPECT_EQ(get(all, "mapping_mode"), "2");
    EXPECT_EQ(get(all, "ctl"), "LuMappingCtlInfo[2]");
    EXPECT_EQ(get(all, "ctl[0].port"), "LuMappingPortInfo[8]");
    EXPECT_EQ(get(all, "ctl[1].port[7].hg"), "LuMappingHGInfo[255]");
    EXPECT_EQ(get(all, "ctl[1].port[7].hg_tg_max_count"), "128");
    EXPECT_EQ(get(all, "ctl[1].port[7].hg[5].lu[0]"), "100");
    EXPECT_EQ(get(all, "ctl[1].port[7].hg[5].lu[1]"), "8191");
    EXPECT_EQ(get(all, "ctl[1].port[7].hg[5].lu[2047]"), "-1");
    EXPECT_EQ(get(all, "ctl[1].port[7].hg[254].lu[0]"), "7");
    EXPECT_EQ(get(all, "ctl[0].port[0].hg[0].lu[0]"), "-1");
  }
  EXPECT_EQ(quorvelSimCallCount("QV_GetLuMappingListAll"), 2);

  const Called one =
      call("QV_GetLuMappingList", {unit_, session_, number(1), number(7), number(5)});
  EXPECT_EQ(get(one.result, ""), "Object[2]");
  EXPECT_EQ(get(one.result, "[0]"), "2");
  EXPECT_EQ(get(one.result, "[1].lu[0]"), "100");
  EXPECT_EQ(get(one.result, "[1].lu[2047]"), "-1");
  expectInts("QV_GetLuMappingList", 2, {1, 7, 5});
  EXPECT_EQ(call("QV_GetLuMappingList", {unit_, session_, number(1), number(7), number(6)}).failure,
            "DiskArrayException 20602");

  const jobject assignment =
      call("QV_GetLuMappingPortAssignInfo", {unit_, session_, create("ControllerRequest")}).result;
  EXPECT_EQ(get(assignment, "lu_assign[8191]"), "[0, 128]");
  EXPECT_EQ(get(assignment, "lu_assign[8190]"), "[0, 0]");

  // What was read can be set back as it is, a port or all at once.
  const jobject port =
      call("QV_GetLuMappingPortList", {unit_, session_, number(1), number(7)}).result;
  set(port, "port.hg[5].lu[0]", "101");
  EXPECT_EQ(call("QV_SetLuMappingPortList", {unit_, session_, number(1), number(7), port}).failure,
            "");
  const jobject all = call("QV_GetLuMappingListAll", {unit_, session_}).result;
  EXPECT_EQ(get(all, "ctl[1].port[7].hg[5].lu[0]"), "101");
  set(all, "ctl[0].port[0].hg[0].lu[2047]", "3");
  EXPECT_EQ(call("QV_SetLuMappingListAll", {unit_, session_, all}).failure, "");
  EXPECT_EQ(
      get(call("QV_GetLuMappingList", {unit_, session_, number(0), number(0), number(0)}).result,
          "[1].lu[2047]"),
      "3");
}

TEST_F(HostGroups, GuardedLusAreNotMapped) {
  const jobject guard = call("QV_GetMappingGuardList", {unit_, session_}).result;
  set(guard, "lumap_guard[8191]", "1");
  EXPECT_EQ(call("QV_SetMappingGuardList", {unit_, session_, guard}).failure, "");
  EXPECT_EQ(mapLus(0, 0, 0, lus({8191})), "DiskArrayException 20604");
  EXPECT_EQ(mapLus(0, 0, 0, lus({8190})), "");

  // Too short an array ends the reading and no more: the library is called with what there is.
  for (const char* const method :
       {"QV_SetMappingGuardList", "QV_SetLuMappingList", "QV_SetLuMappingListAll"}) {
    quorvelSimForceResult(method, 0, 1);
  }
  setLength(guard, "lumap_guard", 8191);
  EXPECT_EQ(call("QV_SetMappingGuardList", {unit_, session_, guard}).failure.substr(0, 30),
            "ArrayIndexOutOfBoundsException");
  const jobject mapping = create("LuMappingHGInfo");
  setLength(mapping, "lu", 2047);
  EXPECT_EQ(mapLus(0, 0, 0, mapping).substr(0, 30), "ArrayIndexOutOfBoundsException");
  const jobject all = create("LuMapping");
  set(all, "ctl[0].port[0].hg[0].lu[2046]", "1");
  EXPECT_EQ(call("QV_SetLuMappingListAll", {unit_, session_, all}).failure.substr(0, 30),
            "ArrayIndexOutOfBoundsException");
  EXPECT_EQ(quorvelSimCallCount("QV_SetLuMappingListAll"), 1);
}

TEST_F(HostGroups, OptionsAreKept) {
  const jobject option = create("HGOptionInfo");
  set(option, "middleware_id", "4");
  EXPECT_EQ(
      call("QV_SetHGOption", {unit_, session_, number(1), number(0), number(0), option}).failure,
      "");
  const jobject all = call("QV_GetHGOptionAll", {unit_, session_}).result;
  EXPECT_EQ(get(all, "ctl"), "HGOptionCtlInfo[2]");
  EXPECT_EQ(get(all, "ctl[1].port"), "HGOptionPortInfo[8]");
  EXPECT_EQ(get(all, "ctl[1].port[0].hg"), "HGOptionInfo[255]");
  EXPECT_EQ(get(all, "ctl[1].port[0].hg[0].middleware_id"), "4");
  set(all, "ctl[0].port[0].hg[0].platform_id", "9");
  EXPECT_EQ(call("QV_SetHGOptionAll", {unit_, session_, all}).failure, "");
  EXPECT_EQ(get(call("QV_GetHGOption", {unit_, session_, number(0), number(0), number(0)}).result,
                "platform_id"),
            "9");

  const jobject id = create("TargetId");
  set(id, "target_id_mode", "2");
  EXPECT_EQ(call("QV_SetTargetId", {unit_, number(1), id}).failure, "");
  EXPECT_EQ(get(call("QV_GetTargetId", {unit_, number(1)}).result, "[0].target_id_mode"), "2");
}

TEST_F(HostGroups, PathsAreCutToTheirBuffers) {
  const std::string path(1100, 'p');
  call("QV_WZTargetIdImport", {unit_, text(path), text("second")});
  char given[1024] = {};
  EXPECT_EQ(quorvelSimLastInput("QV_WZTargetIdImport", 1, given, sizeof given), 1024U);
  EXPECT_EQ(std::string(given), std::string(1023, 'p'));
  EXPECT_EQ(quorvelSimLastInput("QV_WZTargetIdImport", 2, given, sizeof given), 1024U);
  EXPECT_STREQ(given, "second");
  EXPECT_EQ(call("QV_WZTargetIdImport", {unit_, text("first"), nullptr}).failure,
            "DiskArrayException 258");
  call("QV_TargetIdImport", {unit_, text(path)});
  EXPECT_EQ(quorvelSimLastInput("QV_TargetIdImport", 1, given, sizeof given), 1024U);
  EXPECT_EQ(std::string(given), std::string(1023, 'p'));
}

}  // namespace
}  // namespace quorvelj::testing
