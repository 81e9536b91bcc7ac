#!/usr/bin/env bash
# Prints the version, or makes VERSION the one of the next delivery: sets it in CMakeLists.txt, and
# puts it and today's date over what CHANGELOG.md has under "Unreleased".
# Usage: version.sh [VERSION]
set -euo pipefail
cd "$(dirname "$0")/.."

fail() {
  echo "version.sh: $*" >&2
  exit 1
}

current=$(sed -n 's/^project(quorvelj VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
[ -n "$current" ] || fail "CMakeLists.txt has no version"
if [ "$#" -eq 0 ]; then
  echo "$current"
  exit 0
fi

[ "$#" -eq 1 ] || fail "one version, not $#"
number='(0|[1-9][0-9]{0,3})'
[[ $1 =~ ^$number\.$number\.$number$ ]] || fail "a version is three numbers up to 9999, as 1.2.3: $1"
newest() { printf '%s\n' "$@" | sort --version-sort | tail -n 1; }
[ "$(newest "$1" "$current")" = "$1" ] || fail "$1 is older than $current"
released=$(sed -n 's/^## \([0-9.]*\),.*/\1/p' CHANGELOG.md)
! grep -qxF "$1" <<<"$released" || fail "CHANGELOG.md has $1 already"
changes=$(sed -n '/^## Unreleased$/,/^## [0-9]/p' CHANGELOG.md | grep -c '^- ' || true)
[ "$changes" -gt 0 ] || fail "CHANGELOG.md has nothing under \"## Unreleased\""

sed -i "s/^project(quorvelj VERSION [0-9.]*/project(quorvelj VERSION $1/" CMakeLists.txt
sed -i "s/^## Unreleased\$/&\n\n## $1, $(date -u +%Y-%m-%d)/" CHANGELOG.md
echo "$current is now $1, with $changes lines of changes"
