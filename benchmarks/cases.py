# SPDX-License-Identifier: MIT
"""What a case is, and the setting it is made for."""
import dataclasses
import pathlib
import subprocess

import folders

@dataclasses.dataclass
class Case:
    benchmark: str
    name: str
    size: int           # what the growth curve has on its x axis
    commands: dict      # side -> argument list; a program may measure several sides
    repetitions: int
    limits: dict = dataclasses.field(default_factory=dict)  # metric or (metric, side) -> Limit
    units: dict = dataclasses.field(default_factory=dict)   # of metrics that are not in ms
    curve: str = ""     # the curve it belongs to, if there are several
    environment: dict = dataclasses.field(default_factory=dict)
    on_display: bool = False

    def limit(self, metric, other):
        return self.limits.get((metric, other), self.limits.get(metric))

    def unit(self, metric):
        return self.units.get(metric, "ms")


class Setting:
    """Where things are, and how thorough the run is to be."""

    def __init__(self, root, build, out, sizes, scale):
        self.root = root
        self.build = build
        self.out = out
        self.sizes = sizes
        self.scale = scale

    def file(self, name):
        return str(pathlib.Path(self.build) / name)

    def shared_library(self, name):
        """Where the system's kind of folder for libraries is in the build."""
        return str(next(self.build.glob(f"lib*/**/{name}")))

    def program(self, name):
        return str(self.build / "benchmarks" / f"{name}Benchmark")

    def folder(self, count, patterns=1, share=100):
        return str(folders.folder(self.out / "folders", count, patterns, share))

    def drawings(self, count):
        """A folder of drawings with previews."""
        path = self.out / "folders" / f"{count}-drawings"
        if not path.is_dir():
            subprocess.run([self.program("MakeDrawings"), f"--folder={path}.part",
                            f"--count={count}"], check=True)
            pathlib.Path(f"{path}.part").rename(path)
        return str(path)

    def repetitions(self, count):
        return max(2 if self.scale else 1, round(count * self.scale))

    def both(self, name, *arguments):
        return {side: [self.program(name), f"--side={side}", *arguments]
                for side in ("floor", "subject")}


def by_size(size, small, large):
    """Few runs where each takes long."""
    return small if size <= 1000 else (small + large) // 2 if size < 100000 else large


def plural(count, noun):
    return f"{count:,} {noun}{'' if count == 1 else 's'}"


def files(size):
    return plural(size, "file")
