#!/usr/bin/env bash
# spelling_test.sh SOURCE MANUAL: every word of the help, the manual pages and the documents is British
# English, as a dictionary has it, or stands in words.txt. What is to be typed, or stands in files, is
# no word: code in Markdown, <tt> and <pre> in the help, bold and italic words in the manual.
set -euo pipefail

source=$1 manual=$2
words=$(dirname -- "$0")/words.txt
aspell dump dicts 2>/dev/null | grep -qx en_GB || { printf 'skipped: no aspell with en_GB\n'; exit 77; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
LC_ALL=C sort "$words" | grep -v '^#' >"$work/words"
cd "$source"

html() {
    tr '\n' ' ' <"$1" | sed -E 's|<(tt\|pre)>[^<]*(<[^/p][^<]*</[^tp][^<]*)*</(tt\|pre)>| |g; s|<[^>]*>| |g; s|&[a-z]*;| |g'
}
markdown() {
    sed -E '/^    /d; /^```/,/^```$/d' "$1" | tr '\n' ' ' |
        sed -E 's/`[^`]*`/ /g; s/\]\([^)]*\)/ /g; s/<[^>]*>/ /g; s|https?://[^ ]*| |g'
}
manual_page() {
    sed -E '/^\.EX/,/^\.EE/d; /^\.(TH|B|I|BR|IR) ?/d; s/^\.[A-Za-z]+//; s/\\f[BI][^\\]*(\\[^f][^\\]*)*\\fR/ /g
        s/\\-/-/g; s/\\[&e]//g' "$1"
}

# check NAME: the words that come in, but for names of files and folders, and places like 16th.
check() {
    sed -E 's#[[:alnum:]_.~*-]*/[[:alnum:]_./*-]*# #g; s#[[:alnum:]_*-]*\.[a-z]{2,5}\b# #g; s/\b[0-9][0-9a-zA-Z,.]*/ /g
        s/[a-zA-Z.-]+\([15]\)/ /g' |
        aspell list --lang=en_GB --encoding=utf-8 --personal=/dev/null --ignore=1 |
        tr '[:upper:]' '[:lower:]' | LC_ALL=C sort -u | comm -23 - "$work/words" >"$work/wrong"
    [ ! -s "$work/wrong" ] || sed "s|^|$1: |" "$work/wrong" >>"$work/all"
}
touch "$work/all"
for file in help/*.html; do html "$file" | check "$file"; done
for file in *.md docs/*.md examples/ci/*.md; do
    [ ! -e "$file" ] || markdown "$file" | check "$file"
done
for file in "$manual"/*.[15]; do manual_page "$file" | check "${file##*/}"; done
[ ! -s "$work/all" ] || { cat "$work/all"; exit 1; }
printf 'passed\n'
