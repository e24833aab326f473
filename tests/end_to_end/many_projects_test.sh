#!/usr/bin/env bash
# many_projects_test.sh VELLUMO PROJECT COUNT memory|no-memory: creates COUNT projects in one call
# and in 8 calls at once, verifies every database, and sees that nothing stays behind. With "memory"
# the peak of the large call is held against that of a small one; the sanitizers' own bookkeeping
# grows, so under them it is not.
set -euo pipefail

vellumo=$1 project=$2 count=$3 memory=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work"/{projects,one,eight,few,tmp}
export TMPDIR=$work/tmp

name=$(basename "$project" .vmp)
for number in $(seq "$count"); do
    sed "s/<FormName><!\[CDATA\[$name\]\]>/<FormName><![CDATA[Form$number]]>/" "$project" \
        >"$work/projects/Form$number.vmp"
done

peak() { # FILE COMMAND...: runs a command, leaves its peak memory in KiB in the file
    local file=$1
    shift
    /usr/bin/time -f %M -o "$file" "$@" >/dev/null
}
peak "$work/peak_few" "$vellumo" create -o "$work/few" "$work"/projects/Form?.vmp
peak "$work/peak_many" "$vellumo" create -o "$work/one" "$work"/projects/*.vmp
few=$(cat "$work/peak_few") many=$(cat "$work/peak_many")
echo "Peak memory: $few KiB for $(ls "$work/few" | wc -l) projects, $many KiB for $count"
if [ "$memory" = memory ]; then
    [ "$many" -le $((few + few / 10)) ]
fi

pids=()
for share in 0 1 2 3 4 5 6 7; do
    mine=()
    for number in $(seq $((share + 1)) 8 "$count"); do
        mine+=("$work/projects/Form$number.vmp")
    done
    "$vellumo" create -o "$work/eight" "${mine[@]}" >/dev/null &
    pids+=($!)
done
for pid in "${pids[@]}"; do
    wait "$pid"
done

for folder in one eight; do
    [ "$(ls "$work/$folder" | wc -l)" -eq "$count" ]
    for number in $(seq 1 $((count / 50 + 1)) "$count"); do
        "$vellumo" verify "$work/$folder/Form$number.prc" "$work/projects/Form$number.vmp"
    done
done
[ -z "$(ls -A "$work/tmp")" ]
