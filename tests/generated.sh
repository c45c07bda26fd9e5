#!/bin/sh
# generated.sh DIRECTORY GENERATOR...: what the generator writes is what is committed in the directory.
set -eu
directory=$1
shift
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$@" "$work"
for file in "$work"/*; do
    tr -d '\r' <"$file" | diff "$directory/$(basename "$file")" - || {
        echo "$directory/$(basename "$file") is not what $* writes"
        exit 1
    }
done
