#!/usr/bin/env bash
# The package as a user gets it. Builds the package target, unpacks the .tar.gz into a new
# folder whose path holds a blank, and uses the program from there:
#   - the package holds the program and its files, the README and the user's guide with its
#     pictures, and not the developers' documents;
#   - --version and --help answer without a display, an unknown option gets exit code 2;
#   - the program finds every library, and the README's Install section names the Debian
#     packages they come from;
#   - the icons are the window icon's picture; the .desktop files pass desktop-file-validate;
#   - --install-desktop-entry and --remove-desktop-entry under a temporary HOME and under
#     XDG_DATA_HOME;
#   - on a display of its own (Xvfb), started through the installed menu entry and driven by
#     key presses and clicks (xdotool): a configuration saved in the paths dialog and
#     lmList.dat exported land beside the program;
#   - the folder made read-only (0555): one notice at start-up, the program still runs, and a
#     save is refused without touching config.ini.
#   package_test.sh <cmake> <build folder> <version> <source folder>
set -uo pipefail

cmake=$1 build=$2 version=$3 source=$4
started=$(date +%s%N)
work=$(mktemp -d)
rm -f "$build/package_test_failure.png"
pids=()
display=

shot() {
    [ -n "$display" ] && DISPLAY=$display import -window root "$build/package_test_failure.png" \
        2>/dev/null && echo "  the screen at the failure: $build/package_test_failure.png"
}

fail() {
    echo "FAIL: $*"
    shot
    exit 1
}

