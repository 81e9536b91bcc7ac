#!/usr/bin/env bash
# Builds everything for every target and runs all tests. In CI warnings are errors.
set -euo pipefail
cd "$(dirname "$0")/.."

options=()
[ -z "${CI:-}" ] || options+=(-DCMAKE_COMPILE_WARNING_AS_ERROR=ON)

for preset in linux windows-x86; do
  echo "== $preset"
  cmake --preset "$preset" -DQUORVELJ_TESTS=ON "${options[@]}" >/dev/null
  cmake --build --preset "$preset"
done
for preset in windows-x86 linux; do
  echo "== tests of $preset"
  ctest --preset "$preset"
done
grep -h '^sweep:' build/linux/Testing/Temporary/LastTest.log
