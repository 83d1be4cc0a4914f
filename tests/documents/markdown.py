# SPDX-License-Identifier: MIT
"""What the checks read out of our documents."""
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parents[2]

SPAN = re.compile(r"`([^`\n]+)`")


class Document:
    """One file: its prose and its blocks of code."""

    def __init__(self, name):
        self.name = name
        self.prose = []   # (line number, line), without code and comments
        self.blocks = []  # (line number of the first line, info, lines); info of an
                          # indented block is "indented"
        text = (ROOT / name).read_text(encoding="utf-8")
        text = re.sub(r"(?s)<!--.*?-->", lambda found: "\n" * found[0].count("\n"), text)
        self._read(text.split("\n"))

    def _read(self, lines):
        fence = None      # (line number, info, lines)
        paragraph = False  # four blanks go on with a paragraph, or begin a block of code
        for number, line in enumerate(lines, 1):
            if fence:
                if line.strip() == "```":
                    self.blocks.append(fence)
                    fence = None
                else:
                    fence[2].append(line)
            elif line.startswith("```"):
                fence = (number + 1, line[3:].strip(), [])
                paragraph = False
            elif line.startswith("    ") and line.strip() and not paragraph:
                self._add_indented(number, line[4:])
            else:
                self.prose.append((number, line))
                paragraph = bool(line.strip())
        if fence:
            raise SystemExit(f"{self.name}:{fence[0]}: the block of code is not closed")

    def _add_indented(self, number, line):
        if self.blocks:
            first, info, lines = self.blocks[-1]
            if info == "indented" and first + len(lines) == number:
                lines.append(line)
                return
        self.blocks.append((number, "indented", [line]))

    def paragraphs(self):
        """(line number, text) of each; of a table each row is one."""
        first, lines = 0, []
        for number, line in self.prose + [(0, "")]:
            is_row = line.startswith("|")
            if lines and (not line.strip() or is_row or lines[-1].startswith(("|", "#"))):
                yield first, "\n".join(lines)
                lines = []
            if line.strip():
                if not lines:
                    first = number
                lines.append(line)

    def tables(self):
        """(line number, cells of the head, [(line number, cells)]) of each."""
        table = None
        for number, line in self.prose + [(0, "")]:
            if not line.startswith("|"):
                if table:
                    yield table
                table = None
            elif not table:
                table = (number, cells(line), [])
            elif set(line) - set("|-: "):
                table[2].append((number, cells(line)))


def cells(row):
    return [cell.strip() for cell in row.strip().strip("|").split("|")]


def documents():
    """All that we keep, by their names."""
    names = [path.relative_to(ROOT).as_posix()
             for path in sorted([*ROOT.glob("*.md"), *ROOT.glob("*/*.md"), *ROOT.glob("*/*/*.md")])
             if path.relative_to(ROOT).parts[0] not in ("build", "out")]
    return [Document(name) for name in names]


def finish(faults, checked, what):
    """Ends the check: a fault is (document, line number, text)."""
    for name, number, text in faults:
        print(f"{name}:{number}: {text}")
    print(f"{checked} {what} checked")
    raise SystemExit(1 if faults or not checked else 0)
