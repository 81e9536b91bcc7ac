# Goes through the array tour and expects its intended refusals and no others.
# Usage: cmake -DJAVA=... -DLIBRARIES=... -DCLASS_PATH=... -P array_tour.cmake
cmake_minimum_required(VERSION 3.25)
execute_process(
  COMMAND "${JAVA}" "-Djava.library.path=${LIBRARIES}" -classpath "${CLASS_PATH}" ArrayTour
  OUTPUT_VARIABLE shown
  COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+\n  Refused as expected: [^ ]+ with code [0-9]+" refused "${shown}")
set(expected
  "Registering a unit twice\n  Refused as expected: QV_UnitAdd with code 20002"
  "A missing unit name\n  Refused as expected: QV_GetUnitParam with code 258"
  "A wrong password\n  Refused as expected: QV_LoginQVAccount with code 20102"
  "Deleting a RAID group that holds logical units\n  Refused as expected: QV_RaidGroupDelete with code 20504"
  "Mapping a guarded LU\n  Refused as expected: QV_SetLuMappingList with code 20604"
  "A call after the logout\n  Refused as expected: QV_GetOwnUserPermission with code 20101")
if(NOT refused STREQUAL expected)
  message(FATAL_ERROR "refused:\n${refused}\nexpected:\n${expected}\n${shown}")
endif()
if(NOT shown MATCHES "All of it in one call" OR NOT shown MATCHES "RAID groups +1 ")
  message(FATAL_ERROR "The whole array is not shown:\n${shown}")
endif()
if(NOT shown MATCHES "  57 OK, 6 refused as expected, 0 unexpected, 0 left out, in [0-9.]+ seconds\n$")
  message(FATAL_ERROR "Not the expected summary:\n${shown}")
endif()
