# SPDX-License-Identifier: MIT
"""Prints, as the measuring programs do, what a shared library consists of."""
import os
import re
import subprocess
import sys


def text(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, check=True, text=True).stdout


def main(library):
    relocations = [int(count) for count in re.findall(
        r"contains (\d+) entr", text("readelf", "--relocs", "--wide", library))]
    code, data, zeroed = text("size", library).splitlines()[1].split()[:3]
    print(f"subject\trelocations\t{sum(relocations)}")
    print(f"subject\tcode\t{int(code) / 1024}")
    print(f"subject\tdata\t{(int(data) + int(zeroed)) / 1024}")
    print(f"subject\tfile\t{os.path.getsize(library) / 1024}")


main(sys.argv[1])
