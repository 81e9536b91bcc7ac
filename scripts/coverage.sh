#!/usr/bin/env bash
# Lines and branches of the bridge and the native methods that the Linux tests reach: a table, then
# the lines and the branches that they do not.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake -S . -B build/coverage -G Ninja -DQUORVELJ_TESTS=ON -DQUORVELJ_COVERAGE=ON >/dev/null
nice cmake --build build/coverage --target mini_jvm_tests real_jvm_tests array_tour simulator_control
find build/coverage -name '*.gcda' -delete
ctest --test-dir build/coverage --output-on-failure -R '^(mini_jvm_tests|real_jvm_tests|array_tour)$'

report() {
  gcovr --root . --filter bridge/ --filter methods/ build/coverage \
    --exclude-throw-branches --exclude-unreachable-branches \
    --exclude-lines-by-pattern 'QUORVELJ_CLASS.*' \
    --exclude-branches-by-pattern '.*GCOV_EXCL_BR_LINE.*' "$@"
}
report --json build/coverage/coverage.json
echo "== lines"
gcovr --root . --add-tracefile build/coverage/coverage.json
echo "== branches"
gcovr --root . --add-tracefile build/coverage/coverage.json --branches
