// The forms of the pair information: which fields each visits in which order, and that what it
// holds on to in Java does not grow with the pairs.
#include "tests/support/traced_methods.h"

namespace quorvelj::testing {
namespace {

const Events kTime{"year", "month", "day", "hour", "minute", "second"};
const Events kPoolHead{"pool_no", "poolcapa_h", "poolcapa_l"};

class PairForms : public TracedMethods {
 protected:
  /// Expects the first fields that are looked up, from the session's on, and no more references
  /// than a pair takes, until a call fails in the twentieth logical unit or behind it.
  void expectFields(const char* method, const Events& expected) {
    const std::string lookUp = "GetFieldID ";
    jvm_.failCall(60'000);
    Events looked = only(trace(method), {lookUp});
    looked.resize(expected.size());
    for (std::string& event : looked) {
      event = event.substr(lookUp.size(), event.rfind(' ') - lookUp.size());
    }
    EXPECT_EQ(looked, expected);
    EXPECT_EQ(thrown(), "DiskArrayException 2817");
    EXPECT_LE(jvm_.mostReferences(), 20);
  }
};

TEST_F(PairForms, FullForm) {
  Events expected{"session_id", "option"};
  for (int controller = 0; controller < 2; ++controller) {
    expected = expected + Events{"pool_enable_count"} + kPoolHead + Events{"pool"};
  }
  expected = expected + Events{"ctl", "pool_enable_count"};
  for (int pool = 0; pool < 64; ++pool) {
    expected = expected + kPoolHead;
  }
  const Events mirror =
      Events{"mirror_no",          "lun",      "ctl_no",     "pool_no",    "pair_status",
             "pair_status_detail", "usedcapa", "usedcapa_h", "usedcapa_l", "changed_rate",
             "synchronized_rate"} +
      kTime + Events{"time"} + kTime + Events{"split_time", "add_message", "ctg_valid", "ctg_no",
                                              "ctg_name",   "pair_name",   "copy_speed"};
  expectFields(
      "QV_GetPairInformation",
      expected +
          Events{"pool", "sys", "pair_count", "lun", "capacity", "capacity_h", "capacity_l",
                 "pool_usedcapa_h", "pool_usedcapa_l", "pool_usedrate", "mirror_count"} +
          mirror + mirror);
}

TEST_F(PairForms, LightForm) {
  const Events mirror =
      Events{"mirror_no", "lun",      "pool_no",   "pair_status", "pair_status_detail", "ctg_valid",
             "ctg_no",    "ctg_name", "pair_name", "copy_speed",  "synchronized_rate"} +
      kTime + Events{"split_time", "add_message"};
  Events expected{"session_id", "option", "pair_count", "lun", "pool_usedrate", "mirror_count"};
  for (int index = 0; index < 32; ++index) {
    expected = expected + mirror;
  }
  expectFields("QV_GetPairInformationLite", expected + Events{"m_info", "lun"});
}

TEST_F(PairForms, SecondLightForm) {
  const Events mirror =
      Events{"mirror_no", "lun", "ctl_no", "pool_no", "pair_status", "usedcapa", "changed_rate"} +
      kTime + Events{"time"};
  Events expected{"session_id", "option"};
  for (int controller = 0; controller < 2; ++controller) {
    expected = expected + Events{"pool_enable_count"} + kPoolHead + Events{"pool"};
  }
  expected = expected + Events{"ctl",           "pair_count",      "lun",
                               "capacity",      "pool_usedcapa_h", "pool_usedcapa_l",
                               "pool_usedrate", "mirror_count"};
  for (int index = 0; index < 32; ++index) {
    expected = expected + mirror;
  }
  expectFields("QV_GetPairInformationLite2", expected + Events{"m_info", "lun"});
}

}  // namespace
}  // namespace quorvelj::testing
