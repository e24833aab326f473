# Sourced by run and test: installs what is missing, configures and builds.
# Everything that is said goes to standard error; standard output is for results.

say() { printf '%s\n' "$*" >&2; }

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# installed PACKAGE...: whether one of them is.
installed() {
    [[ $(dpkg-query -W -f '${Status}\n' "$@" 2>/dev/null) == *'ok installed'* ]]
}

# first_offered PACKAGE...: the first that the system's package sources have. Where they have none,
# the first of all, so that apt-get tells its name.
first_offered() {
    local package
    for package in "$@"; do
        if [[ $(LC_ALL=C apt-cache policy "$package") == *'Candidate: '[!\(]* ]]; then
            printf '%s\n' "$package"
            return
        fi
    done
    printf '%s\n' "$1"
}

# install_missing PACKAGE[|PACKAGE...]...: installs the Debian packages that are not there yet; the
# releases have some under different names. On a system without apt-get it tells how the packages to build
# are installed there; the configuration then says what is missing.
install_missing() {
    command -v apt-get >/dev/null 2>&1 || { tell_elsewhere; return 0; }
    local names missing=() packages=()
    for names in "$@"; do
        installed ${names//|/ } || missing+=("$names")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    say "Installing ${missing[*]}"
    as_root apt-get update -q >&2
    for names in "${missing[@]}"; do
        packages+=("$(first_offered ${names//|/ })")
    done
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${packages[@]}" >&2
}

# tell_elsewhere: the command that installs what is to be had, by the first of its programs that is here.
tell_elsewhere() {
    local line
    for line in "${elsewhere[@]}"; do
        if command -v "${line%% *}" >/dev/null 2>&1; then
            [ "${line%% *}" = brew ] || line="sudo $line"
            say "There is no apt-get here. What the build needs comes with (not tried):"
            say "    $line"
            return
        fi
    done
    say "There is no apt-get here; README.md says what the build needs."
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

build_packages=(g++ cmake ninja-build qt6-base-dev 'qt6-svg-dev|libqt6svg6-dev' libchm-dev libcsv-dev
    libexpat1-dev libxlsxwriter-dev)
# The same on other systems, where nobody has tried it.
elsewhere=(
    'dnf install gcc-c++ cmake ninja-build qt6-qtbase-devel qt6-qtsvg-devel chmlib-devel libcsv-devel expat-devel libxlsxwriter-devel'
    'zypper install gcc-c++ cmake ninja qt6-base-devel qt6-svg-devel chmlib-devel libcsv-devel libexpat-devel libxlsxwriter-devel'
    'pacman -S --needed gcc cmake ninja qt6-base qt6-svg chmlib libcsv expat libxlsxwriter'
    'brew install cmake ninja qt chmlib libcsv expat libxlsxwriter'
)
test_packages=(appstream aspell aspell-en desktop-file-utils dpkg-dev file fish groff libgtest-dev
    libbenchmark-dev libglib2.0-bin libpalm-pdb-perl lintian mandoc openbox 'p7zip-full|7zip' python3-openpyxl
    shared-mime-info time xdotool xvfb zsh)