cleanup() {
    for pid in "${pids[@]}"; do
        kill "$pid" 2>/dev/null
    done
    wait 2>/dev/null
    chmod -R u+w "$work" 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT

# elapsed: the seconds since the start, to a tenth.
elapsed() {
    local tenths=$((($(date +%s%N) - started) / 100000000))
    echo "$((tenths / 10)).$((tenths % 10))"
}

step() {
    printf '[%5s s] %s\n' "$(elapsed)" "$*"
}

# until_true <seconds> <command...>: polls the command every tenth of a second. The command
# is run anew each time, so a count to wait for is taken inside a function, never as an
# argument computed once.
until_true() {
    local deadline=$(($(date +%s%N) + $1 * 1000000000))
    shift
    until "$@"; do
        [ "$(date +%s%N)" -lt "$deadline" ] || return 1
        sleep 0.1
    done
}

for tool in desktop-file-validate xdotool Xvfb gio compare identify ldd dpkg; do
    command -v "$tool" >/dev/null || fail "$tool is missing; tools/install-deps installs it"
done

# --- The package ---------------------------------------------------------------------------
step "building the package target"
"$cmake" --build "$build" --target package >"$work/package.log" 2>&1 ||
    { tail -30 "$work/package.log"; fail "the package target did not build"; }
name="Umbrakit-$version-Linux"
tarball="$build/$name.tar.gz"
[ -f "$tarball" ] || fail "the package target made no $tarball"

# The program and its files, and the level builder's documents: the user's guide with every
# picture it shows, and the screen reader guide where there is one. The developers' documents
# stay in the source.
guide_pictures=$(grep -o 'images/[a-z0-9-]*\.png' "$source/docs/user-guide.md" | sort -u)
[ -n "$guide_pictures" ] || fail "docs/user-guide.md shows no pictures"
expected=$({
    printf '%s\n' LICENSE LiberationSans-LICENSE.txt README.md umbrakit umbrakit-256.png \
        umbrakit-32.png umbrakit-48.png umbrakit.desktop docs/user-guide.md
    [ -f "$source/docs/screen-readers.md" ] && echo docs/screen-readers.md
    sed 's|^|docs/|' <<<"$guide_pictures"
} | sed "s|^|$name/|" | sort)
listed=$(tar -tzf "$tarball" | grep -v '/$' | sort)
[ "$(tar -tzf "$tarball" | cut -d/ -f1 | sort -u)" = "$name" ] && [ "$listed" = "$expected" ] ||
    fail "the package holds other files than one folder with the program, its files and the guide:
$(diff <(echo "$expected") <(echo "$listed"))"

unpacked="$work/my levels"
mkdir -p "$unpacked"
tar -xzf "$tarball" -C "$unpacked" || fail "the package does not unpack"
folder="$unpacked/$name"
program="$folder/umbrakit"
[ -x "$program" ] || fail "the unpacked program is not executable"
step "unpacked into $folder"

# What the README and the guide show and link to in the package is there: their pictures, and
# the guide the README sends the user to.
for document in README.md docs/user-guide.md; do
    for target in $(grep -o '](\(docs/\)\?\(images/[a-z0-9-]*\.png\|user-guide\.md\))' \
        "$folder/$document" | sed 's/^](\(.*\))$/\1/' | sort -u); do
        [ -f "$(dirname "$folder/$document")/$target" ] ||
            fail "$document shows or links to $target, which the package lacks"
    done
done
grep -q '](docs/user-guide.md)' "$folder/README.md" || fail "the packed README does not link to the guide"
grep -q '](docs/images/main-window[a-z-]*\.png)' "$folder/README.md" ||
    fail "the packed README shows no picture of the main window"

# --- Without a display ---------------------------------------------------------------------
# expect_output <what> <expected exit code> <expected standard output> <command...>
expect_run() {
    local what=$1 code=$2 out=$3
    shift 3
    local actual actual_code
    actual=$("$@" 2>"$work/stderr")
    actual_code=$?
    [ "$actual_code" = "$code" ] ||
        fail "$what: exit code $actual_code, not $code; standard error: $(cat "$work/stderr")"
    [ "$out" = "*" ] || [ "$actual" = "$out" ] ||
        fail "$what printed \"$actual\", not \"$out\""
    printf '%s' "$actual" >"$work/stdout"
}
bare=(env -i PATH=/usr/bin:/bin LANG=C.UTF-8)
expect_run "--version" 0 "Umbrakit $version" "$program" --version
expect_run "--version without DISPLAY, QT_QPA_PLATFORM, HOME" 0 "Umbrakit $version" \
    "${bare[@]}" "$program" --version
expect_run "--help without a display" 0 "*" "${bare[@]}" "$program" --help
grep -q -- "--install-desktop-entry" "$work/stdout" || fail "--help does not name --install-desktop-entry"
[ ! -s "$work/stderr" ] || fail "--help wrote to standard error: $(cat "$work/stderr")"
expect_run "an unknown option" 2 "" "${bare[@]}" "$program" --frobnicate
[ "$(wc -l <"$work/stderr")" = 1 ] && grep -q "frobnicate" "$work/stderr" ||
    fail "an unknown option did not get one line naming it on standard error: $(cat "$work/stderr")"
step "--version, --help and an unknown option answered without a display"

# --- The system's libraries and the README -------------------------------------------------
ldd "$program" >"$work/ldd" || fail "ldd cannot read the program"
! grep -q "not found" "$work/ldd" || fail "libraries missing: $(grep "not found" "$work/ldd")"
install_section=$(awk '/^## Install/ {on = 1; next} /^## / {on = 0} on' "$folder/README.md")
[ -n "$install_section" ] || fail "the README has no Install section"
qt_files=$(awk '/libQt6/ {print $3}' "$work/ldd")
[ -n "$qt_files" ] || fail "the program links no Qt 6 library of the system"
xcb_plugin=$(ls /usr/lib/*/qt6/plugins/platforms/libqxcb.so 2>/dev/null | head -1)
[ -n "$xcb_plugin" ] || fail "the Qt platform plugin for X11 (libqxcb.so) is not installed"
# package_of <file>: the Debian package that holds it, with /usr or without (merged /usr).
package_of() {
    local real
    real=$(readlink -f "$1")
    { dpkg -S "$real" || dpkg -S "${real#/usr}"; } 2>/dev/null | head -1 | cut -d: -f1
}
for file in $qt_files "$xcb_plugin"; do
    package=$(package_of "$file")
    [ -n "$package" ] || fail "no Debian package holds $file"
    grep -qw -- "$package" <<<"$install_section" ||
        fail "the README's Install section does not name $package (for $file)"
done
step "every library found; the README names their Debian packages"

# --- Icons and the desktop file ------------------------------------------------------------
window_icon="$source/src/gui/about/umbrakit.ico"
for size in 32 48 256; do
    [ "$(identify -format '%wx%h' "$folder/umbrakit-$size.png")" = "${size}x$size" ] ||
        fail "umbrakit-$size.png is not $size by $size pixels"
done
[ "$(compare -metric AE "$window_icon" "$folder/umbrakit-32.png" null: 2>&1)" = 0 ] ||
    fail "umbrakit-32.png is not the window icon's picture"
convert "$folder/umbrakit-256.png" -sample 32x32 "$work/sampled.png"
[ "$(compare -metric AE "$window_icon" "$work/sampled.png" null: 2>&1)" = 0 ] || fail "umbrakit-256.png is not the window icon's picture, 8 times as large"
desktop-file-validate "$folder/umbrakit.desktop" ||
    fail "the packed umbrakit.desktop does not pass desktop-file-validate"
step "icons drawn from the window icon; the packed .desktop file is valid"

# --- The menu entry ------------------------------------------------------------------------
home="$work/home"
mkdir -p "$home"
entry="$home/.local/share/applications/umbrakit.desktop"
entry_files=("$entry")
for size in 32 48 256; do
    entry_files+=("$home/.local/share/icons/hicolor/${size}x$size/apps/umbrakit.png")
done
wrote=$(printf 'Wrote %s\n' "${entry_files[@]}")
expect_run "--install-desktop-entry" 0 "$wrote" "${bare[@]}" HOME="$home" "$program" \
    --install-desktop-entry
desktop-file-validate "$entry" || fail "the installed umbrakit.desktop does not pass desktop-file-validate"
grep -Fqx "Exec=\"$program\"" "$entry" || fail "the installed entry does not start $program:
$(grep Exec "$entry")"
diff <(grep -v Exec= "$folder/umbrakit.desktop") <(grep -v Exec= "$entry") >/dev/null ||
    fail "the installed entry differs from the packed one in more than the program's place"
cmp -s "$folder/umbrakit-32.png" "${entry_files[1]}" && cmp -s "$folder/umbrakit-48.png" \
    "${entry_files[2]}" && cmp -s "$folder/umbrakit-256.png" "${entry_files[3]}" ||
    fail "the installed icons are not the packed ones"

# XDG_DATA_HOME, where set, takes the place of ~/.local/share.
data="$work/data home"
expect_run "--install-desktop-entry with XDG_DATA_HOME" 0 "*" "${bare[@]}" HOME="$home" \
    XDG_DATA_HOME="$data" "$program" --install-desktop-entry
[ "$(find "$data" -type f | wc -l)" = 4 ] && [ -f "$data/applications/umbrakit.desktop" ] ||
    fail "--install-desktop-entry did not write its 4 files below XDG_DATA_HOME"
expect_run "--remove-desktop-entry with XDG_DATA_HOME" 0 "*" "${bare[@]}" HOME="$home" \
    XDG_DATA_HOME="$data" "$program" --remove-desktop-entry
[ "$(grep -c '^Removed ' "$work/stdout")" = 4 ] && [ -z "$(find "$data" -type f)" ] ||
    fail "--remove-desktop-entry did not remove the 4 files below XDG_DATA_HOME"
[ -f "$entry" ] || fail "--remove-desktop-entry with XDG_DATA_HOME removed ~/.local/share's entry"
step "menu entry written, validated and removed, in ~/.local/share and in XDG_DATA_HOME"

# --- On a display --------------------------------------------------------------------------
exec 3>"$work/display"
Xvfb -displayfd 3 -noreset -screen 0 1024x768x24 -nolisten tcp >"$work/xvfb.log" 2>&1 &
pids+=($!)
exec 3>&-
until_true 10 test -s "$work/display" || fail "Xvfb did not start: $(cat "$work/xvfb.log")"
display=":$(cat "$work/display")"
export DISPLAY=$display
mkdir -m 700 -p "$work/runtime"
gui_env=("${bare[@]}" HOME="$home" DISPLAY="$display" XDG_RUNTIME_DIR="$work/runtime")

# visible_windows <name pattern>: the ids of the shown windows whose title matches.
visible_windows() {
    xdotool search --onlyvisible --name "$1" 2>/dev/null
}
shown() {
    [ -n "$(visible_windows "$1")" ]
}
# named_window_count <test operator> <number> <name pattern>
named_window_count() {
    [ "$(visible_windows "$3" | wc -l)" "$1" "$2" ]
}
# The program's shown windows, open menus included (they have no title).
program_window_count() {
    xdotool search --onlyvisible --class umbrakit 2>/dev/null | wc -l
}
more_windows_than() {
    [ "$(program_window_count)" -gt "$1" ]
}
running() {
    kill -0 "$1" 2>/dev/null
}
not() {
    ! "$@"
}
# focus <window>: gives it the keyboard (there is no window manager to do it).
focus() {
    timeout 10 xdotool windowfocus --sync "$1" || fail "window $1 did not take the keyboard"
}
# quit <window>: File, Exit, pressed in the menu once it is open.
quit() {
    local menus
    focus "$1"
    menus=$(program_window_count)
    xdotool key alt+f
    until_true 10 more_windows_than "$menus" ||
        fail "Alt+F opened no menu"
    xdotool key x
}

# Started as the desktop's menu would start it: from the installed entry.
(cd "$work" && "${gui_env[@]}" gio launch "$entry") || fail "gio could not launch the installed entry"
until_true 20 shown '^Umbrakit$' || fail "the main window did not appear"
main=$(visible_windows '^Umbrakit$')
pid=$(xdotool getwindowpid "$main")
pids+=("$pid")
[ "$(readlink "/proc/$pid/exe")" = "$program" ] ||
    fail "the menu entry started $(readlink "/proc/$pid/exe"), not $program"
step "the installed menu entry started the unpacked program on $display"

# Select All, clicked: the 4x4 world's 16 patches.
eval "$(xdotool getwindowgeometry --shell "$main")"
menu_height=$((HEIGHT - 490)) # the window is 490 pixels high below its menu bar
xdotool mousemove --window "$main" 135 $((menu_height + 44)) click 1
# The paths dialog: the name box is its second tab stop, Save its third.
focus "$main"
xdotool key ctrl+p
until_true 10 shown '^Set Paths' || fail "Ctrl+P did not open the paths dialog"
paths=$(visible_windows '^Set Paths')
focus "$paths"
xdotool key Tab
xdotool type --delay 20 "Packaged Level"
xdotool key Tab space
config="$folder/config.ini"
until_true 10 grep -q '^\[Save=Packaged Level\]' "$config" 2>/dev/null ||
    fail "Save in the paths dialog left no config.ini with the record in $folder"
step "configuration saved through the paths dialog"

focus "$main"
xdotool key ctrl+e
until_true 10 shown '^Open$' || fail "Ctrl+E did not open the file dialog"
focus "$(visible_windows '^Open$')"
xdotool key ctrl+a
xdotool type --delay 20 "$folder/lmList.dat"
xdotool key Return
list="$folder/lmList.dat"
until_true 10 test -s "$list" || fail "the export left no lmList.dat in $folder"
# 16 records of column and row, one for each patch of the 4x4 world.
[ "$(od -An -tu1 -v "$list" | tr -s ' \n' ' ')" = \
    " 0 0 1 0 2 0 3 0 0 1 1 1 2 1 3 1 0 2 1 2 2 2 3 2 0 3 1 3 2 3 3 3 " ] ||
    fail "lmList.dat does not list the 16 patches that Select All ticked: $(od -An -tu1 "$list")"
step "lmList.dat exported through the main window"

! shown '^Read-Only Folder$' || fail "the notice of a read-only folder appeared for a writable one"
quit "$main"
until_true 10 not running "$pid" || fail "File, Exit did not end the program"
left=$(cd "$folder" && ls -A | sort | tr '\n' ' ')
[ "$left" = "LICENSE LiberationSans-LICENSE.txt README.md config.ini docs lmList.dat umbrakit umbrakit-256.png umbrakit-32.png umbrakit-48.png umbrakit.desktop " ] ||
    fail "the folder holds other files than the package's, config.ini and lmList.dat: $left"
step "the program ended through File, Exit"

expect_run "--remove-desktop-entry" 0 "$(printf 'Removed %s\n' "${entry_files[@]}")" \
    "${bare[@]}" HOME="$home" "$program" --remove-desktop-entry
for file in "${entry_files[@]}"; do
    [ ! -e "$file" ] || fail "--remove-desktop-entry left $file"
done
expect_run "--remove-desktop-entry a second time" 0 "*" "${bare[@]}" HOME="$home" "$program" \
    --remove-desktop-entry
grep -q "nothing removed" "$work/stdout" || fail "a second removal did not say that nothing was removed"
step "menu entry removed"

# --- A read-only folder --------------------------------------------------------------------
cp "$config" "$work/config.before"
chmod 0555 "$folder"
(cd "$work" && exec "${gui_env[@]}" "$program") &
pid=$!
pids+=("$pid")
until_true 20 shown '^Read-Only Folder$' || fail "no notice of the read-only folder appeared"
until_true 10 shown '^Umbrakit$' || fail "the main window did not appear behind the notice"
focus "$(visible_windows '^Read-Only Folder$')"
xdotool key Return
until_true 10 not shown '^Read-Only Folder$' || fail "OK did not close the notice"
step "the read-only folder was named in one notice at start-up"

# A save is refused with its message box (titled like the main window), and nothing changes.
main=$(visible_windows '^Umbrakit$')
focus "$main"
xdotool key ctrl+p
until_true 10 shown '^Set Paths' || fail "Ctrl+P did not open the paths dialog"
focus "$(visible_windows '^Set Paths')"
xdotool key Tab
xdotool type --delay 20 "Second Level"
xdotool key Tab space
until_true 10 named_window_count -ge 2 '^Umbrakit$' ||
    fail "a save into the read-only folder showed no message"
cmp -s "$config" "$work/config.before" || fail "config.ini changed in the read-only folder"
[ ! -e "$folder/config.tmp" ] || fail "config.tmp was left in the read-only folder"
! shown '^Read-Only Folder$' || fail "the notice of the read-only folder appeared a second time"
box=$(visible_windows '^Umbrakit$' | grep -vx "$main")
focus "$box"
xdotool key Return
until_true 10 named_window_count -eq 1 '^Umbrakit$' || fail "OK did not close the message"
quit "$main"
until_true 10 not running "$pid" || fail "File, Exit did not end the program"
wait "$pid"
code=$?
[ "$code" = 0 ] || fail "the program ended with exit code $code"
step "a save into the read-only folder was refused; config.ini is as it was"

echo "package test passed in $(elapsed) s"
