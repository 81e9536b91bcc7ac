#!/usr/bin/env bash
# Format, static analysis and the second compiler: what no test shows.
set -euo pipefail
cd "$(dirname "$0")/.."

echo "== format"
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror

echo "== clang"
cmake --preset linux-clang -DCMAKE_COMPILE_WARNING_AS_ERROR=ON >/dev/null
cmake --build --preset linux-clang --parallel "$(nproc)"

echo "== clang-tidy"
git ls-files 'bridge/*.cpp' 'methods/**.cpp' 'simulator/*.cpp' 'recorder/*.cpp' ':!recorder/exports.cpp' |
  xargs -P "$(nproc)" -n 2 clang-tidy --quiet -p build/linux-clang --warnings-as-errors='*' \
    2>build/clang-tidy.log || {
  grep -v ' warnings\? generated' build/clang-tidy.log >&2
  exit 1
}
