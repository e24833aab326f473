#!/usr/bin/env bash
# few_words_test.sh VELLUMO PROJECT: whatever the programs lack, standard error has a line or two of
# theirs, and none of the toolkit's about its own workings.
set -euo pipefail

vellumo=$1 project=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset QT_LOGGING_RULES QT_DEBUG_PLUGINS

# told STATUS COMMAND...: what the command says on standard error, which must be no more than two
# lines without a class, an address or a plug-in.
told() {
    local expected=$1 status=0
    shift
    "$@" >"$work/printed" 2>"$work/told" || status=$?
    if [ "$status" -ne "$expected" ] || [ "$(wc -l <"$work/told")" -gt 2 ] ||
        grep -qE '\bQ[A-Z]|\bQt|\bqt\.|0x[0-9a-f]|plugin' "$work/told"; then
        printf 'FAILED: status %s, %s\n' "$status" "$*" >&2
        cat "$work/told" >&2
        exit 1
    fi
    cat "$work/told"
}
with_descriptors() { (ulimit -n "$1" && shift && exec timeout 60 "$@"); }
# Where a person may not lay a core file down, an abort is an abort all the same.
ulimit -c 0

[ "$(told 4 with_descriptors 8 "$vellumo" create -o "$work" "$project")" = \
    "$(grep -E "^$project: cannot start pilrc .*: Too many open files\$" "$work/told")" ]
[ "$(told 5 with_descriptors 6 "$vellumo" script "$project" -o "$work/a.rcp")" = \
    "$work/a.rcp: Too many open files" ]
mkdir "$work/alone"
cp "$vellumo" "$work/alone"
[ "$(PATH=/usr/bin:/bin told 4 "$work/alone/vellumo" create -o "$work" "$project")" = \
    "$(grep -E "^$project: cannot start pilrc [^:]*: No such file or directory\$" "$work/told")" ]
for locale in C POSIX nowhere_NO.ISO-8859-1; do
    [ -z "$(told 0 env LC_ALL="$locale" "$vellumo" review "$project")" ]
done

designer=$(dirname -- "$vellumo")/vellumo-designer
export QT_QPA_PLATFORM=xcb
[ "$(DISPLAY='' WAYLAND_DISPLAY='' told 1 "$designer")" = \
    'vellumo-designer: No window can be opened here: is there a display?' ]
QT_QPA_PLATFORM=offscreen
[ "$(told 1 with_descriptors 8 "$designer" "$project")" = \
    'vellumo-designer: Too many open files' ]
printf 'passed\n'
