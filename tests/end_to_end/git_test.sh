#!/usr/bin/env bash
# git_test.sh VELLUMO PROJECT: git tells what changed in projects by the recipe of the README, as an
# external diff and in its log, for what was added, changed, renamed and removed.
set -euo pipefail

vellumo=$1 project=$2
command -v git >/dev/null || {
    printf 'SKIPPED: there is no git\n'
    exit 77
}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/bin" "$work/forms"
ln -s "$vellumo" "$work/bin/vellumo"
PATH=$work/bin:$PATH
cd "$work/forms"
# Nothing of the machine's or the user's takes part.
export HOME=$work GIT_CONFIG_NOSYSTEM=1 GIT_PAGER=cat LC_ALL=C.UTF-8
export GIT_AUTHOR_NAME=Test GIT_AUTHOR_EMAIL=test@localhost
export GIT_COMMITTER_NAME=Test GIT_COMMITTER_EMAIL=test@localhost
unset XDG_CONFIG_HOME GIT_DIR GIT_WORK_TREE GIT_INDEX_FILE GIT_EXTERNAL_DIFF

git init -q
echo '*.vmp diff=vellumo' >.gitattributes
git config diff.vellumo.command 'vellumo diff --git --'
git config diff.vellumo.textconv 'f() { vellumo columns --markdown -- "$1" || cat -- "$1"; }; f'

# prints WHAT EXPECTED COMMAND...: the command succeeds and prints what is expected.
prints() {
    local what=$1 expected=$2 printed
    shift 2
    printed=$("$@") || {
        printf 'FAILED: %s: status %s\n' "$what" $? >&2
        exit 1
    }
    [ "$printed" = "$expected" ] || {
        printf 'FAILED: %s\n' "$what" >&2
        diff <(printf '%s\n' "$expected") <(printf '%s\n' "$printed") >&2
        exit 1
    }
}
# has WHAT LINE COMMAND...: the command succeeds and prints this line among others.
has() {
    local what=$1 line=$2 printed
    shift 2
    printed=$("$@") && grep -qxF -- "$line" <<<"$printed" || {
        printf 'FAILED: %s\n%s\n' "$what" "$printed" >&2
        exit 1
    }
}
# change FROM TO FILE: replaces what a pattern finds within a project, whose bytes are no UTF-8.
change() {
    LC_ALL=C grep -q "$1" "$3" || {
        printf 'FAILED: there is no %s\n' "$1" >&2
        exit 1
    }
    LC_ALL=C sed -i "s/$1/$2/" "$3"
}

odd=$'-odd \'name\' \u00e9.vmp'
cp "$project" site.vmp
cp "$project" "./$odd"
git add -A
has 'a project is added' '@@ question 1, INSPECTOR: added @@' git diff --cached -- site.vmp
has 'it has no older one' '--- /dev/null' git diff --cached -- site.vmp
git commit -qm one

change '\[1\.0\]' '[1.1]' site.vmp
prints 'a project is changed' '--- a/site.vmp
+++ b/site.vmp
@@ form version @@
-1.0
+1.1' git diff
mkdir below
prints 'from another folder' "$(git diff)" git -C below diff
change Oregon Orygun "./$odd"
prints 'a project of an odd name' "--- a/$odd
+++ b/$odd
@@ question 3, STATE: items @@
-1. Oregon
+1. Orygun" git diff -- "./$odd"
change 'Crew size' 'Crew' site.vmp
git commit -qam two

has 'the log has columns' '+| 5 | CREW | Numeric | number | Crew | How many people on site? |  |' \
    git log -p -1 -- site.vmp
has 'the log has the texts of the form' '+- form version: 1.1' git log -p -1 -- site.vmp
has 'a commit is shown by differences, too' '@@ question 5, CREW: title @@' git show --ext-diff

git mv site.vmp moved.vmp
change '\[1\.1\]' '[1.2]' moved.vmp
prints 'a project is renamed' '--- a/site.vmp
+++ b/moved.vmp
@@ form version @@
-1.1
+1.2' git diff -M HEAD
git commit -qam three
git rm -q moved.vmp
has 'a project is removed' '+++ /dev/null' git diff --cached
has 'its questions are gone' '@@ question 10, SIGNATURE: removed @@' git diff --cached

git commit -qm four

# While a project is not merged, git still tells of it, and of the next one.
git checkout -qb other
cp "$project" last.vmp
git add last.vmp
change 'Asset tag' 'Asset' "./$odd"
git commit -qam five
git checkout -q -
cp "$project" last.vmp
git add last.vmp
change 'Asset tag' 'Tag' "./$odd"
git commit -qam six
if git merge other >/dev/null 2>&1; then
    printf 'FAILED: git has merged two changes of one text\n' >&2
    exit 1
fi
change '\[1\.0\]' '[1.9]' last.vmp
has 'the next project' '@@ form version @@' git diff
printed=$(git diff 2>/dev/null)
[[ $printed == *'++<<<<<<< HEAD'*'<![CDATA[Tag]]>'* ]] || {
    printf 'FAILED: an unmerged project is not shown as it is\n%s\n' "$printed" >&2
    exit 1
}
has 'an unmerged project beside one side' "* Unmerged path $odd" git diff --ours
has 'it is told that it cannot be read' "@@ $odd:37: not well-formed (invalid token) @@" git diff HEAD
has 'the next project beside the last commit' '@@ form version @@' git diff HEAD
