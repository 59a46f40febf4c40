#!/usr/bin/env bash
# The user's guide's pictures can be made again: tools/screenshots runs against the built
# program into a temporary folder, and every picture the guide shows must come out as the
# window it names, at the size the program lays that window out (twips / 15, at 96 dots per
# inch; Xvfb has no window manager, so there is no frame around a window).
#   screenshots_test.sh <program> <source folder>
set -uo pipefail

program=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "FAIL: $*"
    exit 1
}

started=$(date +%s)
failure_picture="$(dirname "$program")/screenshots_failure.png"
rm -f "$failure_picture"
bash "$source/tools/screenshots" --program "$program" "$work/images" >"$work/made" 2>"$work/log" ||
    {
        cat "$work/log"
        cp "$work/images/screenshots_failure.png" "$failure_picture" 2>/dev/null &&
            echo "the screen at the failure: $failure_picture"
        fail "tools/screenshots failed"
    }
echo "tools/screenshots took $(($(date +%s) - started)) s"

# Every picture that docs/user-guide.md shows, and the guide shows no other.
guide_pictures=$(grep -o 'images/[a-z0-9-]*\.png' "$source/docs/user-guide.md" | sort -u |
    sed 's|images/||')
made=$(cd "$work/images" && ls ./*.png | sed 's|^\./||' | sort)
[ -n "$guide_pictures" ] || fail "docs/user-guide.md shows no pictures"
[ "$guide_pictures" = "$made" ] || fail "the pictures made differ from those the guide shows:
$(diff <(echo "$guide_pictures") <(echo "$made"))"
for picture in $guide_pictures; do
    [ -f "$source/docs/images/$picture" ] || fail "docs/images/$picture is not committed"
done

# size_of <picture>: its width and height as "WxH".
size_of() {
    identify -format '%wx%h' "$work/images/$1"
}
# reported_size <picture>: the window's size as X reported it when the picture was taken.
reported_size() {
    awk -v name="$1" '$1 == name {print $2}' "$work/made"
}

# The main window: 330 pixels wide, 490 high below its menu bar, whatever the status says.
main_size=$(size_of main-window.png)
menu_bar=$((${main_size#*x} - 490))
[ "${main_size%x*}" = 330 ] && [ "$menu_bar" -ge 15 ] && [ "$menu_bar" -le 40 ] ||
    fail "main-window.png is $main_size, not 330 by 490 below a menu bar"

# picture | expected size ("reported": a box or file dialog, sized by the toolkit)
while read -r picture expected; do
    [ -f "$work/images/$picture" ] || fail "$picture was not made"
    size=$(size_of "$picture")
    [ "$size" = "$(reported_size "$picture")" ] ||
        fail "$picture is $size, but its window was $(reported_size "$picture")"
    if [ "$expected" = reported ]; then
        width=${size%x*} height=${size#*x}
        [ "$width" -ge 120 ] && [ "$width" -le 1024 ] && [ "$height" -ge 60 ] &&
            [ "$height" -le 768 ] || fail "$picture is $size, no size for a box or dialog"
    else
        [ "$size" = "$expected" ] || fail "$picture is $size, not $expected"
    fi
    # A window that never drew itself is one flat colour.
    [ "$(identify -format '%k' "$work/images/$picture")" -ge 16 ] ||
        fail "$picture shows nearly nothing: $(identify -format '%k' "$work/images/$picture") colours"
done <<EOF
main-window.png 330x$((490 + menu_bar))
status-incomplete.png 330x$((490 + menu_bar))
main-window-ticked.png 330x$((490 + menu_bar))
main-window-running.png 330x$((490 + menu_bar))
paths-dialog.png 442x198
about.png 331x110
browse-game.png reported
export-dialog.png reported
box-depreciated.png reported
box-darkness.png reported
box-file-exists.png reported
box-no-wine.png reported
box-run-anyway.png reported
box-read-only.png reported
EOF

# The committed pictures of the windows the program lays out are not behind the windows: a
# window of another size means pictures of an older layout.
for picture in main-window.png main-window-ticked.png main-window-running.png \
    status-incomplete.png paths-dialog.png about.png; do
    committed=$(identify -format '%wx%h' "$source/docs/images/$picture")
    [ "$committed" = "$(size_of "$picture")" ] ||
        fail "docs/images/$picture is $committed, but the window is now $(size_of "$picture"): run bash tools/screenshots"
done

# The pictures show the window where the program lays it out: "Run Lighting" is the one green
# button, 14 pixels into the "Execute" frame (at 175, 392) and 47 down.
green_at() {
    local rgb
    rgb=$(convert "$work/images/$1" -format "%[fx:int(255*r)] %[fx:int(255*g)] %[fx:int(255*b)]" \
        -crop "1x1+$2+$(($3 + menu_bar))" info:)
    read -r r g b <<<"$rgb"
    [ "$g" -ge 160 ] && [ "$r" -le 120 ] && [ "$b" -le 120 ]
}
for picture in main-window.png main-window-ticked.png main-window-running.png; do
    green_at "$picture" 256 451 || fail "$picture has no green \"Run Lighting\" at its place"
done

# The ticked picture differs from the one at start in the grid (ticks and the larger world),
# and a tick in the middle of the grid's patches shows on the picture.
crop_grid() {
    convert "$work/images/$1" -crop "330x316+0+$((59 + menu_bar))" +repage "$work/$1.grid.png"
}
crop_grid main-window.png
crop_grid main-window-ticked.png
differing=$(compare -metric AE "$work/main-window.png.grid.png" "$work/main-window-ticked.png.grid.png" \
    null: 2>&1)
[ "${differing%% *}" -ge 1000 ] 2>/dev/null ||
    fail "main-window-ticked.png shows the grid as at start ($differing pixels differ)"
echo "$(wc -l <"$work/made") pictures made; main window 330x$((490 + menu_bar)), its menu bar $menu_bar pixels"
