// The order of calls in the methods of units and of status that depart from the frames, and what
// they make of a failure.
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

const Events kCopyName{"GetStringUTFLength", "GetStringUTFChars", "ReleaseStringUTFChars"};
const Events kReadSession{"malloc 32",         "GetObjectClass", "GetFieldID session_id [B",
                          "GetObjectField",    "DeleteLocalRef", "GetByteArrayRegion 32",
                          "ExceptionOccurred", "DeleteLocalRef"};
const Events kThrow{"FindClass tessaly/str/diskarray/DiskArrayException", "GetMethodID <init> (I)V",
                    "NewObject", "Throw"};

class UnitsAndStatus : public ::testing::Test {
 protected:
  UnitsAndStatus() {
    quorvelSimReset();
    quorvelSimForceResult("*", 0, 100);
    quorvelSimObserve([](const char* function) { recorder().add(function); });
    resetTestRuntime();
  }
  ~UnitsAndStatus() override {
    quorvelSimReset();
    resetTestRuntime();
  }

  jvalue invoke(const char* name, const std::vector<jvalue>& arguments) {
    return nativeMethod(name).invoke(jvm_.env(), arguments);
  }
  Events trace(const char* name, const std::vector<jvalue>& arguments) {
    recorder() = {.tracing = true, .events = {}};
    invoke(name, arguments);
    recorder().tracing = false;
    return recorder().events;
  }
  jvalue unit() {
    jvalue argument{};
    argument.l = jvm_.newText("unit");
    return argument;
  }
  jvalue input() {
    jvalue argument{};
    argument.l = jvm_.newInput();
    return argument;
  }
  /// The index of each element that is null.
  std::vector<std::size_t> nullsOf(jobject array) {
    std::vector<std::size_t> nulls;
    const std::vector<jobject> elements = jvm_.elementsOf(array);
    EXPECT_EQ(elements.size(), 450U);
    for (std::size_t index = 0; index < elements.size(); ++index) {
      if (elements[index] == nullptr) {
        nulls.push_back(index);
      }
    }
    return nulls;
  }

  MiniJvm jvm_;
};

// A function, because a macro would split its arguments at the commas of the lists.
void expectSame(const Events& actual, const Events& expected) { EXPECT_EQ(actual, expected); }

TEST_F(UnitsAndStatus, LoginUser) {
  quorvelSimPrepareOutput("*", "user\0            \0host", 22);
  expectSame(trace("QV_GetLoginUser", {unit(), {}}),
             Events{"flush"} + kCopyName +
                 Events{"QV_GetLoginUser", "NewStringUTF user", "NewStringUTF ",
                        "FindClass java/lang/String", "NewObjectArray 2", "DeleteLocalRef",
                        "SetObjectArrayElement", "SetObjectArrayElement", "DeleteLocalRef",
                        "DeleteLocalRef", "flush"});
  jvm_.removeClass("java/lang/String");
  invoke("QV_GetLoginUser", {unit(), {}});
  EXPECT_EQ(jvm_.pending()->code, 2817);
}

TEST_F(UnitsAndStatus, LoginTextThatCannotBeMadeIsNull) {
  quorvelSimPrepareOutput("*", "user", 5);
  jvm_.failCall(2);
  const std::vector<jobject> texts = jvm_.elementsOf(invoke("QV_GetLoginUser", {unit(), {}}).l);
  EXPECT_EQ(texts.at(0), nullptr);
  EXPECT_NE(texts.at(1), nullptr);
}

TEST_F(UnitsAndStatus, PasswordCheckKeepsTheCharacters) {
  expectSame(trace("QV_PasswdCheck", {unit()}),
             Events({"flush", "GetStringUTFChars", "QV_PasswdCheck", "flush"}));
}

TEST_F(UnitsAndStatus, ClockKeepsTheSession) {
  Events setFields;
  for (const char* const field : {"tm_sec", "tm_min", "tm_hour", "tm_mday", "tm_mon", "tm_year",
                                  "tm_wday", "tm_yday", "tm_isdst"}) {
    setFields = setFields + Events{"GetObjectClass", std::string("GetFieldID ") + field + " I",
                                   "SetIntField", "ExceptionOccurred", "DeleteLocalRef"};
  }
  expectSame(trace("QV_GetUnitTime", {unit(), input()}),
             kCopyName + kReadSession +
                 Events{"QV_GetUnitTime", "flush", "FindClass tessaly/str/diskarray/QVTime",
                        "GetMethodID <init> ()V", "NewObject", "DeleteLocalRef"} +
                 setFields);
  expectSame(trace("QV_SetUnitTime", {unit(), input(), {}}), kCopyName + kReadSession + kThrow);
  EXPECT_EQ(jvm_.pending()->code, -1);
  jvm_.clearPending();
  expectSame(trace("QV_SetUnitTimeNow", {unit(), input()}),
             kCopyName + kReadSession + Events{"QV_SetUnitTimeNow"});
}

