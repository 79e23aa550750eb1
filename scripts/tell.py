#!/usr/bin/env python3
"""Says in plain words what a script of quillon-drive did: its comments are the headings, its answers the outcome."""

import json
import sys


def outcome(command, answer, events):
    """What came of one command, or nothing worth saying."""
    if not answer["ok"]:
        return "could not be done: " + answer["error"]
    said = [f'the desk said "{event["text"]}"' for event in events if event["event"] in ("message", "error")]
    for event in events:
        if event["event"] == "report":
            said.append(f'"{event["title"]}", {event["pages"]} page(s), lies in {event["file"]}')
    if command["cmd"] == "cell":
        if answer["left"]:
            said.append(f'row {command["row"]} now says "{answer["text"]}"')
        else:
            said.append(f'row {command["row"]} was kept as it was')
    if command["cmd"] == "query":
        said.append(", ".join(str(row[0]) for row in answer["rows"]))
    return "; ".join(said)


def main():
    script = [line.strip() for line in open(sys.argv[1], encoding="utf-8") if line.strip()]
    lines = [json.loads(line) for line in open(sys.argv[2], encoding="utf-8") if line.startswith("{")]
    events = []
    answers = {}
    for line in lines:
        if "done" in line:
            answers[line["done"]] = (line, events)
            events = []
        else:
            events.append(line)
    number = 0
    for line in script:
        if line.startswith("#"):
            print("- " + line[1:].strip())
            continue
        number += 1
        answer, before = answers.get(number, ({"ok": False, "error": "not reached"}, []))
        words = outcome(json.loads(line), answer, before)
        if words:
            print("    " + words)


main()
