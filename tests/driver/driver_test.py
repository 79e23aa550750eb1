#!/usr/bin/env python3
"""Runs the scripts of this folder through the built driver, each as a whole process on a firm of its own.

A script says itself what must come: below a command "#= {...}" is what its answer must hold, "#! text" a refusal that
holds the text, "#~ {...}" an event that must have come since the answer before it. A command without any of them must
be carried out. FIRM stands for the firm's folder."""

import json
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest
import unittest.mock
from pathlib import Path

DRIVE, SAMPLE = sys.argv[1:3]
HERE = Path(__file__).resolve().parent
LEAF_123 = json.dumps({"cmd": "query", "sql": "select VoucherID,IsuDate from ChqLeaves where ID=900"})
COMMANDS = set(
    "firm form menu set get call show close forms key focus type paste click dblclick bar choose check row cell range "
    "gridrow scroll pickbutton picked popup answer state tree query execute setting picture trace bulk goback menuline "
    "copy find sort keys".split()
)


def holds(found, wanted):
    """Whether all that is wanted stands in what was found; lists are compared item by item."""
    if isinstance(wanted, dict):
        return isinstance(found, dict) and all(k in found and holds(found[k], v) for k, v in wanted.items())
    if isinstance(wanted, list):
        return isinstance(found, list) and len(found) == len(wanted) and all(map(holds, found, wanted))
    return found == wanted


