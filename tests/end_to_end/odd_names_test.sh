#!/usr/bin/env bash
# odd_names_test.sh VELLUMO PROJECT: a name that is not in the locale's encoding is refused by name,
# as input and as output, whatever has the name that it would come out as.
set -euo pipefail

vellumo=$1 project=$2
export LC_ALL=C.UTF-8
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
odd=$'a\xff.vmp' other=$'a\xef\xbf\xbd.vmp' # the other has U+FFFD
cp "$project" "$odd" 2>/dev/null || { echo 'skipped: no such names here'; exit 77; }
printf 'kept' >"$other"

refused() {
    local status=0
    "$vellumo" "$@" >printed 2>told || status=$?
    [ "$status" -eq 2 ] && [ ! -s printed ]
    grep -qxF "vellumo: The name 'a\\xff.vmp' is not in the encoding of this system." told
}
commands=$("$vellumo" --help | sed -n 's/^  vellumo \([a-z]*\) .*/\1/p' | sort -u | grep -vx help)
[ "$(wc -w <<<"$commands")" -ge 15 ]
for command in $commands; do
    refused "$command" "$odd"
    refused "$command" "$project" -o "$odd"
done
refused import "$project" --into "$odd"
refused items "$project" --question 1 --from "$odd"
refused diff "$project" "$odd"
refused create -o . "$odd"
refused rewrite "$project" -o "$odd"
refused script "$project" --output "$odd"
refused recover "$project" -o "$odd"
[ "$(cat "$other")" = kept ]
cmp "$odd" "$project"
rm printed told
[ "$(ls | wc -l)" -eq 2 ]

"$vellumo" rewrite "$other" 2>/dev/null && exit 1 # which is no project
cp "$project" "$other"
"$vellumo" review "$other"
printf 'passed\n'
