#!/usr/bin/env bash
# json_test.sh VELLUMO DOCS DATA LINES NPM: holds what the tests of the headless command printed with
# --json, what it tells of the projects and databases in DATA, and the examples of its description
# against the JSON Schema in DOCS, by npm's ajv. LINES is the folder where those tests leave it.
set -euo pipefail

vellumo=$1 docs=$2 data=$3 lines=$4 npm=$5
if ! command -v node >/dev/null || [ ! -d "$npm/node_modules/ajv" ]; then
    echo "Skipped: node or its package ajv is not installed."
    exit 77
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

sed -n 's/^    {/{/p' "$docs/json.md" >"$work/examples"
{
    "$vellumo" review --json "$data"/projects/* "$work/none.vmp" || [ $? -eq 3 ]
    "$vellumo" info --json "$data"/projects/* "$data"/palm/*.prc || [ $? -eq 3 ]
    for database in "$data"/palm/*.prc; do
        "$vellumo" verify --json "$database" || [ $? -eq 1 ]
    done
} >"$work/own"
NODE_PATH=$npm/node_modules node "$(dirname -- "$0")/npm/check_lines.js" \
    "$docs/vellumo-output.schema.json" "$work/examples" "$work/own" "$lines"/*
