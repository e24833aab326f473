#!/usr/bin/env bash
# xlsform_test.sh VELLUMO EXAMPLES: has the workbooks of the examples read back by openpyxl.
set -euo pipefail

vellumo=$1 examples=$2
# The system's has the package, and need not be the one along PATH.
python=
for candidate in python3 /usr/bin/python3; do
    if "$candidate" -c 'import openpyxl' 2>/dev/null; then
        python=$candidate
    fi
done
if [ -z "$python" ]; then
    echo 'Skipped: openpyxl is not installed.'
    exit 77
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for project in "$examples"/*.vmp; do
    name=$(basename "$project" .vmp)
    "$vellumo" export --quiet --xlsform "$project" -o "$work/$name.xlsx"
    "$vellumo" info --json "$project" >"$work/$name.json"
done
"$python" "$(dirname -- "$0")/read_workbooks.py" "$work"/*.xlsx
