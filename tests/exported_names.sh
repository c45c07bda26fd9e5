#!/bin/sh
# exported_names.sh LIBRARY FILE LIST INCLUDE: a shared library, ELF or DLL, exports the names in the list, all of them
# and no others, and its headers declare them.
set -eu
library=$1 file=$2 list=$3 include=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
sed -n "s/^$library //p" "$list" >"$work/listed"
[ -s "$work/listed" ] || { echo "no names of $library in $list"; exit 1; }
LC_ALL=C sort -uc "$work/listed"
cat "$include/${library#kovra_}"_*.h | tr '\n' ' ' | grep -oE 'KOVRA_(UTIL|ASN1)_API [^;{(]*\(' |
    grep -oE 'kovra_[A-Za-z0-9_]+ ?\($' | tr -d ' (' | LC_ALL=C sort -u >"$work/declared"
case $file in
*.dll)
    # Of the table behind this heading each row is "[ordinal] name".
    ${OBJDUMP:-objdump} -p "$file" | sed '1,/^\[Ordinal\/Name Pointer\] Table/d;/^$/,$d' | awk '{print $NF}' |
        LC_ALL=C sort -u >"$work/exported"
    ;;
*)
    # Absolute is the name of the version itself; without it no name is the library's.
    nm -D --defined-only "$file" | awk '$2 != "A" {print $3}' | sed 's/@@KOVRA_1\.2$//; t; s/^/not of KOVRA_1.2: /' |
        LC_ALL=C sort -u >"$work/exported"
    ;;
esac
cd "$work"
for found in declared exported; do
    diff listed $found || { echo "left: names of $library in $list; right: those that are $found"; exit 1; }
done
echo "$(wc -l <listed) names"
