// What the calls that return the most objects, up to a million, hold while they build them.
#include <gtest/gtest.h>

#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/simulated_library.h"

namespace quorvelj::testing {
namespace {

struct LargeCall {
  const char* method;
  std::size_t recordBytes;
  int references;
  /// The classes that a call keeps where it keeps identifiers.
  int classes;
};

class LargeCalls : public SimulatedLibrary, public ::testing::WithParamInterface<LargeCall> {};

TEST_P(LargeCalls, HoldOneRecordAndFewReferences) {
#ifdef QUORVELJ_CACHE_IDS
  constexpr bool kKeepsClasses = true;
#else
  constexpr bool kKeepsClasses = false;
#endif
  const auto& [name, recordBytes, references, classes] = GetParam();
  constexpr std::size_t kSessionBytes = 32;
  quorvelSimForceResult("*", 0, 1);
  MiniJvm jvm;
  jvm.heap.forgetResults();
  const NativeMethod& method = nativeMethod(name);
  std::vector<jvalue> arguments(method.argumentTypes().size());
  arguments[0].l = jvm.newText("north");
  const int before = jvm.heap.liveReferences();
  EXPECT_NE(method.invoke(jvm.env(), arguments).l, nullptr);
  EXPECT_EQ(testRuntime().mostBytes, recordBytes + kSessionBytes);
  EXPECT_EQ(testRuntime().liveRecords, 0);
  EXPECT_EQ(jvm.heap.mostReferences() - before, references + (kKeepsClasses ? classes : 0));
  EXPECT_EQ(jvm.heap.liveReferences() - before, 1);
}

constexpr std::size_t kRequestBytes = 4;
INSTANTIATE_TEST_SUITE_P(
    , LargeCalls,
    ::testing::Values(LargeCall{"QV_GetAllInformation", 76'038'764, 10, 165},
                      LargeCall{"QV_GetAllInformationLite", 76'038'764, 10, 164},
                      LargeCall{"QV_GetAllInfo_HG", 225'436 + kRequestBytes, 10, 4},
                      LargeCall{"QV_GetPairInformationLite", 26'333'420, 7, 3}),
    [](const auto& parameter) { return std::string(parameter.param.method); });

}  // namespace
}  // namespace quorvelj::testing
