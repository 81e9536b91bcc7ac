#!/usr/bin/env bash
# Uses the archives of `make dist` as their README says: what it tells to type is typed, its program is
# compiled and run. Windows' part is run under Wine, with a stand-in for java.exe.
set -euo pipefail
tree=$(cd "$(dirname "$0")/.." && pwd)
version=$("$tree/scripts/version.sh")
name=quorvelj-$version
dist=$tree/dist
# A place as people have it: with a blank and parentheses.
work="$tree/build/delivery/a place (x86)"
here="$work/$name"
rm -rf "$tree/build/delivery"
mkdir -p "$work"
unset JAVA_HOME

fail() {
  echo "delivery: $*" >&2
  exit 1
}

# expect STATUS TEXT COMMAND...: what it printed is in $printed.
expect() {
  local status=0 wanted=$1 text=$2
  shift 2
  printed=$("$@" 2>&1) || status=$?
  [ "$status" -eq "$wanted" ] || fail "status $status instead of $wanted: $*: $printed"
  [[ $printed == *"$text"* ]] || fail "no \"$text\" from $*: $printed"
}

# follow PAGE: hands each fenced block of the page to a function of its language, with its text in
# $block.
follow() {
  local line language='' fence='^```([a-z]*)$'
  while IFS= read -r line <&3; do
    if [[ $line =~ $fence ]]; then
      if [ -n "$language" ]; then
        "block_$language"
        language=''
      else
        language=${BASH_REMATCH[1]:-plain}
        block=''
      fi
    elif [ -n "$language" ]; then
      block+=$line$'\n'
    fi
  done 3<"$1"
  [ -z "$language" ] || fail "$1 ends inside a block"
}

# shellcheck disable=SC2317  # Called by follow.
block_plain() { :; }
block_sh() {
  commands=$((commands + 1))
  answer=$(cd "$directory" && bash -euc "$block"$'pwd >"$0"' "$work/pwd" 2>&1) ||
    fail "the README's commands fail: $block$answer"
  directory=$(cat "$work/pwd")
}
block_text() { [ "$answer" = "${block%$'\n'}" ] || fail "the README promises: $block but there was: $answer"; }
block_java() {
  local file
  file=$(sed -n 's/^public class \([A-Za-z]*\) .*/\1.java/p' <<<"$block")
  printf '%s' "$block" >"$directory/$file"
}
block_bat() { batches+=("$block"); }

# The README, followed from a directory that has the archives.
cp "$dist/$name.tar.gz" "$dist/$name.zip" "$work/"
directory=$work commands=0 answer='' batches=()
follow "$tree/delivery/README.md"
[ "$directory" = "$here" ] || fail "the README leads to $directory after $commands blocks of commands"

# Both archives have the same.
(cd "$here" && sha256sum --quiet --check SHA256SUMS) || fail "SHA256SUMS"
mkdir "$work/zip" "$work/tar"
unzip -q "$work/$name.zip" -d "$work/zip"
tar xf "$work/$name.tar.gz" -C "$work/tar"
diff -r "$work/zip" "$work/tar" || fail "the archives differ"
[ -x "$work/zip/$name/try.sh" ] || fail "try.sh from the .zip cannot be run"

# Each library names itself to the doctor, and its symbols are those in their archive.
unzip -q "$dist/$name-symbols.zip" -d "$work/zip"
! grep -rlaF "$tree" "$work/zip" || fail "these name a directory of this machine"
libraries=0
while IFS= read -r library; do
  libraries=$((libraries + 1))
  case $library in
    */recorder/*) kind=' (the recorder)' ;;
    */simulator/*) kind=' (the simulator)' ;;
    *) kind='' ;;
  esac
  marked=$(tr '\0' '\n' <"$library" | LC_ALL=C sed -n 's/.*@(#)quorvelj //p')
  [ "$marked" = "$version$kind" ] || fail "$library says that it is $marked, not $version$kind"
  objcopy --output-target=binary --only-section=.gnu_debuglink --set-section-flags .gnu_debuglink=alloc \
    "$library" "$work/link"
  [ "$(tail -c 4 "$work/link" | od -An -tx4)" = "$(gzip -c "$library.debug" | tail -c 8 | od -An -tx4 -N 4)" ] ||
    fail "$library.debug is of another library"
done < <(find "$work/zip" -name '*.so' -o -name '*.dll')
[ "$libraries" -ge 9 ] || fail "$libraries libraries"
nm --demangle "$work/zip/$name/linux-x86_64/libquorvelj.so.debug" | grep -F QV_1GetThreshold >/dev/null ||
  fail "no symbols"

# Links of all pages lead to something.
(cd "$here" && find . -name '*.md' | while IFS= read -r page; do
  { grep -o '](\([^)#:]*\)' "$page" || true; } | cut -c3- | while IFS= read -r target; do
    [ -z "$target" ] || [ -e "$(dirname "$page")/$target" ] || fail "$page links to $target"
  done
done)

# try.sh in every JVM of the machine, and without one that it can use.
for home in /usr/lib/jvm/*/; do
  if [ ! -L "${home%/}" ] && [ -x "${home}bin/java" ]; then
    expect 0 "try.sh: the tour went through" env "JAVA_HOME=${home%/}" "$here/try.sh" --read-only
    [[ $printed != *WARNING* ]] || fail "$home warns: $printed"
    echo "delivery: $(tail -n 2 <<<"$printed" | tr -d '\n')"
  fi
