# The Java half: quorvelj.jar, its sources and Javadoc, the jar of the array tour, and what the native
# build takes from them.
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

# manifest(FILE "Name: value"...): the manifest of a jar that names itself and its version.
function(manifest file)
  list(JOIN ARGN "\n" lines)
  file(CONFIGURE OUTPUT "${file}" CONTENT
    "Implementation-Title: ${PROJECT_NAME}\nImplementation-Version: ${PROJECT_VERSION}\n${lines}\n" @ONLY)
endfunction()

set(product_manifest "${PROJECT_BINARY_DIR}/java/product.mf")
manifest("${product_manifest}" "Automatic-Module-Name: tessaly.str.diskarray")
# A build tool that installs the jar takes this from it.
set(pom_directory "${PROJECT_BINARY_DIR}/java/pom")
set(pom "META-INF/maven/${PROJECT_NAME}/${PROJECT_NAME}/pom.xml")
configure_file("${PROJECT_SOURCE_DIR}/cmake/pom.xml.in" "${pom_directory}/${pom}" @ONLY)

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
  COMMAND ${jar} --manifest "${product_manifest}" --file "${QUORVELJ_JAR}" -C "${classes}" .
          -C "${pom_directory}" "${pom}"
  COMMAND "${CMAKE_COMMAND}" "-DHEADER=${native_header}" "-DDIRECTORY=${JAVA_HALF_DIRECTORY}"
          -P "${PROJECT_SOURCE_DIR}/cmake/NativeMethods.cmake"
  DEPENDS ${java_sources} "${product_manifest}" "${pom_directory}/${pom}"
          "${PROJECT_SOURCE_DIR}/cmake/NativeMethods.cmake"
  COMMENT "Compiling the Java half"
  VERBATIM)
add_custom_target(java_half ALL DEPENDS "${QUORVELJ_JAR}")

# For who programs against it: on request only.
set(SOURCES_JAR "${PROJECT_BINARY_DIR}/lib/quorvelj-sources.jar")
set(JAVADOC_JAR "${PROJECT_BINARY_DIR}/lib/quorvelj-javadoc.jar")
set(javadoc_pages "${PROJECT_BINARY_DIR}/java/javadoc")
add_custom_command(
  OUTPUT "${SOURCES_JAR}" "${JAVADOC_JAR}"
  COMMAND ${jar} --manifest "${product_manifest}" --file "${SOURCES_JAR}"
          -C "${PROJECT_SOURCE_DIR}/java" .
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${javadoc_pages}"
  COMMAND "${Java_JAVADOC_EXECUTABLE}" -quiet -Xdoclint:none -notimestamp --release 8 -locale en
          -encoding UTF-8 -docencoding UTF-8 -windowtitle "${PROJECT_NAME} ${PROJECT_VERSION}"
          -d "${javadoc_pages}" ${java_sources}
  COMMAND ${jar} --manifest "${product_manifest}" --file "${JAVADOC_JAR}" -C "${javadoc_pages}" .
  DEPENDS ${java_sources} "${product_manifest}"
  COMMENT "Writing the Javadoc"
  VERBATIM)
add_custom_target(java_documents DEPENDS "${SOURCES_JAR}" "${JAVADOC_JAR}")

file(GLOB tour_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/examples/*.java")
set(tour_classes "${PROJECT_BINARY_DIR}/java/tour")
set(tour_manifest "${PROJECT_BINARY_DIR}/java/tour.mf")
manifest("${tour_manifest}" "Main-Class: ArrayTour" "Class-Path: quorvelj.jar"
  "Enable-Native-Access: ALL-UNNAMED")
add_custom_command(
  OUTPUT "${TOUR_JAR}"
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${tour_classes}"
  COMMAND ${javac} -classpath "${QUORVELJ_JAR}" -d "${tour_classes}" ${tour_sources}
  COMMAND ${jar} --manifest "${tour_manifest}" --file "${TOUR_JAR}" -C "${tour_classes}" .
  DEPENDS ${tour_sources} "${tour_manifest}" "${QUORVELJ_JAR}"
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
