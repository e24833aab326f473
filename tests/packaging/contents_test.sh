#!/usr/bin/env bash
# contents_test.sh PACKAGES CMAKE BUILD SOURCE VERSION DATE: the package and the archive hold what is
# installed, but for what their systems have in another form, open to everybody; unpacked, their
# programs work, and the package names the libraries that they need.
. "$(dirname -- "$0")/packages.sh"

cmake=$2 build=$3 source=$4 version=$5 date=$6
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
umask 022

mkdir "$work/package" "$work/archive"
dpkg-deb -x "$package" "$work/package"
tar -xzf "$archive" -C "$work/archive" --strip-components=1

[ "$(dpkg-deb -f "$package" Package Version)" = "Package: vellumo-designer
Version: $version-1" ]
for library in libqt6svg6 libqt6widgets6 libexpat1; do
    [[ $(dpkg-deb -f "$package" Depends) == *"$library"* ]]
done
[ "$(ls "$work/package")" = usr ]
for folder in package archive; do
    [ -z "$(find "$work/$folder" -mindepth 1 ! -type l ! -perm -a=r -o -type d ! -perm -a=x)" ]
done

"$cmake" --install "$build" --prefix "$work/installed" >/dev/null
names() { (cd "$1" && find . ! -type d | LC_ALL=C sort); }
documents=./share/doc/vellumo-designer
as_debian_has_it() {
    sed -E "s|^(./share/man/.*)|\1.gz|; s|^$documents/CHANGELOG.md$|$documents/changelog.gz|
        s|/zsh/site-functions/|/zsh/vendor-completions/|; s|^$documents/LICENSE$|$documents/copyright|; \$a $documents/changelog.Debian.gz" | LC_ALL=C sort
}
diff <(names "$work/installed" | as_debian_has_it) <(names "$work/package/usr")
diff <({ names "$work/installed"; printf './%s\n' install uninstall; } | LC_ALL=C sort) \
    <(names "$work/archive")

documents=$work/package/usr/${documents#./}
diff <(zcat "$documents/changelog.gz") "$source/CHANGELOG.md"
words() { tr -s '\n .' ' ' <"$1"; }
[[ $(words "$documents/copyright") == *"$(sed 1,4d "$source/LICENSE" | words /dev/stdin)"* ]]
zcat "$documents/changelog.Debian.gz" | head -n 1 | grep -qF "vellumo-designer ($version-1)"
[ "$(date -ud "$(zcat "$documents/changelog.Debian.gz" | sed -n '/^ -- /{s/.*>  //p;q}')" +%F)" = "$date" ]

export QT_QPA_PLATFORM=none-such
for prefix in "$work/package/usr" "$work/archive"; do
    "$prefix/bin/vellumo" create -o "$work/made/" "$source/examples/SiteVisit.vmp" >/dev/null
    "$prefix/bin/vellumo" verify "$work/made/SiteVisit.prc" "$source/examples/SiteVisit.vmp"
    rm "$work/made/SiteVisit.prc"
    [ "$("$prefix/bin/vellumo-designer" --version)" = "vellumo-designer $version" ]
done
# No link of the documents leads nowhere.
for page in "$documents"/*.md "$documents"/docs/*.md; do
    links=$(grep -oE '\]\([^):#]+' "$page" | sed 's/^](//; /^https\?$/d') || continue # it has none
    while IFS= read -r link; do
        [ -e "$(dirname "$page")/$link" ] || { printf '%s: %s leads nowhere\n' "$page" "$link" >&2; exit 1; }
    done <<<"$links"
done
printf 'passed\n'
