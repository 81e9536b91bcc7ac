// SNMP configurations.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using Snmp = RegisteredUnit;

TEST_F(Snmp, RecordsAndArguments) {
  expectPassed("QV_LoadSnmpConfig pp; QV_SetSnmpConfig uspp; QV_SnmpConfigOutput uspp");
  const Members members = "0:int32 set_valid; 4:text4096 conf; 4100:text255 name";
  expectBuilt("QV_LoadSnmpConfig", {text("a"), text("b")}, 4356, members);
  const jobject config = create("SnmpConfigInformation");
  expectRead("QV_SaveSnmpConfig", {text("a"), text("b"), config}, config, 2, 4356, members);
  EXPECT_EQ(lastInput("QV_SaveSnmpConfig", 0).size(), 1024U);
  EXPECT_EQ(lastText("QV_SaveSnmpConfig", 1), "b");
  expectRequest("QV_SetSnmpConfigonMemory", config, 4356, members);
}

TEST_F(Snmp, ConfigurationTravelsThroughFilesAndTheArray) {
  const jobject config = create("SnmpConfigInformation", "conf=sysContact \"Größe\"\n; name=agent");
  const jobject first = text(temporary("snmp-text"));
  const jobject second = text(temporary("snmp-name"));
  EXPECT_EQ(call("QV_SaveSnmpConfig", {first, second, config}).failure, "");
  EXPECT_EQ(contentOf(temporary("snmp-text")), "sysContact \"Größe\"\n");
  update("QV_SetSnmpConfig", first, second);
  update("QV_SnmpConfigOutput", second, first);
  const jobject loaded = call("QV_LoadSnmpConfig", {second, first}).result;
  expectFields(loaded, "conf=sysContact \"Größe\"\n; name=agent");
}

}  // namespace
}  // namespace quorvelj::testing
