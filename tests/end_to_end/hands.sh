# Sourced by what drives windows: a screen of its own with a window manager, and hands. It wants a
# folder in $work, which goes at the end, and may have the screen's size in $screen; $designer is the
# process that is driven, and what it says is in designer.log there.
set -euo pipefail

for needed in Xvfb openbox xdotool; do
    command -v "$needed" >/dev/null || { rm -rf "$work"; printf 'skipped: no %s\n' "$needed"; exit 77; }
done

exec {display_pipe}<> <(:)
# -noreset: else it starts anew, and drops whoever comes, when the last window went for a moment.
Xvfb -noreset -displayfd "$display_pipe" -screen 0 "${screen:-1280x1024}x24" -nolisten tcp 2>"$work/xvfb.log" &
started=($!)
cleanup() {
    kill "${started[@]}" 2>/dev/null || true
    for running in $(jobs -pr); do # a designer that hangs
        [ "$running" != "${designer:-}" ] || kill -KILL "$running" 2>/dev/null || true
    done
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
read -r -t 20 -u "$display_pipe" number
export DISPLAY=:$number
# What the platform's own libraries never give back is not the designer's.
printf 'leak:libdbus\nleak:libfontconfig\nleak:libGLX\n' >"$work/suppressions"
export LSAN_OPTIONS=suppressions=$work/suppressions:print_suppressions=0
openbox 2>/dev/null &
started+=($!)

fail() {
    printf 'FAILED: %s\n' "$*" >&2
    xdotool search --onlyvisible --name . getwindowname %@ >&2 2>/dev/null || true
    cat "$work/designer.log" >&2 || true
    exit 1
}

# await SECONDS WHAT COMMAND...: until the command succeeds.
await() {
    local deadline=$((SECONDS + $1)) what=$2
    shift 2
    until "$@" >/dev/null 2>&1; do
        [ "$SECONDS" -lt "$deadline" ] || fail "$what"
        sleep 0.1
    done
}

# Not only active for the window manager, but also where the keys go.
has_focus() {
    [ "$(xdotool getactivewindow getwindowname)" = "$1" ] &&
        [ "$(xdotool getwindowfocus getwindowname)" = "$1" ]
}
window() { await 20 "no window '$1'" has_focus "$1"; }
keys() { xdotool key --clearmodifiers --delay 60 "$@"; }

# windows COUNT: until so many windows with the designer's title are up, boxes among them, and the
# keys go to the one on top.
ours() { xdotool search --onlyvisible --name '^Vellumo Designer$'; } # from below to the top
counted() { [ "$(ours | wc -l)" -eq "$1" ]; }
on_top() { [ "$(xdotool getwindowfocus)" = "$(ours | tail -n 1)" ]; }
windows() {
    await 20 "not $1 windows" counted "$1"
    window 'Vellumo Designer'
    await 20 'the keys do not go to the window on top' on_top
}
ended() { ! kill -0 "$designer" 2>/dev/null; }

await 20 'no window manager' xdotool get_num_desktops
