#!/usr/bin/env bash
# hardened_test.sh PROGRAM [checked]: looks in the file of a program for what must make it hard to
# misuse; with "checked" also for functions of the library that know the size of what they write to.
set -euo pipefail

program=$1
faults=0

# requires WHAT OPTIONS PATTERN: what readelf tells with the options must have the pattern.
requires() {
    if ! grep -qE -- "$3" <<<"$(readelf -W $2 -- "$program")"; then
        printf '%s has no %s\n' "$program" "$1" >&2
        faults=1
    fi
}

requires 'addresses that vary' -h '^ *Type: +DYN '
requires 'start as a program of varying addresses' -d '\(FLAGS_1\).* PIE( |$)'
requires 'part that becomes read-only' -l '^ *GNU_RELRO '
requires 'binding at the start' -d '\(FLAGS(_1)?\).* (BIND_)?NOW( |$)'
requires 'guard of the stack' --dyn-syms ' __stack_chk_fail(@|$)'
requires 'assertions of the library' --syms ' _ZSt21__glibcxx_assert_fail'
if [ "${2:-}" = checked ]; then
    requires 'checked functions of the library' --dyn-syms ' __[a-z]+_chk(@|$)'
fi
exit "$faults"
