#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The tests that our documents name exist.

    names.py CTEST BUILD

A document names a test as `FrontTest::nestedRequest`, as `::nestedRequest` behind another of the
same class, as `FrontTest`, or by its name in ctest: in a column "shown by" or "test" of a table,
behind the word "test", or alone in parentheses.
"""
import re
import subprocess
import sys

from markdown import ROOT, SPAN, documents, finish

CLASS = re.compile(r"^class (\w+)[^;{]*\{(.*?)^\};", re.M | re.S)
SLOTS = re.compile(r"private Q_SLOTS:(.*?)(?:^(?:private|public|protected):|\Z)", re.M | re.S)
FUNCTION = re.compile(r"(\w+(?:Test|Contract))(?:::(\w+))?")
LIST = r"(`[^`\n]+`(?:(?:,| and|,? or)?\s+`[^`\n]+`)*)"
BEHIND_THE_WORD = re.compile(r"\btests? " + LIST)
IN_PARENTHESES = re.compile(r"\(" + LIST + r"\)")
CTEST_NAME = re.compile(r"[a-z]+(?:-\w+)+")


def functions():
    """Class of tests -> its functions."""
    classes = {}
    for path in (ROOT / "tests").glob("**/*.*"):
        if path.suffix in (".cpp", ".mm", ".h"):
            for name, body in CLASS.findall(path.read_text(encoding="utf-8")):
                found = [function for slots in SLOTS.findall(body)
                         for function in re.findall(r"void (\w+)\(\)", slots)]
                classes.setdefault(name, set()).update(found)
    return classes


def ctest_names(ctest, build):
    listed = subprocess.run([ctest, "-N", "--test-dir", build], check=True, capture_output=True,
                            text=True).stdout
    return set(re.findall(r"Test +#\d+: (\S+)", listed))


def named_in_tables(document):
    """Each name in a column of tests: (line number, name)."""
    for _, head, rows in document.tables():
        columns = [i for i, title in enumerate(head)
                   if title.lower() in ("shown by", "test", "contract test")]
        for number, row in rows:
            for i in columns:
                yield from ((number, code) for code in SPAN.findall(row[i]))


def named_in_text(document):
    for number, text in document.paragraphs():
        names = [code for code in SPAN.findall(text)
                 if FUNCTION.fullmatch(code) or code.startswith("::")]
        for found in BEHIND_THE_WORD.findall(text):
            names += [code for code in SPAN.findall(found) if CTEST_NAME.fullmatch(code)]
        for found in IN_PARENTHESES.findall(text):
            names += [code for code in SPAN.findall(found) if CTEST_NAME.fullmatch(code)]
        yield from ((number, name) for name in names)


def main():
    classes, tests = functions(), ctest_names(*sys.argv[1:])
    faults, checked = [], 0
    for document in documents():
        current = ""  # the class of the last function
        for number, name in [*named_in_tables(document), *named_in_text(document)]:
            checked += 1
            found = FUNCTION.fullmatch(current + name if name.startswith("::") else name)
            if not found:
                exists = name in tests
            else:
                current, function = found[1], found[2]
                exists = function in classes.get(current, ()) if function else \
                    current in classes or current in tests
            if not exists:
                faults.append((document.name, number, f"no such test: {name}"))
    finish(faults, checked, "names of tests")


if __name__ == "__main__":
    main()
