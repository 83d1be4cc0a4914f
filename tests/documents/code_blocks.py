#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The C++ code that our documents show compiles.

    code_blocks.py check COMPILER OPTION...
    code_blocks.py extract KIND DOCUMENT FILE

What follows "```cpp" tells what a block is:

    ```cpp            what a host does in a function of its own. It has a window, "window", and
                      opens and saves drawings with the functions of FRAME below.
    ```cpp program    a whole program, or a whole script. There is one of a kind in a document
    ```sh program     at most; "extract" writes it to a file, of which a test is made.

"check" has the compiler read all blocks of the first kind at once.
"""
import pathlib
import subprocess
import sys

from markdown import ROOT, Document, documents

FRAME = """\
#include <QMenu>
#include <QMessageBox>

#include "OdCodePageId.h"
#include "VyString.h"
#include "VyUserIO.h"

void open(const CVyString& path, CVyUserIO::_FileNameRetVal mode, const OdCodePageId* codePage);
void startDrawing(const CVyString& templatePath, CVyUserIO::_FileNameRetVal mode);
bool save(const CVyString& path);
"""


def source(all_documents):
    """All blocks as one source, each in a function, and their number."""
    includes, functions = [], []
    for document in all_documents:
        for first, info, lines in document.blocks:
            if info != "cpp":
                continue
            body = [line if not line.startswith("#include") else "" for line in lines]
            includes += [line for line in lines if line.startswith("#include")]
            functions.append(f"void block{len(functions)}([[maybe_unused]] QWidget* window)\n{{\n"
                             f'#line {first} "{document.name}"\n' + "\n".join(body) + "\n}\n")
    return "\n".join([FRAME, *dict.fromkeys(includes), "", *functions]), len(functions)


def check(command):
    text, count = source(documents())
    compiled = subprocess.run([*command, "-std=c++17", "-fPIC", "-fsyntax-only", "-Wall", "-Wextra",
                               "-Werror", "-Wno-unused-variable", "-Wno-unused-but-set-variable",
                               "-x", "c++", "-"], input=text, text=True, cwd=ROOT)
    print(f"{count} blocks of C++ checked")
    raise SystemExit(compiled.returncode or not count)


def extract(kind, name, file):
    programs = [(first, lines) for first, info, lines in Document(name).blocks
                if info == f"{kind} program"]
    if len(programs) != 1:
        raise SystemExit(f"{name} has {len(programs)} programs of {kind}, not one")
    first, lines = programs[0]
    head = [f'#line {first} "{ROOT / name}"'] if kind == "cpp" else []
    pathlib.Path(file).write_text("\n".join([*head, *lines, ""]), encoding="utf-8")


if sys.argv[1] == "check":
    check(sys.argv[2:])
extract(*sys.argv[2:])
