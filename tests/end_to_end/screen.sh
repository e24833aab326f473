# Sourced by the tests that drive the designer's windows: a copy of the programs in a home of its
# own, and what hands.sh has. They want the folder of the programs in $programs.
set -euo pipefail

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
# Whatever programs the system has for folders and databases stay out of it; $work/opened has the names.
mkdir "$work/bin"
printf '#!/bin/sh\nprintf "%%s\\n" "$1" >>"%s"\n' "$work/opened" >"$work/bin/xdg-open"
chmod +x "$work/bin/xdg-open"
export PATH=$work/bin:$PATH
# Whatever site the program was built for: nobody answers.
export http_proxy=http://127.0.0.1:9 https_proxy=http://127.0.0.1:9 no_proxy=

. "$(dirname -- "${BASH_SOURCE[0]}")/hands.sh"

# The splash has the same title, but another size.
is_main() { xdotool getactivewindow getwindowgeometry | grep -q 'Geometry: 860x620'; }
is_splash() { has_focus 'Vellumo Designer' && ! is_main; }

start() {
    "$work/app/vellumo-designer" "$@" 2>"$work/designer.log" &
    designer=$!
}
# review_and_create DATABASE: what is open, by the keys of step 4.
review_and_create() {
    window 'Vellumo Designer'
    keys ctrl+Tab ctrl+Tab ctrl+Tab
    keys Return
    windows 2
    keys Return
    windows 1
    keys Tab space
    await 20 'no database' test -s "$1"
    windows 2
    keys Return
    windows 1
}
quit() {
    window 'Vellumo Designer'
    keys ctrl+q
    await 10 'the designer does not end' ended
    wait "$designer" || fail "the designer ended with status $?"
}
