#!/usr/bin/env bash
# first_form_test.sh VELLUMO SOURCE: the eight steps of the README and of the help's page help/first.html, by
# the keyboard, from the first start to the database.
set -euo pipefail

programs=$(dirname -- "$1")
. "$(dirname -- "$0")/screen.sh"
write() { xdotool type --delay 30 -- "$1"; }
wizard() { window "Vellumo Designer Question Wizard- Step $1"; }

# 1. Create a new Vellsheet.
start
window 'Welcome'
keys Return
window 'Vellumo Designer'
# 2. Its name.
write 'NestBoxes'
keys ctrl+Tab
# 3. A question, numeric.
keys Insert
wizard 1
keys N U
# answer STEP TEXT: on this page of the wizard.
answer() {
    keys alt+n
    wizard "$1"
    write "$2"
}
answer 2 'Box'
answer 3 'Box'
answer 4 'Which box is it?'
keys alt+f
# 5. Another one, with items.
window 'Vellumo Designer'
keys alt+y
wizard 1
keys P
answer 2 'Bird'
answer 3 'Bird'
answer 4 'Which bird lives in it?'
keys alt+n
wizard 5
for item in 'Great tit' 'Starling' 'Nobody'; do
    keys Insert
    window 'New Item'
    write "$item"
    keys Return
    wizard 5
done
keys alt+f
window 'Vellumo Designer'
keys alt+n
alone() { [ "$(xdotool search --onlyvisible --name '^Vellumo Designer' getwindowname %@)" = 'Vellumo Designer' ]; }
await 20 'the wizard stays' alone
# Box and wizard go at once, after which this window manager may leave the focus nowhere.
xdotool search --onlyvisible --name '^Vellumo Designer$' windowactivate
window 'Vellumo Designer'
# 6. The folder of the answers.
keys ctrl+Tab
write 'C:\NestBoxes'
# 7. Review it, and create it.
keys ctrl+Tab
keys Return
windows 2
keys Return
windows 1
keys Tab space
folder="$HOME/Documents/My Vellumo"
await 20 'no database' test -s "$folder/NestBoxes.prc"
windows 2
keys Return
windows 1
await 10 'the database was not opened' grep -q 'NestBoxes.prc$' "$work/opened"
# 8. Save it.
keys ctrl+s
window 'Save File As '
write 'NestBoxes'
keys Return
await 10 'nothing was saved' test -s "$folder/NestBoxes.vmp"
quit

"$1" verify "$folder/NestBoxes.prc" "$folder/NestBoxes.vmp" || fail 'the database is another one'
diff - <("$1" columns --markdown "$folder/NestBoxes.vmp" | grep -oE 'Which [a-z ]*\?|Great tit|Starling|Nobody') <<'END'
Which box is it?
Which bird lives in it?
Great tit
Starling
Nobody
END
for step in NestBoxes 'Which box is it?' 'Which bird lives in it?' 'Great tit' Starling Nobody 'C:\NestBoxes'; do
    for page in README.md help/first.html; do
        grep -qF "$step" "$2/$page" || fail "$page does not tell of $step"
    done
done
printf 'passed\n'
