#!/usr/bin/env bash
# few_words_test.sh VELLUMO PROJECT few-descriptors|enough-descriptors: whatever the programs lack,
# standard error has a line of theirs, and none of the toolkit's about its own workings.
set -euo pipefail

vellumo=$1 project=$2 descriptors=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset QT_LOGGING_RULES QT_DEBUG_PLUGINS

# told STATUS LINE COMMAND...: the command ends with the status, and what it says on standard error is
# the line, a pattern of [[ ]]; no class, no address and no plug-in of the toolkit's is in it.
told() {
    local expected=$1 line=$2 status=0 said
    shift 2
    "$@" >"$work/printed" 2>"$work/told" || status=$?
    said=$(sed 's/vellumo-work-[A-Za-z]*/FOLDER/g' "$work/told") # any letters at random
    # shellcheck disable=SC2053 # it is a pattern
    if [ "$status" -ne "$expected" ] || [[ $said != $line ]] ||
        grep -qE '\bQ[A-Z]|\bQt|\bqt\.|0x[0-9a-f]|plugin' <<<"$said"; then
        printf 'FAILED: status %s, %s\n%s\n' "$status" "$*" "$said" >&2
        exit 1
    fi
}
# Three are open at the start, whatever was open for the test.
with_descriptors() {
    (
        for number in {3..30}; do eval "exec $number>&-"; done
        ulimit -n "$1" && shift && exec timeout 60 "$@" </dev/null
    )
}
# Where a person may not lay a core file down, an abort is an abort all the same.
ulimit -c 0

if [ "$descriptors" = few-descriptors ]; then
    told 4 "$project: cannot start pilrc *: Too many open files" \
        with_descriptors 9 "$vellumo" create --pilrc "${vellumo%/*}/pilrc" -o "$work" "$project"
    told 5 "$work/a.rcp: Too many open files" \
        with_descriptors 7 "$vellumo" script "$project" -o "$work/a.rcp"
fi
mkdir "$work/alone"
cp "$vellumo" "$work/alone"
told 0 '' env PATH=/usr/bin:/bin "$work/alone/vellumo" create -o "$work" "$project"
told 4 "$project: cannot start pilrc *: No such file or directory" \
    env PATH=/usr/bin:/bin "$work/alone/vellumo" create --pilrc "$work/pilrc" -o "$work" "$project"
for locale in C POSIX nowhere_NO.ISO-8859-1; do
    told 0 '' env LC_ALL="$locale" "$vellumo" review "$project"
done

designer=$(dirname -- "$vellumo")/vellumo-designer
told 1 'vellumo-designer: No window can be opened here: is there a display?' \
    env DISPLAY= WAYLAND_DISPLAY= QT_QPA_PLATFORM=xcb "$designer"
export QT_QPA_PLATFORM=offscreen
if [ "$descriptors" = few-descriptors ]; then
    told 1 'vellumo-designer: Too many open files' with_descriptors 8 "$designer" "$project"
fi
printf 'passed\n'
