#!/usr/bin/env bash
# Unsaved work outlives a designer that is ended from outside: killed after its rescue copy was
# written, or told to end by a signal, with a window open over the main one and while a tool hangs.
# rescue_test.sh VELLUMO PROJECT
set -euo pipefail

programs=$(dirname -- "$1") project=$2
. "$(dirname -- "$0")/screen.sh"
cp "$project" "$work/inspection.vmp"
printf '<Vmdesigner><ShowOpenForm>0</ShowOpenForm></Vmdesigner>' >"$work/app/settings.ini"

copies=$XDG_STATE_HOME/vellumo-designer
has_copy() { compgen -G "$copies/rescue-*/project"; }
no_copy() { ! has_copy; }

# ended_by SIGNAL NUMBER: sends it; the designer is to end by it, and to say nothing.
ended_by() {
    kill -"$1" "$designer"
    await 10 "SIG$1 does not end the designer" ended
    local status=0
    wait "$designer" || status=$?
    [ "$status" -eq $((128 + $2)) ] || fail "after SIG$1 the designer's status was $status"
    [ ! -s "$work/designer.log" ] || fail "it had something to say"
}

# offered: the next start asks, once its window is up.
offered() {
    start "$@"
    await 20 'no main window' is_main_up
    windows 2
}
is_main_up() {
    [[ $(xdotool search --onlyvisible --name '^Vellumo Designer$' getwindowgeometry %@) \
        == *'Geometry: 860x620'* ]]
}

start
await 20 'no main window' is_main
xdotool type --delay 40 'Survey'
await 30 'no rescue copy was written' has_copy
ended_by KILL 9

offered
keys Return
windows 1
has_copy >/dev/null || fail 'the copy went before the work was saved'
keys ctrl+s
window 'Save File As '
xdotool type --delay 40 'rescued'
keys Return
saved="$HOME/Documents/My Vellumo/rescued.vmp"
await 10 'nothing was saved' test -s "$saved"
grep -q '<FormName><!\[CDATA\[Survey\]\]></FormName>' "$saved" || fail 'the text is not there'
await 10 'the copy outlives the saving' no_copy
quit

start "$work/inspection.vmp"
window 'Vellumo Designer'
keys ctrl+a
xdotool type --delay 40 'Typed'
keys alt+h a
window 'About Vellumo Designer' # by now all is typed
ended_by TERM 15
has_copy >/dev/null || fail 'no copy was written at once'
cmp "$project" "$work/inspection.vmp" || fail 'the project was changed'

offered
keys Return
windows 1
keys ctrl+s
await 10 'it was not saved in its place' grep -q '<FormName><!\[CDATA\[Typed\]' "$work/inspection.vmp"
await 10 'the copy outlives the saving' no_copy

# A tool that hangs holds the designer up, but neither the signal nor the work.
printf '#!/bin/sh\necho $$ >"%s"\nexec sleep 1000\n' "$work/tool" >"$work/hanging"
chmod +x "$work/hanging"
mv "$work/hanging" "$work/app/pilrc"
window 'Vellumo Designer'
keys ctrl+a
xdotool type --delay 40 'Hung'
keys ctrl+Tab ctrl+Tab ctrl+Tab
keys space
windows 2
keys Return
windows 1
keys Tab space
await 20 'the tool does not run' test -s "$work/tool"
tool=$(cat "$work/tool")
started+=("$tool")
ended_by HUP 1
tool_ended() { ! kill -0 "$tool" || grep -q '^State:.Z' "/proc/$tool/status"; }
await 10 'the tool lives on' tool_ended

# Who does not want it is not asked again.
offered
keys Tab Return
windows 1
await 10 'the copy stays' no_copy
quit
start
await 20 'no main window' is_main
windows 1
quit
printf 'passed\n'
