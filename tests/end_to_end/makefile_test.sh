#!/usr/bin/env bash
# makefile_test.sh VELLUMO EXAMPLES: builds the examples by the Makefile among them, sees that nothing is
# built again, then only what was changed, and that the same commit gives the same bytes.
set -euo pipefail

vellumo=$1 examples=$2
if ! command -v make >/dev/null; then
    echo 'Skipped: make is not installed.'
    exit 77
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$examples"/*.vmp "$examples/ci/Makefile" "$work"
cd "$work"
export SOURCE_DATE_EPOCH=1234567890

build() { make VELLUMO="$vellumo" "$@"; }
expect() {
    if [ "$2" != "$3" ]; then
        printf '%s: %s instead of %s\n' "$1" "$2" "$3" >&2
        exit 1
    fi
}
projects=$(ls ./*.vmp | wc -l)
build -j2 >first
expect 'databases' "$(ls build/*.prc | wc -l)" "$projects"
expect 'commands of the first time' "$(grep -c ' create ' first)" "$projects"
expect 'commands of the second time' "$(build | grep -c ' create ' || true)" 0
touch SiteVisit.vmp
expect 'commands after a change' "$(build | grep -c ' create ')" 1

mv build before
build >/dev/null
diff -r before build
build check >/dev/null
sed -i 's/\[SiteVisit\]/[Site Visit]/' SiteVisit.vmp
if build check >refused 2>&1 || build >>refused 2>&1; then
    echo 'a project that does not pass was taken' >&2
    exit 1
fi
grep -q 'Spaces in the Vellsheet name are not allowed' refused
build clean >/dev/null
[ ! -e build ]
