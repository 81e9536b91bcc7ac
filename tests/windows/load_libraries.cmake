# The bridge's DLL is loaded where quorvel.dll was loaded before it, and not without that: neither the
# current directory nor PATH nor the program's directory has them.
# Usage: cmake -DPROGRAM=... -DLIBRARIES=... -DDIRECTORY=... -P load_libraries.cmake
file(MAKE_DIRECTORY "${DIRECTORY}")
file(COPY "${PROGRAM}" DESTINATION "${DIRECTORY}")
cmake_path(GET PROGRAM FILENAME program)

function(load status)
  list(TRANSFORM ARGN PREPEND "Z:${LIBRARIES}/")
  string(REPLACE "/" "\\" paths "${ARGN}")
  execute_process(COMMAND wine "${program}" ${paths} WORKING_DIRECTORY "${DIRECTORY}"
    RESULT_VARIABLE result OUTPUT_VARIABLE printed)
  if(NOT result EQUAL status)
    message(FATAL_ERROR "${ARGN}: ${result} instead of ${status}; ${printed}")
  endif()
  set(printed "${printed}" PARENT_SCOPE)
endfunction()

load(1 quorvelj.dll)
if(NOT printed MATCHES "^error 126: .*quorvelj.dll")
  message(FATAL_ERROR "not what Windows says of a DLL that it does not find: ${printed}")
endif()
load(0 quorvel.dll quorvelj.dll)
