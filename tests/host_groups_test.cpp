// Order of calls and memory of the host group methods that stand apart.
#include <gtest/gtest.h>

#include "simulator/control.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/recorder.h"
#include "tests/support/test_runtime.h"

namespace quorvelj::testing {
namespace {

using Events = std::vector<std::string>;

class HostGroupCalls : public ::testing::Test {
 protected:
  HostGroupCalls() {
    quorvelSimReset();
    quorvelSimForceResult("*", 0, 1);
    quorvelSimObserve([](const char* function) { recorder().add(function); });
    resetTestRuntime();
  }
  ~HostGroupCalls() override {
    quorvelSimReset();
    resetTestRuntime();
  }

  /// The events of a call on a unit in no session, with `rest` behind the two.
  Events trace(const char* name, const std::vector<jvalue>& rest = {}) {
    std::vector<jvalue> arguments(2);
    arguments[0].l = jvm_.newText("unit");
    arguments.insert(arguments.end(), rest.begin(), rest.end());
    recorder() = {.tracing = true, .events = {}};
    result_ = nativeMethod(name).invoke(jvm_.env(), arguments);
    recorder().tracing = false;
    return std::move(recorder().events);
  }
  static Events memoryOf(Events events) {
    std::erase_if(events, [](const std::string& event) {
      return !event.starts_with("malloc") && !event.starts_with("calloc") &&
             !event.starts_with("free");
    });
    return events;
  }

  MiniJvm jvm_;
  jvalue result_{};
};

TEST_F(HostGroupCalls, MappingOfAGroup) {
  EXPECT_EQ(trace("QV_GetLuMappingList", std::vector<jvalue>(3)),
            (Events{"flush",
                    "GetStringUTFLength",
                    "GetStringUTFChars",
                    "ReleaseStringUTFChars",
                    "malloc 32",
                    "malloc 8192",
                    "QV_GetLuMappingList",
                    "free",
                    "FindClass java/lang/Object",
                    "NewObjectArray 2",
                    "DeleteLocalRef",
                    "FindClass java/lang/Integer",
                    "GetMethodID <init> (I)V",
                    "NewObject",
                    "DeleteLocalRef",
                    "SetObjectArrayElement",
                    "ExceptionOccurred",
                    "DeleteLocalRef",
                    "flush",
                    "FindClass tessaly/str/diskarray/LuMappingHGInfo",
                    "GetMethodID <init> ()V",
                    "NewObject",
                    "DeleteLocalRef",
                    "NewIntArray 2048",
                    "SetIntArrayRegion 2048",
                    "ExceptionOccurred",
                    "GetObjectClass",
                    "GetFieldID lu [I",
                    "SetObjectField",
                    "ExceptionOccurred",
                    "DeleteLocalRef",
                    "DeleteLocalRef",
                    "SetObjectArrayElement",
                    "ExceptionOccurred",
                    "DeleteLocalRef",
                    "free",
                    "flush"}));
}

TEST_F(HostGroupCalls, WholeMappingIsOneRecord) {
  for (const char* const name : {"QV_GetLuMappingListAll", "QV_GetLuMappingListAllLite"}) {
    SCOPED_TRACE(name);
    quorvelSimForceResult("*", 0, 1);
    EXPECT_EQ(memoryOf(trace(name)), (Events{"malloc 32", "malloc 33423500", "free", "free"}));
    EXPECT_NE(result_.l, nullptr);
  }
  jvalue mapping{};
  mapping.l = jvm_.newInput();
  EXPECT_EQ(memoryOf(trace("QV_SetLuMappingListAll", {mapping})),
            (Events{"malloc 32", "malloc 33423500", "free", "free"}));
}

TEST_F(HostGroupCalls, NameOfNoObjectIsLeftAsItWas) {
  for (const char* const name : {"QV_CreateHG", "QV_ChangeHG"}) {
    quorvelSimForceResult("*", 0, 1);
    trace(name, std::vector<jvalue>(4));
    std::string given(33, '\0');
    EXPECT_EQ(quorvelSimLastInput(name, 5, given.data(), given.size()), 33U);
    EXPECT_EQ(given, std::string(33, '\xA5'));
  }
}

}  // namespace
}  // namespace quorvelj::testing
