#!/usr/bin/env python3
"""Keeps the house: reads every file that git knows under src, tests and bench, and prints FILE:LINE, what is wrong
there and the mend. Exit status 0 when all is well, 1 when not, 77 when a tool that it needs is missing."""

import re
import shutil
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent

def read_arrows():
    """The table that CMake reads too: what each folder of src may include beside itself, and its targets."""
    folders, may_see = {}, {}
    for line in (ROOT / "cmake/arrows.txt").read_text(encoding="utf-8").splitlines():
        if line.startswith("#") or not line.strip():
            continue
        target, own, seen = (part.split() for part in line.split("|"))
        folders[target[0]] = own
        may_see[target[0]] = {use for name in seen for use in [name, *may_see[name]]}
    return {
        folder: {other for name in [target, *may_see[target]] for other in folders[name]} - {folder}
        for target, own in folders.items()
        for folder in own
    }, set(folders)


MAY_SEE, TARGETS = read_arrows()

LONGEST_FUNCTION = 70
MONEY = re.compile(
    r"\b(?:double|float)\b[\s&*]*(?:const\s+)?(\w*(?:amt|amount|balance|rate)\w*)\b(?!\s*::)", re.IGNORECASE
)
NO_MONEY = {"AmtWd"}  # inches
MACHINE_PATH = re.compile(r"(?<![\w.])/(?:work|root|home)/")
ABSENT_PAPER = re.compile(r"\b[Ss]pecification\b|\bthe [Ss]pec\b|\bParts? [1-8]\.[1-9]\b")

faults = []


def fault(path, line, what, mend):
    faults.append((str(path), line, f"{what}; {mend}"))


def tracked_files():
    if not shutil.which("git") or not (ROOT / ".git").exists():
        print("skipped: the files are not under git, so it is not known which are the project's")
        sys.exit(77)
    # The folder may belong to another user than the one who runs the tests.
    git = ["git", "-c", "safe.directory=*", "ls-files", "-z", "--", "src", "tests", "bench"]
    listed = subprocess.run(git, cwd=ROOT, capture_output=True, check=True)
    names = [name for name in listed.stdout.decode().split("\0") if name and (ROOT / name).is_file()]
    texts = {}
    for name in names:
        try:
            texts[name] = (ROOT / name).read_bytes().decode("utf-8")
        except UnicodeDecodeError:
            if name.endswith((".cpp", ".h", ".py", ".txt", ".md")):
                fault(name, 1, "is no UTF-8", "save it as UTF-8")
    return texts


def is_code(name):
    return name.endswith((".cpp", ".h"))


def folder_of(name):
    """The folder of src that a file or an include belongs to, the longest that the table knows."""
    parts = name.split("/")[:-1]
    for count in range(len(parts), 0, -1):
        if "/".join(parts[:count]) in MAY_SEE:
            return "/".join(parts[:count])
    return None


def line_of(text, at):
    return text.count("\n", 0, at) + 1


