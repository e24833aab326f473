# Sourced by the tests that drive the designer's windows: a copy of the programs in a home of its
# own, a screen with a window manager, and hands. They want the folder of the programs in $programs.
set -euo pipefail

for needed in Xvfb openbox xdotool; do
    command -v "$needed" >/dev/null || { printf 'skipped: no %s\n' "$needed"; exit 77; }
done
work=$(mktemp -d)
mkdir "$work/app" "$work/home"
for program in vellumo-designer pilrc build-prc Vellumo_Help.chm; do
    cp "$programs/$program" "$work/app/"
done
export HOME=$work/home XDG_CONFIG_HOME=$work/home/.config XDG_STATE_HOME=$work/state
export XDG_RUNTIME_DIR=$work
# The toolkit's words are heard here, which speaks of a locale without UTF-8.
export QT_QPA_PLATFORM=xcb QT_LOGGING_RULES='*.debug=false' LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY
# Whatever site the program was built for: nobody answers.
export http_proxy=http://127.0.0.1:9 https_proxy=http://127.0.0.1:9 no_proxy=
# What the platform's own libraries never give back is not the designer's.
printf 'leak:libdbus\nleak:libfontconfig\nleak:libGLX\n' >"$work/suppressions"
export LSAN_OPTIONS=suppressions=$work/suppressions:print_suppressions=0

exec {display_pipe}<> <(:)
# -noreset: else it starts anew, and drops whoever comes, when the last window went for a moment.
Xvfb -noreset -displayfd "$display_pipe" -screen 0 1280x1024x24 -nolisten tcp 2>"$work/xvfb.log" &
started=($!)
cleanup() {
    kill "${started[@]}" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
read -r -t 20 -u "$display_pipe" number
export DISPLAY=:$number
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
# The splash has the same title, but another size.
is_main() { xdotool getactivewindow getwindowgeometry | grep -q 'Geometry: 860x620'; }
is_splash() { has_focus 'Vellumo Designer' && ! is_main; }
keys() { xdotool key --clearmodifiers --delay 60 "$@"; }

# windows COUNT: until so many windows with the designer's title are up, boxes among them.
counted() { [ "$(xdotool search --onlyvisible --name '^Vellumo Designer$' | wc -l)" -eq "$1" ]; }
windows() {
    await 20 "not $1 windows" counted "$1"
    window 'Vellumo Designer'
}
ended() { ! kill -0 "$designer" 2>/dev/null; }

start() {
    "$work/app/vellumo-designer" "$@" 2>"$work/designer.log" &
    designer=$!
}
quit() {
    window 'Vellumo Designer'
    keys ctrl+q
    await 10 'the designer does not end' ended
    wait "$designer" || fail "the designer ended with status $?"
}

await 20 'no window manager' xdotool get_num_desktops
