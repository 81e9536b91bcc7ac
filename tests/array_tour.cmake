# Goes through the array tour and expects its intended refusals and no others.
# Usage: cmake -DJAVA=... -DLIBRARIES=... -DCLASS_PATH=... -P array_tour.cmake
cmake_minimum_required(VERSION 3.25)
execute_process(
  COMMAND "${JAVA}" "-Djava.library.path=${LIBRARIES}" -classpath "${CLASS_PATH}" ArrayTour
  OUTPUT_VARIABLE shown
  COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+\n  refused with code [0-9]+" refused "${shown}")
set(expected
  "Registering a unit twice\n  refused with code 20002"
  "A wrong password\n  refused with code 20102"
  "A RAID group that holds logical units\n  refused with code 20504"
  "Mapping a guarded LU\n  refused with code 20604"
  "After the logout\n  refused with code 20101"
  "A missing unit name\n  refused with code 258")
if(NOT refused STREQUAL expected)
  message(FATAL_ERROR "refused:\n${refused}\nexpected:\n${expected}\n${shown}")
endif()
if(NOT shown MATCHES "The whole array in one call" OR NOT shown MATCHES "RAID groups +1 ")
  message(FATAL_ERROR "The whole array is not shown:\n${shown}")
endif()
