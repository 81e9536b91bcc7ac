# Runs ThreadedCalls under -Xcheck:jni. Arguments that are valid give no warning; any others give those
# of calls under a pending exception alone.
# Usage: cmake -DSECONDS=... -DARGUMENTS=valid|any -DJAVA=... -P checked_threads.cmake
cmake_minimum_required(VERSION 3.25)
execute_process(
  COMMAND ${JAVA} -Xcheck:jni ThreadedCalls ${ARGUMENTS} ${SECONDS}
  # Each warning has a stack trace.
  COMMAND grep --text -oE "(WARNING|FATAL|FAILED|Exception in|threads: ).*"
  OUTPUT_VARIABLE shown
  RESULTS_VARIABLE results)
string(REPLACE "WARNING in native method: JNI call made with exception pending" "" others "${shown}")
if(ARGUMENTS STREQUAL "valid")
  set(others "${shown}")
endif()
string(REGEX MATCHALL "threads: [^\n]*" lines "${shown}")
list(JOIN lines "\n" lines)
message("${lines}")
if(NOT results STREQUAL "0;0" OR others MATCHES "WARNING|FATAL|FAILED" OR
   NOT shown MATCHES "must reach the library")
  string(SUBSTRING "${shown}" 0 5000 shown)
  message(FATAL_ERROR "results ${results}:\n${shown}")
endif()
