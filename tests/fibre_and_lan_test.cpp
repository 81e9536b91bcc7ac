// The order of calls where fibre permissions are imported, outside of the frames.
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

class FibrePermissions : public ::testing::Test {
 protected:
  FibrePermissions() {
    quorvelSimReset();
    quorvelSimForceResult("*", 0, 1);
    quorvelSimObserve([](const char* function) { recorder().add(function); });
    resetTestRuntime();
  }
  ~FibrePermissions() override {
    quorvelSimReset();
    resetTestRuntime();
  }

  Events import(const char* unit, const char* path) {
    jvalue arguments[3]{};
    arguments[0].l = unit == nullptr ? nullptr : jvm_.newText(unit);
    arguments[1].l = path == nullptr ? nullptr : jvm_.newText(path);
    recorder() = {.tracing = true, .events = {}};
    nativeMethod("QV_FibreInfoPermissionImport")
        .invoke(jvm_.env(), {arguments[0], arguments[1], arguments[2]});
    recorder().tracing = false;
    return recorder().events;
  }

  MiniJvm jvm_;
};

TEST_F(FibrePermissions, NothingIsFlushedOrAllocated) {
  Events events = import("unit", "file");
  const Events head{"GetStringUTFLength",
                    "GetStringUTFChars",
                    "ReleaseStringUTFChars",
                    "GetStringUTFLength",
                    "GetStringUTFChars",
                    "ReleaseStringUTFChars",
                    "QV_FibreInfoPermissionImport",
                    "FindClass tessaly/str/diskarray/FibreInformationPermission",
                    "NewObjectArray 128",
                    "DeleteLocalRef",
                    "flush",
                    "FindClass tessaly/str/diskarray/FibreInformationPermission"};
  ASSERT_GE(events.size(), head.size());
  EXPECT_EQ(Events(events.begin(), events.begin() + static_cast<std::ptrdiff_t>(head.size())),
            head);
  // Only the builders flush, and the last element is the end.
  EXPECT_EQ(std::count(events.begin(), events.end(), "flush"), 128);
  EXPECT_EQ(Events(events.end() - 3, events.end()),
            Events({"SetObjectArrayElement", "ExceptionOccurred", "DeleteLocalRef"}));
}

TEST_F(FibrePermissions, RefusalAndMissingTexts) {
  quorvelSimForceResult("*", 7, 1);
  EXPECT_EQ(import(nullptr, nullptr), Events({"QV_FibreInfoPermissionImport",
                                              "FindClass tessaly/str/diskarray/DiskArrayException",
                                              "GetMethodID <init> (I)V", "NewObject", "Throw"}));
  char name[65] = {};
  EXPECT_EQ(quorvelSimLastInput("QV_FibreInfoPermissionImport", 0, name, sizeof name), 65U);
  EXPECT_EQ(name[0], '\0');
}

TEST_F(FibrePermissions, AnElementThatCannotBeBuilt) {
  jvm_.removeClass("tessaly/str/diskarray/FibreInformationPermission");
  import("unit", "file");
  ASSERT_TRUE(jvm_.pending());
  EXPECT_EQ(jvm_.pending()->code, 2817);
}

}  // namespace
}  // namespace quorvelj::testing
