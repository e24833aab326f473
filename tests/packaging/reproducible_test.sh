#!/usr/bin/env bash
# reproducible_test.sh PACKAGES CPACK BUILD SOURCE: made again of the same build, by another user, with
# another mask and in another time zone, the packages are the same to the last byte; no file in them tells
# where they were made, and the list of what was installed stays. tools/check-reproducible builds twice.
. "$(dirname -- "$0")/packages.sh"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
other_user=(unshare --user --map-user=54321 --map-group=54321)
"${other_user[@]}" true 2>/dev/null || {
    printf 'Not tried: another user, for whom the system has no namespace here.\n'
    other_user=()
}
installed=$(cat "$3/install_manifest.txt" 2>/dev/null || true)
TZ=Pacific/Kiritimati LC_ALL=C "${other_user[@]}" \
    "$(dirname -- "$0")/make_packages.sh" "$2" "$3" "$work/again" 022
[ "$(cat "$3/install_manifest.txt" 2>/dev/null || true)" = "$installed" ] || {
    printf 'The list of what was installed is another one.\n' >&2
    exit 1
}
for file in "$package" "$archive"; do
    cmp "$file" "$work/again/${file##*/}"
done
# What the order of a disk and the size of its folders would bring.
names=$(tar -tf "$archive" | tr / '\1')
diff <(printf '%s\n' "$names") <(LC_ALL=C sort <<<"$names")
mkdir "$work/installed" "$work/unpacked"
dpkg-deb -x "$package" "$work/installed"
[ "$(dpkg-deb -f "$package" Installed-Size)" = "$(find "$work/installed" -mindepth 1 -printf '%y %s\n' |
    awk '{ kib += $1 == "f" ? int(($2 + 1023) / 1024) : 1 } END { print kib }')" ]
tar -xzf "$archive" -C "$work/unpacked"
if grep -rlF -e "$3" -e "$4" "$work/unpacked"; then
    printf 'These have the path of the build in them.\n' >&2
    exit 1
fi
printf 'passed\n'
