#!/usr/bin/env bash
# Plants the faults of scripts/mutants.txt, one at a time, in a copy of the tree, and tells what
# sees each: the compiler, or the first test that fails, crashes or hangs.
# Usage: mutants.sh [--only NAME]... | [--some N]
# --some picks N rows that are spread over the table and change with the commit.
# Exit code 1: a fault survived, a row's text is no longer where it was, or a test that saw a fault
# fails without one.
set -euo pipefail
cd "$(dirname "$0")/.."

work=$PWD/build/mutants
tree=$work/tree
build=$work/build
run=$work/run
log=$work/log
jobs=$(nproc)

only=()
some=0
while [ $# -gt 0 ]; do
  case "$1" in
    --only) only+=("$2"); shift 2 ;;
    --some) some=$2; shift 2 ;;
    *) sed -n '2,7s/^# //p' "$0" >&2; exit 2 ;;
  esac
done

# The table: `rows` prints the name, the file and why of each row and complains of those whose text
# does not occur once; `plant NAME` writes a fault into the copy of the tree.
table() {
  perl - "$tree" "$@" <<'PERL'
use strict;
use warnings;
my ($tree, $command, $wanted) = @ARGV;
my $renew = 0;
sub content {
  my ($path) = @_;
  open(my $file, '<', $path) or return '';
  local $/;
  return <$file>;
}
for my $row (split /\n\n+/, content("$tree/scripts/mutants.txt")) {
  my ($head, $path, @lines) = grep { !/^#/ } split /\n/, $row;
  next unless defined $path;
  my ($name, $why) = $head =~ /^([a-z0-9-]+): (.+)$/ or die "no name and reason: $head\n";
  my $old = join "\n", map { /^-(.*)$/ ? $1 : () } @lines;
  my $new = join "\n", map { /^\+(.*)$/ ? $1 : () } @lines;
  my $text = content("$tree/$path");
  my $times = () = $text =~ /\Q$old\E/g;
  if ($times != 1 || $old eq '') {
    print STDERR "RENEW $name: its text occurs $times times in $path\n";
    $renew = 1;
  } elsif ($command eq 'rows') {
    print "$name\t$path\t$why\n";
  } elsif ($name eq $wanted) {
    $text =~ s/\Q$old\E/$new/;
    open(my $file, '>', "$tree/$path") or die "$path: $!\n";
    print $file $text;
  }
}
exit $renew;
PERL
}

# Brings the copy up to date. What did not change keeps its time, so that little is built anew.
copy_tree() {
  local file
  mkdir -p "$tree" "$run"
  git ls-files -co --exclude-standard | LC_ALL=C sort >"$work/files"
  (cd "$tree" && find . -type f | sed 's|^\./||' | LC_ALL=C sort) |
    LC_ALL=C comm -13 "$work/files" - | while read -r file; do rm "$tree/$file"; done
  while read -r file; do
    if [ -f "$file" ] && ! cmp -s "$file" "$tree/$file"; then
      mkdir -p "$tree/$(dirname "$file")"
      cp "$file" "$tree/$file"
    fi
  done <"$work/files"
}

make_targets() {
  ninja -C "$build" -j "$jobs" "$@" >"$log" 2>&1
}

# attempt SHARDS LIMIT PROGRAM FILTER: true where the tests pass. Otherwise `seen` names the first
# that does not.
attempt() {
  local shards=$1 limit=$2 program=$3 filter=$4 shard code ended pids=()
  for ((shard = 0; shard < shards; ++shard)); do
    (
      ulimit -c 0
      cd "$run"
      GTEST_TOTAL_SHARDS=$shards GTEST_SHARD_INDEX=$shard exec timeout -k 5 "$limit" \
        "$build/lib/$program" --gtest_filter="$filter" --gtest_fail_fast --gtest_color=no
    ) >"$run/$shard.log" 2>&1 &
    pids+=($!)
  done
  seen=
  while [ "${#pids[@]}" -gt 0 ]; do
    code=0
    wait -n -p ended "${pids[@]}" 2>/dev/null || code=$?
    for shard in "${!pids[@]}"; do
      [ "${pids[shard]}" -ne "$ended" ] || break
    done
    unset "pids[shard]"
    [ "$code" -ne 0 ] && [ -z "$seen" ] || continue
    # A crash fails no test: it is the last that began. The others need not go on.
    seen=$(sed -n 's/^\[  FAILED  \] \([^ ,]*\).*/\1/p' "$run/$shard.log" | head -n 1)
    [ -n "$seen" ] ||
      seen=$(sed -n 's/^\[ RUN      \] \([^ ,]*\).*/\1/p' "$run/$shard.log" | tail -n 1)
    credited[$program]+=:${seen:-*}
    seen="$program $seen"
    [ "$code" -ne 124 ] || seen+=" (hangs)"
    [ "$code" -lt 125 ] || seen+=" (crashes)"
    [ "${#pids[@]}" -eq 0 ] || kill "${pids[@]}" 2>/dev/null || true
  done
  [ -z "$seen" ]
}

# The families whose methods a file concerns: snmp.cpp Snmp, replication.h all of its directory's,
# Threshold.java that of the source that has its map.
families() {
  local base sources=()
  base=$(basename "${1%.*}")
  case "$1" in
    *.java) mapfile -t sources < <(grep -lE "CLASS\($base[,)]" "$tree"/methods/*/*.cpp) ;;
    *) sources=("$tree"/methods/*/"$base".cpp "$tree/methods/$base"/*.cpp) ;;
  esac
  for base in "${sources[@]}"; do
    [ ! -f "$base" ] || basename "$base" .cpp
  done | sed -E 's/(^|_)([a-z0-9])/\U\2/g; s/$/.*/' | paste -sd :
}

# The tests of a fault's file in the order of their costs. Returns false where none sees the fault.
run_tests() {
  local file=$1 of_file methods
  # The calls that return the most cost as much as all others together.
  local -r large=*AllInf*:*PairInformation*:*PerformanceAll*:*PerformanceOutput*
  local -r slow=AllInformation.*:CopyPairs.*Form
  # Only the variant that keeps identifiers is made of these.
  if [[ $file == bridge/cached_env.* || $file == bridge/class_lookup.h ]]; then
    seen=
    make_targets cached_tests || seen="compiler"
    [ -z "$seen" ] && attempt "$jobs" 900 cached_tests '*Cached*' &&
      attempt "$jobs" 900 cached_tests '-*Cached*' || return 0
    return 1
  fi
  attempt 1 300 mini_jvm_tests '-NativeMethods*:LargeCalls*:SweepOfFields*' || return 0
  if ! make_targets real_jvm_tests; then
    seen="compiler"
    return 0
  fi
  of_file=$(families "$file")
  [ -z "$of_file" ] || attempt 1 600 real_jvm_tests "$of_file" || return 0
  methods=$(sed -nE 's|^NATIVE_METHOD\([a-zA-Z]+, ([A-Za-z0-9_]+).*|NativeMethods/*/QV_\1|p' \
    "$tree/$file" | sed 's/_1/_/' | paste -sd :)
  [ -z "$methods" ] || attempt "$jobs" 900 mini_jvm_tests "$methods" || return 0
  [ -n "$methods" ] || attempt "$jobs" 900 mini_jvm_tests "NativeMethods*-$large" || return 0
  attempt "$jobs" 900 real_jvm_tests "-$slow" || return 0
  attempt "$jobs" 1800 mini_jvm_tests "LargeCalls*:NativeMethods*:SweepOfFields*" || return 0
  attempt "$jobs" 1800 real_jvm_tests "$slow" || return 0
  return 1
}

copy_tree
renew=0
table rows >"$work/rows" || renew=1
total=$(wc -l <"$work/rows")
if [ "${#only[@]}" -gt 0 ]; then
  for name in "${only[@]}"; do
    grep "^$name	" "$work/rows" || { echo "no row $name" >&2; exit 2; }
  done >"$work/chosen"
elif [ "$some" -gt 0 ]; then
  commit=$((0x$(git rev-parse --short=7 HEAD)))
  awk -v number="$commit" -v some="$some" -v total="$total" '
    { stride = total / some; place = (NR - 1 + number) % total }
    int(place / stride) != int((place + total - 1) % total / stride) || place == 0' \
    "$work/rows" >"$work/chosen"
else
  cp "$work/rows" "$work/chosen"
fi

cmake -S "$tree" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE=-O1 \
  -DQUORVELJ_SANITIZE=OFF -DQUORVELJ_CACHE_IDS=ON >"$log" 2>&1 && make_targets mini_jvm_tests real_jvm_tests || {
  cat "$log" >&2
  echo "The tree does not build without a fault." >&2
  exit 1
}

declare -A credited=()
by_compiler=0
by_tests=0
survivors=()
while IFS=$'\t' read -r name file why; do
  cp "$tree/$file" "$work/sound"
  table plant "$name" 2>/dev/null || true
  if ! make_targets mini_jvm_tests || { run_tests "$file" && [ "$seen" = compiler ]; }; then
    by_compiler=$((by_compiler + 1))
    seen="the compiler: $(grep -m 1 -oE 'error: .*' "$log" || grep -m 1 FAILED "$log")"
  elif [ -n "$seen" ]; then
    by_tests=$((by_tests + 1))
  else
    survivors+=("$name")
    seen="SURVIVED: $file, $why"
  fi
  echo "$name: $seen"
  cp "$work/sound" "$tree/$file"
done <"$work/chosen"

# What saw a fault must pass without one.
unsound=0
make_targets mini_jvm_tests real_jvm_tests cached_tests
for program in "${!credited[@]}"; do
  if ! attempt "$jobs" 1800 "$program" "${credited[$program]#:}"; then
    echo "FAILS WITHOUT A FAULT: $seen" >&2
    unsound=1
  fi
done

echo "$(wc -l <"$work/chosen") faults, $by_compiler seen by the compiler, $by_tests by tests," \
  "${#survivors[@]} survived"
[ "${#survivors[@]}" -eq 0 ] || printf 'SURVIVED: %s\n' "${survivors[@]}"
[ "${#survivors[@]}" -eq 0 ] && [ "$renew" -eq 0 ] && [ "$unsound" -eq 0 ]
