#!/usr/bin/env python3
"""Reconciles a bank account in the desk's window as a person does: by key strokes and the mouse, from outside the
process, on a screen in memory. What came of it is read from the database with the database's own tool and from the
saved pages."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from display import LIMIT, Display, start, wait_for

DESK, SAMPLE = sys.argv[1:3]
TOOLS = ["Xvfb", "xdotool", "xclip", "isql-fb", "pdftotext"]
BANK = 103  # Godavari Co-op. Bank


class Window(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        # The toolkit's own threads for screen and files still hold things when the desk ends; leaks are looked for
        # where there are none.
        self.environment = dict(os.environ, HOME=folder.name, QT_QPA_PLATFORM="xcb", ASAN_OPTIONS="detect_leaks=0")
        for place in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"):
            own = self.folder / place
            own.mkdir(mode=0o700)
            self.environment[place] = str(own)
        made = subprocess.run([SAMPLE, self.folder / "firm", "--vouchers", "150", "--years", "2024"],
                              env=self.environment, capture_output=True, text=True)
        self.assertEqual(made.returncode, 0, made.stderr)
        self.screen = Display(self.folder)
        self.addCleanup(self.screen.close)
        self.desk = self.open_desk()

    def open_desk(self):
        environment = self.environment | {"DISPLAY": self.screen.environment["DISPLAY"]}
        with open(self.folder / "desk.log", "wb") as log:
            desk = start([DESK, self.folder / "firm"], env=environment, stdout=log, stderr=log)
        self.addCleanup(desk.wait)
        self.addCleanup(desk.terminate)
        return desk

    def books(self, query):
        """The lines that a query brings, asked while the desk has the books open."""
        root = self.folder / "XDG_CACHE_HOME/quillon/firebird"
        # The locks of the engine that has the firm open; when none has, any folder will do.
        lock = (self.folder / "firm/firm.lock").read_text().splitlines()
        locks = next((line[len("folder ") :] for line in lock if line.startswith("folder ")), root / "lock")
        run = subprocess.run(
            ["isql-fb", "-q", "-b", "-user", "SYSDBA", self.folder / "firm/2024.fdb"],
            input=f"set heading off;\n{query};\n", capture_output=True, text=True, timeout=LIMIT,
            env=self.environment | {"FIREBIRD": str(root), "FIREBIRD_LOCK": str(locks)},
        )
        self.assertEqual(run.returncode, 0, run.stderr)
        return [line.strip() for line in run.stdout.splitlines() if line.strip()]

    def cleared(self, month):
        """When the entries of a month, the opening apart, were cleared."""
        return self.books(f"select coalesce(dBankDate, '-') from FAData where dcd={BANK} and dVchDate between "
                          f"'2024-{month}-02' and '2024-{month}-28' order by 1")

    def returned(self):
        """The days of the vouchers whose cheque came back, from March on."""
        return self.books(f"select d.dVchDate from FADocs v join FAData d on d.VoucherID=v.VoucherID and d.dcd={BANK} "
                          "where v.ChqReturn='Y' and d.dVchDate>'2025-02-28' order by 1")

    def open_reconciliation(self):
        screen = self.screen
        screen.see("^Sharda")
        screen.press("ctrl+t")
        screen.see("^Select Account")
        screen.type("Godavari")
        screen.press("Return")
        screen.see("^A/c Statement - Sharda")
        screen.press("F6")
        screen.see("^Reconciliation - Sharda")

    def mark_entries(self):
        """From the third row on: a day, the date above, two dates removed, and all down from the last date above."""
        screen = self.screen
        screen.press("ctrl+Home", "Down", "Down")
        screen.type("5")
        screen.press("Return")
        screen.type("=")
        screen.press("Return", "BackSpace", "Return", "BackSpace", "Return")
        screen.type("00")
        screen.press("Return")

    def refuse_a_date(self):
        """Types a day that there is not, is told so, and is back in the cell."""
        screen = self.screen
        screen.type("31/2")
        screen.press("Return")
        screen.see("^Quillon$")
        screen.mouse((66, 30, "mousedown"), (-4, 30, "mouseup"))
        wait_for("The message", lambda: screen.selected() == "Invalid Date")
        screen.press("Return")
        screen.see("^Reconciliation")

    def print_statement(self, file):
        screen = self.screen
        screen.press("F6")
        screen.see("^Reconciliation Statement as on")
        screen.type("31/3/2025")
        screen.press("F7")
        screen.see("^Reconciliation - Sharda")
        screen.press("F8")
        screen.see("^Preview: ")
        screen.press("F5")
        screen.see("^Save as PDF")
        screen.type(str(file))
        screen.press("Return")
        wait_for("The file", file.exists)
        screen.see("^Preview: ")
        screen.press("Escape")
        screen.see("^Reconciliation - Sharda")

    def leave(self):
        """Out of the statement to the entries, the account and the desk; what the process ended with."""
        screen = self.screen
        screen.press("Escape", "Escape")
        screen.see("^A/c Statement - Sharda")
        screen.press("Escape")
        screen.see("^Sharda")
        screen.press("ctrl+q")
        return self.desk.wait(LIMIT)

    def test_a_bank_is_reconciled_from_its_opening_to_the_saved_statement(self):
        self.open_reconciliation()
        self.mark_entries()
        self.refuse_a_date()
        # The text is still there: one character of it changed makes a date of it.
        self.screen.press("BackSpace")
        self.screen.type("5")
        self.screen.press("Return")
        self.refuse_a_date()
        self.screen.press(*["BackSpace"] * 4, "Return", "Up", "ctrl+End")
        wait_for("The removed date", lambda: "-" in self.cleared("06"))
        self.assertEqual(self.returned(), [])
        self.screen.mouse((-310, 94, "click"))
        wait_for("The returned mark", self.returned)
        pages = self.folder / "statement.pdf"
        self.print_statement(pages)
        self.assertEqual(self.leave(), 0, (self.folder / "desk.log").read_text())
        self.assertEqual(self.cleared("04"), ["2024-04-05", "2024-04-05", "2024-04-20"])
        self.assertEqual(self.cleared("05"), ["2024-04-05"] * 3)
        self.assertEqual(self.cleared("06"), ["-", "2024-05-31", "2024-06-20"])
        self.assertEqual(self.returned(), ["2025-03-31"])
        text = subprocess.run(["pdftotext", "-layout", pages, "-"], capture_output=True, text=True, check=True).stdout
        self.assertIn("Reconciliation Statement as on 31/03/2025", text)
        self.assertIn("Limit transferred", text, "the entry whose date was removed is outstanding again")
        self.assertIn("Adjusted Balance", text)


if __name__ == "__main__":
    missing = [tool for tool in TOOLS if not shutil.which(tool)]
    if missing:
        print("skipped, not installed: " + ", ".join(missing))
        sys.exit(77)
    unittest.main(argv=sys.argv[:1])
