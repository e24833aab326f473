#!/usr/bin/env bash
# The designer as a person starts it, on a screen of its own and from nothing: first start, new
# project, save, quit; then again with a project named, review and create.
# window_test.sh VELLUMO PROJECT
set -euo pipefail

for needed in Xvfb openbox xdotool; do
    command -v "$needed" >/dev/null || { printf 'skipped: no %s\n' "$needed"; exit 77; }
done
programs=$(dirname -- "$1") project=$2
work=$(mktemp -d)
mkdir "$work/app" "$work/home"
for program in vellumo-designer pilrc build-prc Vellumo_Help.chm; do
    cp "$programs/$program" "$work/app/"
done
cp "$project" "$work/inspection.vmp"
export HOME=$work/home XDG_CONFIG_HOME=$work/home/.config XDG_RUNTIME_DIR=$work
export QT_QPA_PLATFORM=xcb QT_LOGGING_RULES='*.debug=false'
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
start
await 20 'no splash' is_splash
window 'Welcome'
printf '<Vmdesigner>\r\n<ShowOpenForm>1</ShowOpenForm>\r\n</Vmdesigner>' |
    cmp - "$work/app/settings.ini" || fail 'the settings file'
[ -d "$HOME/Documents/My Vellumo" ] || fail 'no projects folder'
keys Return

window 'Vellumo Designer'
xdotool type --delay 40 'Survey'
keys ctrl+s
window 'Save File As '
xdotool type --delay 40 'first'
keys Return
saved="$HOME/Documents/My Vellumo/first.vmp"
await 10 'nothing was saved' test -s "$saved"
grep -q '<FormName><!\[CDATA\[Survey\]\]></FormName>' "$saved" || fail 'the name was not saved'
quit

printf '<Vmdesigner><ShowOpenForm>0</ShowOpenForm></Vmdesigner>' >"$work/app/settings.ini"
start
await 20 'no splash without the chooser' is_splash
await 20 'no main window' is_main
quit

cp "$project" "$work/app/bare.vmp"
start bare.vmp
window 'Vellumo Designer'
keys ctrl+shift+s
window 'Save File As '
xdotool type --delay 40 "$work/again.vmp"
keys Return
await 10 'a bare name was not opened' cmp -s "$project" "$work/again.vmp"
quit

start "$work/inspection.vmp"
window 'Vellumo Designer'
keys F1
window 'Welcome to Vellumo Designer - Vellumo Designer Help'
keys Escape
window 'Vellumo Designer'
keys alt+h a
window 'About Vellumo Designer'
keys Return
window 'Vellumo Designer'
keys ctrl+Tab ctrl+Tab ctrl+Tab
keys Tab space
windows 2
keys Return
windows 1
keys Tab space
await 20 'no database' test -s "$HOME/Documents/My Vellumo/SiteVisit.prc"
windows 2
keys Return
windows 1
quit
cmp "$project" "$work/inspection.vmp" || fail 'the project was changed'
printf 'passed\n'
