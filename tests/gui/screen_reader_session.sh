#!/bin/sh
# Runs a window test as a screen reader meets the program: on an X display of its own (Xvfb),
# in a session bus of its own with the accessibility bus started, and with Qt's bridge to that
# bus on. Qt looks for the accessibility bus only at its start, so the bus comes first.
set -eu
exec dbus-run-session -- sh -c '
    dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus \
        org.a11y.Bus.GetAddress >/dev/null
    QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 \
        exec xvfb-run -a -s "-screen 0 1024x768x24" "$@"' screen_reader_session "$@"
