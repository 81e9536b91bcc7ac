#!/usr/bin/env bash
# Builds everything for every target, the benchmarks included, and runs all tests that the machine
# can run. In CI warnings are errors, and so is a target that cannot be run, unless the package
# source failed to deliver.
set -euo pipefail
cd "$(dirname "$0")/.."

not_run=()

# can PURPOSE WHAT: installs what a target needs to run; notes what cannot be run without.
can() {
  local code=0
  scripts/install-packages.sh "$1" || code=$?
  [ "$code" -ne 0 ] || return 0
  if [ "$code" -eq 3 ]; then
    not_run+=("$2: THE PACKAGE SOURCE FAILED, see above")
  elif [ -n "${CI:-}" ]; then
    echo "$2 must run in CI" >&2
    exit 1
  else
    not_run+=("$2: its packages could not be installed, see above")
  fi
  return 1
}

build() {
  local options=(-DQUORVELJ_TESTS=ON -DQUORVELJ_CACHE_IDS=ON)
  [ "$1" != linux ] || options+=(-DQUORVELJ_BENCHMARKS=ON)
  [ -z "${CI:-}" ] || options+=(-DCMAKE_COMPILE_WARNING_AS_ERROR=ON)
  echo "== build of $1"
  cmake --preset "$1" "${options[@]}" >/dev/null
  cmake --build --preset "$1" --parallel "$(nproc)"
}

run() {
  echo "== tests of $1"
  ctest --preset "$@" --parallel 2
}

presets=(linux)
without_wine=()
can wine "quorvelj.dll under Wine" || without_wine=(--label-exclude wine)
can i386 "the 32-bit JVM" && presets=(linux-i386 linux)

# The DLL's tests take long: the others are built beside them. They are a process group of their own,
# so that what Wine runs ends with the script.
build windows-x86
set -m
run windows-x86 "${without_wine[@]}" >build/windows-x86.log 2>&1 &
windows_tests=$!
set +m
trap 'kill -- "-$windows_tests" 2>/dev/null || true' EXIT
for preset in "${presets[@]}"; do
  build "$preset"
  run "$preset"
done
code=0
wait "$windows_tests" || code=$?
cat build/windows-x86.log
[ "$code" -eq 0 ] || exit "$code"

echo "== summary"
for preset in windows-x86 "${presets[@]}"; do
  grep -hE '^(sweep|fields|stack|fuzz|stacks|threads|dll|doctor|show|guide):' "build/$preset/Testing/Temporary/LastTest.log" 2>/dev/null |
    sed "s/^/$preset /" || true
done
if [ "${#not_run[@]}" -eq 0 ]; then
  echo "Everything was run."
else
  printf 'NOT RUN: %s\n' "${not_run[@]}"
fi
