// What the snapshot and the output methods do otherwise than their frames, in the order of their
// calls.
#include <gtest/gtest.h>

#include <algorithm>

#include "simulator/control.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/recorder.h"
#include "tests/support/test_runtime.h"

namespace quorvelj::testing {
namespace {

using Events = std::vector<std::string>;

Events operator+(Events left, const Events& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

const Events kBegin{
    "flush",          "GetStringUTFLength",    "GetStringUTFChars",        "ReleaseStringUTFChars",
    "malloc 32",      "GetObjectClass",        "GetFieldID session_id [B", "GetObjectField",
    "DeleteLocalRef", "GetByteArrayRegion 32", "ExceptionOccurred",        "DeleteLocalRef"};
const Events kThrow{"FindClass tessaly/str/diskarray/DiskArrayException", "GetMethodID <init> (I)V",
                    "NewObject", "Throw"};
const Events kThrowOutOfMemory{"FindClass java/lang/OutOfMemoryError",
                               "ThrowNew java/lang/OutOfMemoryError \"\""};

class PerformanceTrace : public ::testing::Test {
 protected:
  PerformanceTrace() {
    quorvelSimReset();
    quorvelSimForceResult("*", 0, 1);
    quorvelSimObserve([](const char* function) { recorder().add(function); });
    resetTestRuntime();
  }
  ~PerformanceTrace() override {
    quorvelSimReset();
    resetTestRuntime();
  }

  Events trace(const char* name) {
    std::vector<jvalue> arguments;
    for (const std::string& type : nativeMethod(name).argumentTypes()) {
      arguments.push_back(jvm_.newArgument(type));
    }
    recorder() = {.tracing = true, .events = {}};
    result_ = nativeMethod(name).invoke(jvm_.env(), arguments);
    recorder().tracing = false;
    return recorder().events;
  }

  MiniJvm jvm_;
  jvalue result_{};
};

// A function, because a macro would split its arguments at the commas of the lists.
void expectSame(const Events& actual, const Events& expected) { EXPECT_EQ(actual, expected); }

TEST_F(PerformanceTrace, SnapshotsWithoutMemoryAreLeftNull) {
  testRuntime().refusedAllocation = 2;
  expectSame(trace("QV_GetPerformanceAll"),
             kBegin + Events{"malloc 3458208", "malloc 3458208", "QV_GetPerformanceAll",
                             "FindClass tessaly/str/diskarray/PerformanceAll", "NewObjectArray 2",
                             "DeleteLocalRef", "flush", "free null", "free", "flush"});
  EXPECT_EQ(jvm_.elementsOf(result_.l), (std::vector<jobject>{nullptr, nullptr}));
  EXPECT_FALSE(jvm_.pending());
}

TEST_F(PerformanceTrace, SnapshotsThatTheLibraryRefuses) {
  quorvelSimForceResult("*", 7, 2);
  expectSame(trace("QV_GetPerformanceAll"),
             kBegin + Events{"malloc 3458208", "malloc 3458208", "QV_GetPerformanceAll"} + kThrow +
                 Events({"free", "free"}));
  jvm_.clearPending();
  expectSame(trace("QV_GetPerformance"), kBegin + Events{"QV_GetPerformance"} + kThrow);
}

TEST_F(PerformanceTrace, AFailingElementEndsThePair) {
  jvm_.removeClass("tessaly/str/diskarray/StatisticalCommand_Info");
  trace("QV_GetPerformance");
  EXPECT_EQ(jvm_.elementsOf(result_.l), (std::vector<jobject>{nullptr, nullptr}));
  quorvelSimForceResult("*", 0, 1);
  jvm_.removeClass("tessaly/str/diskarray/StatisticalCommand");
  const Events events = trace("QV_GetPerformance");
  EXPECT_EQ(result_.l, nullptr);
  EXPECT_EQ(std::count(events.begin(), events.end(), "Throw"), 0);
}

TEST_F(PerformanceTrace, OutputsReleaseBeforeTheyThrow) {
  for (const int allocation : {1, 5}) {
    resetTestRuntime(allocation);
    const Events events = trace("QV_PerformanceOutputAll");
    const Events released(5, "free");
    Events expected = released + kThrowOutOfMemory;
    expected[static_cast<std::size_t>(allocation) - 1] = "free null";
    const auto length = static_cast<std::ptrdiff_t>(expected.size());
    expectSame(Events(events.end() - length, events.end()), expected);
    EXPECT_EQ(testRuntime().liveRecords, 0);
    jvm_.clearPending();
  }
}

TEST_F(PerformanceTrace, GraphsReleaseBeforeTheyThrow) {
  resetTestRuntime(7);
  const Events events = trace("QV_PerformanceOutputGraphInfo");
  const Events released{"malloc 32",      "malloc 3458208", "malloc 3458208", "malloc 3458208",
                        "malloc 3458208", "malloc 864560",  "malloc 864560",  "free",
                        "free",           "free",           "free",           "free",
                        "free",           "free null"};
  const Events expected = released + kThrowOutOfMemory;
  const auto length = static_cast<std::ptrdiff_t>(expected.size());
  expectSame(Events(events.end() - length, events.end()), expected);
}

}  // namespace
}  // namespace quorvelj::testing
