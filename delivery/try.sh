#!/bin/sh
# Goes through the array tour over the simulator, in the JVM of JAVA_HOME or else of PATH. The
# arguments go to the tour.
set -u

fail() {
  printf 'try.sh: %s\n' "$*" >&2
  exit 3
}

here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd) || exit 3
case $here in
  *:*) fail "a colon separates directories: $here cannot be searched for libraries" ;;
esac

if [ -n "${JAVA_HOME:-}" ]; then
  java=$JAVA_HOME/bin/java
  [ -x "$java" ] || fail "JAVA_HOME is $JAVA_HOME, and no bin/java is there"
else
  java=$(command -v java) ||
    fail "no Java: neither JAVA_HOME nor PATH has one; Debian's is openjdk-17-jre-headless"
fi
properties=$("$java" -XshowSettings:properties -version 2>&1) ||
  fail "$java does not start: $properties"

property() {
  printf '%s\n' "$properties" | sed -n "s/^ *$1 = //p"
}
jvm="$java, Java $(property java.version), $(property sun.arch.data.model)-bit"
class_version=$(property java.class.version)
[ "${class_version%%.*}" -ge 52 ] 2>/dev/null || fail "Java 8 or later is needed, this is $jvm"
system=$(property os.name)
arch=$(property os.arch)
case $system/$arch in
  Linux/amd64 | Linux/x86_64) libraries=linux-x86_64 ;;
  Linux/x86 | Linux/i[3456]86) libraries=linux-i386 ;;
  *) fail "this JVM is for $system on $arch, the libraries are for Linux on x86, 64-bit or 32-bit: $jvm" ;;
esac

"$java" "-Djava.library.path=$here/$libraries:$here/simulator/$libraries" \
  -jar "$here/array-tour.jar" "$@"
status=$?
echo
if [ "$status" -eq 0 ]; then
  echo "try.sh: the tour went through, over the simulator and $libraries/libquorvelj.so"
else
  echo "try.sh: the tour ended with status $status over the simulator and $libraries/libquorvelj.so;"
  echo "        README.md says what to do when it does not work"
fi
echo "        in $jvm"
exit "$status"
