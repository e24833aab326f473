#!/usr/bin/env bash
# framed_windows.sh WIDTHxHEIGHT COMMAND...: runs a test on a screen of its own, where windows have
# the frames of a window manager.
set -euo pipefail

for needed in Xvfb openbox; do
    command -v "$needed" >/dev/null || { printf 'skipped: no %s\n' "$needed"; exit 77; }
done
size=$1
shift
work=$(mktemp -d)
started=()
cleanup() {
    kill "${started[@]}" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

exec {display_pipe}<> <(:)
Xvfb -noreset -displayfd "$display_pipe" -screen 0 "${size}x24" -nolisten tcp 2>"$work/xvfb.log" &
started+=($!)
read -r -t 20 -u "$display_pipe" number
export DISPLAY=:$number QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$work HOME=$work
unset WAYLAND_DISPLAY
# What libraries of the desktop keep until the end is not ours to free.
printf 'leak:libdbus\nleak:libfontconfig\nleak:libGLX\n' >"$work/suppressions"
export LSAN_OPTIONS=suppressions=$work/suppressions:print_suppressions=0
# It calls the command when it is ready to frame windows.
openbox --startup "touch $work/ready" 2>/dev/null &
started+=($!)
deadline=$((SECONDS + 20))
until [ -e "$work/ready" ]; do
    [ "$SECONDS" -lt "$deadline" ] || { printf 'FAILED: no window manager\n' >&2; exit 1; }
    sleep 0.1
done
"$@"
