// The order of calls in the methods that depart from the frames, and how they fail.
#include <cstdint>
#include <utility>

#include "arraylib/firmware.h"
#include "arraylib/hosts.h"
#include "arraylib/performance.h"
#include "arraylib/status.h"
#include "arraylib/storage.h"
#include "arraylib/units.h"
#include "tests/support/traced_methods.h"

namespace quorvelj::testing {
namespace {

class DepartureTrace : public TracedMethods {
 protected:
  /// The indexes of the elements that are null.
  std::vector<int> nullsOf(jobject array, std::size_t length) {
    const std::vector<jobject> elements = jvm_.elementsOf(array);
    EXPECT_EQ(elements.size(), length);
    std::vector<int> nulls;
    for (std::size_t index = 0; index < elements.size(); ++index) {
      if (elements[index] == nullptr) {
        nulls.push_back(static_cast<int>(index));
      }
    }
    return nulls;
  }
  /// The events of a call that tell what it allocates, visits, makes and throws.
  Events story(const char* method) {
    Events told = only(trace(method),
                       "flush, malloc, free, QV_, GetFieldID, Throw, NewStringUTF, NewObjectArray, "
                       "GetStringUTFChars");
    for (std::string& event : told) {
      event = event.substr(0, event.find(' ', event.find(' ') + 1));
    }
    return told;
  }
};

TEST_F(DepartureTrace, UnitCount) {
  expectEvents(trace("QV_GetUnitCount"), "QV_GetUnitCount");
  quorvelSimForceResult("*", 7, 1);
  expectEvents(trace("QV_GetUnitCount"), "QV_GetUnitCount" + kThrow);
}

TEST_F(DepartureTrace, UnitTable) {
  const std::string timesUnit = " x " + std::to_string(sizeof(QVUnitParam));
  jvalue count{};
  expectEvents(trace("QV_GetUnitParamTable", {count}),
               Events("calloc 0" + timesUnit) + "QV_GetUnitParamTable" +
                   newArray("QVUnitParam", 0) + "flush, free");
  quorvelSimForceResult("*", 7, 1);
  expectEvents(trace("QV_GetUnitParamTable", {count}),
               Events("calloc 0" + timesUnit) + "QV_GetUnitParamTable, flush, free" + kThrow);
  jvm_.clearPending();
  count.i = 2;
  jvm_.heap.remove("qv_type");
  expectEnd(trace("QV_GetUnitParamTable", {count}), "GetFieldID qv_type I, flush, free");
  EXPECT_EQ(nullsOf(result_.l, 2).size(), 2U);
  jvm_.heap.remove("tessaly/str/diskarray/QVUnitParam");
  expectEnd(trace("QV_GetUnitParamTable", {count}), "flush, free" + kThrow);
  EXPECT_EQ(thrown(), "DiskArrayException -1");
  count.i = -1;
  expectEvents(trace("QV_GetUnitParamTable", {count}),
               Events("calloc " + std::to_string(SIZE_MAX) + timesUnit));
}

TEST_F(DepartureTrace, DiscoveryReleasesItsRequestWithoutMemory) {
  resetTestRuntime(2);
  expectEnd(trace("QV_DiscoverUnitInformation"),
            mallocOf<DiscoverUnit>() + "free" + kThrowOutOfMemory);
}

TEST_F(DepartureTrace, LoginUser) {
  quorvelSimPrepareOutput("*", "user\0            \0host", 22);
  expectEvents(trace("QV_GetLoginUser"),
               "flush" + kCopyName +
                   "QV_GetLoginUser, NewStringUTF user, NewStringUTF , FindClass java/lang/String, "
                   "NewObjectArray 2, DeleteLocalRef, SetObjectArrayElement, "
                   "SetObjectArrayElement, DeleteLocalRef, DeleteLocalRef, flush");
  // A text that cannot be made is null.
  jvm_.failingCall = jvm_.fallibleCalls + 2;
  EXPECT_EQ(nullsOf(invoke("QV_GetLoginUser").l, 2), (std::vector<int>{0}));
  jvm_.heap.remove("java/lang/String");
  EXPECT_EQ(failureOf("QV_GetLoginUser"), "DiskArrayException 2817");
}

TEST_F(DepartureTrace, PasswordCheckKeepsTheCharacters) {
  expectEvents(trace("QV_PasswdCheck"), "flush, GetStringUTFChars, QV_PasswdCheck, flush");
}

TEST_F(DepartureTrace, ClockKeepsTheSession) {
  Events expected = kTakeBoth + "QV_GetUnitTime, flush" + newObject("QVTime");
  for (const char* const field : {"tm_sec", "tm_min", "tm_hour", "tm_mday", "tm_mon", "tm_year",
                                  "tm_wday", "tm_yday", "tm_isdst"}) {
    expected = expected + setInt(field);
  }
  expectEvents(trace("QV_GetUnitTime"), expected);
  std::vector<jvalue> arguments = argumentsOf("QV_SetUnitTime");
  arguments[2].l = nullptr;
  expectEvents(trace("QV_SetUnitTime", arguments), kTakeBoth + kThrow);
  EXPECT_EQ(thrown(), "DiskArrayException -1");
  expectEvents(trace("QV_SetUnitTimeNow"), kTakeBoth + "QV_SetUnitTimeNow");
  // Behind a session that left an exception pending no time is read.
  jvm_.heap.remove("session_id");
  expectEvents(only(trace("QV_SetUnitTime"), "GetFieldID, QV_"), "GetFieldID session_id [B");
  EXPECT_EQ(thrown(), "DiskArrayException 2817");
}

TEST_F(DepartureTrace, WhatIsMissingIsEmptyAndNotWhatLayOnTheStack) {
  // The argument that is null stands in the place of the library's parameter.
  for (const auto& [method, place] : {std::pair{"QV_LoginQVUnit", 2},
                                      {"QV_PerformanceOutputAll", 1},
                                      {"QV_PerformanceOutputLU", 7}}) {
    std::vector<jvalue> arguments = argumentsOf(method);
    arguments[static_cast<std::size_t>(place)].l = nullptr;
    dirtyStack();
    invoke(method, arguments);
    char first = '?';
    EXPECT_NE(quorvelSimLastInput(method, place, &first, 1), 0U);
    EXPECT_EQ(first, '\0') << method;
  }
}

TEST_F(DepartureTrace, FlatStatusKeepsTheSessionAndStoresEveryElement) {
  const Events events = trace("QV_GetDriveStatus");
  expectStart(events, kTakeBoth + mallocOf<DiskDrive[450]>() + "QV_GetDriveStatus" +
                          newArray("DiskDrive", 450) + "flush");
  expectEnd(events, "SetObjectArrayElement, DeleteLocalRef, free");
  EXPECT_EQ(countOf(events, "free"), 1);

  // An element that cannot be built is stored like the others.
  jvm_.failingCall = jvm_.fallibleCalls + 500;
  EXPECT_EQ(countOf(trace("QV_GetDriveStatus"), "SetObjectArrayElement"), 450);
  EXPECT_EQ(thrown(), "NoSuchFieldError spare_of_disk_port");
  jvm_.heap.remove("tessaly/str/diskarray/DiskDrive");
  EXPECT_EQ(failureOf("QV_GetDriveStatus"),
            "ClassNotFoundException tessaly/str/diskarray/DiskDrive");
}

TEST_F(DepartureTrace, FlatInformationIsPartialWithoutAnException) {
  const Events events = trace("QV_GetDriveInformationAll");
  expectStart(events, kBegin + mallocOf<DiskDriveInformation[450]>() +
                          "QV_GetDriveInformationAll, free" +
                          newArray("DiskDriveInformation", 450) + "flush");
  expectEnd(events, "SetObjectArrayElement, DeleteLocalRef, free, flush");

  // Where an element cannot be built, the rest stays null.
  jvm_.heap.remove("drive_rotation");
  expectEnd(trace("QV_GetDriveInformationAll"), "GetFieldID drive_rotation I, free, flush");
  EXPECT_EQ(nullsOf(result_.l, 450).size(), 450U);
  jvm_.heap.remove("tessaly/str/diskarray/DiskDriveInformation");
  expectEnd(trace("QV_GetDriveInformationAll"), "free");
  EXPECT_EQ(result_.l, nullptr);
  EXPECT_EQ(thrown(), "ClassNotFoundException tessaly/str/diskarray/DiskDriveInformation");
}

TEST_F(DepartureTrace, PinTable) {
  expectEvents(trace("QV_GetPinInfo2"),
               kBegin + mallocOf<std::int32_t[8192]>() +
                   "QV_GetPinInfo2, free, NewIntArray 8192, SetIntArrayRegion 8192, "
                   "ExceptionOccurred, flush, free");
  jvm_.failingCall = jvm_.fallibleCalls + 5;
  EXPECT_EQ(failureOf("QV_GetPinInfo2"), "DiskArrayException 2817");
}

TEST_F(DepartureTrace, CrosscallAllocatesBothInputsBeforeItReadsThem) {
  const Events head = "flush, GetStringUTFChars" + mallocOf<QVSessionInfo>() +
                      mallocOf<MicroReplaceCrosscallRequest>() +
                      "GetFieldID session_id, GetFieldID ctl, GetFieldID forced_mode" +
                      mallocOf<MicroReplaceInformation>();
  expectEvents(story("QV_MicroReplaceCrosscall"),
               head +
                   "QV_MicroReplaceCrosscall, free, free, flush, GetFieldID valid, GetFieldID "
                   "WaitCancelreq, GetFieldID ReplaceCTL, free, flush");
  resetTestRuntime(3);
  expectEvents(story("QV_MicroReplaceCrosscall"), head + "ThrowNew java/lang/OutOfMemoryError");
}

TEST_F(DepartureTrace, ReplacementInProgressIsBuiltAndFlushed) {
  quorvelSimForceResult("*", 4109, 1);
  expectEvents(story("QV_MicroReplaceEx"),
               "flush, GetStringUTFChars" + mallocOf<QVSessionInfo>() + "GetFieldID session_id" +
                   mallocOf<MicroReplaceInformation>() +
                   "QV_MicroReplaceEx, free, flush, GetFieldID valid, GetFieldID WaitCancelreq, "
                   "GetFieldID ReplaceCTL, free, flush");
}

TEST_F(DepartureTrace, MailSettingsAreFlushedByTheirBuilderAlone) {
  expectEvents(story("QV_GetEmailInfo"),
               "QV_GetEmailInfo, flush, GetFieldID on_off, NewStringUTF , GetFieldID domain, "
               "NewStringUTF , GetFieldID smtp, NewStringUTF , GetFieldID from, GetFieldID tonum, "
               "NewObjectArray 0, GetFieldID to");
  // Settings that cannot be built are null, with the JVM's own exception.
  jvm_.heap.remove("smtp");
  jvm_.heap.remove("tonum");
  EXPECT_EQ(failureOf("QV_GetEmailInfo"), "NoSuchFieldError tonum");
}

TEST_F(DepartureTrace, SnmpFilesKeepTheSession) {
  quorvelSimForceResult("*", 7, 1);
  expectEvents(story("QV_SetSnmpConfig"),
               "flush, GetStringUTFChars, GetStringUTFChars, GetStringUTFChars" +
                   mallocOf<QVSessionInfo>() + "GetFieldID session_id, QV_SetSnmpConfig, Throw");
}

TEST_F(DepartureTrace, FibrePermissionsFlushNothing) {
  const Events events = trace("QV_FibreInfoPermissionImport");
  expectStart(events, kCopyName + kCopyName + mallocOf<FibreInformationPermission[128]>() +
                          "QV_FibreInfoPermissionImport" +
                          newArray("FibreInformationPermission", 128) +
                          "flush, FindClass tessaly/str/diskarray/FibreInformationPermission");
  // Only the builders flush.
  EXPECT_EQ(countOf(events, "flush"), 128);
  expectEnd(events, kStore + "free");

  jvm_.heap.remove("tessaly/str/diskarray/FibreInformationPermission");
  EXPECT_EQ(failureOf("QV_FibreInfoPermissionImport"), "DiskArrayException 2817");

  quorvelSimForceResult("*", 7, 1);
  expectEvents(trace("QV_FibreInfoPermissionImport", std::vector<jvalue>(3)),
               mallocOf<FibreInformationPermission[128]>() + "QV_FibreInfoPermissionImport" +
                   kThrow + "free");
  char name[65] = {};
  EXPECT_EQ(quorvelSimLastInput("QV_FibreInfoPermissionImport", 0, name, sizeof name), 65U);
  EXPECT_EQ(name[0], '\0');
}

TEST_F(DepartureTrace, MappingOfAGroup) {
  expectEvents(
      trace("QV_GetLuMappingList"),
      kBegin + mallocOf<LuMappingHGInfo>() +
          "QV_GetLuMappingList, free, FindClass java/lang/Object, NewObjectArray 2, "
          "DeleteLocalRef, FindClass java/lang/Integer, GetMethodID <init> (I)V, NewObject, "
          "DeleteLocalRef" +
          kStore + "flush" + newObject("LuMappingHGInfo") +
          "NewIntArray 2048, SetIntArrayRegion 2048, ExceptionOccurred, GetObjectClass, GetFieldID "
          "lu [I, SetObjectField, ExceptionOccurred, DeleteLocalRef, DeleteLocalRef" +
          kStore + "free, flush");
}

TEST_F(DepartureTrace, ResultsOfTheirOwnThatCannotBeMadeAre2817) {
  jvm_.heap.remove("lu");
  EXPECT_EQ(invoke("QV_GetLuMappingList").l, nullptr);
  EXPECT_EQ(thrown(), "DiskArrayException 2817");
  jvm_.failingCall = jvm_.fallibleCalls + 1;
  EXPECT_EQ(invoke("QV_GetNewMicroRevision").l, nullptr);
  EXPECT_EQ(thrown(), "DiskArrayException 2817");
}

TEST_F(DepartureTrace, LogicalUnitsEndAtTheFirstThatCannotBeBuilt) {
  // An object takes 4 calls, each of its ints 5, and its store 2.
  constexpr int kAnElement = 4 + 24 * 5 + 2;
  constexpr int kFallibleOfThem = 3 + 24 * 2 + 1;
  constexpr int kCopyNameReadSessionMakeArray = 3 + 7 + 3;
  invoke("QV_GetLogicalUnit");
  EXPECT_EQ(jvm_.calls, kCopyNameReadSessionMakeArray + 8192 * kAnElement);
  const int before = jvm_.fallibleCalls - 8192 * kFallibleOfThem;
  for (const int built : {0, 1, 40}) {
    // The first value of an element is stored by its fifth call that can fail.
    jvm_.failingCall = jvm_.fallibleCalls + before + built * kFallibleOfThem + 5;
    const std::vector<int> nulls = nullsOf(invoke("QV_GetLogicalUnit").l, 8192);
    EXPECT_EQ(thrown(), "InternalError");
    ASSERT_EQ(nulls.size(), static_cast<std::size_t>(8192 - built));
    EXPECT_EQ(nulls.front(), built);
    EXPECT_EQ(testRuntime().liveRecords, 0);
  }
}

TEST_F(DepartureTrace, ArrayOfRaidGroups) {
  const Events events = trace("QV_GetRaidGroups");
  EXPECT_EQ(events.size(), 11U + 90 * (1 + 4 + 14 * 5 + 2));
  expectStart(events, "flush" + kCopyName + mallocOf<RaidGroup[90]>() + "QV_GetRaidGroups" +
                          newArray("RaidGroup", 90) + "flush");
  expectEnd(events, "SetObjectArrayElement, DeleteLocalRef, free, flush");
  // References to the name, the array, an element and its class.
  EXPECT_EQ(jvm_.heap.mostReferences(), 4);
}

TEST_F(DepartureTrace, FormatStatusListIsFlushedByItsBuildersAlone) {
  const Events events = trace("QV_LogicalUnitFormatStatusList");
  expectStart(events, kCopyName + mallocOf<LuFormatStatusList>() +
                          "QV_LogicalUnitFormatStatusList, flush, FindClass "
                          "tessaly/str/diskarray/LuFormatStatusList");
  expectEnd(events, "DeleteLocalRef, free");
  // Each of the 2,049 builders flushes; the method does not.
  EXPECT_EQ(countOf(events, "flush"), 2049);

  jvm_.heap.remove("percent");
  EXPECT_EQ(failureOf("QV_LogicalUnitFormatStatusList"), "NoSuchFieldError percent");
}

TEST_F(DepartureTrace, CacheResidentLusAreNotFlushedOnEntry) {
  expectEvents(trace("QV_GetTurboLU"), kTakeBoth + mallocOf<TurboLu>() +
                                           "QV_GetTurboLU, free, flush" + newObject("TurboLu") +
                                           "free, flush");
  expectEvents(trace("QV_SetTurboLU"), kCopyName + mallocOf<QVSessionInfo>() + mallocOf<TurboLu>() +
                                           kReadSession + "QV_SetTurboLU, free, free, flush");
}

TEST_F(DepartureTrace, SnapshotsWithoutMemoryAreLeftNull) {
  resetTestRuntime(2);
  expectEvents(trace("QV_GetPerformanceAll"),
               kBegin + 2 * mallocOf<PerformanceAll>() + "QV_GetPerformanceAll" +
                   newArray("PerformanceAll", 2) + "flush, free null, free, flush");
  EXPECT_EQ(nullsOf(result_.l, 2).size(), 2U);
  EXPECT_EQ(thrown(), "");
}

TEST_F(DepartureTrace, SnapshotsThatTheLibraryRefuses) {
  quorvelSimForceResult("*", 7, 2);
  expectEvents(trace("QV_GetPerformanceAll"), kBegin + 2 * mallocOf<PerformanceAll>() +
                                                  "QV_GetPerformanceAll" + kThrow + "free, free");
  jvm_.clearPending();
  expectEvents(trace("QV_GetPerformance"), kBegin + 2 * mallocOf<StatisticalCommand>() +
                                               "QV_GetPerformance" + kThrow + "free, free");
}

TEST_F(DepartureTrace, AFailingElementEndsThePairOfSnapshots) {
  jvm_.heap.remove("tessaly/str/diskarray/StatisticalCommand_Info");
  expectEnd(trace("QV_GetPerformance"), "flush, free, free");
  EXPECT_EQ(nullsOf(result_.l, 2).size(), 2U);
  jvm_.heap.remove("tessaly/str/diskarray/StatisticalCommand");
  const Events events = trace("QV_GetPerformance");
  EXPECT_EQ(countOf(events, "Throw"), 0);
  EXPECT_EQ(countOf(events, "flush"), 1);
  EXPECT_EQ(result_.l, nullptr);
}

TEST_F(DepartureTrace, OutputsReleaseBeforeTheyThrow) {
  for (const std::size_t allocation : {1U, 5U}) {
    resetTestRuntime(static_cast<int>(allocation));
    Events expected = 5 * Events("free") + kThrowOutOfMemory;
    expected[allocation - 1] = "free null";
    expectEnd(trace("QV_PerformanceOutputAll"), expected);
    jvm_.clearPending();
  }
  resetTestRuntime(7);
  expectEnd(trace("QV_PerformanceOutputGraphInfo"),
            mallocOf<QVSessionInfo>() + 4 * mallocOf<PerformanceAll>() +
                2 * mallocOf<PerformanceCollectGraphInfo>() + 6 * Events("free") + "free null" +
                kThrowOutOfMemory);
}

}  // namespace
}  // namespace quorvelj::testing
