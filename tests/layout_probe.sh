#!/bin/sh
# The layout probe on headers that are written for it: what it prints and returns.
# Usage: layout_probe.sh JAVA TOOLS_JAR CATALOGUE DIRECTORY
set -eu
tests=$(dirname "$0")
directory=$4

# expect CASE STATUS RECORD...
expect() {
  probe="$directory/$1"
  rm -rf "$probe"
  mkdir -p "$probe"
  cp "$tests/layout_probe/$1/names.h" "$probe"
  "$java" -classpath "$jar" quorvelj.tools.LayoutProbe "$catalogue" "$probe" >/dev/null
  cmp "$tests/layout_probe/$1/names.h" "$probe/names.h"
  name=$1
  status=$2
  shift 2
  code=0
  CFLAGS="-std=c89 -pedantic-errors -I$tests/layout_probe" \
    sh "$probe/run.sh" "$@" >"$probe/printed.txt" 2>"$probe/errors.txt" || code=$?
  sed 's/:[0-9]*$/:N/' "$probe/printed.txt" | diff "$tests/layout_probe/$name/expected.txt" -
  [ "$code" -eq "$status" ] || { echo "$name returned $code instead of $status" >&2; exit 1; }
  # The line that is named fixes the record's size.
  sed -n 's|^[A-Z]*  \([A-Za-z0-9_]*\) .* \(arraylib/.*\):\([0-9]*\)$|\1 \2 \3|p' "$probe/printed.txt" |
    while read -r record header line; do
      sed -n "${line}p" "$tests/../$header" | grep "^QUORVEL_[A-Z]*($record," >/dev/null || {
        echo "$header:$line is not the line of $record" >&2
        exit 1
      }
    done
}

java=$1 jar=$2 catalogue=$3
all="Account HGInfo HGName HGPortInfo StatisticalHostCommand_Info StatisticalShuuhen QVTime"
# shellcheck disable=SC2086
expect agrees 0 $all
# shellcheck disable=SC2086
expect differs 1 $all
expect renamed 0 StatisticalHostCommand_Info StatisticalShuuhen
expect missing 2 QVTime
if CFLAGS="-I$tests/layout_probe" sh "$directory/agrees/run.sh" QVTime Nothing >/dev/null 2>&1; then
  echo "a record that there is not was taken" >&2
  exit 1
fi
