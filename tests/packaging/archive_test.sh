#!/usr/bin/env bash
# archive_test.sh PACKAGES VELLUMO PROJECT: the archive, installed by one user in a home with blanks, found
# and started by a desktop, replaced, and taken back.
. "$(dirname -- "$0")/packages.sh"
wants gio desktop-file-validate update-mime-database
programs=$(dirname -- "$2") project=$3
. "$(dirname -- "$0")/../end_to_end/screen.sh"

export HOME="$work/a home of \"\$mine\""
unset XDG_CONFIG_HOME XDG_DATA_HOME
mkdir -p "$HOME/.local/bin" "$HOME/.local/share/applications" "$work/un packed"
printf '[Desktop Entry]\nType=Application\nName=Other\nExec=true\n' \
    >"$HOME/.local/share/applications/other.desktop"
update-desktop-database "$HOME/.local/share/applications"
cp "$project" "$HOME/one form.vmp"
tar -xzf "$archive" -C "$work/un packed" --strip-components=1
# What a program that a desktop starts writes for itself.
listed() {
    (cd "$HOME" && find . \( -path ./.config -o -path ./.cache -o -path ./Documents \) -prune -o -print |
        LC_ALL=C sort)
}
listed >"$work/before"
run() { "$@" >"$work/told" 2>&1 || { cat "$work/told" >&2; fail "$*"; }; }

# In the user's own folders.
run "$work/un packed/install"
grep -qF '.local/bin, where vellumo is' "$work/told" || fail 'nothing was said of PATH'
rm -r "$work/un packed/lib" # what was installed needs it no more
entry="$HOME/.local/share/applications/vellumo-designer.desktop"
desktop-file-validate "$entry"
# is_of FILE TYPE: for the desktop.
is_of() {
    [[ $(gio info -a standard::content-type "$1") == *"application/$2" ]] || fail "the media type of $1"
}
is_of "$HOME/one form.vmp" x-vellumo-project
[[ $(gio mime application/x-vellumo-project) == *vellumo-designer.desktop* ]] || fail 'nothing opens a project'
(cd "$work" && "$HOME/.local/bin/vellumo" create -o "$work/made.prc" "$HOME/one form.vmp" >/dev/null)
"$HOME/.local/bin/vellumo" verify "$work/made.prc" "$project"
is_of "$work/made.prc" x-vellumo-database
# What others have under that ending stays what the system takes it for.
for other in applOthr BOOKMOBI; do
    cp "$work/made.prc" "$work/$other.prc"
    printf %s $other | dd of="$work/$other.prc" bs=1 seek=60 conv=notrunc status=none
    theirs=$(XDG_DATA_HOME=/none gio info -a standard::content-type "$work/$other.prc")
    is_of "$work/$other.prc" "${theirs##*application/}"
done
gio launch "$entry" "$HOME/one form.vmp" 2>"$work/designer.log"
await 20 'no main window' is_main
keys ctrl+q
await 10 'the designer does not end' counted 0

# A newer version takes its place; settings are the user's own, and so is what they changed, twice over.
example="$HOME/.local/share/doc/vellumo-designer/examples/SiteVisit.vmp"
printf '<!-- mine -->\n' >>"$example"
printf 'Comment[de]=mine\n' >>"$entry"
sha256sum "$example" "$entry" >"$work/changed"
settings="$HOME/.local/lib/vellumo-designer/settings.ini"
printf '<Vmdesigner><ShowOpenForm>0</ShowOpenForm></Vmdesigner>' >"$settings"
tar -xzf "$archive" -C "$work/un packed" --strip-components=1
for _ in twice over; do
    run "$work/un packed/install"
    grep -qF "it is yours: $example" "$work/told" || fail 'nothing was said of what was changed'
    sha256sum --check --quiet "$work/changed" || fail 'what was changed was lost'
done
[ -s "$settings" ] || fail 'the settings were lost'
sed -i 's/^Exec=/Exec=env MINE=1 /' "$entry"
sha256sum "$example" "$entry" >"$work/changed"
run "$HOME/.local/lib/vellumo-designer/uninstall"
grep -qF "$settings" "$work/told" || fail 'nothing was said of the settings'
grep -qF "changed it: $example" "$work/told" || fail 'nothing was said of what stays'
for _ in once more; do
    sha256sum --check --quiet "$work/changed" || fail 'what was changed was removed'
    run "$work/un packed/install"
    grep -qF "it is yours: $entry" "$work/told" || fail 'nothing was said of what stayed'
    sha256sum --check --quiet "$work/changed" || fail 'what was changed was lost by a new installation'
    run "$HOME/.local/lib/vellumo-designer/uninstall"
