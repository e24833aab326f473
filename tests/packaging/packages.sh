# Sourced by the tests of packages: the two that were made in the folder $1, and a temporary folder.
set -euo pipefail

package=$(find "$1" -name '*.deb' 2>/dev/null)
archive=$(find "$1" -name '*.tar.gz' 2>/dev/null)
[ -n "$package" ] || { printf 'skipped: no packages were made\n'; exit 77; }

# wants COMMAND...
wants() {
    local needed
    for needed in "$@"; do
        command -v "$needed" >/dev/null || { printf 'skipped: no %s\n' "$needed"; exit 77; }
    done
}
