#!/usr/bin/env bash
# completion_test.sh VELLUMO MANUAL: asks the shells that are there what they complete after some words,
# by the files in the folder MANUAL.
set -euo pipefail

vellumo=$1 manual=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
touch 'one form.vmp'
commands=$("$vellumo" --help | sed -n 's/^  vellumo \([a-z]*\) .*/\1/p')

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# after WORD...: what bash completes the last of the words to, a line each.
after() {
    COMP_WORDS=(vellumo "$@")
    COMP_CWORD=$#
    _vellumo 2>/dev/null # compopt wants a completion that runs
    printf '%s\n' "${COMPREPLY[@]}"
}
# shellcheck disable=SC1091
. "$manual/vellumo.bash"
for command in $commands; do
    after "$command" | grep -qx "$command" || fail "bash does not know $command"
done
[ "$(after cr)" = create ] || fail 'bash does not complete cr'
after create --q | grep -qx -- --quiet || fail 'bash does not complete --q'
after review --gu | grep -q guid && fail 'bash completes an option that review does not take'
[ "$(after create on)" = 'one form.vmp' ] || fail 'bash does not complete a name with a blank'
[ "$(after create --output on)" = 'one form.vmp' ] || fail 'bash does not complete the name after --output'
[ "$(after new --from S)" = $'ShelfAudit\nSiteVisit' ] || fail 'bash does not complete the name of an example'
[ "$(after new --from = S)" = $'ShelfAudit\nSiteVisit' ] || fail 'bash does not complete --from=S'
[ "$(after --json re | head -n 1)" = review ] || fail 'bash does not complete a command behind an option'
after --js | grep -qx -- --json || fail 'bash does not complete an option before the command'
[ "$(after items --from on)" = 'one form.vmp' ] || fail 'bash does not complete the name of a file of items'

# ask_zsh TYPED COMPLETED: what zsh shows on a terminal of its own after TYPED and Tab, once it has
# COMPLETED in it.
ask_zsh() {
    manual=$manual typed=$1 completed=$2 timeout 20 zsh -f <<'END'
        zmodload zsh/zpty
        zpty -b asked zsh -f -i
        zpty -w asked "fpath=(${(q)manual} \$fpath); autoload -Uz compinit; compinit -u -D; echo ready-\$((1 + 1))"
        zpty -r asked said '*ready-2*'
        zpty -w -n asked "$typed"$'\t'
        zpty -r asked said "*$completed*"
        print -r -- "$said"
END
}

for shell in zsh fish; do
    if ! command -v $shell >/dev/null; then
        echo "Not asked: $shell is not installed."
    elif [ $shell = fish ]; then
        [ "$(fish -c "source $manual/vellumo.fish; complete -C 'vellumo cr'" | cut -f 1)" = create ] ||
            fail 'fish does not complete cr'
        fish -c "source $manual/vellumo.fish; complete -C 'vellumo review --str'" | grep -q -- --strict ||
            fail 'fish does not complete --str'
        fish -c "source $manual/vellumo.fish; complete -C 'vellumo new --from W'" | cut -f 1 | grep -qx WaterPoint ||
            fail 'fish does not complete the name of an example'
        fish -c "source $manual/vellumo.fish; complete -C 'vellumo --json re'" | cut -f 1 | grep -qx review ||
            fail 'fish does not complete a command behind an option'
        fish -c "source $manual/vellumo.fish; complete -C 'vellumo --js'" | grep -q -- --json ||
            fail 'fish does not complete an option before the command'
    else
        [[ $(ask_zsh 'vellumo cr' create) == *create* ]] || fail 'zsh does not complete cr'
        [[ $(ask_zsh 'vellumo review --str' --strict) == *--strict* ]] || fail 'zsh does not complete --str'
        [[ $(ask_zsh 'vellumo new --from W' WaterPoint) == *WaterPoint* ]] ||
            fail 'zsh does not complete the name of an example'
        [[ $(ask_zsh 'vellumo --json -q revi' review) == *review* ]] ||
            fail 'zsh does not complete a command behind options'
        [[ $(ask_zsh 'vellumo --json review --str' --strict) == *--strict* ]] ||
            fail 'zsh does not complete --str behind another option'
        [[ $(ask_zsh 'vellumo create --output=on' 'one\ form') == *'one\ form'* ]] ||
            fail 'zsh does not complete the name of a file behind --output='
    fi
done
