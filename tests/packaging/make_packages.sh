#!/usr/bin/env bash
# make_packages.sh CPACK BUILD FOLDER [UMASK]: what cpack makes of the build folder, as if at one moment,
# for somebody who shares nothing unless UMASK is named.
set -euo pipefail

for needed in dpkg-deb dpkg-shlibdeps file; do
    command -v "$needed" >/dev/null || { printf 'skipped: no %s\n' "$needed"; exit 77; }
done
umask "${4:-077}"
rm -rf "$3"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
SOURCE_DATE_EPOCH=1700000000 "$1" --config "$2/CPackConfig.cmake" -B "$3" >"$log" 2>&1 || {
    cat "$log" >&2
    exit 1
}
rm -r "$3/_CPack_Packages"
