#!/bin/sh
# imported_libraries.sh FILE [DLL...]: what runs on Windows needs the system's own libraries and those named, no others.
set -eu
file=$1
shift
imported=$(${OBJDUMP:-objdump} -p "$file" | sed -n 's/^[[:blank:]]*DLL Name: //p' | sort -u)
[ -n "$imported" ] || { echo "no imports found"; exit 1; }
status=0
for name in $imported; do
    case " KERNEL32.dll msvcrt.dll SHELL32.dll $* " in
    *" $name "*) ;;
    *) echo "$file needs $name"; status=1 ;;
    esac
done
echo $imported
exit $status
