#!/usr/bin/env bash
# read_only_test.sh VELLUMO PROJECT: installs the programs in a folder that nobody may write to and
# creates a database from there as an ordinary user, with standard input closed; then once more into
# a folder that has become read-only, where the first database must stay as it is.
set -euo pipefail

vellumo=$1 project=$2
work=$(mktemp -d)
trap 'chmod -R u+w "$work"; rm -rf "$work"' EXIT
mkdir "$work"/{bin,out,tmp}
cp "$(dirname -- "$vellumo")"/{vellumo,pilrc,build-prc} "$work/bin"
cp "$project" "$work/bin/project.vmp"
chmod 755 "$work"
chmod 777 "$work/out" "$work/tmp"
chmod -R a+rX,a-w "$work/bin"

as_ordinary_user=()
if [ "$(id -u)" -eq 0 ]; then
    as_ordinary_user=(setpriv --reuid=65534 --regid=65534 --clear-groups)
fi
create() {
    TMPDIR=$work/tmp "${as_ordinary_user[@]}" "$work/bin/vellumo" create -o "$work/out" \
        "$work/bin/project.vmp" <&-
}
cd /
create >"$work/tmp/printed"
database=$(cat "$work/tmp/printed")
[ -s "$database" ]
"$vellumo" verify "$database" "$project"
[ "$(ls "$work/bin" | wc -l)" -eq 4 ]
[ "$(ls -A "$work/tmp")" = printed ]

cp "$database" "$work/before.prc"
chmod 555 "$work/out"
status=0
create || status=$?
[ "$status" -eq 5 ]
cmp "$database" "$work/before.prc"
