// Registered units in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

const std::vector<Member> kUnitParam{
    textAt(0, 65, "unit_name"), textAt(65, 17, "group_name"), int8At(82, "connect_type"),
    int8At(83, "qv_type"),      uint8At(84, "device_type"),   int8At(85, "unit_conf"),
    int8At(86, "alert"),        textAt(87, 256, "ctl0"),      textAt(343, 256, "ctl1"),
    textAt(599, 9, "serial"),   int32At(608, "ssl_used"),
};

class UnitRegistration : public RegisteredUnit {
 protected:
  static jobject unit(const std::string& name) {
    const jobject param = create("QVUnitParam");
    set(param, "unit_name", name);
    for (const char* const field : {"group_name", "ctl1", "serial"}) {
      set(param, field, "");
    }
    set(param, "ctl0", "192.0.2.10");
    return param;
  }
};

TEST_F(UnitRegistration, Records) {
  expectBuilt("QV_GetUnitParam", {text("u")}, 612, kUnitParam);
  const jobject param = create("QVUnitParam");
  expectRead("QV_UnitAdd", {param}, param, 0, 612, kUnitParam);
  expectRead("QV_UnitAddByIP", {param}, param, 0, 612, kUnitParam);
  expectRead("QV_UnitChange", {text("u"), param}, param, 1, 612, kUnitParam);
  expectRead("QV_UnitChangeByIP", {text("u"), param}, param, 1, 612, kUnitParam);

  const jobject request = create("DiscoverUnitRequest");
  for (const char* const method : {"QV_DiscoverUnitInformation", "QV_DiscoverUnitInformationEx"}) {
    expectRead(
        method, {request}, request, 0, 264,
        {uint8At(0, "connect_type"), textAt(1, 256, "ip_dev"), int32At(260, "communication_mode")});
    expectBuilt(method, {request}, 276,
                {uint8At(0, "connect_type"), textAt(1, 256, "ip_dev"), uint8At(257, "qv_type"),
                 uint8At(258, "device_type"), uint8At(259, "unit_conf"), uint8At(260, "ctlno"),
                 textAt(261, 11, "serial"), int32At(272, "communication_port")});
  }

  const jobject session = create("QVSessionInfo");
  expectBuilt("QV_GetAdditionalUnitInformation", {text("u"), session}, 32,
              int32sAt(0, {"inquiry_time", "polling_time", "time_out", "add_unit_num",
                           "connect_unit_num", "unit_type", "unit_status", "unit_status_subcode"}));
  const jobject additional = create("AdditionalUnitRequest");
  expectRead("QV_AddAdditionalUnit", {text("u"), session, additional}, additional, 2, 4,
             {int32At(0, "mode")});
  expectRead("QV_AddAdditionalUnit", {text("u"), session, additional}, session, 1, 32,
             {bytesAt(0, 32, "session_id")});
}

TEST_F(UnitRegistration, ListOfUnits) {
  EXPECT_EQ(call("QV_UnitAdd", {unit("east")}).failure, "");
  EXPECT_EQ(call("QV_UnitAdd", {unit("north")}).failure, "DiskArrayException 20002");
  EXPECT_EQ(get(call("QV_GetUnitCount", {}).result, ""), "2");
  const jobject table = call("QV_GetUnitParamTable", {number(2)}).result;
  EXPECT_EQ(get(table, "[0].unit_name"), "east");
  EXPECT_EQ(get(table, "[1].unit_name"), "north");
  // The network's entry fills what the registration left empty.
  EXPECT_EQ(get(table, "[1].device_type"), "201");
  EXPECT_EQ(get(call("QV_GetUnitParamTable", {number(0)}).result, ""), "QVUnitParam[0]");
  EXPECT_EQ(call("QV_GetUnitParamTable", {number(-1)}).result, nullptr);

  EXPECT_EQ(call("QV_UnitChange", {text("north"), unit("west")}).failure, "");
  EXPECT_EQ(call("QV_GetUnitParam", {text("north")}).failure, "DiskArrayException 20001");
  EXPECT_EQ(call("QV_UnitDelete", {text("west")}).failure, "");
  EXPECT_EQ(get(call("QV_GetUnitCount", {}).result, ""), "1");
}

TEST_F(UnitRegistration, NamesAreCutToTheirBuffer) {
  const std::string name = std::string(98, 'n') + "é";
  call("QV_UnitDelete", {text(name)});
  EXPECT_EQ(lastText("QV_UnitDelete", 0), std::string(64, 'n'));
  call("QV_UnitChange", {text(name), unit("x")});
  EXPECT_EQ(lastText("QV_UnitChange", 0), name);
  // A character that does not fit whole is cut inside: 63 letters and the first of two bytes.
  call("QV_UnitDelete", {text(std::string(63, 'n') + "é")});
  EXPECT_EQ(lastText("QV_UnitDelete", 0), std::string(63, 'n') + "\xC3");
  EXPECT_EQ(call("QV_UnitDelete", {text("")}).failure, "DiskArrayException 20001");
  EXPECT_EQ(lastText("QV_UnitDelete", 0), "");

  // Such a cut text is still one that Java can be given back.
  jobject param = unit(std::string(63, 'n') + "é");
  EXPECT_EQ(call("QV_UnitAdd", {param}).failure, "");
  EXPECT_EQ(get(call("QV_GetUnitParamTable", {number(2)}).result, "[0].group_name"), "");
}

TEST_F(UnitRegistration, Failures) {
  EXPECT_EQ(call("QV_UnitDelete", {nullptr}).failure, "DiskArrayException 258");
  EXPECT_EQ(quorvelSimCallCount("QV_UnitDelete"), 0);
  quorvelSimForceResult("QV_GetUnitParam", 65535, 1);
  EXPECT_EQ(call("QV_GetUnitParam", {text("u")}).failure, "OutOfMemoryError ");
  quorvelSimForceResult("QV_GetUnitParam", 256, 1);
  const Called neverThrown = call("QV_GetUnitParam", {text("u")});
  EXPECT_EQ(neverThrown.failure, "");
  EXPECT_EQ(neverThrown.result, nullptr);
  quorvelSimForceResult("QV_GetUnitCount", 256, 1);
  EXPECT_EQ(get(call("QV_GetUnitCount", {}).result, ""), "-1");
}

TEST_F(UnitRegistration, IncompleteObjectsReachTheLibraryAsFarAsTheyWereRead) {
  const jobject param = unit("north");
  setNull(param, "group_name");
  quorvelSimForceResult("QV_UnitAdd", 0, 2);
  const int calls = quorvelSimCallCount("QV_UnitAdd");
  EXPECT_EQ(call("QV_UnitAdd", {param}).failure, "");
  EXPECT_EQ(lastText("QV_UnitAdd", 0), "north");
  EXPECT_EQ(call("QV_UnitAdd", {nullptr}).failure, "");
  EXPECT_EQ(quorvelSimCallCount("QV_UnitAdd"), calls + 2);
}

}  // namespace
}  // namespace quorvelj::testing
