#!/usr/bin/env bash
# package_test.sh VELLUMO CMAKE CPACK BUILD SOURCE VERSION: the package and the archive that cpack
# makes hold exactly what is installed; unpacked, their programs work, and the package names the
# libraries that they need.
set -euo pipefail

cmake=$2 cpack=$3 build=$4 source=$5 version=$6
for needed in dpkg-deb dpkg-shlibdeps file; do
    command -v "$needed" >/dev/null || { printf 'skipped: no %s\n' "$needed"; exit 77; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
umask 022

"$cpack" --config "$build/CPackConfig.cmake" -B "$work/made" >"$work/log" 2>&1 || {
    cat "$work/log" >&2
    exit 1
}
package=$(echo "$work/made/vellumo-designer_${version}_"*.deb)
archive=$(echo "$work/made/vellumo-designer-$version-"*.tar.gz)
mkdir "$work/package" "$work/archive"
dpkg-deb -x "$package" "$work/package"
tar -xzf "$archive" -C "$work/archive" --strip-components=1

[ "$(dpkg-deb -f "$package" Package Version)" = "Package: vellumo-designer
Version: $version" ]
for library in libqt6svg6 libqt6widgets6 libexpat1; do
    [[ $(dpkg-deb -f "$package" Depends) == *"$library"* ]]
done
[ "$(ls "$work/package")" = usr ]

"$cmake" --install "$build" --prefix "$work/installed" >/dev/null
names() { (cd "$1" && find . ! -type d | LC_ALL=C sort); }
export QT_QPA_PLATFORM=none-such
for prefix in "$work/package/usr" "$work/archive"; do
    diff <(names "$work/installed") <(names "$prefix")
    "$prefix/bin/vellumo" create -o "$work/made/" "$source/examples/SiteVisit.vmp" >/dev/null
    "$1" verify "$work/made/SiteVisit.prc" "$source/examples/SiteVisit.vmp"
    rm "$work/made/SiteVisit.prc"
    [ "$("$prefix/bin/vellumo-designer" --version)" = "vellumo-designer $version" ]
done
printf 'passed\n'
