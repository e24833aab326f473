#!/usr/bin/env bash
# What loses nothing: a disk that is full when a project is saved, two designers on one file, and an
# application folder that nobody can write to, without and with a folder that stands in for it.
# trouble_test.sh VELLUMO PROJECT
set -euo pipefail

# The full disk and the read-only folder are mounts of its own, which end with it.
if [ "${1:-}" != --inside ]; then
    for how in --mount '--mount --map-root-user'; do
        unshare $how true 2>/dev/null && exec unshare $how "$0" --inside "$@"
    done
    printf 'skipped: it may not mount anything\n'
    exit 77
fi
shift

programs=$(dirname -- "$1") project=$2
. "$(dirname -- "$0")/screen.sh"
unmount() { umount "$work/disk" "$work/app" 2>/dev/null || true; }
trap 'unmount; cleanup' EXIT
printf '<Vmdesigner><ShowOpenForm>0</ShowOpenForm></Vmdesigner>' >"$work/app/settings.ini"

# open FILE NAME: a designer on the file, in which the form gets another name.
open() {
    start "$1"
    await 20 'no main window' is_ours
    await 20 'the main window does not get the keys' on_top
    keys ctrl+a
    xdotool type --delay 40 "$2"
}
is_ours() { is_main && [ "$(xdotool getactivewindow getwindowpid)" -eq "$designer" ]; }
holds() { grep -q "<FormName><!\[CDATA\[$2\]\]>" "$1"; }

mkdir "$work/disk"
mount -t tmpfs -o size=64k tmpfs "$work/disk"
file=$work/disk/inspection.vmp
cp "$project" "$file"
head -c 64k /dev/zero >"$work/disk/filling" 2>/dev/null || true
open "$file" Full
keys ctrl+s
windows 2
cmp "$project" "$file" || fail 'a full disk changed the file'
[ "$(ls -A "$work/disk" | wc -l)" -eq 2 ] || fail 'something was left on the full disk'
keys Return
windows 1
rm "$work/disk/filling"
keys ctrl+s
await 10 'nothing was saved when there was room' holds "$file" Full
quit

file=$work/shared.vmp
cp "$project" "$file"
open "$file" First
first=$designer
open "$file" Second
keys ctrl+s
await 10 'the second designer did not save' holds "$file" Second
quit
designer=$first
window 'Vellumo Designer'
keys ctrl+s
windows 2
keys Return # No is the default
windows 1
holds "$file" Second || fail "the other designer's work was replaced unasked"
keys ctrl+s
windows 2
keys alt+y
await 10 'Yes did not save' holds "$file" First
quit

file=$work/locked.vmp
export XDG_DATA_HOME=$work/share
touch "$XDG_DATA_HOME" # in the way of the folder
cp "$project" "$file"
mount --bind "$work/app" "$work/app"
mount -o remount,bind,ro "$work/app"
open "$file" Locked
keys ctrl+Tab ctrl+Tab ctrl+Tab
keys space
windows 2
keys Return
windows 1
keys Tab space
windows 2
keys Return
windows 1
[ -z "$(ls -A "$HOME/Documents/My Vellumo")" ] || fail 'a database was made of nothing'
rm "$XDG_DATA_HOME"
keys space
windows 2
keys Return
windows 1
"$programs/vellumo" verify "$HOME/Documents/My Vellumo/Locked.prc" || fail 'no database was made'
[ -z "$(ls -A "$XDG_DATA_HOME/vellumo-designer")" ] || fail 'something of the creation stayed'
keys ctrl+s
await 10 'nothing was saved' holds "$file" Locked
quit
printf 'passed\n'
