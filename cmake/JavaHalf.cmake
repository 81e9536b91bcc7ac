# The Java half: quorvelj.jar, the jar of the array tour, and what the native build takes from them.
#
# quorvelj_java  interface library with JNI's headers and the generated ones
# JAVA_HALF_DIRECTORY  where the generated files are; NativeMethods.cmake says which

find_package(Java COMPONENTS Development REQUIRED)
file(REAL_PATH "${Java_JAVAC_EXECUTABLE}" java_home)
cmake_path(GET java_home PARENT_PATH java_home)
cmake_path(GET java_home PARENT_PATH java_home)

set(JAVA_HALF_DIRECTORY "${PROJECT_BINARY_DIR}/java/native")
set(QUORVELJ_JAR "${PROJECT_BINARY_DIR}/lib/quorvelj.jar")
set(TOUR_JAR "${PROJECT_BINARY_DIR}/lib/array-tour.jar")
set(native_header "${JAVA_HALF_DIRECTORY}/tessaly_str_diskarray_DiskArrayUtilityJNI.h")

# The application's JVM may be old. Entries carry a fixed time, so that equal sources give equal jars.
set(javac "${Java_JAVAC_EXECUTABLE}" --release 8 -encoding UTF-8 -Xlint:all,-options -Werror)
set(jar "${Java_JAR_EXECUTABLE}" --create --date=2024-01-01T00:00:00Z)

file(GLOB java_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/java/tessaly/str/diskarray/*.java")
set(classes "${PROJECT_BINARY_DIR}/java/classes")
set(generated "${PROJECT_BINARY_DIR}/java/headers")
add_custom_command(
  OUTPUT "${QUORVELJ_JAR}" "${native_header}" "${JAVA_HALF_DIRECTORY}/native_methods.inc"
         "${JAVA_HALF_DIRECTORY}/quorvelj.def" "${JAVA_HALF_DIRECTORY}/exports.txt"
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${classes}"
  COMMAND ${javac} -h "${generated}" -d "${classes}" ${java_sources}
  # A header that says the same compiles nothing anew.
  COMMAND "${CMAKE_COMMAND}" -E make_directory "${JAVA_HALF_DIRECTORY}"
  COMMAND "${CMAKE_COMMAND}" -E copy_if_different
          "${generated}/tessaly_str_diskarray_DiskArrayUtilityJNI.h" "${native_header}"
  COMMAND ${jar} --no-manifest --file "${QUORVELJ_JAR}" -C "${classes}" .
  COMMAND "${CMAKE_COMMAND}" "-DHEADER=${native_header}" "-DDIRECTORY=${JAVA_HALF_DIRECTORY}"
          -P "${PROJECT_SOURCE_DIR}/cmake/NativeMethods.cmake"
  DEPENDS ${java_sources} "${PROJECT_SOURCE_DIR}/cmake/NativeMethods.cmake"
  COMMENT "Compiling the Java half"
  VERBATIM)
add_custom_target(java_half ALL DEPENDS "${QUORVELJ_JAR}")

file(GLOB tour_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/examples/*.java")
set(tour_classes "${PROJECT_BINARY_DIR}/java/tour")
add_custom_command(
  OUTPUT "${TOUR_JAR}"
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${tour_classes}"
  COMMAND ${javac} -classpath "${QUORVELJ_JAR}" -d "${tour_classes}" ${tour_sources}
  COMMAND ${jar} --no-manifest --file "${TOUR_JAR}" -C "${tour_classes}" .
  DEPENDS ${tour_sources} "${QUORVELJ_JAR}"
  COMMENT "Compiling the array tour"
  VERBATIM)
add_custom_target(array_tour ALL DEPENDS "${TOUR_JAR}")

add_library(quorvelj_java INTERFACE)
add_dependencies(quorvelj_java java_half)
target_include_directories(quorvelj_java INTERFACE "${JAVA_HALF_DIRECTORY}")
# For Windows, cmake/win32 has the part of jni.h that depends on the machine.
target_include_directories(quorvelj_java SYSTEM INTERFACE
  "$<IF:$<BOOL:${WIN32}>,${PROJECT_SOURCE_DIR}/cmake/win32,${java_home}/include/linux>"
  "${java_home}/include")

# A Java virtual machine of the target's width, to run inside a test or a benchmark: the compiler's
# own, or the one that Debian installs beside it.
set(jvm_home "${java_home}")
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  string(REPLACE "-amd64" "-i386" jvm_home "${java_home}")
endif()
if(NOT WIN32 AND EXISTS "${jvm_home}/lib/server/libjvm.so")
  add_library(quorvelj_jvm SHARED IMPORTED)
  set_target_properties(quorvelj_jvm PROPERTIES
    IMPORTED_LOCATION "${jvm_home}/lib/server/libjvm.so")
  # Debian's 32-bit libjvm leaves a name open that it never calls.
  target_link_options(quorvelj_jvm INTERFACE -Wl,--unresolved-symbols=ignore-in-shared-libs)
endif()
