// The order of calls in the methods that depart from their frames: replacements of firmware, mail
// settings and SNMP files.
#include <gtest/gtest.h>

#include "simulator/control.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/recorder.h"
#include "tests/support/test_runtime.h"

namespace quorvelj::testing {
namespace {

using Events = std::vector<std::string>;

class MaintenanceTrace : public ::testing::Test {
 protected:
  MaintenanceTrace() {
    quorvelSimReset();
    quorvelSimForceResult("*", 0, 1);
    quorvelSimObserve([](const char* function) { recorder().add(function); });
    resetTestRuntime();
  }
  ~MaintenanceTrace() override {
    quorvelSimReset();
    resetTestRuntime();
  }

  /// What a call does, without the JNI calls of fields and classes other than those that tell which
  /// of them is visited.
  Events trace(const char* name, const std::vector<jvalue>& arguments) {
    recorder() = {.tracing = true, .events = {}};
    nativeMethod(name).invoke(jvm_.env(), arguments);
    recorder().tracing = false;
    Events told;
    for (const std::string& event : recorder().events) {
      for (const char* const kind : {"flush", "malloc", "free", "QV_", "GetFieldID", "Throw",
                                     "NewStringUTF", "NewObjectArray", "GetStringUTFChars"}) {
        if (event.starts_with(kind)) {
          told.push_back(event.substr(0, event.find(' ', event.find(' ') + 1)));
        }
      }
    }
    return told;
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
  static jvalue number(jint value) {
    jvalue argument{};
    argument.i = value;
    return argument;
  }

  MiniJvm jvm_;
};

TEST_F(MaintenanceTrace, CrosscallAllocatesBothInputsBeforeItReadsThem) {
  const Events head{
      "flush",          "GetStringUTFChars",      "malloc 32", "malloc 8", "GetFieldID session_id",
      "GetFieldID ctl", "GetFieldID forced_mode", "malloc 12"};
  Events whole = head;
  for (const char* const event :
       {"QV_MicroReplaceCrosscall", "free", "free", "flush", "GetFieldID valid",
        "GetFieldID WaitCancelreq", "GetFieldID ReplaceCTL", "free", "flush"}) {
    whole.emplace_back(event);
  }
  EXPECT_EQ(trace("QV_MicroReplaceCrosscall", {text("unit"), input(), input()}), whole);

  resetTestRuntime(3);
  Events refused = head;
  refused.emplace_back("ThrowNew java/lang/OutOfMemoryError");
  EXPECT_EQ(trace("QV_MicroReplaceCrosscall", {text("unit"), input(), input()}), refused);
}

TEST_F(MaintenanceTrace, ReplacementThatGoesOnIsBuiltAndFlushed) {
  quorvelSimForceResult("*", 4109, 1);
  EXPECT_EQ(trace("QV_MicroReplaceEx", {text("unit"), input(), number(1)}),
            (Events{"flush", "GetStringUTFChars", "malloc 32", "GetFieldID session_id", "malloc 12",
                    "QV_MicroReplaceEx", "free", "flush", "GetFieldID valid",
                    "GetFieldID WaitCancelreq", "GetFieldID ReplaceCTL", "free", "flush"}));
}

TEST_F(MaintenanceTrace, MailSettingsAreBuiltFromTheStackWithoutFlushesAround) {
  EXPECT_EQ(trace("QV_GetEmailInfo", {}),
            (Events{"QV_GetEmailInfo", "flush", "GetFieldID on_off", "NewStringUTF ",
                    "GetFieldID domain", "NewStringUTF ", "GetFieldID smtp", "NewStringUTF ",
                    "GetFieldID from", "GetFieldID tonum", "NewObjectArray 0", "GetFieldID to"}));
}

TEST_F(MaintenanceTrace, MailSettingsThatCannotBeBuiltAreNullWithoutACode) {
  jvm_.removeField("smtp");
  jvm_.removeField("tonum");
  const jvalue result = nativeMethod("QV_GetEmailInfo").invoke(jvm_.env(), {});
  EXPECT_EQ(result.l, nullptr);
  ASSERT_TRUE(jvm_.pending());
  EXPECT_EQ(jvm_.pending()->className, "java/lang/NoSuchFieldError");
}

TEST_F(MaintenanceTrace, SessionStaysWithTheFilesOfSnmp) {
  quorvelSimForceResult("*", 7, 1);
  EXPECT_EQ(trace("QV_SetSnmpConfig", {text("unit"), input(), text("a"), text("b")}),
            (Events{"flush", "GetStringUTFChars", "GetStringUTFChars", "GetStringUTFChars",
                    "malloc 32", "GetFieldID session_id", "QV_SetSnmpConfig", "Throw"}));
  EXPECT_EQ(testRuntime().liveRecords, 1);
}

}  // namespace
}  // namespace quorvelj::testing
