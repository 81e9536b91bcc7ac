// The exact order of JNI calls, allocations, releases, flushes and library calls in every frame.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#include "arraylib/accounts.h"
#include "bridge/native_frame.h"
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

const Events kCopyName{"GetStringUTFLength", "GetStringUTFChars", "ReleaseStringUTFChars"};
const Events kReadSession{"GetObjectClass", "GetFieldID session_id [B", "GetObjectField",
                          "DeleteLocalRef", "GetByteArrayRegion 32",    "ExceptionOccurred",
                          "DeleteLocalRef"};

Events readInt(const std::string& name) {
  return {"GetObjectClass", "GetFieldID " + name + " I", "GetIntField", "DeleteLocalRef",
          "ExceptionOccurred"};
}
Events setInt(const std::string& name) {
  return {"GetObjectClass", "GetFieldID " + name + " I", "SetIntField", "ExceptionOccurred",
          "DeleteLocalRef"};
}
Events setText(const std::string& name, const std::string& text) {
  return {"GetObjectClass", "NewStringUTF " + text, "GetFieldID " + name + " Ljava/lang/String;",
          "SetObjectField", "ExceptionOccurred",    "DeleteLocalRef",
          "DeleteLocalRef"};
}
Events newObject(const std::string& name) {
  return {"FindClass tessaly/str/diskarray/" + name, "GetMethodID <init> ()V", "NewObject",
          "DeleteLocalRef"};
}
const Events kThrow{"FindClass tessaly/str/diskarray/DiskArrayException", "GetMethodID <init> (I)V",
                    "NewObject", "Throw"};
const Events kThrowOutOfMemory{"FindClass java/lang/OutOfMemoryError",
                               "ThrowNew java/lang/OutOfMemoryError \"\""};

// A function, because a macro would split its arguments at the commas of the lists.
void expectSame(const Events& actual, const Events& expected) { EXPECT_EQ(actual, expected); }

class FrameTrace : public ::testing::Test {
 protected:
  FrameTrace() {
    quorvelSimReset();
    quorvelSimForceResult("*", 0, 1);
    quorvelSimObserve([](const char* function) { recorder().add(function); });
    resetTestRuntime();
  }
  ~FrameTrace() override {
    quorvelSimReset();
    resetTestRuntime();
  }

  template <class Call>
  Events trace(Call call) {
    recorder() = {.tracing = true, .events = {}};
    call();
    recorder().tracing = false;
    return recorder().events;
  }
  Events traceMethod(const char* name, const std::vector<jvalue>& arguments) {
    return trace([&] { nativeMethod(name).invoke(jvm_.env(), arguments); });
  }
  jvalue text(const char* value) {
    jvalue argument{};
    argument.l = jvm_.newText(value);
    return argument;
  }
  jvalue input() {
    jvalue argument{};
    argument.l = jvm_.newInput();
    return argument;
  }

  MiniJvm jvm_;
};

TEST_F(FrameTrace, Query) {
  expectSame(traceMethod("QV_GetAccountBannerAuth", {text("unit"), input()}),
             Events{"flush"} + kCopyName + Events{"malloc 32"} + kReadSession +
                 Events{"malloc 6004", "QV_GetAccountBannerAuth", "free", "flush"} +
                 newObject("AccountBanner") + setInt("warning_banner_display") +
                 setText("warning_banner", "") + Events{"free", "flush"});
}

TEST_F(FrameTrace, QueryThatTheLibraryRefuses) {
  quorvelSimForceResult("*", 7, 1);
  expectSame(traceMethod("QV_GetAccountBannerAuth", {text("unit"), input()}),
             Events{"flush"} + kCopyName + Events{"malloc 32"} + kReadSession +
                 Events{"malloc 6004", "QV_GetAccountBannerAuth", "free", "free"} + kThrow);
}

TEST_F(FrameTrace, QueryWithoutMemoryForItsResult) {
  testRuntime().refusedAllocation = 2;
  expectSame(traceMethod("QV_GetAccountBannerAuth", {text("unit"), input()}),
             Events{"flush"} + kCopyName + Events{"malloc 32"} + kReadSession +
                 Events{"malloc 6004"} + kThrowOutOfMemory);
}

TEST_F(FrameTrace, NestedObjectsAndArrays) {
  const Events storeElement{"SetObjectArrayElement", "ExceptionOccurred", "DeleteLocalRef"};
  Events expected = Events{"flush"} + kCopyName + Events{"malloc 32"} + kReadSession +
                    Events{"malloc 8228", "QV_GetQVAccountRoleInformation", "free", "flush"} +
                    newObject("QVAccountRoleInformation") + setInt("role_valid_index") +
                    Events{"FindClass tessaly/str/diskarray/QVAccountRole", "NewObjectArray 32",
                           "DeleteLocalRef"};
  for (int role = 0; role < 32; ++role) {
    expected = expected + Events{"flush"} + newObject("QVAccountRole") + setText("role_name", "") +
               storeElement;
  }
  expected = expected +
             Events{"GetObjectClass", "GetFieldID role_info [Ltessaly/str/diskarray/QVAccountRole;",
                    "SetObjectField", "ExceptionOccurred",
                    "DeleteLocalRef", "DeleteLocalRef",
                    "free",           "flush"};
  expectSame(traceMethod("QV_GetQVAccountRoleInformation", {text("unit"), input()}), expected);
}

