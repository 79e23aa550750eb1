#!/usr/bin/env python3
"""Kills programs that copy the years of a firm, or take it back, at many instants: what is found afterwards is wholly
the present or wholly the past, and going back goes on from there."""

import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

DRIVE, SAMPLE = sys.argv[1:3]
KILLS = 60 if os.environ.get("QUILLON_LONG") == "1" else 5
STATE = [{"cmd": "query", "db": year, "sql": "select count(*),(select count(*) from FAData),(select sum(mcd) from "
          "FAMaster) from FAMaster"} for year in (2023, 2024)]
MERGE = [{"cmd": "key", "key": "Enter"},
         {"cmd": "picked", "control": "SelGrid1", "text": "Padmavati Stores Pvt. Ltd."},
         {"cmd": "key", "key": "Enter"},
         {"cmd": "picked", "control": "SelGrid1", "text": "Padmavati Stores"},
         {"cmd": "check", "control": "chkAllYears", "value": True},
         {"cmd": "answer", "to": "message", "button": 1}, {"cmd": "answer", "to": "message", "button": 1},
         {"cmd": "key", "key": "F7"}]
BULK = [{"cmd": "bulk", "key": "MergeParties"}, *MERGE]


class GoingBack(unittest.TestCase):
    def setUp(self):
        own = tempfile.TemporaryDirectory()
        self.addCleanup(own.cleanup)
        self.own = Path(own.name)
        self.environment = os.environ | {"XDG_CACHE_HOME": own.name + "/cache"}
        self.firm = self.own / "firm"
        made = subprocess.run([SAMPLE, self.firm, "--vouchers", "60", "--years", "2023,2024"], env=self.environment,
                              capture_output=True)
        self.assertEqual(made.returncode, 0, made.stderr)

    def start(self, firm, script):
        drive = subprocess.Popen([DRIVE, "--firm", firm, "--out", self.own], text=True, stdin=subprocess.PIPE,
                                 stdout=subprocess.PIPE, stderr=subprocess.PIPE, env=self.environment)
        drive.stdin.write("\n".join(map(json.dumps, script)) + "\n")
        drive.stdin.flush()
        self.addCleanup(lambda: (drive.kill(), drive.communicate()))
        return drive

    def drive(self, firm, *script):
        drive = self.start(firm, script)
        out, errors = drive.communicate(timeout=60)
        lines = list(map(json.loads, out.splitlines()))
        self.assertEqual(drive.returncode, 0, (lines[-3:], errors))
        return lines

    def state(self, firm):
        """What both years hold; what was broken off is told meanwhile and needs no answer."""
        return [line["rows"] for line in self.drive(firm, *STATE) if "rows" in line]

    def killed(self, firm, script, after):
        """Whether the program was still at it."""
        drive = self.start(firm, script)
        time.sleep(after)
        drive.send_signal(signal.SIGKILL)
        out, _ = drive.communicate()
        return '"done":1,' not in out

    def moments(self, firm, script):
        """Evenly spread over the time that it takes undisturbed."""
        spare = self.own / "spare"
        shutil.copytree(firm, spare)
        began = time.monotonic()
        self.drive(spare, *script)
        whole = time.monotonic() - began
        shutil.rmtree(spare)
        return [whole * (at + 0.5) / KILLS for at in range(KILLS)]

    def test_a_going_back_that_is_killed_leaves_the_present_or_the_past(self):
        past = self.state(self.firm)
        self.drive(self.firm, *BULK)
        present = self.state(self.firm)
        self.assertNotEqual(past, present)
        back = {"cmd": "goback", "run": 1}
        seen = []
        for after in self.moments(self.firm, [back]):
            firm = self.own / "killed"
            shutil.copytree(self.firm, firm)
            self.killed(firm, [back], after)
            found = self.state(firm)
            self.assertIn(found, (past, present), after)
            seen.append(found)
            self.drive(firm, back)
            self.assertEqual(self.state(firm), past, f"it can be gone on after {after} s")
            shutil.rmtree(firm)
        self.assertIn(present, seen)

    def test_a_run_that_is_killed_is_told_and_gone_back_on(self):
        past = self.state(self.firm)
        told = 0
        for after in self.moments(self.firm, BULK):
            firm = self.own / "killed"
            shutil.copytree(self.firm, firm)
            self.killed(firm, BULK, after)
            lines = self.drive(firm, {"cmd": "query", "db": "common", "sql": "select count(*) from BookCopies"})
            copies = lines[-1]["rows"][0][0]
            told += any("did not come to its end" in line.get("text", "") for line in lines)
            if copies == 2:
                self.drive(firm, {"cmd": "goback", "run": 1})
            self.assertEqual(self.state(firm), past, after)
            shutil.rmtree(firm)
        self.assertGreater(told, 0)

    def test_who_has_the_firm_open_is_asked_to_leave_or_thrown_out(self):
        self.drive(self.firm, *BULK)
        other = self.start(self.firm, STATE)
        for _ in STATE:
            self.assertTrue(json.loads(other.stdout.readline())["ok"])
        back = self.start(self.firm, [{"cmd": "goback", "run": 1}])
        time.sleep(3)
        other.stdin.write(json.dumps(STATE[0]) + "\n")
        other.stdin.flush()
        told = json.loads(other.stdout.readline())
        self.assertFalse(told["ok"])
        self.assertIn("all were asked to leave it: Going back to before No. 1, Merge Parties", told["error"])
        out, _ = back.communicate(timeout=30)
        self.assertTrue(json.loads(out.splitlines()[-1])["ok"], out)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
