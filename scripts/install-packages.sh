#!/usr/bin/env bash
# Installs the Debian packages that a purpose needs and the machine lacks.
# Usage: install-packages.sh build|test|check
set -euo pipefail

build=(cmake g++ ninja-build openjdk-17-jdk-headless)
tests=(binutils-mingw-w64-i686 g++-mingw-w64-i686-posix libbenchmark-dev libgtest-dev)
check=(clang clang-format clang-tidy)
case "${1:-}" in
  build) wanted=("${build[@]}") ;;
  test) wanted=("${build[@]}" "${tests[@]}") ;;
  check) wanted=("${build[@]}" "${tests[@]}" "${check[@]}") ;;
  *) echo "usage: $0 build|test|check" >&2; exit 2 ;;
esac

missing=()
for package in "${wanted[@]}"; do
  if [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
    missing+=("$package")
  fi
done
[ "${#missing[@]}" -gt 0 ] || exit 0

echo "Installing: ${missing[*]}"
if ! command -v apt-get >/dev/null || [ "$(id -u)" -ne 0 ]; then
  echo "Not possible here: that needs Debian's apt-get, as root. Missing: ${missing[*]}" >&2
  exit 1
fi
export DEBIAN_FRONTEND=noninteractive
log=$(mktemp)
if ! { apt-get update && apt-get install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1
then
  tail -n 20 "$log" >&2
  echo "These packages could not be installed: ${missing[*]}" >&2
  exit 1
fi
rm -f "$log"
