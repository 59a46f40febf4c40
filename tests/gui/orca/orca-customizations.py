# Orca loads this file from its preferences folder at start. Orca opens its debug log with a
# full buffer, so a test that reads the log as Orca speaks would wait in vain: from here on
# each line of the log is written as soon as it is complete.
from orca import debug

if debug.debugFile:
    debug.debugFile.reconfigure(line_buffering=True)