def includes(text):
    """Line, opening mark and name of every include."""
    for match in re.finditer(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"\n]+)', text, re.MULTILINE):
        yield line_of(text, match.start()), match.group(1), match.group(2)


def check_includes(name, text):
    folder = folder_of(name.removeprefix("src/"))
    if folder is None:
        fault(name, 1, "its folder has no arrows", "add the folder to cmake/arrows.txt")
        return
    in_desk = folder.startswith("desk/")
    for line, mark, header in includes(text):
        library = re.match(r"Q[A-Z]|Qt|ibase\.h|firebird/", header)
        if library and not in_desk:
            fault(name, line, f"includes {header} outside the desk", "ask for it through an interface of host")
        if mark == "<" or library:
            continue
        target = folder_of(header)
        if target is None:
            fault(name, line, f'"{header}" names no folder of src', 'write it as "host/values/Amount.h"')
        elif target != folder and target not in MAY_SEE[folder]:
            fault(name, line, f"{folder} may not see {target}", "move what is shared down, or hand it in from above")


def blank_out(text):
    """The text with comments, texts, characters and preprocessor lines made blank; line ends stay."""
    pattern = re.compile(
        r'//(?:\\\n|[^\n])*|/\*.*?\*/|R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"'
        r"|(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+'|^[ \t]*#(?:\\\n|[^\n])*",
        re.DOTALL | re.MULTILINE,
    )
    return pattern.sub(lambda match: re.sub(r"[^\n]", " ", match.group()), text)


# What may stand before the brace of a function; the second alternative is the brace of a member's initial value.
BODY_FOLLOWS = re.compile(r"(?:\)|\}|\b(?:const|noexcept|override|final|try|mutable)|->[\w\s:<>,&*]+)\s*&{0,2}\s*$")
SCOPE = re.compile(r"^\s*(?:\[\[.*?\]\]\s*|inline\s+|typedef\s+)*(?:class|struct|union|enum|namespace|extern)\b")


def functions(text):
    """First line, last line and name of each function, by counting braces."""
    header, start, depth, skipping = "", 0, 0, 0
    bare = blank_out(text)
    for at, c in enumerate(bare):
        if depth or skipping:  # inside a body, or inside the braces of an initial value
            step = {"{": 1, "}": -1}.get(c, 0)
            if depth:
                depth += step
                if depth == 0:
                    yield line_of(bare, start), line_of(bare, at), header.split("(")[0].strip().split(" ")[-1]
                    header = ""
            else:
                skipping += step
                header += "}" if skipping == 0 else ""
        elif c == "{":
            plain = re.sub(r"\btemplate\s*<(?:[^<>]|<[^<>]*>)*>", "", header).rstrip()
            if "(" in plain and BODY_FOLLOWS.search(plain):
                header, depth = plain, 1
            elif SCOPE.match(plain) and "=" not in plain:
                header = ""
            else:
                skipping = 1
        elif c in ";}" or (c == ":" and header.strip() in ("public", "private", "protected")):
            header = ""
        else:
            if not header.strip():
                start = at
            header += c


def check_functions(name, text):
    for first, last, function in functions(text):
        if last - first + 1 > LONGEST_FUNCTION:
            fault(name, first, f"{function} has {last - first + 1} lines, over {LONGEST_FUNCTION}", "split it")


def check_money(name, text):
    for match in MONEY.finditer(blank_out(text)):
        if match.group(1) not in NO_MONEY:
            fault(name, line_of(text, match.start()), f"{match.group(1)} is floating point", "make it an Amount")


def check_lines(name, text):
    if text and not text.endswith("\n"):
        fault(name, line_of(text, len(text)), "the last line has no end", "end the file with a line end")
    for number, line in enumerate(text.split("\n"), 1):
        if "\t" in line and not name.endswith((".tsv", ".map")):
            fault(name, number, "a tab", "indent with blanks, write \\t in a text")
        if MACHINE_PATH.search(line):
            fault(name, number, "a path of one machine", "work it out when the program runs")
        if ABSENT_PAPER.search(line):
            fault(name, number, "points to a paper that readers do not have", "say the rule itself")


def check_reached(texts):
    """Sources that no target compiles and headers that nothing includes."""
    wanted = {header for text in texts.values() for _, _, header in includes(text)}
    lists = {name: text for name, text in texts.items() if name.endswith("CMakeLists.txt")}
    programs = set(re.findall(r"quillon_program\(\S+ ([\w/]+)", "".join(lists.values())))
    for name in filter(is_code, texts):
        path = Path(name)
        if name.endswith(".h"):
            if not {name, name.removeprefix("src/"), path.name} & wanted:
                fault(name, 1, "nothing includes this header", "remove it")
            continue
        own = lists.get(f"{path.parent}/CMakeLists.txt", "")
        above = lists.get(f"{path.parent.parent}/CMakeLists.txt", "")
        folder = str(path.parent).removeprefix("src/")
        if path.name == "main.cpp" and name.startswith("src/"):
            built = folder in programs
        else:
            calls = re.search(r"^\s*quillon_(?:desk_)?test\(", own, re.MULTILINE)
            collected = path.parent.parent.name == "tests" and path.parent.name in TARGETS and not own
            built = folder in MAY_SEE or calls or collected or path.name in own + above
        if not built:
            fault(name, 1, "no target compiles this source", "name it in its CMakeLists.txt or remove it")


def check_guide():
    """Chapters that the index of the guide does not list."""
    guide = ROOT / "docs/guide"
    listed = set(re.findall(r"\]\(([\w-]+\.md)\)", (guide / "README.md").read_text(encoding="utf-8")))
    for chapter in guide.glob("*.md"):
        if chapter.name not in listed | {"README.md"}:
            fault(chapter.relative_to(ROOT), 1, "the guide's index does not list this chapter", "name it in docs/guide/README.md")


def check_format(names):
    """True when the format could be checked."""
    tool = shutil.which("clang-format")
    if not tool or not names:
        return bool(tool)
    run = subprocess.run([tool, "--dry-run", "-Werror", *names], cwd=ROOT, capture_output=True, text=True)
    seen = set()
    for match in re.finditer(r"^(.+?):(\d+):\d+: error:", run.stderr, re.MULTILINE):
        if match.group(1) not in seen:
            seen.add(match.group(1))
            fault(match.group(1), int(match.group(2)), "is not formatted", f"clang-format -i {match.group(1)}")
    if run.returncode != 0 and not seen:
        sys.exit("clang-format failed: " + run.stderr)
    return True


def main():
    texts = tracked_files()
    for name, text in texts.items():
        check_lines(name, text)
        if is_code(name):
            check_functions(name, text)
        if is_code(name) and name.startswith("src/"):
            check_includes(name, text)
            check_money(name, text)
    check_reached(texts)
    check_guide()
    formatted = check_format([name for name in texts if is_code(name)])
    for name, line, text in sorted(faults):
        print(f"{name}:{line}: {text}")
    if faults:
        sys.exit(1)
    if not formatted:
        print("skipped: clang-format is not installed, so the format was not checked; all else is well")
        sys.exit(77)
    print(f"{len(texts)} files are in order")


if __name__ == "__main__":
    main()
