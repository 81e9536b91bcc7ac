// The exact order of JNI calls, allocations, releases, flushes and library calls in every frame.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

#include "arraylib/accounts.h"
#include "arraylib/all_information.h"
#include "arraylib/hosts.h"
#include "arraylib/units.h"
#include "bridge/native_frame.h"
#include "tests/support/traced_methods.h"

namespace quorvelj::testing {
namespace {

using FrameTrace = TracedMethods;

Events setText(const std::string& name, const std::string& text) {
  return "GetObjectClass, NewStringUTF " + text + ", GetFieldID " + name +
         " Ljava/lang/String;, SetObjectField, ExceptionOccurred, DeleteLocalRef, DeleteLocalRef";
}

TEST_F(FrameTrace, Query) {
  const char* const method = "QV_GetAccountBannerAuth";
  const Events called = kBegin + mallocOf<AccountBanner>() + Events(method) + "free";
  const Events begun = called + "flush" + newObject("AccountBanner");
  expectEvents(trace(method), begun + setInt("warning_banner_display") +
                                  setText("warning_banner", "") + "free, flush");
  resetTestRuntime(2);
  expectEvents(trace(method), kBegin + mallocOf<AccountBanner>() + kThrowOutOfMemory);
  resetTestRuntime();
  jvm_.clearPending();
  jvm_.heap.remove("warning_banner_display");
  expectEvents(trace(method),
               begun + "GetObjectClass, GetFieldID warning_banner_display I, free" + kThrow);
  EXPECT_EQ(thrown(), "DiskArrayException 2817");
  quorvelSimForceResult("*", 7, 1);
  expectEvents(trace(method), called + "free" + kThrow);
}

TEST_F(FrameTrace, QueryReadsEachInputBeforeItAllocatesTheNext) {
  const Events events =
      only(trace("QV_GetAllInfo_HG"), "malloc, GetFieldID session_id, GetFieldID request");
  expectEvents(events, mallocOf<QVSessionInfo>() + "GetFieldID session_id [B" +
                           mallocOf<ControllerRequest>() + "GetFieldID requestCTL I" +
                           mallocOf<ArrayAllInfo_HG>());
}

TEST_F(FrameTrace, InputsAreReadBehindANullAndNotBehindAnException) {
  const Events inputs = "GetFieldID session_id, GetFieldID mode, GetFieldID requestCTL";
  const std::vector<std::pair<const char*, const char*>> methods{
      {"QV_AddAdditionalUnit", "GetFieldID mode I"},
      {"QV_GetAllInfo_HG", "GetFieldID requestCTL I"}};
  for (const auto& [method, field] : methods) {
    std::vector<jvalue> arguments = argumentsOf(method);
    arguments[1].l = nullptr;
    expectEvents(only(trace(method, arguments), inputs), field);
    // A null inside leaves no exception either.
    arguments[1].l = jvm_.newInput("Ltessaly/str/diskarray/QVSessionInfo;");
    jvm_.setObject(arguments[1].l, "session_id", "[B", nullptr);
    expectEvents(only(trace(method, arguments), inputs),
                 "GetFieldID session_id [B" + Events(field));
  }
  jvm_.heap.remove("session_id");
  for (const auto& [method, field] : methods) {
    expectEvents(only(trace(method), inputs), "GetFieldID session_id [B");
    jvm_.clearPending();
  }
}

TEST_F(FrameTrace, NestedObjectsAndArrays) {
  Events expected = kBegin + mallocOf<QVAccountRoleInformation>() +
                    "QV_GetQVAccountRoleInformation, free, flush" +
                    newObject("QVAccountRoleInformation") + setInt("role_valid_index") +
                    newArray("QVAccountRole", 32);
  for (int role = 0; role < 32; ++role) {
    expected = expected + "flush" + newObject("QVAccountRole") + setText("role_name", "") + kStore;
  }
  expectEvents(
      trace("QV_GetQVAccountRoleInformation"),
      expected +
          "GetObjectClass, GetFieldID role_info [Ltessaly/str/diskarray/QVAccountRole;, "
          "SetObjectField, ExceptionOccurred, DeleteLocalRef, DeleteLocalRef, free, flush");
}

TEST_F(FrameTrace, Update) {
  const Events head =
      "flush" + kCopyName + mallocOf<QVSessionInfo>() + mallocOf<AdditionalUnitRequest>();
  expectEvents(trace("QV_AddAdditionalUnit"),
               head + kReadSession +
                   "GetObjectClass, GetFieldID mode I, GetIntField, DeleteLocalRef, "
                   "ExceptionOccurred, QV_AddAdditionalUnit, free, free, flush");
  resetTestRuntime(1);
  expectEvents(trace("QV_AddAdditionalUnit"), head + kThrowOutOfMemory + "free null, free");
}

TEST_F(FrameTrace, NothingIsFlushedBehindAFailure) {
  jvm_.profile = {.text = "", .primitives = 0, .objects = 0};
  for (const NativeMethod& method : nativeMethods()) {
    quorvelSimForceResult("*", 7, 1);
    const Events events = trace(method.name);
    const auto called = std::find_if(events.begin(), events.end(), [](const std::string& event) {
      return event.starts_with("QV_");
    });
    const bool departs = std::string(method.name) == "QV_GetUnitParamTable";
    EXPECT_EQ(std::count(called, events.end(), "flush"), departs ? 1 : 0) << method.name;
    jvm_.clearPending();
  }
}

TEST_F(FrameTrace, Plain) {
  expectEvents(trace("QV_UnitDelete"), "flush" + kCopyName + "QV_UnitDelete, flush");
  jvm_.profile.text = "";
  expectEvents(trace("QV_UnitDelete"), "flush, GetStringUTFLength, QV_UnitDelete, flush");
  expectEvents(trace("QV_UnitDelete", {jvalue{}}), "flush" + kThrow);
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
  jint result = 0;
  const auto count = [&](jint selector) {
    return traceOf([&] { result = value(jvm_.env(), countSomething, name, session, selector); });
  };
  expectEvents(count(2), kBegin + "library, free, flush");
  EXPECT_EQ(result, 42);
  expectEvents(count(-9), kBegin + "library, free" + kThrow);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(thrown(), "DiskArrayException -9");
}

int listAccounts(const UnitName*, AccountIdentifier (*list)[2]) {
  recorder().add("library");
  std::memcpy((*list)[0].user_id, "a", 2);
  std::memcpy((*list)[1].user_id, "b", 2);
  return 0;
}

TEST_F(FrameTrace, ArrayResult) {
  const jstring name = jvm_.newText("unit");
  jobjectArray result = nullptr;
  expectEvents(traceOf([&] { result = query(jvm_.env(), listAccounts, name); }),
               "flush" + kCopyName + mallocOf<AccountIdentifier[2]>() + "library" +
                   newArray("AccountIdentifier", 2) + "flush" + newObject("AccountIdentifier") +
                   setText("user_id", "a") + kStore + "flush" + newObject("AccountIdentifier") +
                   setText("user_id", "b") + kStore + "free, flush");
  EXPECT_EQ(jvm_.textOf(jvm_.elementsOf(result)[1], "user_id"), "b");
}

TEST_F(FrameTrace, RecordsOfAssumedSizeHaveSpareBytes) {
  EXPECT_EQ(only(trace("QV_PerformanceInputMngFile"), "malloc"), Events("malloc 4328"));
  EXPECT_EQ(only(trace("QV_PerformanceOutputCSV"), "malloc"), Events("malloc 5432"));
}

}  // namespace
}  // namespace quorvelj::testing
