#!/usr/bin/env python3
"""Figures of the windowed desk as a process: `python3 bench/window.py build/release/bin` prints, from one run, how long
the desk needs until a person can work in it, what opening takes from the key to the window, the memory it holds, the
longest stand of its event loop, and the windows' benchmarks. The screen is in memory; a look at it costs some 10 ms."""

import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "tests/window"))
from display import Display, start  # noqa: E402

BIN = Path(sys.argv[1]).resolve()
STARTS = 7
LARGE = 100000


def desk_on(screen, environment, firm):
    """The desk, and the milliseconds until its window named the firm and until it answered a key."""
    begun = time.monotonic()
    desk = start([BIN / "quillon-desk", firm], env=environment | {"DISPLAY": screen.environment["DISPLAY"]})
    screen.see("Co. - Quillon$")
    shown = time.monotonic()
    screen.press("ctrl+t")
    screen.see("^Select Account")
    return desk, 1000 * (shown - begun), 1000 * (time.monotonic() - begun)


def end(desk):
    desk.terminate()
    desk.wait()


def megabytes(desk, what):
    lines = Path(f"/proc/{desk.pid}/status").read_text().splitlines()
    return next(int(line.split()[1]) for line in lines if line.startswith(what)) / 1024


def measure(folder, screen, environment):
    sample, large = folder / "sample", folder / "large"
    subprocess.run([BIN / "quillon-sample", sample], env=environment, check=True, stdout=subprocess.DEVNULL)
    subprocess.run([BIN / "quillon_window_bench", "--make", large, str(LARGE)], env=environment, check=True)
    starts = []
    for _ in range(STARTS):
        desk, *times = desk_on(screen, environment, sample)
        end(desk)
        starts.append(times)
    shown, answers = (sorted(column)[STARTS // 2] for column in zip(*starts))
    print(f"start on the sample firm, median of {STARTS}: window {shown:.0f} ms, answers a key {answers:.0f} ms")
    desk, _, _ = desk_on(screen, environment, large)
    held = megabytes(desk, "VmRSS")
    screen.type("State")
    begun = time.monotonic()
    screen.press("Return")
    screen.see("^A/c Statement")
    screen.press("F6")
    screen.see("^Reconciliation")
    both = 1000 * (time.monotonic() - begun)
    print(f"{LARGE:,} entries: statement of account and reconciliation on it {both:.0f} ms")
    print(f"memory: {held:.0f} MB before, {megabytes(desk, 'VmRSS'):.0f} MB with both open, "
          f"{megabytes(desk, 'VmHWM'):.0f} MB at most")
    end(desk)
    for firm, account in ((sample, "Sahyadri"), (large, "State")):
        print(f"longest stand of the event loop, {firm.name} firm:", flush=True)
        subprocess.run([BIN / "quillon_window_bench", "--loop", firm, account], env=environment, check=True)
    subprocess.run([BIN / "quillon_window_bench"], env=environment, check=True)


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        environment = dict(os.environ, HOME=name, QT_QPA_PLATFORM="xcb")
        for place in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"):
            (folder / place).mkdir(mode=0o700)
            environment[place] = str(folder / place)
        screen = Display(folder)
        try:
            measure(folder, screen, environment)
        finally:
            screen.close()


if __name__ == "__main__":
    main()
