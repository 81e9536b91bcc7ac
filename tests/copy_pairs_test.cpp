// The forms of the pair information: which fields each visits in which order, and what it holds on
// to in Java while it builds 131,008 pairs.
#include <gtest/gtest.h>

#include "simulator/control.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/recorder.h"
#include "tests/support/test_runtime.h"

namespace quorvelj::testing {
namespace {

using Names = std::vector<std::string>;

Names operator+(Names left, const Names& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

const Names kTime{"year", "month", "day", "hour", "minute", "second"};
const Names kPoolHead{"pool_no", "poolcapa_h", "poolcapa_l"};

class PairForms : public ::testing::Test {
 protected:
  ~PairForms() override {
    quorvelSimReset();
    resetTestRuntime();
  }

  /// Builds until the JNI call that fails, and returns the most local references there were.
  static int buildUntil(const char* method, int failingCall) {
    quorvelSimReset();
    quorvelSimForceResult("*", 0, 1);
    resetTestRuntime();
    MiniJvm jvm;
    jvm.failCall(failingCall);
    jvalue unit{};
    unit.l = jvm.newText("north");
    jvalue session{};
    session.l = jvm.newInput();
    nativeMethod(method).invoke(jvm.env(), {unit, session});
    EXPECT_EQ(testRuntime().liveRecords, 0);
    return jvm.mostReferences();
  }
  /// The first fields that are looked up, from the session's on.
  static void expectFields(const char* method, const Names& expected) {
    recorder() = {.tracing = true, .events = {}};
    buildUntil(method, 6000);
    recorder().tracing = false;
    const std::string lookUp = "GetFieldID ";
    Names looked;
    for (const std::string& event : recorder().events) {
      if (event.starts_with(lookUp) && looked.size() < expected.size()) {
        looked.push_back(event.substr(lookUp.size(), event.rfind(' ') - lookUp.size()));
      }
    }
    EXPECT_EQ(looked, expected);
  }
};

TEST_F(PairForms, FullForm) {
  Names expected{"session_id", "option"};
  for (int controller = 0; controller < 2; ++controller) {
    expected = expected + Names{"pool_enable_count"} + kPoolHead + Names{"pool"};
  }
  expected = expected + Names{"ctl", "pool_enable_count"};
  for (int pool = 0; pool < 64; ++pool) {
    expected = expected + kPoolHead;
  }
  const Names mirror =
      Names{"mirror_no",          "lun",      "ctl_no",     "pool_no",    "pair_status",
            "pair_status_detail", "usedcapa", "usedcapa_h", "usedcapa_l", "changed_rate",
            "synchronized_rate"} +
      kTime + Names{"time"} + kTime + Names{"split_time", "add_message", "ctg_valid", "ctg_no",
                                            "ctg_name",   "pair_name",   "copy_speed"};
  expectFields("QV_GetPairInformation",
               expected +
                   Names{"pool", "sys", "pair_count", "lun", "capacity", "capacity_h", "capacity_l",
                         "pool_usedcapa_h", "pool_usedcapa_l", "pool_usedrate", "mirror_count"} +
                   mirror + mirror);
}

TEST_F(PairForms, LightForm) {
  const Names mirror =
      Names{"mirror_no", "lun",      "pool_no",   "pair_status", "pair_status_detail", "ctg_valid",
            "ctg_no",    "ctg_name", "pair_name", "copy_speed",  "synchronized_rate"} +
      kTime + Names{"split_time", "add_message"};
  Names expected{"session_id", "option", "pair_count", "lun", "pool_usedrate", "mirror_count"};
  for (int index = 0; index < 32; ++index) {
    expected = expected + mirror;
  }
  expectFields("QV_GetPairInformationLite", expected + Names{"m_info", "lun"});
}

TEST_F(PairForms, SecondLightForm) {
  const Names mirror =
      Names{"mirror_no", "lun", "ctl_no", "pool_no", "pair_status", "usedcapa", "changed_rate"} +
      kTime + Names{"time"};
  Names expected{"session_id", "option"};
  for (int controller = 0; controller < 2; ++controller) {
    expected = expected + Names{"pool_enable_count"} + kPoolHead + Names{"pool"};
  }
  expected = expected + Names{"ctl",           "pair_count",      "lun",
                              "capacity",      "pool_usedcapa_h", "pool_usedcapa_l",
                              "pool_usedrate", "mirror_count"};
  for (int index = 0; index < 32; ++index) {
    expected = expected + mirror;
  }
  expectFields("QV_GetPairInformationLite2", expected + Names{"m_info", "lun"});
}

TEST_F(PairForms, LocalReferencesDoNotGrowWithThePairs) {
  for (const char* const method :
       {"QV_GetPairInformation", "QV_GetPairInformationLite", "QV_GetPairInformationLite2"}) {
    // Until the exception in the twentieth logical unit or behind it, after 640 pairs.
    EXPECT_LE(buildUntil(method, 60'000), 20) << method;
  }
}

}  // namespace
}  // namespace quorvelj::testing
