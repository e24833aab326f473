#!/usr/bin/env bash
# set_up_test.sh SETUP README: which packages tools/setup.sh asks for, on systems that have and offer
# different ones, and what it tells where there is no apt-get. Each of the system's own commands is
# played by one that only tells.
set -euo pipefail

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export work PATH=$work:$PATH

# play COMMAND BODY: the body is that of a script, with what the system has and offers.
play() {
    printf '#!/bin/bash\nhas() { [[ " $1 " == *" $2 "* ]]; }\n%s\n' "$2" >"$work/$1"
    chmod +x "$work/$1"
}
play sudo '"$@"'
play apt-get '[ "$1" = update ] || echo "${@: -1}" >>"$work/asked"'
play dpkg-query 'status=0
    for name in "${@:4}"; do
        if has "$HAS" "$name"; then echo "install ok installed"; else status=1; fi
    done
    exit $status'
play apt-cache '
    printf "%s:\n  Installed: (none)\n" "$2"
    if has "$OFFERS" "$2"; then echo "  Candidate: 6.8"; else echo "  Candidate: (none)"; fi'

. "$1"

# expect ASKED HAS OFFERS: what is asked for where the system has and offers these.
expect() {
    rm -f "$work/asked"
    touch "$work/asked"
    HAS=$2 OFFERS=$3 install_missing 'new|old' 2>/dev/null
    [ "$(cat "$work/asked")" = "$1" ] || {
        printf "has '%s', offers '%s': asks for '%s'\n" "$2" "$3" "$(cat "$work/asked")"
        exit 1
    }
}
expect new '' 'new'
expect old '' 'old other'
expect new '' 'old new'
expect '' 'old' 'new'
expect '' 'new' ''
expect new '' '' # and apt-get says that there is none

# told PROGRAM: what is said on a system that has just this one.
told() {
    mkdir "$work/$1"
    ln -s /bin/true "$work/$1/$1"
    (PATH=$work/$1 && install_missing g++ 2>&1)
}
[[ $(told dnf) == *'sudo dnf install gcc-c++ cmake'* ]]
[[ $(told zypper) == *'sudo zypper install '*qt6-svg-devel* ]]
[[ $(told pacman) == *'sudo pacman -S '*qt6-svg* ]]
[[ $(told brew) == *'    brew install cmake'* ]]
[[ $(told none) == *'README.md says what'* ]]

# The README's table has the same names.
table=" $(grep '^|' "$2" | tr '`;\n' '   ') "
in_table() { [[ $table == *" $1 "* ]] || { echo "the README's table lacks $1"; exit 1; }; }
for line in "${elsewhere[@]}"; do
    for name in $line; do
        case $name in -*) ;; *) in_table "$name" ;; esac
    done
done
for name in "${build_packages[@]}"; do
    in_table "${name%%|*}"
done
