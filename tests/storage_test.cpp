// What departs from the frames in the methods of RAID groups and logical units, call by call.
#include <gtest/gtest.h>

#include <algorithm>

#include "simulator/control.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/recorder.h"
#include "tests/support/test_runtime.h"

namespace quorvelj::testing {
namespace {

class Storage : public ::testing::Test {
 protected:
  Storage() {
    quorvelSimReset();
    quorvelSimForceResult("*", 0, 1);
    quorvelSimObserve([](const char* function) { recorder().add(function); });
    resetTestRuntime();
  }
  ~Storage() override {
    recorder() = {};
    quorvelSimReset();
    resetTestRuntime();
  }

  jobject invoke(const char* method, int inputs) {
    std::vector<jvalue> arguments(static_cast<std::size_t>(inputs) + 1);
    arguments[0].l = jvm_.newText("unit");
    std::for_each(arguments.begin() + 1, arguments.end(),
                  [&](jvalue& argument) { argument.l = jvm_.newInput(); });
    return nativeMethod(method).invoke(jvm_.env(), arguments).l;
  }
  std::vector<std::string> trace(const char* method, int inputs) {
    recorder().tracing = true;
    invoke(method, inputs);
    recorder().tracing = false;
    return recorder().events;
  }

  MiniJvm jvm_;
};

// An object takes 4 calls, each of its ints 5, and its store 2.
TEST_F(Storage, CallsForEachElement) {
  constexpr int kCopyName = 3;
  constexpr int kReadSession = 7;
  constexpr int kMakeArray = 3;
  invoke("QV_GetLogicalUnit", 1);
  EXPECT_EQ(jvm_.calls(), kCopyName + kReadSession + kMakeArray + 8192 * (4 + 24 * 5 + 2));
}

TEST_F(Storage, ArraysEndAtWhatCannotBeBuilt) {
  constexpr int kFallibleAnElement = 3 + 24 * 2 + 1;
  for (const int built : {0, 1, 40}) {
    MiniJvm jvm;
    std::vector<jvalue> arguments(2);
    arguments[0].l = jvm.newText("unit");
    arguments[1].l = jvm.newInput();
    quorvelSimForceResult("*", 0, 2);
    resetTestRuntime();
    // The first value of an element is stored by its fifth call that can fail.
    nativeMethod("QV_GetLogicalUnit").invoke(jvm.env(), arguments);
    const int before = jvm.fallibleCalls() - 8192 * kFallibleAnElement;
    jvm.failCall(jvm.fallibleCalls() + before + built * kFallibleAnElement + 5);
    const jobject array = nativeMethod("QV_GetLogicalUnit").invoke(jvm.env(), arguments).l;
    ASSERT_NE(array, nullptr);
    EXPECT_EQ(jvm.pending()->className, "java/lang/InternalError");
    const std::vector<jobject> elements = jvm.elementsOf(array);
    ASSERT_EQ(elements.size(), 8192U);
    EXPECT_EQ(std::count(elements.begin(), elements.end(), nullptr), 8192 - built);
    EXPECT_EQ(testRuntime().liveRecords, 0);
  }
}

TEST_F(Storage, ArrayOfRaidGroups) {
  std::vector<std::string> events = trace("QV_GetRaidGroups", 0);
  ASSERT_EQ(events.size(), 11U + 90 * (1 + 4 + 14 * 5 + 2));
  const std::vector<std::string> head(events.begin(), events.begin() + 10);
  EXPECT_EQ(head,
            (std::vector<std::string>{"flush", "GetStringUTFLength", "GetStringUTFChars",
                                      "ReleaseStringUTFChars", "malloc 5040", "QV_GetRaidGroups",
                                      "FindClass tessaly/str/diskarray/RaidGroup",
                                      "NewObjectArray 90", "DeleteLocalRef", "flush"}));
  const std::vector<std::string> tail(events.end() - 4, events.end());
  EXPECT_EQ(tail,
            (std::vector<std::string>{"SetObjectArrayElement", "DeleteLocalRef", "free", "flush"}));
  // The name, the array, an element and its class.
  EXPECT_EQ(jvm_.mostReferences(), 4);
}

TEST_F(Storage, FormatStatusListInItsOwnFrame) {
  const std::vector<std::string> events = trace("QV_LogicalUnitFormatStatusList", 0);
  const std::vector<std::string> head(events.begin(), events.begin() + 6);
  EXPECT_EQ(head, (std::vector<std::string>{"GetStringUTFLength", "GetStringUTFChars",
                                            "ReleaseStringUTFChars",
                                            "QV_LogicalUnitFormatStatusList", "flush",
                                            "FindClass tessaly/str/diskarray/LuFormatStatusList"}));
  EXPECT_EQ(events.back(), "DeleteLocalRef");
  // Each of the 2,049 builders flushes; the method does not.
  EXPECT_EQ(std::count(events.begin(), events.end(), "flush"), 2049);
  EXPECT_EQ(testRuntime().allocations, 0);

  quorvelSimForceResult("*", 0, 1);
  jvm_.removeField("percent");
  EXPECT_EQ(invoke("QV_LogicalUnitFormatStatusList", 0), nullptr);
  EXPECT_EQ(jvm_.pending()->className, "java/lang/NoSuchFieldError");
}

}  // namespace
}  // namespace quorvelj::testing
