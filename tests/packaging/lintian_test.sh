#!/usr/bin/env bash
# lintian_test.sh PACKAGES: lintian finds no error in the Debian package, and no warning but these:
# initial-upload-closes-no-bugs: the package is not on its way into Debian, where a first one answers
#     the bug that asked for it.
. "$(dirname -- "$0")/packages.sh"
wants lintian

[ "$(id -u)" -ne 0 ] || as_root=--allow-root
lintian ${as_root:-} --fail-on error,warning --suppress-tags initial-upload-closes-no-bugs "$package"
