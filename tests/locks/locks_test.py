#!/usr/bin/env python3
"""Kills programs inside the locks of the engine, where a kill by chance seldom falls, and looks how the others fare."""

import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

DRIVE, SAMPLE, SHIM = sys.argv[1:4]
LONG = os.environ.get("QUILLON_LONG") == "1"
COUNT = {"cmd": "query", "sql": "select count(*) from FAData"}


class Locks(unittest.TestCase):
    def setUp(self):
        own = tempfile.TemporaryDirectory()
        self.addCleanup(own.cleanup)
        self.own = Path(own.name)
        self.environment = os.environ | {"XDG_CACHE_HOME": own.name + "/cache"}
        self.firm, self.other = self.own / "firm", self.own / "other"
        made = subprocess.run([SAMPLE, self.firm, "--vouchers", "30", "--years", "2024"], env=self.environment)
        self.assertEqual(made.returncode, 0)
        shutil.copytree(self.firm, self.other)

    def drive(self, firm, limit, **environment):
        return subprocess.run([DRIVE, "--firm", firm, "--out", self.own], input=json.dumps(COUNT), text=True,
                              capture_output=True, timeout=limit, env=self.environment | environment)

    def kill_in(self, at):
        return self.drive(self.firm, 60, LD_PRELOAD=SHIM, KILL_IN_LOCK=str(at)).returncode == -signal.SIGKILL

    def start(self):
        """A driver that has the firm open and goes on living."""
        drive = subprocess.Popen([DRIVE, "--firm", self.firm, "--out", self.own], stdin=subprocess.PIPE, text=True,
                                 stdout=subprocess.PIPE, stderr=subprocess.PIPE, env=self.environment)
        self.addCleanup(lambda: (drive.kill(), drive.communicate()))
        return drive

    def ask(self, drive):
        drive.stdin.write(json.dumps(COUNT) + "\n")
        drive.stdin.flush()
        return json.loads(drive.stdout.readline())

    def test_a_firm_opens_again_when_the_killed_one_was_alone(self):
        killed = 0
        for at in range(1, 400) if LONG else (1, 5, 9, 13):
            if not self.kill_in(at):
                break
            killed += 1
            for firm in (self.firm, self.other):
                run = self.drive(firm, 8)
                self.assertEqual(run.returncode, 0, (at, run.stderr))
        self.assertGreater(killed, 2)

    def test_while_another_lives_it_is_told_and_other_firms_open(self):
        stuck = 0
        for at in range(1, 400, 3) if LONG else (9,):
            living = self.start()
            self.assertTrue(self.ask(living)["ok"])
            if not self.kill_in(at):
                break
            self.assertEqual(self.drive(self.other, 8).returncode, 0)
            run = self.drive(self.firm, 45)
            if run.returncode != 0:
                stuck += 1
                self.assertIn("Close all Quillon programs on it", run.stderr)
                self.assertIn(f"process {living.pid}", run.stderr)
            living.kill()
            run = self.drive(self.firm, 8)
            self.assertEqual(run.returncode, 0, f"the living one was not reaped: {run.stderr}")
        self.assertGreater(stuck, 0)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
