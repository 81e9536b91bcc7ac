# The lists of all records and of all library functions, taken from the headers of arraylib, for who
# goes through all of them:
#   record_headers.inc    the headers
#   record_entries.inc    RECORD_ENTRY("header", record), a line each
#   function_entries.inc  FUNCTION_ENTRY("header", function), a line each
# RECORDS_DIRECTORY is where they are.
set(RECORDS_DIRECTORY "${PROJECT_BINARY_DIR}/records")
file(GLOB record_headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/arraylib/*.h")
set(entries "")
set(functions "")
set(includes "")
foreach(header IN LISTS record_headers)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${header}")
  cmake_path(GET header FILENAME name)
  string(APPEND includes "#include \"arraylib/${name}\"\n")
  file(STRINGS "${header}" records REGEX "^QUORVEL_(RECORD|PART)\\(")
  foreach(record IN LISTS records)
    string(REGEX REPLACE "^QUORVEL_[A-Z]+\\(([A-Za-z0-9_]+).*" "\\1" record "${record}")
    string(APPEND entries "RECORD_ENTRY(\"${name}\", ${record})\n")
  endforeach()
  file(STRINGS "${header}" lines REGEX "^QUORVEL_API int QV_")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE "^QUORVEL_API int (QV_[A-Za-z0-9_]+).*" "\\1" function "${line}")
    string(APPEND functions "FUNCTION_ENTRY(\"${name}\", ${function})\n")
  endforeach()
endforeach()
file(CONFIGURE OUTPUT "${RECORDS_DIRECTORY}/record_headers.inc" CONTENT "${includes}" @ONLY)
file(CONFIGURE OUTPUT "${RECORDS_DIRECTORY}/record_entries.inc" CONTENT "${entries}" @ONLY)
file(CONFIGURE OUTPUT "${RECORDS_DIRECTORY}/function_entries.inc" CONTENT "${functions}" @ONLY)
