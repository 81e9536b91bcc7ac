// What the calls for the whole array hold while they build a million objects.
#include <gtest/gtest.h>

#include "simulator/control.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/test_runtime.h"

namespace quorvelj::testing {
namespace {

TEST(AllInformation, OneRecordAndTenReferences) {
  constexpr std::size_t kSession = 32;
  for (const auto& [method, bytes] : {std::pair{"QV_GetAllInformation", 76'038'764 + kSession},
                                      {"QV_GetAllInformationLite", 76'038'764 + kSession},
                                      {"QV_GetAllInfo_HG", 225'436 + kSession + 4}}) {
    SCOPED_TRACE(method);
    quorvelSimReset();
    quorvelSimForceResult("*", 0, 1);
    resetTestRuntime();
    MiniJvm jvm;
    std::vector<jvalue> arguments(nativeMethod(method).argumentTypes().size());
    arguments[0].l = jvm.newText("north");
    const int before = jvm.liveReferences();
    EXPECT_NE(nativeMethod(method).invoke(jvm.env(), arguments).l, nullptr);
    EXPECT_EQ(testRuntime().mostBytes, bytes);
    EXPECT_EQ(testRuntime().liveRecords, 0);
    EXPECT_EQ(jvm.mostReferences() - before, 10);
    EXPECT_EQ(jvm.liveReferences() - before, 1);
  }
  quorvelSimReset();
  resetTestRuntime();
}

}  // namespace
}  // namespace quorvelj::testing
