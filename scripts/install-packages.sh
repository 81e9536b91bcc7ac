#!/usr/bin/env bash
# Installs the Debian packages that a purpose needs and the machine lacks.
# Usage: install-packages.sh build|test|check|benchmark|wine|i386|dist|coverage
# Exit code 3: the package source failed to deliver; 1: any other reason.
set -euo pipefail

build=(cmake g++ ninja-build openjdk-17-jdk-headless)
tests=(binutils-mingw-w64-i686 g++-mingw-w64-i686-posix googletest libbenchmark-dev libgtest-dev)
case "${1:-}" in
  build) wanted=("${build[@]}") ;;
  test) wanted=("${build[@]}" "${tests[@]}") ;;
  check) wanted=("${build[@]}" "${tests[@]}" clang clang-format clang-tidy git) ;;
  benchmark) wanted=("${build[@]}" "${tests[@]}" libjna-java libjna-jni python3) ;;
  wine) wanted=(wine wine32:i386) ;;
  i386) wanted=(g++-multilib openjdk-17-jre-headless:i386) ;;
  coverage) wanted=("${build[@]}" "${tests[@]}" gcovr) ;;
  dist) wanted=("${build[@]}" "${tests[@]}" g++-multilib unzip zip) ;;
  *) echo "usage: $0 build|test|check|benchmark|wine|i386|dist|coverage" >&2; exit 2 ;;
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
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
chmod 755 "$work"

# A list that cannot be fetched need not matter: what counts is whether the packages can be had. None
# may go for them: a second architecture's packages would rather push out those of the first.
install() {
  apt-get "$@" update >>"$work/log" 2>&1 || true
  apt-get "$@" install -y --no-install-recommends --no-remove "${missing[@]}" >>"$work/log" 2>&1
}

# The same without the security suite, whose lists of a second architecture are not everywhere to be
# had. Packages must be of one version in both architectures, so those that came from that suite go
# back to the version of the others.
install_without_security() {
  mkdir -p "$work/parts" "$work/lists/partial"
  awk 'BEGIN { RS = ""; ORS = "\n\n" } !/-security/' /etc/apt/sources.list.d/*.sources \
    >"$work/parts/debian.sources" 2>/dev/null || true
  cat /etc/apt/sources.list /etc/apt/sources.list.d/*.list 2>/dev/null |
    grep -v -e '-security' >"$work/parts/debian.list" || true
  printf 'Package: *\nPin: release o=Debian\nPin-Priority: 1001\n' >"$work/preferences"
  install -o Dir::Etc::sourcelist=/dev/null -o "Dir::Etc::sourceparts=$work/parts" \
    -o "Dir::State::lists=$work/lists" -o "Dir::Etc::preferences=$work/preferences" \
    -o Dir::Etc::preferencesparts=/dev/null -o APT::Get::allow-downgrades=true
}

if [[ " ${missing[*]}" == *:i386* ]] && ! dpkg --print-foreign-architectures | grep -qx i386; then
  dpkg --add-architecture i386
fi
if install || install_without_security; then
  exit 0
fi
tail -n 20 "$work/log" >&2
echo "These packages could not be installed: ${missing[*]}" >&2
if grep -qE '^[EW]: (Failed to fetch|Unable to fetch|Some index files failed)' "$work/log"; then
  exit 3
fi
exit 1
