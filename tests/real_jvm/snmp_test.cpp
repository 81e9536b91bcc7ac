// SNMP configurations in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

using Snmp = RegisteredUnit;

TEST_F(Snmp, RecordsAndArguments) {
  expectPassed("QV_LoadSnmpConfig", "pp");
  expectPassed("QV_SetSnmpConfig", "uspp");
  expectPassed("QV_SnmpConfigOutput", "uspp");
  const std::vector<Member> members{int32At(0, "set_valid"), textAt(4, 4096, "conf"),
                                    textAt(4100, 255, "name")};
  const jobject config = create("SnmpConfigInformation");
  expectBuilt("QV_LoadSnmpConfig", {text("a"), text("b")}, 4356, members);
  expectRead("QV_SaveSnmpConfig", {text("a"), text("b"), config}, config, 2, 4356, members);
  expectRead("QV_SetSnmpConfigonMemory", {unit_, session_, config}, config, 2, 4356, members);
  expectRead("QV_SetSnmpConfigonMemory", {unit_, session_, config}, session_, 1, 32,
             {bytesAt(0, 32, "session_id")});
  EXPECT_EQ(lastInput("QV_SaveSnmpConfig", 0).size(), 1024U);
  EXPECT_EQ(lastText("QV_SaveSnmpConfig", 1), "b");
}

TEST_F(Snmp, ConfigurationTravelsThroughFilesAndTheArray) {
  const jobject config = create("SnmpConfigInformation");
  set(config, "set_valid", "1");
  set(config, "conf", std::string(5000, 'c'));
  set(config, "name", "agent");
  EXPECT_EQ(call("QV_SetSnmpConfigonMemory", {unit_, session_, config}).failure, "");
  const jobject first = text(temporary("snmp-text"));
  const jobject second = text(temporary("snmp-name"));
  EXPECT_EQ(call("QV_SnmpConfigOutput", {unit_, session_, first, second}).failure, "");
  EXPECT_EQ(contentOf(temporary("snmp-text")), std::string(4095, 'c'));
  const jobject loaded = call("QV_LoadSnmpConfig", {first, second}).result;
  EXPECT_EQ(get(loaded, "name"), "agent");

  set(loaded, "conf", "sysContact \"Größe\"\n");
  EXPECT_EQ(call("QV_SaveSnmpConfig", {first, second, loaded}).failure, "");
  EXPECT_EQ(call("QV_SetSnmpConfig", {unit_, session_, first, second}).failure, "");
  EXPECT_EQ(call("QV_SnmpConfigOutput", {unit_, session_, second, first}).failure, "");
  EXPECT_EQ(contentOf(temporary("snmp-name")), "sysContact \"Größe\"\n");
  EXPECT_EQ(call("QV_LoadSnmpConfig", {text("/no/such"), second}).failure,
            "DiskArrayException 20801");
}

}  // namespace
}  // namespace quorvelj::testing
