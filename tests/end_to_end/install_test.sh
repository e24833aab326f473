#!/usr/bin/env bash
# install_test.sh VELLUMO CMAKE BUILD SOURCE VERSION BIN LIB DOC SHARE: installs from the build folder
# below a temporary root, and under another prefix without one; nothing but what is listed here is
# there, in the folders BIN, LIB, DOC and SHARE. The programs then work for an ordinary user who may write to none
# of it.
set -euo pipefail

cmake=$2 build=$3 source=$4 version=$5
bin=$6 lib=$7 doc=$8 share=$9
work=$(mktemp -d)
designer=
end_designer() {
    [ -z "$designer" ] || kill "$designer" 2>/dev/null || true
    wait
    designer=
}
trap 'end_designer; chmod -R u+w "$work"; rm -rf "$work"' EXIT
chmod 755 "$work"
umask 022

expected() {
    printf '%s\n' "$bin"/{vellumo,vellumo-designer} \
        "$lib"/{Vellumo_Help.chm,build-prc,pilrc,vellumo,vellumo-designer} \
        "$share/applications/vellumo-designer.desktop" \
        "$share/icons/hicolor"/{16x16,22x22,24x24,32x32,48x48}/apps/vellumo-designer.png \
        "$share/icons/hicolor"/{64x64,128x128,256x256,512x512}/apps/vellumo-designer.png \
        "$share/icons/hicolor/scalable/apps/vellumo-designer.svg" \
        "$share/metainfo/org.vellumo.Designer.metainfo.xml" \
        "$share/mime/packages/vellumo-designer.xml" \
        "$share/man/man1"/{vellumo,vellumo-designer,pilrc,build-prc}.1 "$share/man/man5/vmp.5" \
        "$share/bash-completion/completions/vellumo" "$share/zsh/site-functions/_vellumo" \
        "$share/fish/vendor_completions.d/vellumo.fish" \
        "$doc"/{CHANGELOG,CONTRIBUTING,README,SECURITY}.md "$doc/LICENSE"
    (cd "$source" && find docs examples -type f) | sed "s|^|$doc/|"
}
# holds_the_list FOLDER: whether exactly that was installed there, and open to everybody.
holds_the_list() {
    diff <(expected | LC_ALL=C sort) <(cd "$1" && find . ! -type d | sed 's|^\./||' | LC_ALL=C sort)
    [ -z "$(find "$1" ! -type l ! -perm -a=r -o -type d ! -perm -a=x)" ]
}

DESTDIR=$work/root "$cmake" --install "$build" --prefix /opt/vellumo >"$work/log"
[ "$(ls -A "$work/root")" = opt ]
[ "$(ls -A "$work/root/opt")" = vellumo ]
holds_the_list "$work/root/opt/vellumo"
"$cmake" --install "$build" --prefix "$work/other prefix" >"$work/log"
holds_the_list "$work/other prefix"

as_ordinary_user=()
if [ "$(id -u)" -eq 0 ]; then
    as_ordinary_user=(setpriv --reuid=65534 --regid=65534 --clear-groups)
fi
mkdir "$work/home" "$work/out"
chmod 777 "$work/home" "$work/out"
export HOME=$work/home XDG_CONFIG_HOME=$work/home/.config QT_QPA_PLATFORM=none-such
unset XDG_DATA_HOME XDG_STATE_HOME
cd /
for prefix in "$work/root/opt/vellumo" "$work/other prefix"; do
    chmod -R a-w "$prefix"
    printed=$("${as_ordinary_user[@]}" "$prefix/$bin/vellumo" create -o "$work/out" \
        "$prefix/$doc/examples/SiteVisit.vmp")
    [ -s "$printed" ]
    "$prefix/$bin/vellumo" verify "$printed" "$prefix/$doc/examples/SiteVisit.vmp"
    [ "$("$prefix/$bin/vellumo-designer" --version)" = "vellumo-designer $version" ]
    # Both companions are found beside the program that the link leads to.
    "${as_ordinary_user[@]}" env PATH=/usr/bin:/bin "$prefix/$bin/vellumo" create \
        -o "$work/out" --pilrc "$prefix/$lib/pilrc" "$prefix/$doc/examples/WaterPoint.vmp"
done

# A start without a project writes the settings file, into the user's folder.
settings=$HOME/.local/share/vellumo-designer/settings.ini
http_proxy=http://127.0.0.1:9 https_proxy=http://127.0.0.1:9 no_proxy='' QT_QPA_PLATFORM=offscreen \
    "${as_ordinary_user[@]}" "$work/root/opt/vellumo/$bin/vellumo-designer" 2>"$work/told" &
designer=$!
deadline=$((SECONDS + 60))
until [ -s "$settings" ]; do
    if ! kill -0 "$designer" || [ "$SECONDS" -ge "$deadline" ]; then
        cat "$work/told" >&2
        exit 1
    fi
    sleep 0.1
done
[ -n "$(find "${settings%/*}" -prune -perm 700)" ]
printf 'passed\n'
