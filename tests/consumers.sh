#!/bin/sh
# consumers.sh BUILD SOURCE: what `cmake --install` puts into a prefix, which is then moved, is found by CMake and by
# pkg-config, and the sources serve as a part of another project, too: programs in C99, C++17 and C++20 are built in all
# these ways, shared and static, and run.
set -eu
build=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
quietly() { "$@" >log 2>&1 || { echo "failed: $*"; cat log; exit 1; }; }

quietly cmake --install "$build" --prefix "$work/first"
mv first prefix
prefix=$work/prefix lib=$(cd "$work/prefix" && dirname "$(find . -name libkovra_asn1.so)")
lib=$work/prefix/${lib#./}
mkdir consumer
cp "$source"/tests/consumers/* "$source/examples/subject.c" consumer

# Runs the three programs of a directory.
run() {
    "$1/in_c" "$source/examples/rsa-server.der" >printed
    grep -q '^2\.5\.4\.3 ' printed || { echo "$2: no subject:"; cat printed; exit 1; }
    for program in "$1"/in_cpp*; do
        "$program" | grep -q '^KOVRA ASN.1 Library' || { echo "$2: $program does not run"; exit 1; }
    done
    echo "$2"
}

# with_cmake NAME ARGUMENT...: the warnings of the libraries' own build are not the consumer's.
with_cmake() {
    name=$1
    shift
    quietly cmake -S consumer -B "$name" -G Ninja -DCMAKE_BUILD_TYPE=Debug "-Dsource=$source" \
        "-DCMAKE_C_FLAGS=-O0 -Wall -Wextra -Werror" "-DCMAKE_CXX_FLAGS=-O0 -Wall -Wextra -Werror" "$@"
    quietly cmake --build "$name"
    run "$name" "$name"
}
with_cmake find_package "-DCMAKE_PREFIX_PATH=$prefix"
with_cmake find_package_static "-DCMAKE_PREFIX_PATH=$prefix" -Dlibrary=kovra::asn1_static
with_cmake add_subdirectory -Dway=add_subdirectory -DKOVRA_STATIC_LIBRARIES=OFF
with_cmake fetch_content -Dway=FetchContent -DKOVRA_STATIC_LIBRARIES=OFF

# Everything that is installed names nothing of the machine that built it.
if grep -rl "$build\|$source\|$work/first" "$prefix" >found; then
    echo "these name the places of the build:"
    cat found
    exit 1
fi

# Nor is a link in the documents dead.
find "$prefix" -name '*.md' | while read -r page; do
    grep -oE '\]\([^)#]+' "$page" | sed 's/^](//' | grep -v '^https\?:' | while read -r link; do
        [ -e "$(dirname "$page")/$link" ] || echo "$page: $link"
    done
done >dead
[ ! -s dead ] || { echo "dead links:"; cat dead; exit 1; }

command -v pkg-config >/dev/null || { echo "SKIPPED: there is no pkg-config: ITS FILES ARE NOT TESTED"; exit 0; }
PKG_CONFIG_PATH=$lib/pkgconfig
export PKG_CONFIG_PATH
# shellcheck disable=SC2046
for form in "" -static; do
    mkdir "pkg-config$form"
    flags=$(pkg-config --cflags --libs ${form:+--static} kovra_asn1)
    quietly "${CC:-cc}" -std=c99 -Wall -Wextra -Werror consumer/subject.c -o "pkg-config$form/in_c" $form $flags \
        "-Wl,-rpath,$lib"
    for standard in 17 20; do
        quietly "${CXX:-c++}" "-std=c++$standard" -Wall -Wextra -Werror consumer/version.cpp \
            -o "pkg-config$form/in_cpp$standard" $form $flags "-Wl,-rpath,$lib"
    done
    run "pkg-config$form" "pkg-config$form"
done
# A program that calls the codec only names it only; the dependency is recorded.
printf '#include "kovra/asn1.h"\nint main(void) { return kovra_asn1_version() == 0; }\n' >alone.c
quietly "${CC:-cc}" alone.c -I"$prefix/include" -L"$lib" -lkovra_asn1 "-Wl,-rpath,$lib" -o alone
./alone
