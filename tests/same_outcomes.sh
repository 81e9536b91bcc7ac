#!/usr/bin/env bash
# Compares what comes of each failed JNI call in two builds, as `mini_jvm_tests` notes it. A large
# method has not the same calls failed in both: a call that only one has is passed over.
# Usage: same_outcomes.sh BY_NAME CACHED
set -euo pipefail
export LC_ALL=C
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cut -f1 "$1" | sort -u >"$work/by-name"
cut -f1 "$2" | sort -u >"$work/cached"
comm -12 "$work/by-name" "$work/cached" >"$work/both"
comm -13 <(sort "$1") <(sort "$2") | sort -t $'\t' -k1,1 >"$work/others"
join -t $'\t' "$work/both" "$work/others" >"$work/different"
compared=$(wc -l <"$work/both")
echo "outcomes: $compared failed calls of $(wc -l <"$work/cached") compared"
if [ -s "$work/different" ] || [ "$compared" -lt 23000 ]; then
  echo "Other outcomes where identifiers are kept, or too few:"
  cat "$work/different"
  exit 1
fi
