#!/usr/bin/env bash
# Runs go.bat, as the core composes it, through Wine's cmd with a stand-in BF1942.exe at the
# game path, and checks from the stand-in's log that the engine was started once per pass, in
# the order terrain, merge, object, in the game folder and with exactly the script's line.
#   run_go_bat.sh <go_bat_text program> <stand-in BF1942.exe> <scratch folder>
# WINEPREFIX must name a prefix made for this run; its drive D: is pointed at the scratch
# folder.
set -uo pipefail

compose=$1 stand_in=$2 scratch=$3
command -v wine >/dev/null || { echo "FAIL: wine is missing; tools/install-deps installs it"; exit 1; }
[ -n "${WINEPREFIX:-}" ] && [ -d "$WINEPREFIX/dosdevices" ] ||
    { echo "FAIL: WINEPREFIX does not name a ready Wine prefix"; exit 1; }

rm -rf "$scratch"
mkdir -p "$scratch/app" "$scratch/d"
ln -sfn "$scratch/d" "$WINEPREFIX/dosdevices/d:"
# go.bat lies in the program's folder, on another drive than the game, as it usually does.
script="$scratch/app/go.bat"
script_on_z="Z:${script//\//\\}"
failures=0

fail() {
    echo "FAIL [$case_name] $1"
    [ $# -gt 1 ] && printf '  expected: %s\n  actual:   %s\n' "$2" "$3"
    failures=$((failures + 1))
}

# expect <what> <expected> <actual>: fails with both printed one above the other.
expect() {
    [ "$2" = "$3" ] || { fail "$1" "$2" "$3"; return 1; }
}

option_of() {
    case $1 in
    t) echo "+traceTerrainShadows" ;;
    m) echo "+mergeTerrainShadows" ;;
    o) echo "+traceObjectShadows" ;;
    esac
}

# run_case <name> <gamePath> <game folder below D:> <levelName> <modName> <darkness> <passes>
#          <expected working folder>
run_case() {
    case_name=$1
    local game_path=$2 game_dir="$scratch/d/$3" passes=$7 folder=$8
    rm -rf "${scratch:?}/d/"*
    mkdir -p "$game_dir"
    cp "$stand_in" "$game_dir/BF1942.exe"
    "$compose" "$game_path" "$4" "$5" "$6" "$passes" >"$script" ||
        { fail "go_bat_text refused the configuration"; return; }

    (cd "$scratch/app" && wine cmd /c "$script_on_z") >"$scratch/cmd.out" 2>&1
    local status=$?
    [ $status -eq 0 ] || fail "cmd ended with status $status: $(tr -d '\r' <"$scratch/cmd.out")"

    local -a lines records=()
    mapfile -t lines < <(tr -d '\r' <"$script")
    local log="$game_dir/BF1942.log"
    [ -f "$log" ] && mapfile -t records <"$log"

    local want=${passes//-/}
    if [ ${#want} -gt 0 ] && [ ! -f "$log" ]; then
        fail "the engine was never started: no BF1942.log beside it"
        return
    fi
    # Each start leaves three lines; the first one that differs is reported.
    local i
    for ((i = 0; i < ${#want}; i++)); do
        local option line=${lines[i + 2]:-} n=$((i + 1))
        option=$(option_of "${want:i:1}")
        [[ $line == *" $option "* ]] ||
            { fail "line $((i + 3)) of go.bat is not the pass $option" "$option" "$line"; return; }
        expect "command line of start $n" "start $line" "${records[3 * i]:-}" || return
        expect "working folder of start $n" "folder $folder" "${records[3 * i + 1]:-}" || return
        # The next pass may begin only when this one has ended: it reads this one's results.
        expect "start $n still running when the next began" "end" "${records[3 * i + 2]:-}" ||
            return
    done
    expect "more starts than passes" "(end of log)" "${records[3 * ${#want}]:-(end of log)}"
}

run_case "worked example" 'D:\Games\BF1942' Games/BF1942 MyLevel BF1942 1.5 tmo 'D:\Games\BF1942'
run_case "game path with blanks" 'D:\Program Files\EA GAMES\Battlefield 1942' \
    'Program Files/EA GAMES/Battlefield 1942' MyLevel BF1942 1.5 tmo \
    'D:\Program Files\EA GAMES\Battlefield 1942'
run_case "mod name with a blank" 'D:\Games\BF1942' Games/BF1942 MyLevel 'Desert Combat' 1.5 tmo \
    'D:\Games\BF1942'
run_case "game path ending in a backslash" 'D:\Games\BF1942\' Games/BF1942 MyLevel BF1942 1.5 \
    tmo 'D:\Games\BF1942'
run_case "darkness 2" 'D:\Games\BF1942' Games/BF1942 MyLevel BF1942 2 m 'D:\Games\BF1942'
run_case "darkness 0.35" 'D:\Games\BF1942' Games/BF1942 MyLevel BF1942 0.35 mo 'D:\Games\BF1942'
run_case "all passes off" 'D:\Games\BF1942' Games/BF1942 MyLevel BF1942 1.5 - 'D:\Games\BF1942'

# The stand-in stayed unstarted above; the script's two lines must still have run and left the
# batch processor in the game folder.
case_name="all passes off"
cwd=$(cd "$scratch/app" && wine cmd /c "call $script_on_z & cd" 2>&1 | tr -d '\r' | tail -n 1)
expect "folder after the two lines" 'D:\Games\BF1942' "$cwd"

if [ $failures -gt 0 ]; then
    echo "$failures configuration check(s) failed"
    exit 1
fi
echo "every configuration started the engine exactly as go.bat says"
