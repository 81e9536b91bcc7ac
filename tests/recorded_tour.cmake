# Goes through the array tour with the recorder between the bridge and the simulator, and once more
# with the recording in place of the simulator: what it shows is the same but for times. The recording
# kept in tests/recordings answers it as well.
# Usage: cmake -DJAVA=... -DLIBRARIES=... -DDIRECTORY=... -DKEPT=... -P recorded_tour.cmake
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE "${DIRECTORY}")
file(MAKE_DIRECTORY "${DIRECTORY}")
file(COPY "${LIBRARIES}/libquorvelj.so" "${LIBRARIES}/recorder/libquorvel.so"
  DESTINATION "${DIRECTORY}")
set(real "${LIBRARIES}/libquorvel.so")

# tour(OUTPUT NAME=VALUE...): what the tour shows with these settings, without times, and its exit status.
function(tour output)
  execute_process(
    COMMAND "${CMAKE_COMMAND}" -E env ${ARGN} "${JAVA}" "-Djava.library.path=${DIRECTORY}"
            -Djava.io.tmpdir=. -classpath "${LIBRARIES}/quorvelj.jar:${LIBRARIES}/array-tour.jar"
            ArrayTour
    WORKING_DIRECTORY "${DIRECTORY}" OUTPUT_VARIABLE shown ERROR_VARIABLE errors
    RESULT_VARIABLE status)
  string(REGEX REPLACE "in [0-9.]+ seconds" "in SECONDS" shown "${shown}")
  set(${output} "${shown}exit status ${status}\n" PARENT_SCOPE)
  set(errors "${errors}" PARENT_SCOPE)
endfunction()

function(expect_same what shown)
  if(NOT shown STREQUAL direct)
    file(WRITE "${DIRECTORY}/direct.txt" "${direct}")
    file(WRITE "${DIRECTORY}/${what}.txt" "${shown}")
    message(FATAL_ERROR "${what}.txt in ${DIRECTORY} is not direct.txt. Where the tour changed, \
keep the tour.recording of there; ${errors}")
  endif()
endfunction()

tour(direct "QUORVEL_REAL=${real}")
if(NOT direct MATCHES "All of it in one call.*exit status 0")
  message(FATAL_ERROR "The tour is not shown: ${direct}")
endif()
# What a caller leaves unset is 0 then, so that equal tours give equal recordings.
tour(shown "QUORVEL_REAL=${real}" QUORVEL_RECORD=tour.recording MALLOC_PERTURB_=255)
expect_same(recorded "${shown}")
file(STRINGS "${DIRECTORY}/tour.recording" leaked REGEX "quorvel([^j]|$)")
if(leaked)
  message(FATAL_ERROR "the recording has the password: ${leaked}")
endif()
file(SIZE "${DIRECTORY}/tour.recording" bytes)
if(bytes GREATER 200000)
  message(FATAL_ERROR "the recording has ${bytes} bytes")
endif()
tour(shown QUORVEL_REPLAY=tour.recording)
expect_same(replayed "${shown}")
if(KEPT)
  tour(shown "QUORVEL_REPLAY=${KEPT}")
  expect_same(kept "${shown}")
endif()

# Without the real library.
tour(shown QUORVEL_REAL=nothing.so)
if(NOT shown MATCHES "with code 29001 .*exit status 1" OR
    NOT errors MATCHES "^quorvel recorder: the real library cannot be loaded: nothing.so: [^\n]*\n$")
  message(FATAL_ERROR "without the real library: ${shown} ${errors}")
endif()
