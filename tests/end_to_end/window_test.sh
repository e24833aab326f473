#!/usr/bin/env bash
# The designer as a person starts it, on a screen of its own and from nothing: first start, new
# project, save, quit; then again with a project named, review and create.
# window_test.sh VELLUMO PROJECT
set -euo pipefail

programs=$(dirname -- "$1") project=$2
. "$(dirname -- "$0")/screen.sh"
cp "$project" "$work/inspection.vmp"

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
window 'What identifies a Vellsheet - Vellumo Designer Help'
keys Escape
window 'Vellumo Designer'
keys alt+h a
window 'About Vellumo Designer'
keys Return
review_and_create "$HOME/Documents/My Vellumo/SiteVisit.prc"
quit
cmp "$project" "$work/inspection.vmp" || fail 'the project was changed'
printf 'passed\n'
