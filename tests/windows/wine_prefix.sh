#!/usr/bin/env bash
# Makes or removes the Wine prefix of one test run.
#   wine_prefix.sh create|remove <folder>
# The first start of Wine in a fresh prefix takes seconds, so it happens once, here.
set -euo pipefail
action=$1 prefix=$2
export WINEPREFIX=$prefix WINEDEBUG=-all

case $action in
create)
    command -v wine >/dev/null ||
        { echo "FAIL: wine is missing; tools/install-deps installs it" >&2; exit 1; }
    rm -rf "$prefix"
    mkdir -p "$prefix"
    # No Mono or Gecko: the tests run console and plain windowed programs only, and Wine
    # would otherwise offer to download them.
    WINEDLLOVERRIDES="mscoree,mshtml=" wineboot -i
    [ -d "$prefix/dosdevices" ] || { echo "FAIL: wineboot made no prefix in $prefix" >&2; exit 1; }
    ;;
remove)
    # The Wine server of the prefix lingers a few seconds after the last program; stop it now.
    if command -v wineserver >/dev/null; then wineserver -k 2>/dev/null || true; fi
    rm -rf "$prefix"
    ;;
*)
    echo "usage: wine_prefix.sh create|remove <folder>" >&2
    exit 2
    ;;
esac
