# Sourced by the test of the Debian package: a system that has nothing but what the package asks for.

# closure PACKAGE...: these and all that they need, as they are installed here.
closure() {
    local needed
    needed=$(apt-cache depends --recurse --important --installed "$@" | grep -v '^[ <]')
    # Some are other names of what is installed.
    { dpkg-query -W -f '${Package} ${Status}\n' $needed 2>/dev/null || true; } |
        sed -n 's/ install ok installed$//p'
}

# copy_files ROOT: the files of the packages whose names come in, and what their scripts made of them.
copy_files() {
    local link
    xargs dpkg-query -L | grep -vE '^/usr/share/(doc|man|locale|info)/|^/\.$|^[^/]' | LC_ALL=C sort -u |
        tar -c -C / --no-recursion --ignore-failed-read -T - 2>/dev/null | tar -x -C "$1"
    find /usr/bin /usr/sbin -lname '/etc/alternatives/*' | while read -r link; do
        [ ! -e "$1$(readlink -f "$link")" ] || cp -a "$link" "$1$link"
    done
    cp -a /etc/passwd /etc/group /etc/alternatives /etc/fonts "$1/etc/"
    mknod -m 666 "$1/dev/null" c 1 3
}

# tell_dpkg ROOT: the packages whose names come in are known to the root's dpkg, and no others.
tell_dpkg() {
    local name names database=$1/var/lib/dpkg
    names=$(cat)
    mkdir -p "$database/info" "$database/updates" "$database/triggers"
    xargs dpkg-query -s <<<"$names" >"$database/status"
    cp /var/lib/dpkg/info/format "$database/info/"
    for name in $names; do
        cp "/var/lib/dpkg/info/$name".* "/var/lib/dpkg/info/$name:"* "$database/info/" 2>/dev/null || true
        grep " $name\(/noawait\)\?\$" /var/lib/dpkg/triggers/File >>"$database/triggers/File" || true
    done
}

# make_root ROOT PACKAGE...: with these and what every Debian has.
make_root() {
    local root=$1 link names
    shift
    mkdir -p "$root"/{etc,dev,proc,tmp,home}
    chmod 1777 "$root/tmp"
    for link in /bin /sbin /lib /lib*; do
        [ ! -L "$link" ] || mkdir -p "$root/usr$link"
        [ ! -L "$link" ] || [ -L "$root$link" ] || cp -a "$link" "$root$link"
    done
    names=$(closure "$@" $(dpkg-query -W -f '${Essential} ${Package}\n' | sed -n 's/^yes //p'))
    copy_files "$root" <<<"$names"
    tell_dpkg "$root" <<<"$names"
    chroot "$root" ldconfig
}
