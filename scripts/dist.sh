#!/usr/bin/env bash
# Makes dist/quorvelj-<version>.zip and .tar.gz: the DLL, the Linux libraries of both widths, their
# recorders, the jars, the library's headers, the layout probe, the README and the documents, with
# SHA-256 sums. Equal sources give equal bytes.
set -euo pipefail
umask 022
cd "$(dirname "$0")/.."

version=$(sed -n 's/^project(quorvelj VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
name="quorvelj-$version"
root="dist/$name"
rm -rf dist
mkdir -p "$root"/{windows-x86,linux-x86_64,linux-i386,arraylib}

for preset in windows-x86 linux-i386 linux; do
  cmake --preset "$preset" -DQUORVELJ_TESTS=OFF -DQUORVELJ_BENCHMARKS=OFF >/dev/null
  cmake --build --preset "$preset" --target quorvelj recorder java_half array_tour
done
cmake --build --preset linux --target tools
cp build/windows-x86/lib/quorvelj.dll "$root/windows-x86/"
strip -o "$root/linux-i386/libquorvelj.so" build/linux-i386/lib/libquorvelj.so
strip -o "$root/linux-x86_64/libquorvelj.so" build/linux/lib/libquorvelj.so
# Named quorvel, too, so that they lie apart.
mkdir -p "$root"/{windows-x86,linux-x86_64,linux-i386}/recorder
cp build/windows-x86/lib/recorder/quorvel.dll "$root/windows-x86/recorder/"
strip -o "$root/linux-i386/recorder/libquorvel.so" build/linux-i386/lib/recorder/libquorvel.so
strip -o "$root/linux-x86_64/recorder/libquorvel.so" build/linux/lib/recorder/libquorvel.so
cp build/linux/lib/{quorvelj,array-tour,quorvelj-tools}.jar README.md "$root/"
cp arraylib/*.h "$root/arraylib/"
cp -r docs "$root/"
java -classpath build/linux/lib/quorvelj-tools.jar quorvelj.tools.LayoutProbe \
  build/linux/lib/catalogue.txt "$root/layout-probe" >/dev/null
(cd "$root" && find . -type f ! -name SHA256SUMS -printf '%P\n' | LC_ALL=C sort |
  xargs sha256sum >SHA256SUMS)

# One time, one owner and one order for all entries, and no more of the file system than that.
find "$root" -exec touch --no-dereference --date=2024-01-01T00:00:00Z {} +
tar --directory dist --sort=name --mtime=2024-01-01T00:00:00Z --owner=0 --group=0 --numeric-owner \
  --mode=u=rwX,go=rX -cf - "$name" | gzip --no-name >"dist/$name.tar.gz"
(cd dist && find "$name" -type f | LC_ALL=C sort | TZ=UTC zip --quiet -X "$name.zip" -@)
(cd dist && sha256sum "$name.zip" "$name.tar.gz" | tee "$name.sha256")
