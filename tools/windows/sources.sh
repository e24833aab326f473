# Sourced by tools/build-windows: gets the sources of Debian's packages. The system's own lists of
# packages stay as they are.

# The lines that have apt read sources from the mirror and the release that this system has.
source_lines() {
    apt-get indextargets --format '$(LABEL) $(REPO_URI) $(CODENAME)' 'Created-By: Packages' |
        awk '$1 ~ /^Debian/ && !known[$2 $3]++ {
            print "deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg]", $2, $3, "main"
        }'
}

apt_for_sources() {
    apt-get -q -o "Dir::Etc::SourceList=$apt/sources.list" -o Dir::Etc::SourceParts=/dev/null \
        -o "Dir::State::Lists=$apt/lists" -o "Dir::Cache=$apt/cache" -o APT::Sandbox::User= "$@"
}

list_sources() {
    mkdir -p "$apt/lists" "$apt/cache"
    source_lines >"$apt/sources.list"
    apt_for_sources update
}

# get_source PACKAGE: unpacks it, with Debian's patches, into a folder of that name in $sources. Where
# the mirror has not got the latest, which came after the release, it is that of the release.
get_source() {
    local release
    release=$(. /etc/os-release && printf %s "$VERSION_CODENAME")
    mkdir -p "$sources"
    (
        cd "$sources"
        rm -rf "$1" "$1"_*
        apt_for_sources source --download-only "$1" || {
            rm -rf "$1"_*
            apt_for_sources source --download-only "$1/$release"
        }
        dpkg-source --no-check -x "$1"_*.dsc "$1" # apt-get has checked the hashes that are signed
    )
}
