#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Links between our documents lead somewhere, and so do the names of files in them.

The name of a file is a piece of code such as `scripts/test`, with or without stars:
seen from the document or from the root, or the bare name of a source, wherever it is.
"""
import re

from markdown import ROOT, SPAN, documents, finish

LINK = re.compile(r"\[[^\]]*\]\(([^)\s]+)\)|<(?:img|a) [^>]*(?:src|href)=\"([^\"]+)\"")
SOURCE = re.compile(r"[\w.*-]+\.(?:h|cpp|mm|sh|md|py|cmake|supp)")
PATH = re.compile(r"[\w.*-]+(?:/[\w.*-]+)*/?")

# Folders that building makes; and what is in nobody's folder.
MADE = ("build", "out")
FOLDERS = [path.name for path in ROOT.iterdir()
           if path.is_dir() and path.name not in MADE and path.name != ".git"]


def anchors(document):
    """The headings as links name them."""
    for _, line in document.prose:
        heading = re.match(r"#+ (.*)", line)
        if heading:
            words = re.sub(r"[^\w\- ]", "", heading[1].lower())
            yield words.replace(" ", "-")


def leads_nowhere(link, document, by_name):
    if re.match(r"[a-z]+:", link):
        return False
    path, _, anchor = link.partition("#")
    target = ((ROOT / document.name).parent / path).resolve() if path else ROOT / document.name
    if not target.exists():
        return True
    name = target.relative_to(ROOT).as_posix()
    return bool(anchor) and (name not in by_name or anchor not in anchors(by_name[name]))


def is_missing(code, document):
    here = (ROOT / document.name).parent
    if PATH.fullmatch(code) and code.split("/")[0] in FOLDERS and "/" in code:
        return not any(ROOT.glob(code.rstrip("/"))) and not any(here.glob(code.rstrip("/")))
    if SOURCE.fullmatch(code):
        return not any(ROOT.glob(code)) and \
            not any(any(ROOT.glob(f"{folder}/**/{code}")) for folder in FOLDERS)
    return False


def main():
    all_documents = documents()
    by_name = {document.name: document for document in all_documents}
    faults, checked = [], 0
    for document in all_documents:
        for number, line in document.prose:
            for found in LINK.finditer(line):
                checked += 1
                if leads_nowhere(found[1] or found[2], document, by_name):
                    faults.append((document.name, number, f"no such place: {found[0]}"))
            for code in SPAN.findall(line):
                checked += 1
                if is_missing(code, document):
                    faults.append((document.name, number, f"no such file: {code}"))
    finish(faults, checked, "links and names")


main()
