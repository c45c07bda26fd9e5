#!/bin/sh
# guide.sh SOURCE LIBRARIES COMPILER...: the program on each page of the guide compiles, with all warnings as errors, and
# prints what the page says.
set -eu
source=$1 libraries=$2
shift 2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$source/examples"
count=0
for page in "$source"/docs/guide/*.md; do
    name=$(basename "$page" .md)
    grep -q '^```c$' "$page" || continue
    # The only program of a page, and the only run of it.
    sed -n '/^```c$/,/^```$/p' "$page" | sed '/^```/d' >"$work/$name.c"
    sed -n '/^```console$/,/^```$/p' "$page" | sed '/^```/d' >"$work/wanted"
    "$@" -std=c99 -Wall -Wextra -Wpedantic -Werror "-I$source/include" "$work/$name.c" -o "$work/$name" \
        "-L$libraries" -lkovra_asn1 -lkovra_util "-Wl,-rpath,$libraries"
    command=$(sed -n '1s/^\$ //p' "$work/wanted")
    { echo "\$ $command"; (PATH=$work:$PATH && eval "$command"); } >"$work/printed"
    diff "$work/wanted" "$work/printed" || { echo "$page: left: what it says, right: what is printed"; exit 1; }
    count=$((count + 1))
done
for page in $(sed -n 's/.*](\([a-z]*\.md\)).*/\1/p' "$source/docs/guide/README.md"); do
    [ -e "$source/docs/guide/$page" ] || { echo "there is no $page"; exit 1; }
done
echo "$count pages"
