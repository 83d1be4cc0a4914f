#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Breaks one condition or constant of the product at a time and looks whether a test
notices. `scripts/mutate` prepares what it needs and tells what it is called with."""
import argparse
import collections
import json
import os
import pathlib
import queue
import random
import re
import shlex
import subprocess
import sys
import threading
import time

import instrument

# What is broken: the front, the file types, the Qt dialogs and the native panels.
SOURCES = """
VyFileDialog VyFileDialogFactory VyStartPath VyFileDialogResults
VyFileTypeList VyNameMatcher
VyFileDialogQt VyFileDialogQtKinds VyFileDialogWidget VyFileDialogWidgetPathBar
VyDirPushButton VyPathBar VySidebarPlaces VyFileDialogPreview VyFileListModel
VyFileDialogMac VyFileDialogMacKinds VyFileDialogMacDoModal VyFileDialogMacMacNativeBase
VyFileDialogMacMacNativePrivate VyFileDialogMacNewMacNative VyFileDialogMacOpenMacNative
VyFileDialogMacSaveMacNative VyPanelConstruction VyPanelMessages VyStartingType
VyAccessoryLayout VyViewFilterMacNative VyNSOpenSavePanelDelegate NSOpenPanelExt
VyNativeStrings
""".split()
# Tests of other things than the product's code, or that take minutes or measure time.
UNSUITED = re.compile(r"^(build|benchmarks|fuzz|slow|manual)|FilterCost|ManualTest|SoakTest")

Test = collections.namedtuple("Test", "name command environment timeout skip")
# A test that passes without a mutant, and the mutants that it comes by.
Meeting = collections.namedtuple("Meeting", "seconds test mutants")


def say(text):
    print(f"== {text}", flush=True)


def compile_commands(build):
    """source name -> its compiler's arguments"""
    commands = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        path = pathlib.Path(entry["file"])
        if path.parent.name == "VyFileDialogs":
            commands[path] = shlex.split(entry["command"])
    return commands


def parser_arguments(command):
    """Those that say what the source means."""
    kept, words = [], iter(command[1:])
    for word in words:
        if word in ("-o", "-c", "-MF", "-MT"):
            next(words)
        elif word == "-Xclang":
            next(words)
        elif re.match(r"-(I|D|isystem|idirafter|include|std|f|m|x)", word):
            kept.append(word)
            if word in ("-isystem", "-idirafter", "-include", "-x", "-I"):
                kept.append(next(words))
    return kept


def refused_lines(command, source):
    """The lines of the source that the compiler refuses."""
    words = command.copy()
    words[words.index("-o") + 1] = os.devnull
    process = subprocess.run(words + ["-ferror-limit=0", "-w"], stderr=subprocess.PIPE,
                             text=True, check=False)
    lines = {int(line) for line in re.findall(rf"{re.escape(source.name)}:(\d+):\d+:",
                                              process.stderr)}
    if process.returncode and not lines:
        sys.exit(process.stderr)
    return lines if process.returncode else set()


def make_mutants(build):
    mutants, number = [], 1
    for path, command in sorted(compile_commands(build).items()):
        if path.stem not in SOURCES:
            continue
        source = instrument.Source(path, parser_arguments(command), number)
        source.write()
        while lines := refused_lines(command, path):
            source.drop(lines)
            source.write()
        number = source.next
        mutants += source.mutants
        print(f"{len(source.mutants):5} {path.name}", flush=True)
    return mutants


def read_tests(build):
    listed = json.loads(subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1"],
                                       capture_output=True, check=True).stdout)
    tests = []
    for entry in listed["tests"]:
        properties = {each["name"]: each["value"] for each in entry["properties"]}
        if UNSUITED.search(entry["name"]) or "FIXTURES_REQUIRED" in properties \
                or "command" not in entry:
            continue
        environment = dict(each.split("=", 1) for each in properties.get("ENVIRONMENT", []))
        tests.append(Test(entry["name"], entry["command"], environment,
                          properties.get("TIMEOUT", 300), properties.get("SKIP_RETURN_CODE")))
    return tests


