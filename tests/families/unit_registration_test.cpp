// Registered units.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

class UnitRegistration : public RegisteredUnit {
 protected:
  static jobject unit(const std::string& name) {
    return create("QVUnitParam", {{"unit_name", name},
                                  {"group_name", ""},
                                  {"ctl0", "192.0.2.10"},
                                  {"ctl1", ""},
                                  {"serial", ""}});
  }
};

TEST_F(UnitRegistration, Records) {
  const Members unitParam{
      textAt(0, 65, "unit_name"), textAt(65, 17, "group_name"), int8At(82, "connect_type"),
      int8At(83, "qv_type"),      uint8At(84, "device_type"),   int8At(85, "unit_conf"),
      int8At(86, "alert"),        textAt(87, 256, "ctl0"),      textAt(343, 256, "ctl1"),
      textAt(599, 9, "serial"),   int32At(608, "ssl_used")};
  expectBuilt("QV_GetUnitParam", {unit_}, 612, unitParam);
  const jobject param = create("QVUnitParam");
  for (const char* const method : {"QV_UnitAdd", "QV_UnitAddByIP"}) {
    expectRead(method, {param}, param, 0, 612, unitParam);
  }
  for (const char* const method : {"QV_UnitChange", "QV_UnitChangeByIP"}) {
    expectRead(method, {unit_, param}, param, 1, 612, unitParam);
  }
  const Members request{uint8At(0, "connect_type"), textAt(1, 256, "ip_dev")};
  const jobject discovery = create("DiscoverUnitRequest");
  for (const char* const method : {"QV_DiscoverUnitInformation", "QV_DiscoverUnitInformationEx"}) {
    expectRead(method, {discovery}, discovery, 0, 264,
               request + int32sAt(260, "communication_mode"));
    expectBuilt(method, {discovery}, 276,
                request + Members{uint8At(257, "qv_type"), uint8At(258, "device_type"),
                                  uint8At(259, "unit_conf"), uint8At(260, "ctlno"),
                                  textAt(261, 11, "serial"), int32At(272, "communication_port")});
  }
  expectFromUnit("QV_GetAdditionalUnitInformation", 32,
                 int32sAt(0,
                          "inquiry_time polling_time time_out add_unit_num connect_unit_num "
                          "unit_type unit_status unit_status_subcode"));
  expectRequest("QV_AddAdditionalUnit", "AdditionalUnitRequest", 4, {int32At(0, "mode")});
}

TEST_F(UnitRegistration, ListOfUnits) {
  EXPECT_EQ(call("QV_UnitAdd", {unit("east")}).failure, "");
  EXPECT_EQ(call("QV_UnitAdd", {unit("north")}).failure, "DiskArrayException 20002");
  EXPECT_EQ(get(call("QV_GetUnitCount", {}).result, ""), "2");
  // The network's entry fills what the registration left empty.
  expectFields(call("QV_GetUnitParamTable", {number(2)}).result, {{"", "QVUnitParam[2]"},
                                                                  {"[0].unit_name", "east"},
                                                                  {"[1].unit_name", "north"},
                                                                  {"[1].device_type", "201"}});
  EXPECT_EQ(get(call("QV_GetUnitParamTable", {number(0)}).result, ""), "QVUnitParam[0]");
  EXPECT_EQ(call("QV_GetUnitParamTable", {number(-1)}).result, nullptr);
}

TEST_F(UnitRegistration, NamesAreCutToTheirBuffer) {
  const std::string name = std::string(98, 'n') + "é";
  call("QV_UnitDelete", {text(name)});
  EXPECT_EQ(lastText("QV_UnitDelete", 0), std::string(64, 'n'));
  call("QV_UnitChange", {text(name), unit("x")});
  EXPECT_EQ(lastText("QV_UnitChange", 0), name);
  EXPECT_EQ(call("QV_UnitDelete", {text("")}).failure, "DiskArrayException 20001");
  EXPECT_EQ(lastText("QV_UnitDelete", 0), "");
  // A character that does not fit whole is cut inside: 63 letters and the first of two bytes.
  const std::string inside = std::string(63, 'n') + "é";
  call("QV_UnitDelete", {text(inside)});
  EXPECT_EQ(lastText("QV_UnitDelete", 0), std::string(63, 'n') + "\xC3");
  // Java can be given such a text back.
  EXPECT_EQ(call("QV_UnitAdd", {unit(inside)}).failure, "");
  const jobject table = call("QV_GetUnitParamTable", {number(2)}).result;
  expectFields(table, {{"", "QVUnitParam[2]"}, {"[0].group_name", ""}});
}

TEST_F(UnitRegistration, ResultsOfTheLibrary) {
  const auto forced = [](const char* method, int result, const std::vector<jobject>& arguments) {
    quorvelSimForceResult(method, result, 1);
    return call(method, arguments);
  };
  EXPECT_EQ(forced("QV_GetUnitParam", 65535, {unit_}).failure, "OutOfMemoryError");
  const Called neverThrown = forced("QV_GetUnitParam", 256, {unit_});
  EXPECT_EQ(neverThrown.failure, "");
  EXPECT_EQ(neverThrown.result, nullptr);
  EXPECT_EQ(get(forced("QV_GetUnitCount", 256, {}).result, ""), "-1");
  EXPECT_EQ(call("QV_UnitDelete", {nullptr}).failure, "DiskArrayException 258");

  // Incomplete objects reach the library as far as they were read.
  const jobject param = unit("south");
  setNull(param, "group_name");
  EXPECT_EQ(forced("QV_UnitAdd", 0, {param}).failure, "");
  EXPECT_EQ(lastText("QV_UnitAdd", 0), "south");
  const int calls = quorvelSimCallCount("QV_UnitAdd");
  EXPECT_EQ(forced("QV_UnitAdd", 0, {nullptr}).failure, "");
  EXPECT_EQ(quorvelSimCallCount("QV_UnitAdd"), calls + 1);
}

}  // namespace
}  // namespace quorvelj::testing
