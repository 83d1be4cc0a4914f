# SPDX-License-Identifier: MIT
"""The live dialog against a bare QFileDialog, on a platform without a screen."""
from cases import Case, by_size, files, plural
from results import Limit

SIZES = [10, 1000, 20000, 100000]
FIFTIETH = 50
LOOK = 400  # milliseconds that a user looks at each drawing


def first_paint(setting):
    for size in setting.sizes:
        at = "--folder=" + setting.folder(size)
        yield Case("first paint", f"{files(size)}, first request", size,
                   setting.both("FirstPaint", at, "--requests=1"),
                   setting.repetitions(101), {"first": Limit("ratio", 1.10)}, curve="first")
        yield Case("first paint", f"{files(size)}, 50 requests", size,
                   {"both": [setting.program("FirstPaint"), at,
                             f"--requests={max(3, setting.repetitions(50))}"]},
                   setting.repetitions(5),
                   {"later": Limit("ratio", 1.05)}, curve="later")
        yield Case("first paint", f"{files(size)}, requests to the {FIFTIETH}th", size,
                   setting.both("FirstPaint", at, f"--requests={FIFTIETH}"),
                   setting.repetitions(by_size(size, 11, 7)), {"late": Limit("ratio", 1.05)},
                   curve="late")


def list_filling(setting):
    # The list is full when its order is final. When it has all rows is also told, but
    # whether a sorting comes before that is for Qt's queue of events to say.
    for share in (100, 10):
        for patterns in (1, 6):
            for size in setting.sizes:
                limits = {}
                if size == 100000 and share == 100:
                    limits = {"settled": Limit("ratio", 0.50), "stall": Limit("ratio", 0.45)}
                    if patterns == 6:
                        limits = dict.fromkeys(("settled", "stall"), Limit("ratio", 0.20))
                elif size <= 1000:
                    limits = dict.fromkeys(("complete", "settled", "stall"),
                                           Limit("ratio", 1.05))
                kinds = plural(patterns, "pattern")
                yield Case("list filling", f"{files(size)}, {kinds}, {share} % match", size,
                           setting.both("ListFilling",
                                        "--folder=" + setting.folder(size, patterns, share),
                                        f"--patterns={patterns}", f"--rows={size * share // 100}"),
                           setting.repetitions(by_size(size, 31, 5 if patterns == 6 else 7)),
                           limits,
                           curve=f"{kinds}, {share} % match")


def type_switch(setting):
    for patterns in (1, 6):
        for size in setting.sizes:
            limits = {}
            if size == 100000:
                limits = dict.fromkeys(("widened", "narrowed"), Limit("ratio", 0.20))
            kinds = plural(patterns, "pattern")
            yield Case("type switch", f"{files(size)}, {kinds}", size,
                       setting.both("TypeSwitch", "--folder=" + setting.folder(size, patterns, 10),
                                    f"--patterns={patterns}", f"--rows={size // 10}",
                                    f"--all-rows={size}"),
                       setting.repetitions(by_size(size, 15, 5)), limits, curve=kinds)


def answer_to_exit(setting):
    for answer in ("accept", "reject"):
        for size in setting.sizes:
            limits = {}
            if size == 100000:
                limits = {"returned": Limit("ratio", 0.50)}
            yield Case("answer to exit", f"{files(size)}, {answer}ed", size,
                       setting.both("AnswerToExit", "--folder=" + setting.folder(size),
                                    f"--rows={size}", f"--answer={answer}"),
                       setting.repetitions(by_size(size, 15, 7)), limits, curve=answer)


def memory(setting):
    for size in setting.sizes:
        yield Case("memory", f"{files(size)}, one request", size,
                   setting.both("Memory", "--folder=" + setting.folder(size), f"--rows={size}"),
                   setting.repetitions(by_size(size, 7, 3)), curve="one request",
                   units={"peak resident growth": "MB", "heap growth left": "MB"})
    size = min(setting.sizes)
    requests = max(100, setting.repetitions(1000))
    yield Case("memory", f"{files(size)}, {requests:,} requests", size,
               setting.both("Memory", "--folder=" + setting.folder(size), f"--rows={size}",
                            f"--requests={requests}"),
               setting.repetitions(1),
               units={"resident growth, each request": "KB", "heap growth, each request": "KB"})


def slow_share(setting):
    """Every call that concerns the folder takes 20 ms more.

    To the 22 of a bare dialog ours adds one while it opens, which learns whether
    the start path is a folder. While the user walks and clicks the interface waits for
    none: it stands still for less than one takes.
    """
    size, call_ms = 40, 20
    folder = setting.drawings(size)
    none = Limit("most", call_ms)
    limits = {"stall opening": Limit("ratio", 1.10), "stall walking": none, "stall clicking": none}
    yield Case("slow share", f"{size} drawings with previews, {call_ms} ms a call", size,
               setting.both("SlowFolder", "--folder=" + folder, f"--rows={size}",
                            f"--look={LOOK if setting.scale else 10}"),
               setting.repetitions(7),
               limits,
               environment={"LD_PRELOAD": setting.file("tests/slow-share/libVySlowShare.so"),
                            "VY_SLOW_SHARE": folder, "VY_SLOW_SHARE_MS": str(call_ms if setting.scale else 1)})


BENCHMARKS = {
    "first-paint": first_paint,
    "list-filling": list_filling,
    "type-switch": type_switch,
    "answer-to-exit": answer_to_exit,
    "memory": memory,
    "slow-share": slow_share,
}
