#!/bin/sh
# package.sh BUILD SOURCE COMPILER [EMULATOR]: the archive that cpack makes holds what it should, a C program that is
# built with nothing else prints the subject of a certificate, and the tool shows a file whose name is not ASCII.
set -eu
build=$1 source=$2 compiler=$3 emulator=${4:-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
cpack --config "$build/CPackConfig.cmake" -B "$work" >log 2>&1 || { cat log; exit 1; }
archive=$(find . -maxdepth 1 -name "*.zip" -o -maxdepth 1 -name "*.tar.gz")
mkdir unpacked
(cd unpacked && cmake -E tar xf "../$archive")
root=$(echo "$work"/unpacked/*)
case $archive in
*.zip) set -- bin/kovra_util.dll bin/kovra_asn1.dll bin/kovra-asn1.exe lib/libkovra_util.dll.a lib/libkovra_asn1.dll.a \
    lib/kovra_util.def lib/kovra_asn1.def README.md ;;
*) set -- bin/kovra-asn1 ;;
esac
for name in "$@" include/kovra/asn1.h include/kovra/util.h; do
    [ -s "$root/$name" ] || { echo "no $name in $archive"; exit 1; }
done
(cd "$source/include/kovra" && ls) >declared
(cd "$root/include/kovra" && ls) | diff declared -
# shellcheck disable=SC2086
$compiler -std=c99 -Wall -Wextra -Werror -I"$root/include" "$source/examples/subject.c" -o subject.exe \
    -L"$root/lib" -lkovra_asn1 -lkovra_util -Wl,-rpath-link,"$root/lib"
case $archive in
*.zip)
    cp "$root"/bin/*.dll .
    [ -n "$emulator" ] || { echo "SKIPPED: without Wine the program is built, but not run"; exit 0; }
    ;;
esac
cp "$source/examples/rsa-server.der" "zertifikat-ä-証.der"
LD_LIBRARY_PATH=$root/lib $emulator ./subject.exe "rsa-server.der" >/dev/null 2>&1 && exit 1
LD_LIBRARY_PATH=$root/lib $emulator ./subject.exe "$source/examples/rsa-server.der" | tr -d '\r' >printed
grep -q '^2\.5\.4\.3 ' printed || { echo "no subject:"; cat printed; exit 1; }
[ "$(wc -l <printed)" -eq 3 ] || { cat printed; exit 1; }
# The tool takes its arguments in UTF-8.
tool=$(ls "$root"/bin/kovra-asn1*)
$emulator "$tool" show "zertifikat-ä-証.der" | grep -q '^issuer' || { echo "the tool does not show the file"; exit 1; }
echo "$archive: $(head -1 printed) ..."
