#!/usr/bin/env bash
# palm_pdb_test.sh VELLUMO EXAMPLES NPM: has every example's database written back by npm's
# palm-pdb. NPM is the folder where ./test installs it; without it the test is skipped.
set -euo pipefail

vellumo=$1 examples=$2 npm=$3
if ! command -v node >/dev/null || [ ! -d "$npm/node_modules/palm-pdb" ]; then
    echo "Skipped: node or its package palm-pdb is not installed."
    exit 77
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$vellumo" create -o "$work" "$examples"/*.vmp
NODE_PATH=$npm/node_modules node "$(dirname -- "$0")/npm/round_trip.js" "$work"/*.prc
