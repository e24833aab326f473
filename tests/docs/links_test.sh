#!/usr/bin/env bash
# links_test.sh SOURCE: what the documents link to is there, and docs/README.md lists every document.
set -euo pipefail

cd "$1"
faults=0
for page in *.md docs/*.md; do
    for link in $(grep -oE '\]\([^):]+\)' "$page" | sed 's/^](//; s/)$//; s/#.*//'); do
        [ -e "$(dirname -- "$page")/$link" ] || { printf '%s: %s\n' "$page" "$link"; faults=1; }
    done
done
for page in *.md docs/*.md docs/*.json; do
    name=../$page
    name=${name#../docs/}
    [ "$page" = docs/README.md ] || grep -qF "($name)" docs/README.md ||
        { printf 'docs/README.md lacks %s\n' "$page"; faults=1; }
done
exit "$faults"
