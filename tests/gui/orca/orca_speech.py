#!/usr/bin/env python3
"""What Orca, the screen reader of the Linux desktop, says while a user works the program by
keys alone.

Runs inside tests/gui/screen_reader_session.sh (an X display and the accessibility bus) and
takes the program to drive, the umbrakit binary, as its argument: a copy of it runs in a folder
of its own, config.ini beside it, and a stand-in wine on its PATH takes the lighting run
without running anything. Orca is started with its debug
log, whose SPEECH OUTPUT lines hold what a user would hear, with or without a speech server.
Keys go to the X server through xdotool, as a keyboard's would. There is no window manager on
the display, so this script gives the focus back when a window closes, as one would.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

HERE = os.path.dirname(os.path.abspath(__file__))
OUTCOME_WITHIN = 1.0  # seconds from an outcome's appearing to its being spoken
SPEECH_WITHIN = 10.0  # seconds at most for what Orca says as the focus moves
QUIET_AFTER_OUTCOME = 0.5  # seconds in which nothing may cut a spoken outcome short
STATUS_TIMER = 7.5  # seconds until the status line goes back to "Ready."
DOUBLE_PRESS_TIME = 0.6  # Orca takes a key pressed again within 0.5 s as a double press

INCOMPLETE = "Error: Incomplete Config. Set Paths or Load Config."
RUNNING = "Running batch lighting... You may exit."
NEVER_SPOKEN = ["Preparing to Save...", "Configuring Paths...", "Ready."]


class Failure(Exception):
    pass


class Late(Failure):
    pass


def seconds_of_day(t):
    local = time.localtime(t)
    return local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec + t % 1


def seconds_between(earlier, later):
    """Between two times of day as Orca logs them, across midnight too."""
    return (later - earlier + 43200) % 86400 - 43200


class Speech:
    """The utterances of Orca's debug log, read as the log grows.

    An utterance is logged as "HH:MM:SS.ffffff - SPEECH OUTPUT: 'text'{voice}"; the echo of
    a key or a typed character has a blank before the voice. A text of several lines goes on
    in lines indented by 18 blanks.
    """

    START = re.compile(rb"^(\d\d):(\d\d):(\d\d\.\d+) - SPEECH OUTPUT: '")
    END = re.compile(rb"'( voice=\w+)?( ?)\{.*\}$")

    def __init__(self, path):
        self.path = path
        self.offset = 0
        self.rest = b""
        self.open_entry = None  # [seconds of day, lines]
        self.heard = []  # (seconds of day, text, is_echo)

    def poll(self):
        try:
            with open(self.path, "rb") as log:
                log.seek(self.offset)
                chunk = log.read()
        except FileNotFoundError:
            return
        self.offset += len(chunk)
        lines = (self.rest + chunk).split(b"\n")
        self.rest = lines.pop()
        for line in lines:
            start = self.START.match(line)
            if start:
                h, m, s = start.groups()
                self.open_entry = [int(h) * 3600 + int(m) * 60 + float(s), [line[start.end():]]]
            elif self.open_entry and line.startswith(b" " * 18):
                self.open_entry[1].append(line[18:])
            else:
                self.open_entry = None
                continue
            end = self.END.search(line)
            if end:
                when, parts = self.open_entry
                last = parts.pop()
                parts.append(last[: end.start() - (len(line) - len(last))])
                text = b"\n".join(parts).decode("utf-8", "replace")
                self.heard.append((when, text, end.group(2) == b" "))
                self.open_entry = None

    def spoken_since(self, mark):
        return [(when, text) for when, text, echo in self.heard[mark:] if not echo]


class Session:
    def __init__(self, program):
        self.program = program
        self.dir = tempfile.mkdtemp(prefix="orca_speech-")
        self.prefs = os.path.join(self.dir, "orca")
        self.app = os.path.join(self.dir, "program")
        self.export = os.path.join(self.dir, "export")
        self.bin = os.path.join(self.dir, "bin")
        for folder in (self.prefs, self.app, self.export, self.bin):
            os.mkdir(folder)
        shutil.copy(program, self.app)
        with open(os.path.join(self.bin, "wine"), "w") as wine:
            wine.write("#!/bin/sh\nexit 0\n")
        os.chmod(os.path.join(self.bin, "wine"), 0o755)
        shutil.copy(os.path.join(HERE, "orca-customizations.py"), self.prefs)
        records = [
            ("Wake", "D:\\BF", "Wake", "BF1942", "True", "False", "False", "1.5"),
            ("Midway", "E:\\BF", "Midway", "DesertCombat", "False", "True", "True", "2"),
        ]
        keys = ["gamePath", "levelName", "modName", "terrainBoolean", "mergeBoolean",
                "objectBoolean", "shadowDarkness"]
        with open(os.path.join(self.app, "config.ini"), "wb") as ini:
            for name, *values in records:
                lines = ["[Save=%s]" % name] + ["%s=%s" % kv for kv in zip(keys, values)]
                ini.write("".join(line + "\r\n" for line in lines).encode("ascii"))
        self.speech = Speech(os.path.join(self.dir, "orca-debug.log"))
        self.orca = None
        self.window = None
        self.started = time.time()
        self.latencies = []
        self.first_outcome_at = None

    # --- processes -------------------------------------------------------------------------

    def start(self):
        # Orca speaks the roles ("push button", "check box") in the user's language.
        english = dict(os.environ, LC_ALL="C.UTF-8", LANGUAGE="en")
        self.orca = subprocess.Popen(
            ["orca", "--replace", "-u", self.prefs, "--debug-file", self.speech.path],
            stdout=open(os.path.join(self.dir, "orca.out"), "wb"), stderr=subprocess.STDOUT,
            env=english)
        self.wait_for(["Screen reader on."], within=30, what="Orca to start")
        # The export's folder does not exist here, so its file dialog opens in the working
        # folder, with the offered name: Return saves there, and nothing need be typed.
        self.window = subprocess.Popen(
            [os.path.join(self.app, os.path.basename(self.program))], cwd=self.export,
            stdout=open(os.path.join(self.dir, "program.out"), "wb"), stderr=subprocess.STDOUT,
            env=dict(os.environ, PATH=self.bin + os.pathsep + os.environ["PATH"]))
        self.main_window = self.find_window("Umbrakit", within=30)

    def stop(self):
        for process in (self.window, self.orca):
            if process and process.poll() is None:
                process.terminate()
                try:
                    process.wait(5)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()

    # --- the display -----------------------------------------------------------------------

    def find_window(self, title, within):
        deadline = time.time() + within
        while time.time() < deadline:
            found = self.visible(title)
            if found:
                return found[0]
            time.sleep(0.05)
        raise Failure("no window %r shown within %s s" % (title, within))

    def visible(self, title):
        return subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--name", "^%s$" % re.escape(title)],
            capture_output=True, text=True, timeout=10).stdout.split()

    def gone(self, title, within=SPEECH_WITHIN):
        deadline = time.time() + within
        while self.visible(title):
            if time.time() > deadline:
                raise Failure("the window %r did not close" % title)
            time.sleep(0.05)

    def back_from(self, title):
        """A window closes and the focus goes back to the main window; gives the time at which
        the window was seen closed: the status line's text appears as the dialog closes."""
        self.gone(title)
        closed = time.time()
        self.focus(self.main_window)
        return closed

    def focus(self, window):
        """Gives a window the focus, as a window manager would."""
        subprocess.run(["xdotool", "windowfocus", "--sync", window], check=True, timeout=10)

    def press(self, *keys):
        subprocess.run(["xdotool", "key", "--delay", "60", *keys], check=True, timeout=10)

    # --- what Orca says --------------------------------------------------------------------

    def mark(self):
        self.speech.poll()
        return len(self.speech.heard)

    def wait_for(self, phrases, within=SPEECH_WITHIN, since=None, what=None, in_order=False):
        """Waits until every phrase was spoken since the mark, each within an utterance, and
        in the order given if asked; gives the time of the last one."""
        since = self.mark() if since is None else since
        deadline = time.time() + within
        while True:
            self.speech.poll()
            spoken = self.speech.spoken_since(since)
            found, start = [], 0
            for phrase in phrases:
                at = next((i for i in range(start if in_order else 0, len(spoken))
                           if phrase in spoken[i][1]), None)
                if at is None:
                    break
                found.append(spoken[at][0])
                start = at + 1
            else:
                return max(found)
            if time.time() > deadline:
                raise Failure("%s: Orca did not say %r within %s s; it said %r" % (
                    what or "after the keys", phrases, within, [t for _, t in spoken]))
            time.sleep(0.02)

    def after(self, keys, phrases, what, within=SPEECH_WITHIN):
        since = self.mark()
        self.press(*keys)
        self.wait_for(phrases, within, since, what)

    def outcome(self, text, step):
        """The step's outcome is spoken within a second of its appearing, at the step's key or
        as its dialog closes, and nothing cuts it short. A machine too busy for Orca to keep
        up gets a second try: only a delay that comes again fails."""
        for attempt in (1, 2):
            since, appeared = step()
            try:
                return self.heard_in_time(text, since, appeared)
            except Late as late:
                if attempt == 2:
                    raise
                print("a second try:", late)
                time.sleep(QUIET_AFTER_OUTCOME)

    def heard_in_time(self, text, since, appeared_at):
        when = self.wait_for([text], OUTCOME_WITHIN + 1, since, "the outcome " + text)
        appeared = seconds_of_day(appeared_at)
        latency = seconds_between(appeared, when)
        if latency > OUTCOME_WITHIN:
            raise Late("%r was spoken %.2f s after it appeared" % (text, latency))
        self.first_outcome_at = self.first_outcome_at or appeared_at
        time.sleep(QUIET_AFTER_OUTCOME)
        self.speech.poll()
        later = [t for w, t in self.speech.spoken_since(since) if w > when]
        if later:
            raise Failure("%r was cut short by %r" % (text, later))
        self.latencies.append((text, latency, ["%.2f %s" % (seconds_between(appeared, w), t)
                                               for w, t, _ in self.speech.heard[since:]]))

    def keys_then(self, *keys):
        """A step: keys whose outcome appears at once."""
        since, pressed = self.mark(), time.time()
        self.press(*keys)
        return since, pressed

    def file_dialog_then(self, key):
        """A step: the export's file dialog, left by a key."""
        self.after(["ctrl+e"], ["File name:"], "the export's file dialog")
        since = self.mark()
        self.press(key)
        return since, self.back_from("Open")

    # --- the user's steps ------------------------------------------------------------------

    def run(self):
        self.start()
        since = self.mark()
        self.focus(self.main_window)
        self.wait_for(["Umbrakit frame", "4x4 combo box"], within=30, since=since,
                      what="the start")

        # A message box is read out with its title and text; Return closes it.
        self.after(["ctrl+s"], ["Depreciated",
                                "Please Use the Paths Dialog to manage saved configurations"],
                   "the retired Save")
        self.press("Return")
        self.gone("Depreciated")
        since = self.mark()
        self.focus(self.main_window)
        self.wait_for(["Umbrakit frame"], since=since, what="back in the main window")

        # The controls by Tab, up to the patch grid; in it, the patches by place and state.
        for name in ["Select All push button", "Clear Selection push button",
                     "Generate TerrainShadows check box not checked",
                     "Merge TerrainShadows check box not checked",
                     "Generate ObjectShadows check box not checked",
                     "Export lmList.dat push button", "Run Lighting push button",
                     "column 0, row 0 check box not checked"]:
            self.after(["Tab"], [name], "Tab to " + name)
        self.after(["Up"], ["column 0, row 1 check box not checked"], "Up in the grid")
        self.after(["Right"], ["column 1, row 1 check box not checked"], "Right in the grid")
        self.after(["space"], ["checked"], "Space on a patch")

        # Run Lighting with nothing set: the error is spoken and the focus stays on the patch.
        self.outcome(INCOMPLETE, lambda: self.keys_then("ctrl+g"))
        # The line on demand while the error stands: Orca's "read the status bar",
        # Insert+KP_Enter twice. Then its "where am I", KP_Enter, finds the focus on the patch;
        # only after Orca's double-press time, or it would count as a third press.
        since = self.mark()
        self.press("Insert+KP_Enter", "Insert+KP_Enter")
        self.wait_for(["statusbar", INCOMPLETE], since=since, what="the status bar on demand",
                      in_order=True)
        time.sleep(DOUBLE_PRESS_TIME)
        self.after(["KP_Enter"], ["column 1, row 1", "checked"], "where am I after the error")
        time.sleep(DOUBLE_PRESS_TIME)

        # The export, cancelled in its file dialog, and then saved.
        self.outcome("Save Cancled.", lambda: self.file_dialog_then("Escape"))
        saved = os.path.join(self.export, "lmList.dat")

        def save():  # each time to a new file: no question whether to overwrite it
            if os.path.exists(saved):
                os.remove(saved)
            return self.file_dialog_then("Return")

        self.outcome("Saved!", save)
        if not os.path.exists(saved):
            raise Failure("lmList.dat was not written")

        # The paths dialog: each box by its caption, and a saved setting chosen from the list,
        # which Alt+Down opens; Return takes the row, and a second Return presses OK.
        self.after(["ctrl+p"], ["Set Paths... dialog", "(Current) combo box", "Load Setting"],
                   "the paths dialog")
        for caption in ["Setting Name text", "Save push button", "Game Path text",
                        "Browse for bf1942.exe", "Level Name text", "Mod Name editable combo box",
                        "Shadow Darkness text", "OK push button", "Cancel push button",
                        "Delete push button", "(Current) combo box"]:
            self.after(["Tab"], [caption], "Tab to " + caption)
        self.after(["alt+Down"], ["List with 3 items"], "the saved settings opened")
        self.after(["Down"], ["Wake"], "the first saved setting")
        self.after(["Down"], ["Midway"], "the second saved setting")
        since = self.mark()
        self.press("Return")
        self.wait_for(["Midway combo box", "Load Setting"], since=since, in_order=True,
                      what="the saved setting chosen")
        self.press("Return")
        self.gone("Set Paths...")
        since = self.mark()
        self.focus(self.main_window)
        self.wait_for(["Umbrakit frame"], since=since, what="back in the main window")

        self.outcome(RUNNING, lambda: self.keys_then("ctrl+g"))


        # The About box by the menu bar: F10, Run, About.
        since = self.mark()
        self.press("F10", "Right", "Right", "Return")
        self.focus(self.find_window("About...", within=SPEECH_WITHIN))
        self.wait_for(["About... dialog", "Umbrakit and lmList.dat Generator",
                       "Version 1.2  Released 12/12/2003", "OK push button"],
                      since=since, what="the About box")
        self.press("Escape")
        self.gone("About...")

        # The line has gone back to "Ready." at least once by now, 7.5 s after an outcome.
        time.sleep(max(0.0, self.first_outcome_at + STATUS_TIMER + 0.5 - time.time()))
        self.speech.poll()
        spoken = [t for _, t, _ in self.speech.heard]
        for text in NEVER_SPOKEN:
            if text in spoken:
                raise Failure("%r was spoken" % text)


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: orca_speech.py PROGRAM")
    session = Session(os.path.abspath(sys.argv[1]))
    try:
        session.run()
    except Failure as failure:
        print("FAIL:", failure)
        print("Orca's debug log:", session.speech.path)
        with open(os.path.join(session.dir, "orca.out"), errors="replace") as out:
            print("Orca's own output, last lines:", *out.readlines()[-10:], sep="\n")
        return 1
    finally:
        session.stop()
    for text, latency, heard in session.latencies:
        print("spoken %.2f s after it appeared: %s  (%s)" % (latency, text, "; ".join(heard)))
    print("done in %.1f s" % (time.time() - session.started))
    shutil.rmtree(session.dir, ignore_errors=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
