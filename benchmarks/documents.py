# SPDX-License-Identifier: MIT
"""Puts the figures of a run into docs/performance.md."""
import re

import results


def figures(about, rows, pictures):
    lines = ["", f"Measured {about['date']} on {about['processors']} processors "
             f"({about['processor']}), {about['system']}, Qt {about['qt']}, commit "
             f"{about['commit']}.", ""]
    lines += [f'<img src="images/{name}" alt="{title}" width="400">' for name, title in pictures]
    for benchmark in dict.fromkeys(row.case.benchmark for row in rows):
        of_benchmark = [row for row in rows if row.case.benchmark == benchmark]
        lines += ["", f"### {benchmark.capitalize()}", "", results.markdown(of_benchmark)]
    return "\n".join(lines) + "\n"


def update(path, about, rows, pictures):
    text = path.read_text(encoding="utf-8")
    begin, end = "<!-- figures: begin -->\n", "<!-- figures: end -->"
    new, count = re.subn(f"(?s){begin}.*{end}",
                         lambda _: begin + figures(about, rows, pictures) + end, text)
    if count != 1:
        raise SystemExit(f"{path} has no place for the figures")
    path.write_text(new, encoding="utf-8")
