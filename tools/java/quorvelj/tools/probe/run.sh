#!/bin/sh
# Compares the layouts of the bridge with those of the library's headers, a line a record.
# names.h says which headers. Returns 0 where all agree.
# Usage: [CC=...] [CFLAGS=-I...] sh run.sh [RECORD...]
here=$(dirname "$0")
out="$here/out"
mkdir -p "$out"

# build NAME [OPTION...]
build() {
  name=$1
  shift
  # shellcheck disable=SC2086
  ${CC:-cc} ${CFLAGS-} "$@" -o "$out/$name" "$here/$name.c" >"$out/$name.log" 2>&1 </dev/null
}

open() {
  printf 'OPEN  %-38s %s     %s\n' "$1" "$2" "$3"
  open=$((open + 1))
}

# probe RECORD MEMBERS PLACE
probe() {
  if ! build "$1"; then
    if ! build "$1" -DONLY=0; then
      open "$1" "the header does not know $1" "$3"
      return
    fi
    unknown=
    number=1
    while [ "$number" -le "$2" ]; do
      build "$1" "-DONLY=$number" || unknown="$unknown -DUNKNOWN_$number"
      number=$((number + 1))
    done
    # shellcheck disable=SC2086
    if ! build "$1" $unknown; then
      open "$1" "the header does not know a name of FURTHER_$1" "$3"
      return
    fi
  fi
  "$out/$1"
  case $? in
    0) agree=$((agree + 1)) ;;
    1) differ=$((differ + 1)) ;;
    *) open=$((open + 1)) ;;
  esac
}

if ! build header; then
  cat "$out/header.log" >&2
  echo "The headers that names.h includes do not compile; CFLAGS=-I... says where they are." >&2
  exit 2
fi
agree=0 differ=0 open=0
while read -r record members place; do
  case " $* " in
    "  " | *" $record "*) probe "$record" "$members" "$place" ;;
  esac
done <"$here/records.txt"
echo "$agree agree, $differ differ, $open open"
total=$((agree + differ + open))
[ "$total" -ge "$#" ] || echo "not all of these are records: $*" >&2
[ "$total" -gt 0 ] && [ "$total" -ge "$#" ] && [ "$agree" -eq "$total" ]
