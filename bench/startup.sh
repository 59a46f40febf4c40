#!/usr/bin/env bash
# Start-up of the main window against the bare toolkit: runs bench_startup_umbrakit and
# bench_startup_bare alternately, offscreen, and prints the median wall time and median peak
# memory of each and their ratios.
#   bash bench/startup.sh [--runs N] [--bin FOLDER]
set -euo pipefail

runs=20
bin="$(cd "$(dirname "$0")/.." && pwd)/build/bench"
while [ $# -gt 0 ]; do
    case "$1" in
        --runs) runs="$2"; shift 2 ;;
        --bin) bin="$2"; shift 2 ;;
        *) echo "usage: $0 [--runs N] [--bin FOLDER]" >&2; exit 2 ;;
    esac
done
export QT_QPA_PLATFORM=offscreen

samples="$(mktemp -d)"
trap 'rm -rf "$samples"' EXIT

# measure PROGRAM OUTPUT: one start-up; the toolkit's warnings are shown only on a failure.
measure() {
    if ! "$bin/bench_measure" "$bin/bench_startup_$1" >>"$2" 2>"$samples/errors"; then
        cat "$samples/errors" >&2
        exit 1
    fi
}

# One run of each first, unrecorded: the first start of all pays for a cold disk cache.
measure umbrakit /dev/null
measure bare /dev/null
for ((i = 0; i < runs; i++)); do
    measure umbrakit "$samples/umbrakit"
    measure bare "$samples/bare"
done

# median FILE COLUMN
median() {
    cut -d' ' -f"$2" "$1" | sort -g | awk '{ v[NR] = $1 }
        END { print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'
}

wall_u=$(median "$samples/umbrakit" 1)
wall_b=$(median "$samples/bare" 1)
rss_u=$(median "$samples/umbrakit" 2)
rss_b=$(median "$samples/bare" 2)
awk -v runs="$runs" -v wu="$wall_u" -v wb="$wall_b" -v ru="$rss_u" -v rb="$rss_b" 'BEGIN {
    printf "start-up, %d runs each, medians:\n", runs
    printf "  %-10s %10s %14s\n", "", "wall ms", "peak RSS kB"
    printf "  %-10s %10.1f %14d\n", "umbrakit", wu, ru
    printf "  %-10s %10.1f %14d\n", "bare", wb, rb
    tw = wu / wb; tm = ru / rb
    printf "  ratio      %10.3f %14.3f   (targets <= 1.15: wall %s, memory %s)\n", tw, tm,
        tw <= 1.15 ? "met" : "MISSED", tm <= 1.15 ? "met" : "MISSED"
}'
