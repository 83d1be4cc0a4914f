# SPDX-License-Identifier: MIT
"""Parts of the dialogs, alone or beside what they cannot do without."""
import os
import sys

from cases import Case, files, plural
from results import Limit

DEPTHS = [5, 10, 20, 50, 100, 200]
TYPES = [1, 10, 100, 1000, 10000]
PREVIEWS = {
    "dwg-dib": [0, 10, 500],
    "dwg-png": [0, 10, 500],
    "dxf": [0, 10, 500],
    "dxf-without": [0, 10, 500],
    "png": [0, 10, 30],  # larger pictures are refused
}
MOST_GROWTH = Limit("ratio", 1.3)  # of the cost of each, where it is to be linear


def compare(setting, program, small, large):
    """Two sizes of the same thing as the two sides."""
    return {"floor": [setting.program(program), "--side=floor", small],
            "subject": [setting.program(program), "--side=subject", large]}


def path_bar(setting):
    units = {"made, each folder": "µs"}
    for depth in DEPTHS:
        yield Case("path bar", f"{depth} folders", depth,
                   {"subject": [setting.program("PathBar"), f"--depth={depth}"]},
                   setting.repetitions(3), {"made": Limit("most", 1)} if depth <= 50 else {},
                   units, curve="path bar")
    yield Case("path bar", "200 folders against 50", 200,
               compare(setting, "PathBar", "--depth=50", "--depth=200"),
               setting.repetitions(5), {"made, each folder": MOST_GROWTH}, units)


def filter_conversion(setting):
    units = {"conversion": "MB/s", "lists of types": "MB/s"}
    for types in TYPES:
        yield Case("filter conversion", plural(types, "type"), types,
                   {"subject": [setting.program("FilterConversion"), f"--types={types}"]},
                   setting.repetitions(5), {"conversion": Limit("least", 20)}, units,
                   curve="filter conversion")


def delegate(setting):
    """Of the native panels, where they are built."""
    if not os.path.exists(setting.program("Delegate")):
        return
    yield Case("panel delegate", files(1000), 1000,
               {"both": [setting.program("Delegate"), "--folder=" + setting.folder(1000)]},
               setting.repetitions(5), units={"each file": "µs"})


def preview(setting):
    for kind, sizes in PREVIEWS.items():
        for size in sizes:
            yield Case("preview", f"{kind}, {f'{size} MB' if size else 'small'}", size,
                       {"both": [setting.program("Preview"), f"--kind={kind}",
                                 f"--size={size * 1000000}",
                                 f"--file={setting.out / 'preview-file'}"]},
                       setting.repetitions(3), units={"preview": "µs"})


def library(setting):
    for name in ("libVyFileDialogs.so", "libVyHostKernel.so"):
        path = setting.shared_library(name)
        yield Case("library", f"{name}, loading", 0,
                   {"subject": [setting.program("LoadTime"), "--library=" + path]},
                   setting.repetitions(21))
        yield Case("library", f"{name}, contents", 0,
                   {"subject": [sys.executable, str(setting.root / "benchmarks/library.py"),
                                path]},
                   1, units={"relocations": "", "code": "KB", "data": "KB", "file": "KB"})


BENCHMARKS = {
    "path-bar": path_bar,
    "filter-conversion": filter_conversion,
    "delegate": delegate,
    "preview": preview,
    "library": library,
}