TEST_F(UnitsAndStatus, FlatStatusKeepsTheSessionAndStoresEveryElement) {
  const Events events = trace("QV_GetDriveStatus", {unit(), input()});
  const Events head = kCopyName + kReadSession +
                      Events{"QV_GetDriveStatus", "FindClass tessaly/str/diskarray/DiskDrive",
                             "NewObjectArray 450", "DeleteLocalRef", "flush"};
  expectSame(Events(events.begin(), events.begin() + static_cast<std::ptrdiff_t>(head.size())),
             head);
  expectSame(Events(events.end() - 2, events.end()), {"SetObjectArrayElement", "DeleteLocalRef"});
  EXPECT_EQ(std::count(events.begin(), events.end(), "free"), 0);

  // An element that cannot be built is stored like the others.
  jvm_.failCall(jvm_.fallibleCalls() + 500);
  const Events failing = trace("QV_GetDriveStatus", {unit(), input()});
  EXPECT_EQ(std::count(failing.begin(), failing.end(), "SetObjectArrayElement"), 450);
  EXPECT_NE(jvm_.pending()->className, "tessaly/str/diskarray/DiskArrayException");
  jvm_.removeClass("tessaly/str/diskarray/DiskDrive");
  EXPECT_EQ(invoke("QV_GetDriveStatus", {unit(), input()}).l, nullptr);
  EXPECT_EQ(jvm_.pending()->className, "java/lang/ClassNotFoundException");
}

TEST_F(UnitsAndStatus, FlatInformationIsPartialWithoutAnException) {
  const Events events = trace("QV_GetDriveInformationAll", {unit(), input()});
  const Events head = Events{"flush"} + kCopyName + kReadSession +
                      Events{"malloc 41400",
                             "QV_GetDriveInformationAll",
                             "free",
                             "FindClass tessaly/str/diskarray/DiskDriveInformation",
                             "NewObjectArray 450",
                             "DeleteLocalRef",
                             "flush"};
  expectSame(Events(events.begin(), events.begin() + static_cast<std::ptrdiff_t>(head.size())),
             head);
  expectSame(Events(events.end() - 4, events.end()),
             {"SetObjectArrayElement", "DeleteLocalRef", "free", "flush"});

  jvm_.failCall(jvm_.fallibleCalls() + 500);
  const std::vector<std::size_t> nulls =
      nullsOf(invoke("QV_GetDriveInformationAll", {unit(), input()}).l);
  ASSERT_FALSE(nulls.empty());
  EXPECT_GT(nulls.front(), 0U);
  EXPECT_EQ(nulls.size(), 450 - nulls.front());
  EXPECT_NE(jvm_.pending()->className, "tessaly/str/diskarray/DiskArrayException");
  jvm_.clearPending();
  jvm_.removeField("drive_rotation");
  EXPECT_EQ(nullsOf(invoke("QV_GetDriveInformationAll", {unit(), input()}).l).size(), 450U);
  jvm_.removeClass("tessaly/str/diskarray/DiskDriveInformation");
  EXPECT_EQ(invoke("QV_GetDriveInformationAll", {unit(), input()}).l, nullptr);
  EXPECT_EQ(jvm_.pending()->className, "java/lang/ClassNotFoundException");
}

TEST_F(UnitsAndStatus, PinTable) {
  expectSame(trace("QV_GetPinInfo2", {unit(), input()}),
             Events{"flush"} + kCopyName + kReadSession +
                 Events{"QV_GetPinInfo2", "free", "NewIntArray 8192", "SetIntArrayRegion 8192",
                        "ExceptionOccurred", "flush"});
  jvm_.failCall(jvm_.fallibleCalls() + 5);
  EXPECT_EQ(invoke("QV_GetPinInfo2", {unit(), input()}).l, nullptr);
  EXPECT_EQ(jvm_.pending()->code, 2817);
}

}  // namespace
}  // namespace quorvelj::testing
