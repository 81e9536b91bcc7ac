#include "tests/support/departures.h"

#include <map>

namespace quorvelj::testing {

const Departure& departureOf(const NativeMethod& method) {
  static const std::map<std::string, Departure> departures{
      {"QV_GetUnitCount", {.failureValue = -1}},
      {"QV_DiscoverUnitInformation", {.releasesOnRefusal = true}},
      {"QV_DiscoverUnitInformationEx", {.releasesOnRefusal = true}},
      {"QV_GetUnitParamTable", {.silentWithoutMemory = true}},
      {"QV_LoginQVUnit", {.output = {'u', 's', 'e', 'r'}}},
      {"QV_GetLoginUser", {.output = {'u', 's', 'e', 'r'}}},
      {"QV_PasswdCheck",
       {.failureValue = -1,
        .neverReleasedCharacters = 1,
        .stopsUnread = true,
        .returnsResult = true}},
      {"QV_GetUnitTime", {.neverReleased = 1, .acceptsNullText = true}},
      {"QV_SetUnitTime", {.neverReleased = 1, .acceptsNullText = true, .stopsUnread = true}},
      {"QV_SetUnitTimeNow", {.neverReleased = 1, .acceptsNullText = true}},
      {"QV_GetDriveStatus", {.neverReleased = 1, .acceptsNullText = true}},
      {"QV_LogicalUnitFormatStatusList", {.acceptsNullText = true}},
      {"QV_FibreInfoPermissionImport", {.acceptsNullText = true}},
      {"QV_GetPerformance", {.neverReleased = 1}},
      {"QV_GetPerformanceAll", {.neverReleased = 1, .firstUntestedAllocation = 2}},
      {"QV_PerformanceOutputGraphInfo", {.releasesOnRefusal = true}},
      {"QV_SetSnmpConfig", {.neverReleased = 1}},
      {"QV_SnmpConfigOutput", {.neverReleased = 1}},
  };
  static const Departure regular;
  const auto found = departures.find(method.name);
  return found == departures.end() ? regular : found->second;
}

}  // namespace quorvelj::testing
