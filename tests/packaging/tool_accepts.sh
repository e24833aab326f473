#!/usr/bin/env bash
# tool_accepts.sh TOOL ARGUMENTS...: the tool is content; skipped where it is not installed.
set -euo pipefail

command -v "$1" >/dev/null || { printf 'skipped: no %s\n' "$1"; exit 77; }
"$@"
