#!/usr/bin/env bash
# designer_words_test.sh VELLUMO VERSION: the designer answers --help and --version on standard output
# where no window can be opened, and a full disk behind that is told by its status.
set -euo pipefail

designer=$(dirname -- "$1")/vellumo-designer version=$2
unset DISPLAY WAYLAND_DISPLAY
export QT_QPA_PLATFORM=none-such
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# said WORD: what the designer prints for it; on standard error there is nothing.
said() {
    "$designer" "$1" 2>"$work/told" </dev/null
    [ ! -s "$work/told" ]
}
[ "$(said --version)" = "vellumo-designer $version" ]
said --help >"$work/help"
for text in '  vellumo-designer \[PROJECT.vmp\]' 'folder of the program' './PROJECT.vmp'; do
    grep -q -e "$text" "$work/help"
done
if [ -c /dev/full ]; then
    "$designer" --help >/dev/full && exit 1
fi
# Any other word is a path, which takes a window.
"$designer" --Help >"$work/printed" 2>"$work/told" && exit 1
[ ! -s "$work/printed" ]
printf 'passed\n'
