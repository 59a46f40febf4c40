#!/usr/bin/env bash
# The program started with options as a user types them: Qt's own single-dash options still
# open the windows, and --install-desktop-entry puts the menu entry where the XDG Base
# Directory rules say: below an absolute XDG_DATA_HOME, or else below ~/.local/share.
#   command_line_test.sh <umbrakit>
set -uo pipefail
program=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*"; exit 1; }
bare=(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM -u XDG_DATA_HOME)

# Without a display the windows come up only if "-platform offscreen" reaches Qt; an option
# that the program refuses ends it at once with code 2.
for options in "-platform offscreen -style fusion" "-style fusion -reverse -platform offscreen"; do
    # shellcheck disable=SC2086
    "${bare[@]}" HOME="$work" "$program" $options >"$work/said" 2>&1 &
    pid=$!
    for _ in $(seq 25); do kill -0 "$pid" 2>/dev/null || break; sleep 0.1; done
    kill -0 "$pid" 2>/dev/null || { wait "$pid"; fail "$options: ended with $? ($(cat "$work/said"))"; }
    kill "$pid"; wait "$pid" 2>/dev/null
done

n=0
# data home as given ("-" for unset) | where the entry must go, below the case's folder
while IFS='|' read -r given expected; do
    case=$work/case$((++n)) && mkdir -p "$case/start"
    env=(HOME="$case/home")
    [ "$given" = - ] || env+=(XDG_DATA_HOME="${given/@/$case}")
    (cd "$case/start" && "${bare[@]}" "${env[@]}" "$program" --install-desktop-entry >/dev/null) ||
        fail "XDG_DATA_HOME $given: --install-desktop-entry failed"
    [ -f "$case/$expected/applications/umbrakit.desktop" ] ||
        fail "XDG_DATA_HOME $given: no entry below $expected"
    [ -z "$(ls -A "$case/start")" ] || fail "XDG_DATA_HOME $given: files where it was started"
done <<'CASES'
-|home/.local/share
|home/.local/share
data|home/.local/share
./data|home/.local/share
~/data|home/.local/share
@/xdg/|xdg
CASES
echo "command line: Qt's options start the windows; XDG_DATA_HOME in $n cases"