class Driver(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        os.environ["XDG_CACHE_HOME"] = cls.folder.name + "/cache"
        cls.sample = Path(cls.folder.name) / "sample"
        made = subprocess.run([SAMPLE, cls.sample, "--vouchers", "150", "--years", "2023,2024"], capture_output=True)
        assert made.returncode == 0, made.stderr

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def setUp(self):
        self.own = tempfile.TemporaryDirectory()
        self.addCleanup(self.own.cleanup)
        self.firm = str(Path(self.own.name) / "firm")
        shutil.copytree(self.sample, self.firm)

    def drive(self, text, *options):
        """Exit status, lines and what went to the error output."""
        run = subprocess.run(
            [DRIVE, "--out", self.own.name, *options], input=text, capture_output=True, text=True, timeout=60
        )
        return run.returncode, [json.loads(line) for line in run.stdout.splitlines()], run.stderr

    def run_script(self, name, status):
        text = (HERE / "scripts" / name).read_text().replace("FIRM", self.firm).replace("OTHER", self.own.name + "/other")
        code, lines, errors = self.drive(text, "--firm", self.firm)
        answers = {line["done"]: at for at, line in enumerate(lines) if "done" in line}
        number = 0
        expected = {}
        for at, line in enumerate(text.splitlines(), 1):
            if line.startswith("#="):
                expected.setdefault(number, []).append((at, "answer", json.loads(line[2:])))
            elif line.startswith("#!"):
                expected.setdefault(number, []).append((at, "refused", line[2:].strip()))
            elif line.startswith("#~"):
                expected.setdefault(number, []).append((at, "event", json.loads(line[2:])))
            elif line.strip() and not line.startswith("#"):
                number += 1
                expected.setdefault(number, [])
        self.assertEqual(sorted(answers), list(range(1, number + 1)), errors)
        for command, wants in expected.items():
            place = answers[command]
            answer = lines[place]
            refusals = [want for _, kind, want in wants if kind == "refused"]
            self.assertEqual(answer["ok"], not refusals, f"{name}, command {command}: {answer}")
            before = max([at for at in answers.values() if at < place], default=-1)
            for at, kind, want in wants:
                where = f"{name}:{at}: {want}\nfound: {lines[before + 1 : place + 1]}"
                if kind == "refused":
                    self.assertIn(want, answer["error"] + answer.get("details", ""), where)
                elif kind == "answer":
                    self.assertTrue(holds(answer, want), where)
                else:
                    self.assertTrue(any(holds(line, want) for line in lines[before + 1 : place]), where)
        self.assertEqual(code, status, lines[-3:])
        return lines, answers

    def test_every_command_is_in_some_script(self):
        used = set()
        for script in (HERE / "scripts").glob("*.jsonl"):
            used |= set(re.findall(r'^\{"cmd":"(\w+)"', script.read_text(), re.MULTILINE))
        self.assertEqual(COMMANDS - used, set())

    def test_reconcile(self):
        lines, _ = self.run_script("reconcile.jsonl", 0)
        picture = next(line["file"] for line in lines if "done" in line and "file" in line)
        with open(picture, "rb") as file:
            self.assertEqual(file.read(8), b"\x89PNG\r\n\x1a\n")

    def test_a_cheque_that_came_back(self):
        self.run_script("returned.jsonl", 0)

    def test_a_morning_of_vouchers(self):
        self.run_script("vouchers.jsonl", 0)

    def test_a_month_of_cheques(self):
        shutil.copytree(self.sample, self.own.name + "/other")
        self.run_script("cheques.jsonl", 0)

    def print_on_leaf_123(self, printer):
        return "\n".join(map(json.dumps, [
            {"cmd": "execute", "sql": "insert into ChqLeaves (ID,BankCode,ChqNo) values (900,103,123)"},
            {"cmd": "form", "key": "Account", "host": True, "id": "st"},
            {"cmd": "set", "form": "st", "member": "AccountCode", "value": 103},
            {"cmd": "show", "form": "st"},
            {"cmd": "bar", "control": "BtnBar1", "button": "Others"},
            {"cmd": "popup", "key": "ChequeRun"},
            {"cmd": "key", "key": "F2"},
            {"cmd": "type", "control": "txpFirst", "text": "123"},
            {"cmd": "answer", "to": "printdialog", "printer": printer},
            {"cmd": "key", "key": "F9"},
        ]))

    def test_a_cheque_on_a_full_disk_is_not_printed(self):
        full = Path(self.own.name) / "full"
        full.mkdir()
        small = ["unshare", "-rm", "sh", "-c", 'mount -t tmpfs -o size=8k none "$0" && exec "$@"', str(full)]
        if subprocess.run([*small, "true"], capture_output=True).returncode != 0:
            self.skipTest("a small disk cannot be made here")
        script = "\n".join([self.print_on_leaf_123("PDF file"), LEAF_123,
                            json.dumps({"cmd": "query", "sql": "select * from ChqGoingOut"})])
        run = subprocess.run([*small, DRIVE, "--out", str(full), "--firm", self.firm], input=script,
                             capture_output=True, text=True, timeout=60)
        lines = [json.loads(line) for line in run.stdout.splitlines()]
        told = [line["text"] for line in lines if line.get("event") == "error"]
        self.assertEqual(len(told), 1, lines)
        self.assertIn("could not be written whole", told[0])
        self.assertEqual([line["rows"] for line in lines if "rows" in line and "columns" in line], [[[None, None]], []])
        self.assertFalse([line for line in lines if line.get("event") == "printed"])

    def test_killed_while_a_cheque_is_on_its_way_asks_for_it_at_the_next_start(self):
        tools = Path(self.own.name) / "tools"
        tools.mkdir()
        for name, does in (("lpstat", "echo Laser"), ("lp", "kill -9 $PPID")):
            (tools / name).write_text("#!/bin/sh\n" + does + "\n")
            (tools / name).chmod(0o755)
        with unittest.mock.patch.dict(os.environ, {"PATH": f"{tools}:{os.environ['PATH']}"}):
            code, lines, errors = self.drive(self.print_on_leaf_123("Laser"), "--firm", self.firm)
        self.assertEqual(code, -signal.SIGKILL, errors)
        # Nobody answers: the leaf goes on waiting for a word.
        code, lines, _ = self.drive(LEAF_123, "--firm", self.firm)
        self.assertEqual(lines[0]["text"], "Was cheque 000123 printed?")
        self.assertEqual((code, lines[-1]["rows"]), (0, [[None, None]]))
        answer = json.dumps({"cmd": "answer", "to": "message", "button": 1})
        firm = json.dumps({"cmd": "firm", "folder": self.firm})
        code, lines, _ = self.drive("\n".join([answer, firm, LEAF_123]))
        self.assertEqual(code, 0, lines)
        self.assertIsNotNone(lines[-1]["rows"][0][0])
        code, lines, _ = self.drive(LEAF_123, "--firm", self.firm)
        self.assertEqual([line.get("event") for line in lines], [None], "it is asked about no more")
    def test_a_years_graph_beside_two_others(self):
        shutil.rmtree(self.firm)
        subprocess.run([SAMPLE, self.firm, "--vouchers", "20", "--years", "2023,2024,2025"], check=True, capture_output=True)
        lines, _ = self.run_script("graph.jsonl", 0)
        page = next(line["file"] for line in lines if line.get("event") == "printed")
        if not shutil.which("pdftotext"):
            self.skipTest("pdftotext is not installed")
        words = subprocess.run(["pdftotext", page, "-"], capture_output=True, text=True).stdout
        for shown in ("Sharda Trading Co.", "Asha Traders, Surat", "Oct-Dec", "2023-2024"):
            self.assertIn(shown, words)
        for left_out in ("Cummlative", "Total", "Graphical Representation"):
            self.assertNotIn(left_out, words)

    def test_bulk_work_and_a_merge_over_three_years(self):
        shutil.rmtree(self.firm)
        subprocess.run([SAMPLE, self.firm, "--vouchers", "300", "--years", "2022,2023,2024"], check=True, capture_output=True)
        second = self.firm + "-2"
        shutil.copytree(self.firm, second)
        self.run_script("bulk.jsonl", 0)
        self.firm = second
        self.run_script("merge.jsonl", 0)

    def test_a_merge_under_copies_is_gone_back_on(self):
        self.run_script("goback.jsonl", 1)

    def test_labels_letters_and_envelopes(self):
        self.run_script("correspondence.jsonl", 0)

    def test_refusals(self):
        lines, _ = self.run_script("refusals.jsonl", 1)
        self.assertEqual(lines[-1], {"left_over": [{"to": "input", "text": "Nigdi Branch"}]})

    def test_fields_and_what_stands_inside_them(self):
        self.run_script("fields.jsonl", 1)

    def test_modal_forms_answer_from_the_inside(self):
        _, answers = self.run_script("modal.jsonl", 0)
        order = [number for number, _ in sorted(answers.items(), key=lambda item: item[1])]
        self.assertEqual(order[3:], [5, 6, 7, 8, 4, 9, 10, 12, 11, 13])

    def test_what_still_waits_at_the_end_is_closed(self):
        code, lines, _ = self.drive('{"cmd":"form","key":"inttmethod"}\n{"cmd":"show","form":"f1","modal":true}\n',
                                    "--firm", self.firm)
        self.assertEqual((code, [line["done"] for line in lines if "done" in line]), (0, [1, 2]))
        self.assertTrue(any(holds(line, {"event": "form", "what": "unload", "form": "f1"}) for line in lines))

    def test_a_firm_may_be_changed_inside_a_modal_form(self):
        script = [{"cmd": "form", "key": "SelectAc", "host": True, "id": "s"}, {"cmd": "show", "form": "s", "modal": True},
                  {"cmd": "firm", "folder": self.firm, "year": 2023}, {"cmd": "query", "sql": "select 1 from rdb$database"}]
        code, lines, errors = self.drive("\n".join(map(json.dumps, script)), "--firm", self.firm)
        self.assertEqual(code, 0, (lines, errors))
        self.assertEqual(lines[-1]["rows"], [[1]])

    def test_programs_tell_of_themselves(self):
        for name in ("desk", "drive", "tour", "sample"):
            program = str(Path(DRIVE).with_name("quillon-" + name))
            if not os.path.exists(program):
                continue
            for option, begin in (("--help", f"quillon-{name} "), ("--version", f"quillon-{name} ")):
                run = subprocess.run([program, option], capture_output=True, text=True, timeout=60)
                self.assertEqual((run.returncode, run.stdout[: len(begin)]), (0, begin))

    def test_another_firm_is_opened_in_a_fresh_process(self):
        second, folder = (str(Path(self.own.name) / name) for name in ("second", "nowhere"))
        shutil.copytree(self.sample, second)
        mark = {"cmd": "execute", "sql": "update FAData set dBankDate='2025-03-30' where dcd=101"}
        script = [mark, {"cmd": "trace", "sql": True}, {"cmd": "answer", "to": "input", "text": "kept"},
                  {"cmd": "form", "key": "SelectAc", "host": True}, {"cmd": "show", "form": "f1", "modal": True},
                  {"cmd": "firm", "folder": folder}, {"cmd": "forms"},
                  {"cmd": "firm", "folder": second, "year": 2023}, {"cmd": "form", "key": "inttmethod"},
                  {"cmd": "query", "sql": "select count(*) from FAData where dBankDate='2025-03-30'"}]
        text = "\n".join(map(json.dumps, script))
        file = Path(self.own.name) / "script.jsonl"
        file.write_text(text)
        for run in (lambda: self.drive(text, "--firm", self.firm), lambda: self.drive("", "--firm", self.firm, file)):
            code, lines, errors = run()
            answers = {line["done"]: line for line in lines if "done" in line}
            self.assertEqual(sorted(answers), list(range(1, 11)), (lines, errors))
            self.assertIn("There is no folder", answers[6]["error"])
            self.assertEqual([form["id"] for form in answers[7]["forms"]], ["f1"], "the firm at hand stays open")
            self.assertTrue(answers[8]["ok"], answers[8])
            self.assertEqual(answers[9]["form"], "f2", "no id is given twice")
            self.assertEqual(answers[10]["rows"], [[0]])
            self.assertTrue(any(line.get("event") == "sql" for line in lines[lines.index(answers[8]):]))
            self.assertEqual(lines[-1], {"left_over": [{"to": "input", "text": "kept"}]})
            self.assertEqual(code, 2, "the folder that holds no firm")

    def test_a_runtime_folder_of_somebody_else_is_not_used(self):
        place = Path(self.own.name) / "tmp"
        usual = place / f"quillon-{os.geteuid()}"
        usual.mkdir(parents=True)
        usual.chmod(0o777)
        environment = {k: v for k, v in os.environ.items() if k != "XDG_RUNTIME_DIR"} | {"TMPDIR": str(place)}
        run = subprocess.run([DRIVE, "--out", self.own.name], input="", text=True, timeout=60, env=environment)
        self.assertEqual(run.returncode, 0)
        own = [folder for folder in place.glob("quillon-*") if folder != usual]
        self.assertEqual([folder.stat().st_mode & 0o777 for folder in own], [0o700])

    def test_answers_that_cannot_be_written_stop_it(self):
        with open("/dev/full", "w") as full:
            drive = subprocess.run([DRIVE, "--firm", self.firm, "--out", self.own.name], input='{"cmd":"forms"}\n' * 50,
                                   stdout=full, stderr=subprocess.PIPE, text=True, timeout=60)
        self.assertEqual(drive.returncode, 2)
        self.assertIn("answers cannot be written", drive.stderr)
        code, _, errors = self.drive("", "--firm", self.firm, self.own.name)
        self.assertEqual(code, 2)
        self.assertIn("is a folder", errors)

    def test_input_that_is_no_json(self):
        deep = '{"cmd":"forms","x":' + "[" * 200000 + "]" * 200000 + "}"
        for text in (deep, "hello", "[1]", '{"cmd":"forms"', '"forms"'):
            code, lines, _ = self.drive(f'{{"cmd":"forms"}}\n\n# a remark\n{text}\n', "--firm", self.firm)
            self.assertEqual(code, 2, text)
            self.assertEqual([(line["done"], line["ok"]) for line in lines], [(1, True), (2, False)])

    def test_firms_that_do_not_open(self):
        def changed(name, change):
            folder = Path(self.own.name) / name
            shutil.copytree(self.firm, folder)
            change(folder)
            return str(folder)

        def rewrite(folder, **values):
            file = folder / "firm.json"
            file.write_text(json.dumps(json.loads(file.read_text()) | values))

        cases = {
            "There is no folder": str(Path(self.own.name) / "nowhere"),
            "is damaged": changed("json", lambda f: (f / "firm.json").write_text("{oops")),
            "newer version": changed("newer", lambda f: rewrite(f, schema=99)),
            "is damaged or in use": changed("cut", lambda f: os.truncate(f / "2024.fdb", 5000)),
            "2024.fdb of the firm is missing": changed("gone", lambda f: (f / "2024.fdb").unlink()),
        }
        for why, folder in cases.items():
            code, lines, errors = self.drive('{"cmd":"forms"}\n', "--firm", folder)
            self.assertEqual((code, lines), (2, []), why)
            self.assertIn(why, errors)
            command = json.dumps({"cmd": "firm", "folder": folder})
            code, lines, _ = self.drive(command + '\n{"cmd":"forms"}\n')
            self.assertEqual((code, [line["ok"] for line in lines]), (2, [False, True]), why)
            self.assertIn(why, lines[0]["error"])
        command = json.dumps({"cmd": "firm", "folder": self.firm, "year": 1999})
        code, lines, _ = self.drive(command)
        self.assertEqual(code, 2)
        self.assertIn("no financial year 1999-00", lines[0]["error"])
        code, lines, errors = self.drive("", "--firm", self.firm, "--user", "Nobody")
        self.assertEqual((code, lines), (2, []))
        self.assertIn("no user Nobody", errors)

    def test_a_user_without_rights(self):
        self.drive(json.dumps({"cmd": "execute", "db": "common", "sql": "delete from UserRights"}), "--firm", self.firm)
        script = [{"cmd": "form", "key": "acreconciliation", "id": "b"}, {"cmd": "show", "form": "b"},
                  {"cmd": "forms"}]
        code, lines, _ = self.drive("\n".join(map(json.dumps, script)), "--firm", self.firm, "--user", "Clerk")
        self.assertEqual(code, 0)
        self.assertTrue(any(line.get("event") == "message" and "no right" in line["text"] for line in lines))
        self.assertEqual(lines[-1]["forms"], [])

    def test_a_signal_ends_it_with_the_books_open(self):
        for sent in (signal.SIGTERM, signal.SIGINT):
            drive = subprocess.Popen([DRIVE, "--firm", self.firm, "--out", self.own.name], stdin=subprocess.PIPE,
                                     stdout=subprocess.PIPE, text=True)
            with drive:
                drive.stdin.write('{"cmd":"forms"}\n')
                drive.stdin.flush()
                self.assertIn('"ok":true', drive.stdout.readline())
                drive.send_signal(sent)
                self.assertEqual(drive.wait(60), -sent)

    def test_killed_between_two_dates_keeps_every_date(self):
        drive = subprocess.Popen([DRIVE, "--firm", self.firm, "--out", self.own.name], stdin=subprocess.PIPE,
                                 stdout=subprocess.PIPE, text=True)

        def send(**command):
            drive.stdin.write(json.dumps(command) + "\n")
            drive.stdin.flush()
            while "done" not in (line := json.loads(drive.stdout.readline())):
                pass
            return line

        send(cmd="form", key="Account", host=True, id="st")
        send(cmd="set", form="st", member="AccountCode", value=101)
        send(cmd="show", form="st")
        send(cmd="bar", control="BtnBar1", button="Reconciliation")
        cells = send(cmd="state", control="Grid", cols=[0, 5, 9])["cells"]
        marked = []
        for row, (voucher, line, book) in enumerate(cells):
            if row and voucher not in ("", "0") and book != "0B" and len(marked) < 12:
                answer = send(cmd="cell", control="Grid", row=row, col=27, text="31/3/2025")
                self.assertEqual(answer["text"], "31-Mar-2025")
                marked.append((voucher, line))
        drive.send_signal(signal.SIGKILL)
        drive.wait()
        drive.stdin.close()
        drive.stdout.close()
        self.assertEqual(len(marked), 12)
        script = [{"cmd": "query", "sql": f"select dBankDate from FAData where VoucherID={v} and dVchSubNo={s}"}
                  for v, s in marked]
        code, lines, _ = self.drive("\n".join(map(json.dumps, script)), "--firm", self.firm)
        self.assertEqual([line["rows"] for line in lines], [[["2025-03-31"]]] * 12)
        if not shutil.which("gfix"):
            self.skipTest("gfix is not installed")
        engine = Path(os.environ["XDG_CACHE_HOME"]) / "quillon/firebird"
        check = subprocess.run(["gfix", "-user", "SYSDBA", "-v", "-full", self.firm + "/2024.fdb"],
                               capture_output=True, text=True,
                               env=os.environ | {"FIREBIRD": str(engine), "FIREBIRD_LOCK": self.own.name})
        self.assertEqual((check.returncode, check.stdout + check.stderr), (0, ""))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
