#!/bin/sh
# Runs the Orca test (orca_speech.py) on a display and an accessibility bus of its own, and in
# a process namespace of its own: Orca's --replace ends every other Orca of the same user, and
# without it Orca does not start beside one. Apart, the test neither silences the screen
# reader of a developer who runs it nor ends the Orca of a test run beside it. Orca also turns
# the desktop's accessibility setting on; a settings folder of the session's own keeps that
# out of the user's.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
config=$(mktemp -d)
trap 'rm -rf "$config"' EXIT
for apart in "--pid --mount-proc" "--user --map-root-user --pid --mount-proc"; do
    # shellcheck disable=SC2086
    if unshare $apart --kill-child true 2>/dev/null; then
        status=0
        XDG_CONFIG_HOME=$config unshare $apart --kill-child \
            sh "$here/../screen_reader_session.sh" python3 "$here/orca_speech.py" "$@" ||
            status=$?
        exit $status
    fi
done
echo "SKIP: no process namespace here, and Orca's --replace would end this user's own Orca"
exit 77
