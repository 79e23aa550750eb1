#!/usr/bin/env python3
"""Figures of the headless desk as a whole process: `python3 bench/process.py build/release/bin [ENTRIES]` prints, for each
view of the bank's reconciliation, what `quillon-drive` takes from its start to its end to open it, and the most memory
that it held. The least of the runs counts: other work of the machine only adds."""

import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path

BIN = Path(sys.argv[1]).resolve()
ENTRIES = int(sys.argv[2]) if len(sys.argv) > 2 else 100000
RUNS = 7

STATEMENT = [
    '{"cmd":"form","key":"Account","host":true,"id":"statement"}',
    '{"cmd":"set","form":"statement","member":"AccountCode","value":101}',
    '{"cmd":"show","form":"statement"}',
]
WORKBENCH = STATEMENT + ['{"cmd":"bar","control":"BtnBar1","button":"Reconciliation"}']
PASS_BOOK = WORKBENCH + ['{"cmd":"key","key":"F7"}']
ACTS = {
    "the statement of account": STATEMENT,
    "and the reconciliation statement as on a date": WORKBENCH
    + ['{"cmd":"answer","to":"date","date1":"31-Mar-2025"}', '{"cmd":"key","key":"F6"}'],
    "the pass book with references": PASS_BOOK,
    "the interest on it": PASS_BOOK
    + ['{"cmd":"key","key":"F5"}', '{"cmd":"click","control":"btnOKCancel","index":0}'],
}


def run(script, firm, folder):
    """Seconds by the clock on the wall and of the processor, and megabytes."""
    words = [BIN / "quillon-drive", "--firm", firm, "--out", folder, script]
    begun = time.monotonic()
    with subprocess.Popen(words, stdout=subprocess.DEVNULL) as drive:
        _, status, used = os.wait4(drive.pid, 0)
        drive.returncode = os.waitstatus_to_exitcode(status)
    if drive.returncode != 0:
        sys.exit(f"{script.name} was refused")
    return time.monotonic() - begun, used.ru_utime + used.ru_stime, used.ru_maxrss / 1024


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        os.environ.setdefault("XDG_RUNTIME_DIR", name)
        firm = folder / "firm"
        subprocess.run([BIN / "quillon_window_bench", "--make", firm, str(ENTRIES)], check=True)
        print(f"{'on ' + str(ENTRIES) + ' entries':45} | {'wall':>8} | {'processor':>9} | {'memory':>7}")
        for title, commands in ACTS.items():
            script = folder / "script.jsonl"
            script.write_text("\n".join(commands) + "\n")
            wall, processor, memory = map(min, zip(*(run(script, firm, folder) for _ in range(RUNS))))
            print(f"{title:45} | {wall:6.2f} s | {processor:7.2f} s | {memory:4.0f} MB")


main()
