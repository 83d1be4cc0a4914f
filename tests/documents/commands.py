#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The shell commands that our documents show are known to work.

    commands.py CTEST BUILD FOLDER-OF-VYFILEDIALOG

What is known of each stands in commands.txt, whose head tells how.
"""
import os
import pathlib
import re
import subprocess
import sys

from markdown import ROOT, SPAN, documents, finish
from names import ctest_names

TABLE = pathlib.Path(__file__).with_name("commands.txt")
PROGRAM = re.compile(r"scripts/[\w-]+( |$)|"
                     r"(clang-format|cmake|ctest|doxygen|git|man|ninja|pkg-config|python3|timeout|"
                     r"vyfiledialog|xdotool|Xvfb) ")


def tidy(command):
    return " ".join(re.sub(r"(^|\s)#.*", "", command).split())


def commands_of_block(first, lines):
    """Where there are prompts, what stands behind them is a command; else each line is."""
    prompts = any(line.startswith("$ ") for line in lines)
    begin, joined = first, ""
    for number, line in enumerate(lines, first):
        if not joined:
            begin = number
            if prompts:
                line = line[2:] if line.startswith("$ ") else ""
        joined += line.rstrip("\\")
        if not line.endswith("\\"):
            if tidy(joined):
                yield begin, tidy(joined)
            joined = ""


def shown():
    """(document, line number, command) of each command."""
    for document in documents():
        if document.name.startswith("docs/") or "/" not in document.name:
            for first, info, lines in document.blocks:
                if info in ("indented", "sh", "console"):
                    for number, command in commands_of_block(first, lines):
                        yield document.name, number, command
            for number, line in document.prose:
                for code in SPAN.findall(line):
                    if PROGRAM.match(code):
                        yield document.name, number, tidy(code)


def known():
    """Command -> (line number, how it is known to work)."""
    table = {}
    for number, line in enumerate(TABLE.read_text(encoding="utf-8").split("\n"), 1):
        if line and not line.startswith("#"):
            command, _, how = line.partition(" -> ")
            table[command.strip()] = (number, how.strip())
    return table


def fault(command, how, tests, environment):
    """What is wrong with a line of the table; nothing if it is right."""
    kind, _, rest = how.partition(" ")
    if kind == "run":
        ran = subprocess.run(["bash", "-euo", "pipefail", "-c", command], cwd=ROOT, text=True,
                             env=environment, capture_output=True)
        return ran.returncode and f"it fails: {ran.stdout}{ran.stderr}"
    if kind == "test":
        return rest not in tests and f"no such test: {rest}"
    if kind == "in":
        path = ROOT / rest
        text = tidy(path.read_text(encoding="utf-8")) if path.is_file() else ""
        missing = [part for part in command.split(" && ") if part not in text]
        return missing and f"{rest} does not have it: {missing[0]}"
    return not how.startswith("too long: ") and f"not understood: {how}"


def main():
    ctest, build, programs = sys.argv[1:]
    environment = {**os.environ, "PATH": f"{programs}:{os.environ['PATH']}"}
    table, tests = known(), ctest_names(ctest, build)
    faults, checked, seen = [], 0, set()
    for name, number, command in shown():
        checked += 1
        seen.add(command)
        if command not in table:
            faults.append((name, number, f"add what is known of it to {TABLE.name}: {command}"))
    for command, (number, how) in table.items():
        if command not in seen:
            faults.append((TABLE.name, number, f"no document shows it: {command}"))
        elif wrong := fault(command, how, tests, environment):
            faults.append((TABLE.name, number, f"{command}: {wrong}"))
    finish(faults, checked, "commands")


main()
