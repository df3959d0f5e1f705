#!/usr/bin/env bash
# The installed launcher: it makes the study folder under the user's data folder, brings the
# course there up to date, leaves the candidate's files as they are and starts the program in
# the study folder. Installs the build into a temporary prefix and puts a stand-in for the
# program there, which records the folder it was started in.
#   launcher_test.sh CMAKE BUILD_DIR
set -euo pipefail
cmake=$1 build_dir=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" # the launcher runs here, so a relative data folder would land in the temporary folder
prefix="$work/prefix"
"$cmake" --install "$build_dir" --prefix "$prefix" > /dev/null

failures=0
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }

# The menu entry starts the launcher and names an installed icon.
entry="$prefix/share/applications/academy.orlanda.Tessera.desktop"
[ -x "$prefix/bin/$(sed -n 's/^Exec=//p' "$entry")" ] || fail "Exec of the menu entry is not installed"
icon=$(sed -n 's/^Icon=//p' "$entry")
[ -f "$prefix/share/icons/hicolor/scalable/apps/$icon.svg" ] || fail "icon $icon is not installed"

mapfile -t programs < <(find "$prefix" -type f -name tessera ! -path "$prefix/bin/*")
[ ${#programs[@]} -eq 1 ] || { echo "FAIL: expected one installed program, found ${#programs[@]}"; exit 1; }
[ -f "$(dirname "${programs[0]}")/libtessera_tone.so" ] || fail "the tone module is not beside the program"
printf '#!/bin/sh\npwd > "$STARTED_IN"\n' > "${programs[0]}"
course="$prefix/share/tessera/course"
[ -f "$course/Tessera" ] || fail "the course is not installed"

# Runs the launcher as a user with HOME $1 and XDG_DATA_HOME $2 ("-" for unset), then checks
# that it started the program in study folder $3 holding the whole installed course.
launch_and_check() {
    local home=$1 data_home=$2 study=$3
    mkdir -p "$home"
    local env=(HOME="$home" STARTED_IN="$work/started-in" PATH="$PATH")
    [ "$data_home" = - ] || env+=(XDG_DATA_HOME="$data_home")
    rm -f "$work/started-in"
    env -i "${env[@]}" "$prefix/bin/tessera" || { fail "launcher failed for $study"; return; }
    [ "$(cat "$work/started-in" 2> /dev/null)" = "$study" ] || fail "program not started in $study"
    for file in "$course"/*; do
        cmp -s "$file" "$study/${file##*/}" || fail "$study/${file##*/} differs from the course"
    done
    [ -z "$(find "$study" -name '.course.*')" ] || fail "partial copies left in $study"
}

# Where the study folder goes: case | HOME | XDG_DATA_HOME | study folder
while IFS='|' read -r name home data_home study; do
    echo "case: $name"
    launch_and_check "$work/$home" "${data_home/@/$work/}" "$work/$study"
    [ "$(stat -c %a "$work/$study")" = 700 ] || fail "$name: study folder is not private"
done << 'CASES'
data home set|a/home|@a/data|a/data/tessera
data home unset|b/home|-|b/home/.local/share/tessera
data home empty|c/home||c/home/.local/share/tessera
data home relative|d/home|relative/data|d/home/.local/share/tessera
CASES

echo "case: later start keeps the candidate's files"
study="$work/e/data/tessera"
mkdir -p "$study/Backups"
echo "old course" > "$study/Tessera"
echo "progress" > "$study/TesseraConfig.MS"
echo "notes" > "$study/TesseraNoteBook.RTF"
echo "journal" > "$study/TesseraConfig.MS.journal"
echo "backup" > "$study/Backups/TesseraConfig.MS.1"
own_files() { (cd "$study" && find . -type f ! -name 'Tessera' ! -name '*.gph' -exec sha256sum {} + | sort); }
before=$(own_files)
launch_and_check "$work/e/home" "$work/e/data" "$study"
[ "$(own_files)" = "$before" ] || fail "the candidate's files changed"

[ "$failures" -eq 0 ] || { echo "$failures failure(s)"; exit 1; }
echo "launcher: all cases passed"
