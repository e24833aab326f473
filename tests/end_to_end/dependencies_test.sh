#!/usr/bin/env bash
# dependencies_test.sh VELLUMO CMAKE SOURCE: on a system that has nothing but programs, the configuration
# fails, and names in one go all that is to be installed.
set -euo pipefail

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
if "$2" -S "$3" -B "$work/build" -G Ninja \
    -DCMAKE_FIND_ROOT_PATH="$work/nothing" -DCMAKE_FIND_ROOT_PATH_MODE_INCLUDE=ONLY \
    -DCMAKE_FIND_ROOT_PATH_MODE_LIBRARY=ONLY -DCMAKE_FIND_ROOT_PATH_MODE_PACKAGE=ONLY \
    >"$work/log" 2>&1; then
    printf 'configured without anything\n' >&2
    exit 1
fi
told=$(tr -s '\n ' ' ' <"$work/log")
for package in libexpat1-dev libcsv-dev libxlsxwriter-dev libchm-dev libgtest-dev qt6-base-dev qt6-svg-dev; do
    [[ $told =~ \(in\ Debian\ the\ package\ ${package}[^\)]*\)\ is\ missing:\ [a-z] ]] || {
        cat "$work/log" >&2
        printf 'nothing was said of %s\n' "$package" >&2
        exit 1
    }
done
printf 'passed\n'
