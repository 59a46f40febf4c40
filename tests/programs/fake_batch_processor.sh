#!/bin/sh
# Stands in for the batch processor in tests: takes its time like a script would, then leaves
# "<last argument>.ran" with its arguments and its parent's process id, so a test sees that it
# ran, how it was called and that nobody waited for it.
[ $# -ge 1 ] || exit 2
sleep 1.5
for last; do :; done
{
    for argument; do printf '%s\n' "$argument"; done
    printf 'parent %s\n' "$PPID"
} >"$last.ran.part" && mv "$last.ran.part" "$last.ran" # appears whole or not at all