TEST_F(FrameTrace, Update) {
  expectSame(traceMethod("QV_AddAdditionalUnit", {text("unit"), input(), input()}),
             Events{"flush"} + kCopyName + Events{"malloc 32", "malloc 4"} + kReadSession +
                 readInt("mode") + Events{"QV_AddAdditionalUnit", "free", "free", "flush"});
}

TEST_F(FrameTrace, UpdateWithoutMemory) {
  testRuntime().refusedAllocation = 1;
  expectSame(traceMethod("QV_AddAdditionalUnit", {text("unit"), input(), input()}),
             Events{"flush"} + kCopyName + Events{"malloc 32", "malloc 4"} + kThrowOutOfMemory +
                 Events({"free null", "free"}));
}

TEST_F(FrameTrace, Plain) {
  expectSame(traceMethod("QV_UnitDelete", {text("unit")}),
             Events{"flush"} + kCopyName + Events{"QV_UnitDelete", "flush"});
}

TEST_F(FrameTrace, EmptyNameGoesOn) {
  expectSame(traceMethod("QV_UnitDelete", {text("")}),
             Events({"flush", "GetStringUTFLength", "QV_UnitDelete", "flush"}));
}

TEST_F(FrameTrace, NullNameIsRefusedFirst) {
  expectSame(traceMethod("QV_UnitDelete", {jvalue{}}), Events{"flush"} + kThrow);
}

int countSomething(const UnitName*, const QVSessionInfo*, std::int32_t selector,
                   std::int32_t* output) {
  recorder().add("library");
  *output = 40 + selector;
  return selector < 0 ? selector : 0;
}

TEST_F(FrameTrace, Value) {
  const jstring name = jvm_.newText("unit");
  const jobject session = jvm_.newInput();
  const Events head =
      Events{"flush"} + kCopyName + Events{"malloc 32"} + kReadSession + Events{"library", "free"};
  jint result = 0;
  expectSame(trace([&] { result = value(jvm_.env(), countSomething, name, session, jint{2}); }),
             head + Events{"flush"});
  EXPECT_EQ(result, 42);
  expectSame(trace([&] { result = value(jvm_.env(), countSomething, name, session, jint{-9}); }),
             head + kThrow);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(jvm_.pending()->code, -9);
}

int listAccounts(const UnitName*, AccountIdentifier (*list)[2]) {
  recorder().add("library");
  std::memcpy((*list)[0].user_id, "a", 2);
  std::memcpy((*list)[1].user_id, "b", 2);
  return 0;
}

TEST_F(FrameTrace, ArrayResult) {
  const jstring name = jvm_.newText("unit");
  const Events store{"SetObjectArrayElement", "ExceptionOccurred", "DeleteLocalRef"};
  jobjectArray result = nullptr;
  expectSame(
      trace([&] { result = query(jvm_.env(), listAccounts, name); }),
      Events{"flush"} + kCopyName +
          Events{"malloc 514", "library", "FindClass tessaly/str/diskarray/AccountIdentifier",
                 "NewObjectArray 2", "DeleteLocalRef", "flush"} +
          newObject("AccountIdentifier") + setText("user_id", "a") + store + Events{"flush"} +
          newObject("AccountIdentifier") + setText("user_id", "b") + store +
          Events{"free", "flush"});
  EXPECT_EQ(jvm_.textOf(jvm_.elementsOf(result)[1], "user_id"), "b");
}

TEST_F(FrameTrace, Quiet) {
  expectSame(traceMethod("QV_GetUnitCount", {}), Events{"QV_GetUnitCount"});
  quorvelSimForceResult("*", 7, 1);
  expectSame(traceMethod("QV_GetUnitCount", {}), Events{"QV_GetUnitCount"} + kThrow);
}

TEST_F(FrameTrace, QuietTable) {
  jvalue none{};
  expectSame(traceMethod("QV_GetUnitParamTable", {none}),
             Events({"calloc 0 x 612", "QV_GetUnitParamTable",
                     "FindClass tessaly/str/diskarray/QVUnitParam", "NewObjectArray 0",
                     "DeleteLocalRef", "flush", "free"}));
  quorvelSimForceResult("*", 0, 1);
  jvm_.removeClass("tessaly/str/diskarray/QVUnitParam");
  traceMethod("QV_GetUnitParamTable", {none});
  EXPECT_EQ(jvm_.pending()->code, -1);
  none.i = -1;
  expectSame(traceMethod("QV_GetUnitParamTable", {none}),
             Events({"calloc " + std::to_string(SIZE_MAX) + " x 612"}));
}

TEST_F(FrameTrace, DiscoveryReleasesItsRequestWithoutMemory) {
  testRuntime().refusedAllocation = 2;
  const Events events = traceMethod("QV_DiscoverUnitInformation", {input()});
  expectSame(Events(events.end() - 4, events.end()),
             Events({"malloc 276", "free"}) + kThrowOutOfMemory);
}

}  // namespace
}  // namespace quorvelj::testing
