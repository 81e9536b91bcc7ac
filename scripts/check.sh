#!/usr/bin/env bash
# Format, the Javadoc, static analysis and the second compiler: what no test shows.
set -euo pipefail
cd "$(dirname "$0")/.."

echo "== format"
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror

echo "== javadoc"
javadoc -quiet -encoding UTF-8 -Xdoclint:all -Werror -Xmaxwarns 5000 -Xmaxerrs 5000 \
  -d build/javadoc -sourcepath java tessaly.str.diskarray

echo "== clang"
cmake --preset linux-clang -DQUORVELJ_CACHE_IDS=ON -DCMAKE_COMPILE_WARNING_AS_ERROR=ON >/dev/null
cmake --build --preset linux-clang --parallel "$(nproc)"

echo "== clang-tidy"
git ls-files 'bridge/*.cpp' 'methods/**.cpp' 'simulator/*.cpp' 'recorder/*.cpp' ':!recorder/exports.cpp' |
  xargs -P "$(nproc)" -n 2 clang-tidy --quiet -p build/linux-clang --warnings-as-errors='*' \
    2>build/clang-tidy.log || {
  grep -v ' warnings\? generated' build/clang-tidy.log >&2
  exit 1
}
