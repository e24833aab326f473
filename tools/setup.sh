# Sourced by run and test: installs what is missing, configures and builds.
# Everything that is said goes to standard error; standard output is for results.

say() { printf '%s\n' "$*" >&2; }

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# install_missing PACKAGE...: installs the Debian packages that are not there yet. On a system
# without apt-get it does nothing; the configuration then says what is missing.
install_missing() {
    command -v apt-get >/dev/null 2>&1 || return 0
    local package missing=()
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    say "Installing ${missing[*]}"
    as_root apt-get update -q >&2
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}" >&2
}

# quietly COMMAND...: runs a command and shows what it printed only when it failed.
quietly() {
    local log
    log=$(mktemp)
    if ! "$@" >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}

build_packages=(g++ cmake ninja-build qt6-base-dev libqt6svg6 libchm-dev)
test_packages=(libgtest-dev libbenchmark-dev libpalm-pdb-perl openbox p7zip-full time xdotool xvfb)
