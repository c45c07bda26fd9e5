#!/bin/sh
# exported_names.sh LIBRARY FILE INCLUDE: the names that a shared library, ELF or DLL, exports are those that its headers
# declare.
set -eu
library=$1 file=$2 include=$3
case $library in
kovra_util) headers=$include/util_*.h ;;
kovra_asn1) headers=$include/asn1_*.h ;;
esac
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# shellcheck disable=SC2086
cat $headers | tr '\n' ' ' | grep -oE 'KOVRA_(UTIL|ASN1)_API [^;{]*\(' | grep -oE '\bkovra_[A-Za-z0-9_]+ ?\($|\bkovra_[A-Za-z0-9_]+\(' |
    tr -d ' (' | LC_ALL=C sort -u >"$work/declared"
case $file in
*.dll)
    # Of the table behind this heading each row is "[ordinal] name".
    ${OBJDUMP:-objdump} -p "$file" | sed '1,/^\[Ordinal\/Name Pointer\] Table/d;/^$/,$d' | awk '{print $NF}' |
        LC_ALL=C sort -u >"$work/exported"
    ;;
*)
    nm -D --defined-only "$file" | awk '$2 ~ /[TW]/ {print $3}' | grep -v -e '^_init$' -e '^_fini$' | grep -v '^_Z' |
        LC_ALL=C sort -u >"$work/exported"
    ;;
esac
[ -s "$work/declared" ] || { echo "no declarations found"; exit 1; }
if ! diff "$work/declared" "$work/exported"; then
    echo "left: declared in the headers; right: exported by $file"
    exit 1
fi
echo "$(wc -l <"$work/declared") names"
