#!/usr/bin/env bash
# framed_windows.sh WIDTHxHEIGHT COMMAND...: runs a test on a screen of its own, where windows have
# the frames of a window manager.
set -euo pipefail

screen=$1
shift
work=$(mktemp -d)
. "$(dirname -- "$0")/../../end_to_end/hands.sh"
export QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$work HOME=$work
unset WAYLAND_DISPLAY
"$@"
