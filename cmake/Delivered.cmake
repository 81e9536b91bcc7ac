# What makes a library one that is delivered: it names itself and its version, and its symbols lie
# beside it in FILE.debug, where a debugger finds them.
#
# delivered(TARGET "kind" "description")  the kind stands behind the version, "" for the product's
if(WIN32)
  enable_language(RC)
  # windres asks for four numbers with commas.
  string(REPLACE "." "," version_numbers "${PROJECT_VERSION},0")
endif()

function(delivered target kind description)
  string(STRIP "${PROJECT_VERSION} ${kind}" marked_version)
  # An object of its own: a new version compiles nothing else anew.
  add_library(${target}_version OBJECT "${version_source}")
  set_target_properties(${target}_version PROPERTIES POSITION_INDEPENDENT_CODE ON)
  target_compile_definitions(${target}_version PRIVATE "QUORVELJ_VERSION=\"${marked_version}\"")
  target_link_libraries(${target}_version PRIVATE quorvelj_options quorvelj_symbols)
  target_link_libraries(${target} PRIVATE ${target}_version)
  if(WIN32)
    get_target_property(name ${target} OUTPUT_NAME)
    if(NOT name)
      set(name ${target})
    endif()
    configure_file("${PROJECT_SOURCE_DIR}/cmake/win32/version.rc.in" "${target}-version.rc" @ONLY)
    target_sources(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${target}-version.rc")
    target_link_options(${target} PRIVATE -Wl,--no-insert-timestamp)
  endif()
  # Of a DLL the time that its header has is kept as well, by --preserve-dates.
  set(file "$<TARGET_FILE:${target}>")
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND "${CMAKE_OBJCOPY}" --only-keep-debug --preserve-dates "${file}" "${file}.debug"
    COMMAND "${CMAKE_OBJCOPY}" --strip-all --preserve-dates "--add-gnu-debuglink=${file}.debug" "${file}"
    VERBATIM)
endfunction()
