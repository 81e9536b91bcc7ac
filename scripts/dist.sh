#!/usr/bin/env bash
# Makes dist/quorvelj-<version>.zip and .tar.gz, what delivery/README.md describes, and
# quorvelj-<version>-symbols.zip, the symbols of the libraries. Equal sources give equal bytes.
set -euo pipefail
umask 022
cd "$(dirname "$0")/.."

version=$(scripts/version.sh)
name="quorvelj-$version"
root="dist/$name"
symbols="dist/symbols/$name"
rm -rf dist
mkdir -p "$root/simulator" "$symbols"

# copy LIBRARY DIRECTORY: a library into a directory of the archive, its symbols into the other's.
copy() {
  install -D -m 755 "$1" "$root/$2/$(basename "$1")"
  install -D -m 644 "$1.debug" "$symbols/$2/$(basename "$1").debug"
}

# A target and a directory of the archive for each variant, with these endings: `quorvelj_x` is built
# into lib/x, and delivered in a directory that ends with -x. The first is the product itself.
variants=('' _cached)
options=(-DQUORVELJ_CACHE_IDS=ON -DQUORVELJ_TESTS=OFF -DQUORVELJ_BENCHMARKS=OFF)

# The directory of the archive, and the preset that builds it.
for target in windows-x86:windows-x86 linux-i386:linux-i386 linux-x86_64:linux; do
  directory=${target%:*} preset=${target#*:}
  case $preset in
    windows-*) prefix='' suffix=dll ;;
    *) prefix=lib suffix=so ;;
  esac
  cmake --preset "$preset" "${options[@]}" >/dev/null
  cmake --build --preset "$preset" --target "${variants[@]/#/quorvelj}" recorder
  lib="build/$preset/lib"
  copy "$lib/${prefix}quorvel.$suffix" "simulator/$directory"
  copy "$lib/recorder/${prefix}quorvel.$suffix" "$directory/recorder"
  for variant in "${variants[@]}"; do
    copy "$lib/${variant#_}/${prefix}quorvelj.$suffix" "$directory${variant/_/-}"
  done
done

cmake --build build/linux --target java_half java_documents array_tour tools
lib=build/linux/lib
cp "$lib"/{quorvelj,quorvelj-sources,quorvelj-javadoc,array-tour,quorvelj-tools}.jar "$root/"
cp build/linux/java/pom/META-INF/maven/quorvelj/quorvelj/pom.xml "$root/quorvelj.pom"
cp -r delivery/README.md delivery/try.sh CHANGELOG.md docs examples arraylib "$root/"
sed 's/$/\r/' delivery/try.cmd >"$root/try.cmd"
java -classpath "$lib/quorvelj-tools.jar" quorvelj.tools.LayoutProbe \
  "$lib/catalogue.txt" "$root/layout-probe" >/dev/null
(cd "$root" && find . -type f -printf '%P\n' | LC_ALL=C sort | xargs sha256sum >../SHA256SUMS)
mv dist/SHA256SUMS "$root/"

# One time, one owner and one order for all entries, and no more of the file system than that.
find "$root" "$symbols" -exec touch --no-dereference --date=2024-01-01T00:00:00Z {} +
tar --directory dist --sort=name --mtime=2024-01-01T00:00:00Z --owner=0 --group=0 --numeric-owner \
  --mode=u=rwX,go=rX -cf - "$name" | gzip --no-name >"dist/$name.tar.gz"
pack() {
  (cd "$1" && find "$name" -type f | LC_ALL=C sort | TZ=UTC zip --quiet -X "$2" -@)
}
pack dist "$PWD/dist/$name.zip"
pack dist/symbols "$PWD/dist/$name-symbols.zip"
rm -r dist/symbols
(cd dist && sha256sum "$name.zip" "$name.tar.gz" "$name-symbols.zip" | tee "$name.sha256")
