#!/usr/bin/env python3
"""Runs clang-tidy, by the files .clang-tidy, on the sources that differ from the last commit that was checked in full;
where the clone does not have that commit, on all. Exit status 0 when nothing is found.

    python3 scripts/lint.py [BUILD]           BUILD is the configured build folder, build/debug unless told
    python3 scripts/lint.py --full [BUILD]    all sources; notes the commit in scripts/lint.checked when all are clean

A header that differs counts by one source that includes it, the one of its own name before others."""

import json
import os
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
NOTE = ROOT / "scripts/lint.checked"
RULES = (".clang-tidy", "tests/.clang-tidy", "scripts/lint.py")


def git(*words):
    """What git answers, as lines; nothing where it refuses."""
    # The folder may belong to another user than the one who runs the tests.
    command = ["git", "-c", "safe.directory=*", *words]
    answer = subprocess.run(command, cwd=ROOT, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    return answer.stdout.splitlines() if answer.returncode == 0 else None


def changed_files():
    """Those that differ from the commit noted, or nothing where that is not known."""
    noted = NOTE.read_text().strip() if NOTE.exists() else ""
    differing = git("diff", "--name-only", noted, "--") if noted else None
    added = git("ls-files", "--others", "--exclude-standard")
    return None if differing is None or added is None else {*differing, *added}


def source_with(header, sources):
    """A source that includes the header itself or, failing that, through another header."""
    name = header.removeprefix("src/")
    holders = [file for file, text in sources.items() if f'"{name}"' in text]
    direct = [file for file in holders if file.endswith(".cpp")]
    own = [file for file in direct if Path(file).name.split(".")[0] == Path(header).stem]
    if direct:
        return (own or direct)[0]
    return source_with(holders[0], {f: t for f, t in sources.items() if f != header}) if holders else None


def chosen(sources, everything):
    changed = None if everything else changed_files()
    if changed is None or changed.intersection(RULES):
        return {file for file in sources if file.endswith(".cpp")}
    here = changed.intersection(sources)
    through = {source_with(file, sources) for file in here if file.endswith(".h")} - {None}
    return {file for file in here if file.endswith(".cpp")} | through


def check(file, build):
    found = subprocess.run(["clang-tidy", "--quiet", "-p", build, file], cwd=ROOT, stdout=subprocess.PIPE,
                           stderr=subprocess.STDOUT, text=True)
    return file, found.returncode, found.stdout


def main():
    words = sys.argv[1:]
    everything = "--full" in words
    folders = [word for word in words if word != "--full"]
    build = ROOT / (folders[0] if folders else "build/debug")
    commands = json.loads((build / "compile_commands.json").read_text())
    built = {Path(command["file"]) for command in commands}
    sources = {str(path.relative_to(ROOT)): path.read_text(encoding="utf-8")
               for folder in ("src", "tests", "bench") for path in sorted((ROOT / folder).rglob("*"))
               if path.suffix == ".h" or (path.suffix == ".cpp" and path in built)}
    files = sorted(chosen(sources, everything))
    print(f"clang-tidy on {len(files)} sources ...", flush=True)
    faulty = 0
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        for file, status, said in pool.map(lambda file: check(file, build), files):
            if status != 0:
                faulty += 1
                print(file, said, sep="\n", flush=True)
    if faulty:
        sys.exit(f"{faulty} of {len(files)} sources have findings")
    if everything:
        if git("status", "--porcelain", "--", "src", "tests", "bench", *RULES):
            sys.exit("All are clean, but not noted: some differ from the commit at hand")
        NOTE.write_text(git("rev-parse", "HEAD")[0] + "\n")


main()
