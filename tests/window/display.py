"""A screen in memory and the keyboard and mouse of a person before it."""

import ctypes
import os
import re
import signal
import subprocess
import time

LIMIT = 120  # seconds until a state that does not come is a fault


def wait_for(what, state):
    """What the function answers as soon as it is something; a fault that says what was waited for when it never is."""
    end = time.monotonic() + LIMIT
    while True:
        found = state()
        if found:
            return found
        if time.monotonic() > end:
            raise AssertionError(f"{what} did not come within {LIMIT} s")
        time.sleep(0.02)


def start(words, **options):
    """Starts a process that does not outlive this one, whatever ends it."""
    end_with_parent = 1  # PR_SET_PDEATHSIG
    libc = ctypes.CDLL(None)
    return subprocess.Popen(words, preexec_fn=lambda: libc.prctl(end_with_parent, signal.SIGKILL), **options)


class Display:
    def __init__(self, folder):
        reading, writing = os.pipe()
        with open(folder / "display.log", "wb") as log:
            self.server = start(
                ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1366x768x24", "-nolisten", "tcp", "-noreset",
                 "-fbdir", str(folder)],
                pass_fds=[writing], stdout=log, stderr=log,
            )
        os.close(writing)
        with os.fdopen(reading) as told:
            number = told.readline().strip()
        if not number:
            self.close()
            raise AssertionError("No screen: " + (folder / "display.log").read_text())
        self.environment = dict(os.environ, DISPLAY=":" + number)

    def close(self):
        self.server.terminate()
        self.server.wait()

    def ask(self, *words):
        """What a tool says of the screen; nothing when it has nothing to say."""
        said = subprocess.run(words, env=self.environment, capture_output=True, text=True, timeout=LIMIT)
        return said.stdout.strip() if said.returncode == 0 else ""

    def title(self):
        """The title of the window that has the keys."""
        return self.ask("xdotool", "getwindowfocus", "getwindowname")

    def see(self, title):
        """Waits until a window with this in its title has the keys."""
        try:
            wait_for(f'A window "{title}"', lambda: re.search(title, self.title()))
        except AssertionError as fault:
            raise AssertionError(f'{fault}; "{self.title()}" has the keys') from None

    def press(self, *keys):
        self.ask("xdotool", "key", *keys)

    def type(self, text):
        self.ask("xdotool", "type", "--delay", "1", text)

    def mouse(self, *moves):
        """Each move is a place of the window that has the keys, in pixels, from its right edge where x is negative, and
        what the left button does there: click, mousedown or mouseup."""
        told = self.ask("xdotool", "getwindowfocus", "getwindowgeometry", "--shell")
        places = dict(line.split("=") for line in told.splitlines())
        left, top, width = (int(places[name]) for name in ("X", "Y", "WIDTH"))
        for x, y, what in moves:
            self.ask("xdotool", "mousemove", str(left + x + (width if x < 0 else 0)), str(top + y), what, "1")

    def selected(self):
        """The text that is selected with the mouse."""
        return self.ask("xclip", "-o", "-selection", "primary")
