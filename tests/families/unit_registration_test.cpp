// Registered units.
#include <cstring>

#include "arraylib/units.h"
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

class UnitRegistration : public RegisteredUnit {
 protected:
  static jobject unit(const std::string& name) {
    return create("QVUnitParam",
                  "unit_name=" + name + "; group_name=; ctl0=192.0.2.10; ctl1=; serial=");
  }
};

TEST_F(UnitRegistration, Records) {
  const Members unitParam =
      "0:text65 unit_name; 65:text17 group_name; 82:int8 connect_type qv_type; 84:uint8 "
      "device_type; 85:int8 unit_conf alert; 87:text256 ctl0 ctl1; 599:text9 serial; 608:int32 "
      "ssl_used";
  expectBuilt("QV_GetUnitParam", {unit_}, 612, unitParam);
  expectRequest("QV_UnitAdd QV_UnitAddByIP QV_UnitChange QV_UnitChangeByIP", "QVUnitParam", 612,
                unitParam);
  const Members request = "0:uint8 connect_type; 1:text256 ip_dev";
  const jobject discovery = create("DiscoverUnitRequest");
  for (const char* const method : {"QV_DiscoverUnitInformation", "QV_DiscoverUnitInformationEx"}) {
    expectRequest(method, discovery, 264, request + "260:int32 communication_mode");
    expectBuilt(method, {discovery}, 276,
                request +
                    "257:uint8 qv_type device_type unit_conf ctlno; 261:text11 serial; 272:int32 "
                    "communication_port");
  }
  expectFromUnit("QV_GetAdditionalUnitInformation", 32,
                 "0:int32 inquiry_time polling_time time_out add_unit_num connect_unit_num "
                 "unit_type unit_status unit_status_subcode");
  expectRequest("QV_AddAdditionalUnit", "AdditionalUnitRequest", 4, "0:int32 mode");
}

TEST_F(UnitRegistration, ListOfUnits) {
  EXPECT_EQ(call("QV_UnitAdd", {unit("east")}).failure, "");
  EXPECT_EQ(call("QV_UnitAdd", {unit("north")}).failure, "DiskArrayException 20002");
  EXPECT_EQ(get(call("QV_GetUnitCount", {}).result, ""), "2");
  // The network's entry fills what the registration left empty.
  expectFields(call("QV_GetUnitParamTable", {number(2)}).result,
               "=QVUnitParam[2]; [0].unit_name=east; [1].unit_name=north; [1].device_type=201");
  EXPECT_EQ(get(call("QV_GetUnitParamTable", {number(0)}).result, ""), "QVUnitParam[0]");
  EXPECT_EQ(call("QV_GetUnitParamTable", {number(-1)}).result, nullptr);
  QVUnitParam prepared[2]{};
  std::strcpy(prepared[1].unit_name, "second");
  quorvelSimPrepareOutput("QV_GetUnitParamTable", prepared, sizeof prepared);
  EXPECT_EQ(get(call("QV_GetUnitParamTable", {number(2)}).result, "[1].unit_name"), "second");
}

TEST_F(UnitRegistration, NamesAreCutToTheirBuffer) {
  const std::string name = std::string(98, 'n') + "é";
  call("QV_UnitDelete", {text(name)});
  EXPECT_EQ(lastText("QV_UnitDelete", 0), std::string(64, 'n'));
  call("QV_UnitChange", {text(name), unit("x")});
  EXPECT_EQ(lastText("QV_UnitChange", 0), name);
  EXPECT_EQ(call("QV_UnitDelete", {text("")}).failure, "DiskArrayException 20001");
  EXPECT_EQ(lastText("QV_UnitDelete", 0), "");
}

TEST_F(UnitRegistration, AUnitOfANameAndAnAddress) {
  const jobject unit = create("QVUnitParam", "unit_name=first; ctl0=10.0.0.1");
  EXPECT_EQ(call("QV_UnitAdd", {unit}).failure, "");
  expectFields(call("QV_GetUnitParam", {text("first")}).result,
               "unit_name=first; group_name=; connect_type=0; ctl0=10.0.0.1; ctl1=");
}

TEST_F(UnitRegistration, ResultsOfTheLibrary) {
  quorvelSimForceResult("QV_GetUnitParam", 65535, 1);
  EXPECT_EQ(call("QV_GetUnitParam", {unit_}).failure, "OutOfMemoryError");
  quorvelSimForceResult("QV_GetUnitCount", 256, 1);
  EXPECT_EQ(get(call("QV_GetUnitCount", {}).result, ""), "-1");
  EXPECT_EQ(call("QV_UnitDelete", {nullptr}).failure, "DiskArrayException 258");
}

}  // namespace
}  // namespace quorvelj::testing
