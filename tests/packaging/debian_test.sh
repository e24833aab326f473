#!/usr/bin/env bash
# debian_test.sh PACKAGES VELLUMO PROJECT: the Debian package from its first installation to its removal,
# in a system that has nothing but what it asks for, used by an ordinary user. What is mounted for
# it is seen by this test alone.
. "$(dirname -- "$0")/packages.sh"
wants dpkg apt-cache unshare
[ "$(id -u)" -eq 0 ] || { printf 'skipped: it takes root to install a package\n'; exit 77; }
if [ "${4:-}" != --inside ]; then
    unshare --mount true || { printf 'skipped: nothing can be mounted\n'; exit 77; }
    exec unshare --mount "$0" "$@" --inside
fi

vellumo=$2 project=$3
programs=$(dirname -- "$vellumo")
. "$(dirname -- "$0")/../end_to_end/screen.sh"
. "$(dirname -- "$0")/clean_root.sh"
root=$work/root home=$work/root/home/person
remove_all() {
    kill "${started[@]}" ${designer:-} 2>/dev/null || true
    wait 2>/dev/null || true
    umount -l "$root/proc" 2>/dev/null || true
    rm -rf --one-file-system "$work"
}
trap remove_all EXIT

make_root "$root" $(dpkg-deb -f "$package" Depends | tr ',' '\n' | awk '{ print $1 }') 2>"$work/root.log" ||
    { cat "$work/root.log" >&2; exit 1; }
mount --bind /proc "$root/proc"
install -d -o 1000 -g 1000 -m 700 "$home"
install -o 1000 -g 1000 "$project" "$home/inspection.vmp"
chroot "$root" update-mime-database /usr/share/mime

# The same files under an older version.
dpkg-deb -R "$package" "$work/older"
sed -i 's/^Version: .*/Version: 1.0.0-1/' "$work/older/DEBIAN/control"
dpkg-deb -b -Znone "$work/older" "$work/older.deb" >"$work/log"

in_root() { chroot "$root" "$@" >>"$work/dpkg.log" 2>&1 || { cat "$work/dpkg.log" >&2; fail "$@"; }; }
install_package() {
    cp "$1" "$root/tmp/vellumo.deb"
    in_root dpkg -i /tmp/vellumo.deb
    rm "$root/tmp/vellumo.deb"
}
version() { chroot "$root" dpkg-query -W -f '${Version}' vellumo-designer; }
# What is there besides the user's files and the diary of dpkg.
listed() {
    find "$root" -xdev \( -path "$root/home" -o -path "$root/tmp" -o -path "$root/var/lib/dpkg" \
        -o -path "$root/var/log" -o -path "$root/proc" \) -prune -o -printf '%y %s %P %l\n' |
        sed 's/^d [0-9]*/d/' | LC_ALL=C sort
}
as_person() {
    exec chroot --userspec=1000:1000 "$root" env -i HOME=/home/person PATH=/usr/bin:/bin DISPLAY="$DISPLAY" \
        LC_ALL=C.UTF-8 http_proxy="$http_proxy" https_proxy="$https_proxy" "$@"
}
# As a desktop does it, by the line of the menu's entry.
start() {
    local command
    command=$(sed -n 's/^Exec=\(.*\) %f$/\1/p' "$root/usr/share/applications/vellumo-designer.desktop")
    as_person $command "$@" 2>"$work/designer.log" &
    designer=$!
}

listed >"$work/before"
install_package "$work/older.deb"
[ "$(version)" = 1.0.0-1 ] || fail 'the older version'
settings=$home/.local/share/vellumo-designer/settings.ini
start
await 20 'no splash' is_splash
window 'Welcome'
[ "$(stat -c '%u %a' "${settings%/*}")" = '1000 700' ] || fail 'the folder of the settings'
keys Return
await 20 'no main window' is_main
quit
printf '<Vmdesigner><ShowOpenForm>0</ShowOpenForm></Vmdesigner>' >"$settings"

start /home/person/inspection.vmp
database="Documents/My Vellumo/SiteVisit.prc"
review_and_create "$home/$database"
quit

install_package "$package"
[ "$(version)" = "$(dpkg-deb -f "$package" Version)" ] || fail 'the upgrade'
grep -q '<ShowOpenForm>0<' "$settings" || fail 'the settings were lost'
start
await 20 'no splash after the upgrade' is_splash
await 20 'no main window after the upgrade' is_main
quit
(as_person vellumo verify "/home/person/$database" /home/person/inspection.vmp) || fail 'the database'
(as_person vellumo create -o /home/person/again.prc /home/person/inspection.vmp) || fail 'vellumo create'
chroot "$root" grep -q x-vellumo-project /usr/share/mime/globs2 || fail 'no media type'

touch "$root/usr/lib/vellumo-designer/settings.ini" # of root, who started it, too
in_root dpkg --purge vellumo-designer
listed | diff "$work/before" - || fail 'something was left over'
[ -s "$settings" ] && [ -s "$home/again.prc" ] && [ -s "$home/$database" ] || fail "the user's files"
printf 'passed\n'
