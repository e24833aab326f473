#!/usr/bin/env bash
# reproducible_test.sh PACKAGES CPACK BUILD SOURCE: made again of the same build, in another time zone,
# the packages are the same to the last byte, and no file in them tells where they were made. tools/check-reproducible builds twice.
. "$(dirname -- "$0")/packages.sh"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
TZ=Pacific/Kiritimati LC_ALL=C "$(dirname -- "$0")/make_packages.sh" "$2" "$3" "$work/again"
for file in "$package" "$archive"; do
    cmp "$file" "$work/again/${file##*/}"
done
mkdir "$work/unpacked"
tar -xzf "$archive" -C "$work/unpacked"
if grep -rlF -e "$3" -e "$4" "$work/unpacked"; then
    printf 'These have the path of the build in them.\n' >&2
    exit 1
fi
printf 'passed\n'