done
sha256sum --check --quiet "$work/changed" || fail 'what was changed was removed after all'
rm -r "$HOME/.local/share/doc" "$entry"
[ "$(listed | diff "$work/before" - | sed -n 's/^> //p')" = "./.local/lib
./.local/lib/vellumo-designer
./.local/lib/vellumo-designer/settings.ini" ] || fail 'more than the settings was left'
run "$work/un packed/install" # once more, on what was left
rm "$settings"
run "$work/un packed/uninstall"
listed | diff "$work/before" - | grep -vx '> ./.local/lib' | grep '^[<>]' && fail 'something was left'
rm -rf "$HOME/.local/lib"

# What somebody else has under one of our names stays theirs, also what a link leads to.
mkdir -p "$HOME/.local/share/man/man1" "$HOME/.local/share/bash-completion/completions"
printf 'theirs\n' | tee "$HOME/.local/share/man/man1/pilrc.1" >"$HOME/dotfile"
ln -s "$HOME/dotfile" "$HOME/.local/share/bash-completion/completions/vellumo"
listed >"$work/theirs"
run "$work/un packed/install"
grep -qF 'it is yours' "$work/told" || fail 'nothing was said of what is theirs'
run "$work/un packed/uninstall"
[ "$(cat "$HOME/.local/share/man/man1/pilrc.1" "$HOME/dotfile")" = $'theirs\ntheirs' ] || fail 'theirs was changed'
listed | diff "$work/theirs" - || fail 'something was left or taken beside what is theirs'
rm -r "$HOME/.local/share/man" "$HOME/.local/share/bash-completion" "$HOME/dotfile"

# The folder of the programs can be removed by hand, and all installed again.
run "$work/un packed/install"
printf '<!-- mine -->\n' >>"$example"
rm -r "$HOME/.local/lib"
run "$work/un packed/install"
grep -qF "it is yours: $example" "$work/told" || fail 'nothing was said of what no list has'
run "$work/un packed/uninstall"
grep -q mine "$example" || fail 'what was changed was lost with the list'
rm "$example"
find "$HOME/.local" -mindepth 2 -type d -empty -delete # whose they were is forgotten
listed | diff "$work/before" - || fail 'something was left of what no list had'

# The same folder by another name is the same; what no sum vouches for is the user's.
run "$work/un packed/install"
listed >"$work/installed"
HOME="$HOME/" run "$work/un packed/install"
listed | diff "$work/installed" - || fail 'something was lost by another name of the same folder'
printf '<!-- mine -->\n' >>"$example"
rm "$HOME/.local/lib/vellumo-designer/installed.sums"
run "$work/un packed/install"
grep -q mine "$example" || fail 'what was changed was lost with the sums'
run "$work/un packed/uninstall"
rm "$example"
find "$HOME/.local/share/doc" -type d -empty -delete
listed | diff "$work/before" - || fail 'something was left under another name'

# Two installations keep out of each other's way.
run "$work/un packed/install"
listed >"$work/installed"
! "$work/un packed/install" "$HOME/other" 2>"$work/told" || fail 'over the menu of another'
XDG_DATA_HOME="$HOME/other data" run "$work/un packed/install" "$HOME/other"
rm "$HOME/other/lib/vellumo-designer/installed.txt"
! "$HOME/other/lib/vellumo-designer/uninstall" 2>"$work/told" || fail 'uninstall took back another installation'
rm -r "$HOME/other" "$HOME/other data"
listed | diff "$work/installed" - || fail 'the other installation was touched'
run "$work/un packed/uninstall"

# A newer version that cannot be written leaves one that works; it can be tried again, and what only an
# older one had is gone.
run "$work/un packed/install"
printf '<!-- mine -->\n' >>"$example"
cp -a "$work/un packed" "$work/newer"
mkdir "$work/newer/share/zzz"
printf 'new\n' | tee "$work/newer/share/zzz/page" >"$HOME/.local/share/zzz" # where a folder has to be
rm "$work/newer/share/doc/vellumo-designer/SECURITY.md" "$work/newer/share/doc/vellumo-designer/examples/SiteVisit.vmp"
! "$work/newer/install" >"$work/told" 2>&1 || fail 'a success that was none'
grep -qF 'broken off' "$work/told" || fail 'nothing was said of what was broken off'
"$HOME/.local/bin/vellumo" --version >/dev/null || fail 'the older version was taken away'
rm "$HOME/.local/share/zzz"
run "$work/newer/install"
grep -qF "changed it: $example" "$work/told" || fail 'nothing was said of what the newer version has not'
[ ! -e "$HOME/.local/share/doc/vellumo-designer/SECURITY.md" ] || fail 'what the newer version has not stayed'
[ -s "$HOME/.local/share/zzz/page" ] || fail 'what the older version had not is missing'
ln -sf /bin/true "$HOME/.local/bin/vellumo"
run "$work/newer/uninstall"
[ "$(readlink "$HOME/.local/bin/vellumo")" = /bin/true ] || fail 'a link of their own was removed'
rm -r "$HOME/.local/bin/vellumo" "$HOME/.local/share/doc"
rm -r "$work/newer"
listed | diff "$work/before" - || fail 'something was left of two versions'

# PATH may name the folder by another way.
ln -s .local "$HOME/mine too"
PATH="$HOME/mine too/bin:$PATH" run "$work/un packed/install"
! grep -q PATH "$work/told" || fail 'a folder of PATH was not known'
run "$work/un packed/uninstall"
rm "$HOME/mine too"

# Elsewhere.
export XDG_DATA_HOME="$HOME/my data"
run "$work/un packed/install" "$HOME/my programs"
[ -s "$XDG_DATA_HOME/mime/mime.cache" ] || fail 'the media types elsewhere'
[ "$("$HOME/my programs/bin/vellumo" --version)" = "$("$2" --version)" ] || fail 'vellumo elsewhere'
desktop-file-validate "$XDG_DATA_HOME/applications/vellumo-designer.desktop"
XDG_DATA_HOME=/elsewhere run "$HOME/my programs/lib/vellumo-designer/uninstall"
listed | diff "$work/before" - || fail 'something was left elsewhere'

# What is broken off can be tried again, or taken back.
export XDG_DATA_HOME="$HOME/full data"
mkdir "$XDG_DATA_HOME"
printf 'in the way\n' >"$XDG_DATA_HOME/mime" # where a folder has to be
listed >"$work/before"
! "$work/un packed/install" "$HOME/my programs" >"$work/told" 2>&1 || fail 'a success that was none'
grep -qF 'broken off' "$work/told" || fail 'nothing was said of what is left'
run "$work/un packed/uninstall" "$HOME/my programs"
listed | diff "$work/before" - || fail 'something was left of what was broken off'
! "$work/un packed/install" "$HOME/my programs" 2>/dev/null >&2 || fail 'a success that was none'
rm "$XDG_DATA_HOME/mime"
run "$work/un packed/install" "$HOME/my programs"
! "$work/un packed/install" "$HOME/other" 2>"$work/told" || fail 'over the menu of another'
grep -qF 'of another installation' "$work/told" || fail 'nothing was said of another installation'
run "$HOME/my programs/lib/vellumo-designer/uninstall"
rmdir "$XDG_DATA_HOME"

# Where the programs do not run, nothing is installed.
mkdir "$work/cut off"
cp -a "$work/un packed/." "$work/cut off"
mv "$work/cut off/lib/vellumo-designer/vellumo" "$work/cut off/lib/vellumo-designer/kept"
printf '#!/bin/sh\necho "a library is missing" >&2\nexit 127\n' >"$work/cut off/lib/vellumo-designer/vellumo"
chmod +x "$work/cut off/lib/vellumo-designer/vellumo"
listed >"$work/before"
! "$work/cut off/install" 2>"$work/told" || fail 'programs that do not run were installed'
grep -qF 'a library is missing' "$work/told" || fail 'nothing was said of what is missing'
listed | diff "$work/before" - || fail 'something was installed'

# Its help is its own.
[ "$("$work/un packed/install" --help | wc -l)" -le 7 ] || fail 'the help of install'

# Never over another program of that name.
mkdir -p "$HOME/my programs/bin"
printf 'mine\n' >"$HOME/my programs/bin/vellumo"
listed >"$work/before"
! "$work/un packed/install" "$HOME/my programs" 2>"$work/told" || fail 'over another program'
grep -qF 'is another program' "$work/told" || fail 'nothing was said of another program'
listed | diff "$work/before" - || fail 'something was changed'
printf 'passed\n'
