# Runs the DLL's tests with the recorder, which does not record, as quorvel.dll. The tests steer the simulator, so their program
# gets it under another name, which the recorder takes for the real library.
# Usage: cmake -DLIBRARIES=... -DFIELDS=... -DDIRECTORY=... -DFILTER=... -P recorded_tests.cmake
file(REMOVE_RECURSE "${DIRECTORY}")
file(MAKE_DIRECTORY "${DIRECTORY}")
file(COPY "${LIBRARIES}/quorvelj.dll" "${LIBRARIES}/recorder/quorvel.dll" "${FIELDS}"
  DESTINATION "${DIRECTORY}")
file(COPY_FILE "${LIBRARIES}/quorvel.dll" "${DIRECTORY}/quorsim.dll")
execute_process(COMMAND sed "s/quorvel\\.dll/quorsim.dll/" "${LIBRARIES}/dll_tests.exe"
  OUTPUT_FILE "${DIRECTORY}/dll_tests.exe" COMMAND_ERROR_IS_FATAL ANY)
file(CHMOD "${DIRECTORY}/dll_tests.exe" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
execute_process(
  COMMAND "${CMAKE_COMMAND}" -E env QUORVEL_REAL=quorsim.dll wine dll_tests.exe
          --gtest_brief=1 "--gtest_filter=${FILTER}"
  WORKING_DIRECTORY "${DIRECTORY}")