class Worker:
    """Runs tests in folders of its own, so that several can run the same test."""

    def __init__(self, build, number):
        self.build, self.number = str(build), number

    def own(self, text, test):
        for kind in ("home", "display"):
            text = text.replace(f"{test.name}.{kind}", f"{test.name}.{kind}-{self.number}")
        return text

    def run(self, test, variables, timeout):
        """Whether the test passes, or is skipped, and how long it took."""
        environment = {**os.environ, **{key: self.own(value, test)
                                        for key, value in test.environment.items()}, **variables}
        if "HOME" in environment:
            os.makedirs(environment["HOME"], exist_ok=True)
        start = time.monotonic()
        process = subprocess.Popen([self.own(word, test) for word in test.command],
                                   env=environment, cwd=self.build, start_new_session=True,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        try:
            status = process.wait(timeout)
        except subprocess.TimeoutExpired:
            status = None
        try:
            os.killpg(process.pid, 15)
            time.sleep(0.05)
            os.killpg(process.pid, 9)
        except ProcessLookupError:
            pass
        process.wait()
        passed = status is not None and status in (0, test.skip)
        return passed, time.monotonic() - start


def in_parallel(items, workers, work):
    """work(worker, item) of all items; the results in their order."""
    waiting = queue.Queue()
    for entry in enumerate(items):
        waiting.put(entry)
    results = [None] * len(items)

    def serve(worker):
        while True:
            try:
                index, item = waiting.get_nowait()
            except queue.Empty:
                return
            results[index] = work(worker, item)

    threads = [threading.Thread(target=serve, args=(worker,)) for worker in workers]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    return results


def reach(tests, workers, out):
    """The meetings of all tests, the quick ones that come by few mutants first. A test
    that fails is left out."""
    def once(worker, test):
        file = out / f"{test.name}.reached"
        file.unlink(missing_ok=True)
        passed, seconds = worker.run(test, {"VY_MUTANT_REACHED": str(file)}, test.timeout)
        numbers = set()
        if file.exists():
            numbers = {number for number, byte in enumerate(file.read_bytes()) if byte}
        return passed, seconds, numbers

    meetings = []
    for test, (passed, seconds, numbers) in zip(tests, in_parallel(tests, workers, once)):
        if not passed:
            print(f"left out, for it fails without a mutant: {test.name}")
        elif numbers:
            meetings.append(Meeting(seconds, test, numbers))
    return sorted(meetings, key=lambda meeting: meeting.seconds * len(meeting.mutants))


def try_mutant(worker, mutant, meetings, budget):
    """What became of it: (killed, by which test or why not)."""
    meetings = [each for each in meetings if mutant.number in each.mutants]
    spent = 0
    variables = {"VY_MUTANT": str(mutant.number)}
    for seconds, test, _ in meetings:
        if spent > budget:
            return False, f"budget of {budget} s spent"
        timeout = 3 * seconds + 10
        passed, took = worker.run(test, variables, timeout)
        spent += took
        # What came too late on a busy machine is no kill.
        if not passed:
            passed, took = worker.run(test, variables, timeout)
            spent += took
        if not passed:
            return True, test.name
    return False, "survived" if meetings else "no test comes by it"


def read_kills(results):
    """number of a mutant that was killed -> (True, by which test)"""
    rows = (line.split("\t") for line in results.read_text().splitlines())
    return {int(row[2]): (True, row[1]) for row in rows if row[0] == "killed"}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--out", type=pathlib.Path, required=True)
    parser.add_argument("--count", type=int, default=0, help="mutants; all if not given")
    parser.add_argument("--seed", type=int, default=1, help="which are taken")
    parser.add_argument("--only", default="", help="mutants of sources that match alone")
    parser.add_argument("--budget", type=int, default=240, help="seconds for one mutant")
    parser.add_argument("--again", action="store_true",
                        help="take the kills of the last run for granted")
    parser.add_argument("--instrument", action="store_true", help="write them into the sources")
    options = parser.parse_args()
    options.out = options.out.resolve()
    options.build = options.build.resolve()
    options.out.mkdir(parents=True, exist_ok=True)
    listing = options.out / "mutants.json"
    if options.instrument:
        mutants = make_mutants(options.build)
        listing.write_text(json.dumps(mutants, indent=0))
        say(f"{len(mutants)} mutants")
        return 0

    mutants = [instrument.Mutant(*each) for each in json.loads(listing.read_text())]
    mutants = [each for each in mutants if re.search(options.only, each.file)]
    random.Random(options.seed).shuffle(mutants)
    mutants = mutants[:options.count or None]
    # Most tests wait for windows most of the time.
    workers = [Worker(options.build, number) for number in range((os.cpu_count() or 1) + 1)]
    tests = read_tests(options.build)
    say(f"{len(tests)} tests without a mutant")
    meetings = reach(tests, workers, options.out)
    say(f"{len(mutants)} mutants against {len(meetings)} tests")
    results = options.out / "results.tsv"
    kills = read_kills(results) if options.again else {}
    with results.open("w") as file:
        def attempt(worker, mutant):
            killed, how = kills.get(mutant.number) or try_mutant(worker, mutant, meetings,
                                                                 options.budget)
            file.write("\t".join(map(str, ("killed" if killed else "alive", how, *mutant))) + "\n")
            file.flush()
            return killed
        outcomes = in_parallel(mutants, workers, attempt)
    say(f"{sum(outcomes)} of {len(outcomes)} mutants killed, "
        f"{100 * sum(outcomes) / max(1, len(outcomes)):.1f} %; see {results}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
