#!/usr/bin/env bash
# examples_test.sh VELLUMO EXAMPLES: creates the database of every example, as a user would, and
# has each read by a reader that is not ours. There is nothing to say of any, not even a warning.
set -euo pipefail

vellumo=$1 examples=$2
here=$(dirname -- "$0")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

count=0
for project in "$examples"/*.vmp; do
    "$vellumo" rewrite -o "$work/again.vmp" "$project"
    cmp "$project" "$work/again.vmp"
    [ -z "$("$vellumo" review "$project" 2>&1)" ]
    database=$("$vellumo" create -o "$work" "$project" 2>"$work/said")
    cat "$work/said"
    [ ! -s "$work/said" ]
    [ "$database" = "$work/$(basename "$project" .vmp).prc" ]
    perl "$here/list_resources.pl" "$database" "$project"
    count=$((count + 1))
done
[ "$count" -ge 3 ]
