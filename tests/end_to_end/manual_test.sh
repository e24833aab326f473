#!/usr/bin/env bash
# manual_test.sh VELLUMO MANUAL VERSION DATE SOURCE: the pages in the folder MANUAL are formatted without
# a warning, and have all that the programs say of their options and commands, and the page of the
# format every element that its description in docs has.
set -euo pipefail

vellumo=$1 manual=$2 version=$3 date=$4 source=$5
for needed in groff mandoc; do
    command -v "$needed" >/dev/null || { printf 'skipped: no %s\n' "$needed"; exit 77; }
done

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}
# printed PAGE: as plain text, one blank between two words.
printed() { groff -man -Tascii -P-cbou "$manual/$1" | tr -s ' \n' ' '; }
# has PAGE TEXT: so that a hyphen of an option is one that can be typed.
has() { [[ $page == *"$2"* ]] || fail "$1 lacks '$2'"; }

for name in vellumo.1 vellumo-designer.1 pilrc.1 build-prc.1 vmp.5; do
    warnings=$({ groff -man -Tutf8 -ww -z "$manual/$name" && mandoc -T lint -W warning "$manual/$name"; } 2>&1) ||
        fail "$name: $warnings"
    [ -z "$warnings" ] || fail "$name: $warnings"
    page=$(printed "$name")
    has "$name" "${name%.*} - "
    has "$name" "Vellumo Designer $version $date"
done

export QT_QPA_PLATFORM=none-such
for program in vellumo vellumo-designer pilrc build-prc; do
    page=$(printed "$program.1")
    options=$("${vellumo%/*}/$program" --help | grep -oE -- '(^|[ ,])-{1,2}[a-zA-Z][a-z-]*' | tr -d ' ,' | sort -u)
    [ -n "$options" ] || fail "$program tells of no options"
    for option in $options; do
        has "$program.1" "$option"
    done
done
page=$(printed vellumo.1)
for command in $("$vellumo" --help | sed -n 's/^  vellumo \([a-z]*\) .*/\1/p'); do
    has vellumo.1 "vellumo $command"
done
page=$(printed vmp.5)
elements=$(grep -o '^    <[A-Za-z]*>' "$source/docs/project-file.md" | tr -d ' ' | sort -u)
[ "$(wc -w <<<"$elements")" -ge 10 ] || fail 'the description of the format has too few elements'
for element in $elements; do
    has vmp.5 "$element"
done
printf 'passed\n'
