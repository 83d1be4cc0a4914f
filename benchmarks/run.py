#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the benchmarks: floor and subject in turn, never one after the other."""
import argparse
import collections
import os
import pathlib
import platform
import subprocess
import sys
import time

import cases
import dialog_cases
import documents
import part_cases
import pictures
import process_cases
import results

BENCHMARKS = {**dialog_cases.BENCHMARKS, **part_cases.BENCHMARKS, **process_cases.BENCHMARKS}
ROOT = pathlib.Path(__file__).resolve().parent.parent


def run_once(command, environment):
    """The program's samples, as (side, metric, value). A metric "@name" is the moment,
    in milliseconds of the steady clock, from which the end of the process counts."""
    process = subprocess.run(command, env=environment, stdout=subprocess.PIPE, check=False,
                             timeout=600)
    end = time.monotonic() * 1000
    if process.returncode != 0:
        sys.exit(f"{' '.join(command)}: failed with status {process.returncode}")
    for line in process.stdout.decode().splitlines():
        side, metric, value = line.split("\t")
        if metric.startswith("@"):
            yield side, metric[1:], end - float(value)
        else:
            yield side, metric, float(value)


def measure(case, environment, smoke):
    environment = {**environment, **case.environment}
    if case.on_display:
        if "DISPLAY" not in environment:
            sys.exit(f"{case.benchmark} needs a display: scripts/benchmark starts one")
        environment.pop("QT_QPA_PLATFORM")
    samples = collections.defaultdict(lambda: collections.defaultdict(list))
    commands = list(case.commands.values())
    if not smoke:
        list(run_once(commands[0], environment))  # warms the caches
    for repetition in range(case.repetitions):
        for command in commands if repetition % 2 else reversed(commands):
            for side, metric, value in run_once(command, environment):
                samples[side][metric].append(value)
    return samples


def own_environment(out):
    """Settings of our own, no display, and nothing that Qt would say."""
    home = out / "home"
    home.mkdir(mode=0o700, parents=True, exist_ok=True)
    kept = {name: value for name, value in os.environ.items()
            if name in ("PATH", "DISPLAY", "XAUTHORITY", "LD_LIBRARY_PATH", "GNUSTEP_CONFIG_FILE")}
    return {**kept, "HOME": str(home), "XDG_CONFIG_HOME": str(home / "config"),
            "XDG_DATA_HOME": str(home / "data"), "XDG_CACHE_HOME": str(home / "cache"),
            "XDG_RUNTIME_DIR": str(home), "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen",
            "QT_LOGGING_RULES": "default.warning=false"}


def output_of(*command):
    try:
        return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, cwd=ROOT,
                              check=True, text=True).stdout.strip()
    except (OSError, subprocess.CalledProcessError):
        return "unknown"


def machine():
    processor = output_of("sed", "-n", "/^model name/{s/.*: //p;q}", "/proc/cpuinfo")
    return {"system": platform.platform(), "processor": processor or platform.machine(),
            "processors": os.cpu_count(), "load": os.getloadavg(),
            "date": time.strftime("%Y-%m-%d %H:%M UTC", time.gmtime()),
            "qt": output_of("qmake", "-qt=5", "-query", "QT_VERSION"),
            "commit": output_of("git", "rev-parse", "--short", "HEAD")}


def arguments():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("benchmarks", nargs="*", metavar="BENCHMARK",
                        help=f"which ones, of {', '.join(BENCHMARKS)}; otherwise all")
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build/benchmark")
    parser.add_argument("--out", type=pathlib.Path, default=ROOT / "out/benchmarks")
    parser.add_argument("--quick", action="store_true", help="about a third of the samples")
    parser.add_argument("--sizes", type=lambda text: [int(size) for size in text.split(",")],
                        default=dialog_cases.SIZES, help="numbers of files, separated by commas")
    parser.add_argument("--case", default="", help="only the cases with this text in their name")
    parser.add_argument("--update-docs", action="store_true",
                        help="put tables and pictures into docs/; needs a run of everything")
    parser.add_argument("--smoke", action="store_true",
                        help="only show that everything runs; limits do not count")
    parser.add_argument("--no-pictures", action="store_true")
    options = parser.parse_args()
    options.build = options.build.resolve()
    options.out = options.out.resolve()
    for name in options.benchmarks:
        if name not in BENCHMARKS:
            parser.error(f"there is no benchmark {name}")
    return options


def chosen(options, setting):
    """The cases to run; of a smoke test, the first of each benchmark that needs no display."""
    for name in options.benchmarks or BENCHMARKS:
        cases_of_name = [case for case in BENCHMARKS[name](setting) if options.case in case.name]
        if options.smoke:
            cases_of_name = [case for case in cases_of_name if not case.on_display][:1]
        yield from cases_of_name


def run(options, environment):
    scale = 0 if options.smoke else 0.3 if options.quick else 1
    sizes = [10] if options.smoke else options.sizes
    setting = cases.Setting(ROOT, options.build, options.out, sizes, scale)
    rows, samples = [], []
    for case in chosen(options, setting):
        print(f"{case.benchmark}: {case.name}", file=sys.stderr, flush=True)
        measured = measure(case, environment, options.smoke)
        rows += results.rows(case, measured)
        samples.append({"benchmark": case.benchmark, "case": case.name, "values": measured})
    return rows, samples


def main():
    options = arguments()
    about = machine()
    rows, samples = run(options, own_environment(options.out))
    results.print_table(rows)
    results.write_json(options.out / "results.json", about, rows, samples)
    if options.update_docs:
        drawn = list(pictures.draw_all(ROOT / "docs/images", rows))
        documents.update(ROOT / "docs/performance.md", about, rows, drawn)
    elif not (options.no_pictures or options.smoke):
        list(pictures.draw_all(options.out, rows))
    limits = sum(bool(row.verdict) for row in rows)
    missed = sum(row.verdict == "MISS" for row in rows)
    print(f"\n{missed} of {limits} limits missed")
    return 1 if missed and not options.smoke else 0


if __name__ == "__main__":
    sys.exit(main())