done
expect 2 "usage:" "$here/try.sh" --no-such-argument
expect 3 "JAVA_HOME is /nowhere" env JAVA_HOME=/nowhere "$here/try.sh"
mkdir -p "$work/bin" "$work/jvm/bin"
for tool in dirname sed; do ln -s "$(command -v $tool)" "$work/bin/$tool"; done
expect 3 "no Java" env "PATH=$work/bin" /bin/sh "$here/try.sh"
# jvm CLASS_VERSION SYSTEM ARCH: one that only answers what it is.
jvm() {
  printf '#!/bin/sh\ncat <<END\n    %s\n    %s\n    %s\nEND\n' "java.class.version = $1" \
    "os.name = $2" "os.arch = $3" >"$work/jvm/bin/java"
  chmod +x "$work/jvm/bin/java"
}
jvm 61.0 Linux aarch64
expect 3 "this JVM is for Linux on aarch64" env "JAVA_HOME=$work/jvm" "$here/try.sh"
jvm 61.0 "Mac OS X" x86_64
expect 3 "this JVM is for Mac OS X" env "JAVA_HOME=$work/jvm" "$here/try.sh"
jvm 51.0 Linux amd64
expect 3 "Java 8 or later is needed" env "JAVA_HOME=$work/jvm" "$here/try.sh"
printf '#!/bin/sh\necho "cannot execute" >&2; exit 126\n' >"$work/jvm/bin/java"
expect 3 "does not start: cannot execute" env "JAVA_HOME=$work/jvm" "$here/try.sh"

# A new version, on a copy of what it changes.
mkdir -p "$work/version/scripts"
cp "$tree/scripts/version.sh" "$work/version/scripts/"
cp "$tree/CMakeLists.txt" "$work/version/"
printf '# Changes\n\n## Unreleased\n\n- One.\n' >"$work/version/CHANGELOG.md"
raise() { expect "$1" "$2" "$work/version/scripts/version.sh" "$3"; }
for wrong in '' 1.2 1.2.3.4 01.2.3 1.2.x 1.2.3-beta 1.2.99999 '1.2.3/' ; do
  raise 1 "three numbers" "$wrong"
done
raise 1 "older than" 0.9.9
raise 0 "is now 9999.0.10, with 1 " 9999.0.10
grep -qF 'project(quorvelj VERSION 9999.0.10 LANGUAGES' "$work/version/CMakeLists.txt" || fail "not raised"
grep -qxF "## 9999.0.10, $(date -u +%Y-%m-%d)" "$work/version/CHANGELOG.md" || fail "no heading"
raise 1 "has 9999.0.10 already" 9999.0.10
raise 1 "nothing under" 9999.0.11
raise 1 "older than" 9999.0.9

if ! command -v wine >/dev/null || ! command -v i686-w64-mingw32-g++ >/dev/null; then
  echo "NOT RUN: what the README says of Windows: no Wine"
  exit 0
fi
export WINEARCH=win32 WINEDEBUG=-all WINEPREFIX="$tree/build/windows-x86/wine"
mkdir -p "$(dirname "$WINEPREFIX")" "$work/java" "$work/home (32)/bin"
[ -d "$WINEPREFIX" ] || wine wineboot --init >/dev/null 2>&1
i686-w64-mingw32-g++ -std=c++20 -Os -Wall -Wextra -static -o "$work/java/java.exe" \
  "$tree/tests/windows/java_stand_in.cpp" -lversion
cp "$work/java/java.exe" "$work/java/javac.exe"
cp "$work/java/java.exe" "$work/home (32)/bin/"
# The place of the README's C:\array. The library's own quorvel.dll is the simulator here.
array=$WINEPREFIX/drive_c/array
rm -rf "$array"
mkdir "$array"
cp "$here/windows-x86/quorvelj.dll" "$here/simulator/windows-x86/quorvel.dll" "$array/"
cp "$here/quorvelj.jar" "$here/app.jar"
cd "$here"

# typed [NAME=VALUE...] LINES: as if typed in a command prompt, until a line fails.
typed() {
  local lines=${!#}
  {
    echo '@echo off'
    sed 's/$/\nif not "%ERRORLEVEL%"=="0" goto failed/' <<<"${lines%$'\n'}"
    printf '%s\n' 'echo status 0' 'goto end' ':failed' 'echo status %ERRORLEVEL%' ':end'
  } | sed 's/$/\r/' >typed.cmd
  { env "WINEPATH=Z:$work/java" "${@:1:$#-1}" wine cmd /c typed.cmd || true; } | tr -d '\r'
}
for batch in "${batches[@]}"; do
  # A batch file that is called without `call` does not come back.
  expect 0 "status 0" typed "${batch//try.cmd/call try.cmd}"
done
try="call try.cmd --html page.html"
expect 0 "try.cmd: the tour went through" typed "$try"
for part in "argument --html"$'\n'"argument page.html" \
  "loaded quorvel.dll: $version (the simulator), Simulator" "loaded quorvelj.dll: $version, Native bridge"; do
  [[ $printed == *"$part"* ]] || fail "no \"$part\" from try.cmd: $printed"
done
expect 0 "in Z:$work/home (32)\\bin\\java.exe" typed "JAVA_HOME=Z:$work/home (32)" WINEPATH= "$try"
# refused TEXT NAME=VALUE... What status it is, Wine does not tell: all but 0 are 1.
refused() {
  expect 0 "$1" typed "${@:2}" "$try"
  [[ $printed == *"status 1" ]] || fail "no status of a failure: $printed"
}
refused "ended with status 7" STAND_IN_STATUS=7
refused "this JVM is for amd64" STAND_IN_ARCH=amd64
refused "JAVA_HOME is C:\\nowhere" "JAVA_HOME=C:\\nowhere"
refused "no Java that starts" WINEPATH=
mv simulator/windows-x86/quorvel.dll simulator/
refused "ended with status 9"
mv simulator/quorvel.dll simulator/windows-x86/
echo "delivery: ${#batches[@]} blocks of commands for Windows, and try.cmd, with a stand-in for java.exe"
