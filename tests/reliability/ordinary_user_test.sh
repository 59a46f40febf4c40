#!/usr/bin/env bash
# A program folder of root's, which an ordinary user may not write although nobody marked it
# read-only. The tests run as root, who may write anywhere, so the check runs as the user
# nobody (setpriv, from util-linux); config.ini must stay as it was, with nothing beside it.
#   ordinary_user_test.sh <ordinary_user_check>
set -uo pipefail
[ "$(id -u)" = 0 ] || { echo "needs root, to start the check as the user nobody"; exit 77; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*"; exit 1; }
folder=$work/Umbrakit
mkdir -m 755 "$folder" && chmod 755 "$work"
printf '[Save=Wake]\r\ngamePath=D:\\BF\r\nlevelName=Wake\r\nmodName=BF1942\r\nterrainBoolean=True\r\nmergeBoolean=False\r\nobjectBoolean=False\r\nshadowDarkness=1.5\r\n' >"$folder/config.ini"
cp "$folder/config.ini" "$work/before"
# A copy beside the folder: the build folder may be closed to other users.
install -m 755 "$1" "$work/check"
install -d -m 700 -o 65534 -g 65534 "$work/runtime"
said=$(setpriv --reuid=65534 --regid=65534 --clear-groups env HOME="$work" \
    XDG_RUNTIME_DIR="$work/runtime" "$work/check" "$folder" 2>&1) ||
    fail "as the user nobody: $said"
cmp -s "$work/before" "$folder/config.ini" || fail "config.ini changed"
[ "$(ls -A "$folder")" = config.ini ] || fail "beside config.ini: $(ls -A "$folder")"
echo "ordinary user: the notice, and Save, Delete and a lighting run refused with a box"
