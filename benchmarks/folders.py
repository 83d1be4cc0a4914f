# SPDX-License-Identifier: MIT
"""Folders of empty files named like drawings, made once and kept."""
import os
import pathlib
import random
import shutil

DRAWINGS = ["dwg", "dxf", "dwt", "dws", "dwf", "bak"]
OTHERS = ["pdf", "xls", "txt", "jpg", "doc"]
TITLES = ["Ground floor", "First floor", "Roof", "Section A-A", "Section B-B", "Elevation North",
          "Elevation South", "Site plan", "Stair detail", "Door schedule", "Window schedule",
          "Foundation", "Reflected ceiling", "Ductwork", "Sprinklers", "Lighting", "Drainage",
          "Parking", "Façade", "Übersicht"]


def names(count, patterns, share):
    """Names of which `share` percent match the first `patterns` kinds of drawings."""
    chance = random.Random(f"{count} {patterns} {share}")
    matching = count * share // 100
    result = set()
    while len(result) < count:
        kinds = DRAWINGS[:patterns] if len(result) < matching else OTHERS
        result.add("{}-{} {} rev {}.{}".format(
            chance.choice("ASMEPCL"), chance.randint(100, 999), chance.choice(TITLES),
            chance.randint(0, 30), chance.choice(kinds)))
    return result


def folder(root, count, patterns, share):
    """The folder with `count` files; how many of them match is count * share // 100."""
    path = pathlib.Path(root) / f"{count}-files-{patterns}-patterns-{share}-percent"
    if path.is_dir():
        return path
    growing = path.with_suffix(".part")
    shutil.rmtree(growing, ignore_errors=True)
    growing.mkdir(parents=True)
    every = sorted(names(count, patterns, share))
    random.Random(count).shuffle(every)  # folders do not grow in the order of names
    for name in every:
        os.close(os.open(growing / name, os.O_CREAT | os.O_WRONLY, 0o644))
    growing.rename(path)
    return path
