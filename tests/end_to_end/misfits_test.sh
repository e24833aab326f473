#!/usr/bin/env bash
# misfits_test.sh VELLUMO FONT-WIDTHS DATA EXAMPLES: holds what the review says of texts that do not
# fit the handheld's screen against a statement of the limits that shares no code with it.
set -euo pipefail

vellumo=$1 widths=$2 data=$3 examples=$4
found=$(perl "$(dirname -- "$0")/screen_limits.pl" "$vellumo" "$widths" "$data"/misfits/*.vmp \
    "$data"/projects/{Nestbox,SiteVisit,edge-latin,edge-quotes,random-12}.vmp "$examples"/*.vmp)
echo "$found"
grep -q 'that-fits.vmp: 0 misfits$' <<<"$found"
grep -q 'to-the-pixel.vmp: 62 misfits$' <<<"$found"
