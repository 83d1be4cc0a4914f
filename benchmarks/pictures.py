# SPDX-License-Identifier: MIT
"""Growth curves as SVG files, drawn by gnuplot."""
import re
import subprocess

STYLE = {"floor": ("a bare QFileDialog", "#777777"), "subject": ("this dialog", "#0060a0"),
         "kdialog": ("kdialog", "#2a9d3a"), "zenity": ("zenity", "#c05000"),
         "yad": ("yad", "#a03080")}

# Benchmark, curve, metric, what the picture is called, and its axes.
FILES, TIME = "files in the folder", "milliseconds"
PICTURES = [
    ("first paint", "first", "first", "First request until painted", FILES, TIME),
    ("first paint", "later", "later", "Later requests until painted", FILES, TIME),
    ("list filling", "1 pattern, 100 % match", "settled", "List settled, one pattern", FILES,
     TIME),
    ("list filling", "6 patterns, 100 % match", "settled", "List settled, six patterns", FILES,
     TIME),
    ("list filling", "1 pattern, 100 % match", "stall", "Longest stall, one pattern", FILES, TIME),
    ("list filling", "6 patterns, 100 % match", "stall", "Longest stall, six patterns", FILES,
     TIME),
    ("type switch", "1 pattern", "widened", "Another type shown", FILES, TIME),
    ("answer to exit", "reject", "returned", "Rejected until returned", FILES, TIME),
    ("whole process", "mapped", "mapped", "Start of the process until mapped", FILES, TIME),
    ("whole process", "rest", "at rest", "Start of the process until at rest", FILES, TIME),
    ("path bar", "path bar", "made", "Folder buttons", "folders", TIME),
    ("filter conversion", "filter conversion", "conversion", "Filter conversion", "types", "MB/s"),
]


def points(rows, benchmark, curve, metric):
    """side -> {size: summary}"""
    result = {}
    for row in rows:
        if (row.case.benchmark, row.case.curve, row.metric) == (benchmark, curve, metric):
            result.setdefault("subject", {})[row.case.size] = row.subject
            if row.floor:
                result.setdefault(row.other, {})[row.case.size] = row.floor
    return result


def draw(path, title, x_axis, y_axis, sides):
    script = ["set terminal svg size 480,300 font 'sans-serif,11' background 'white'",
              f"set output '{path}'", "set logscale xy", "set grid lw 0.5", "set key left top",
              f"set title '{title}'", f"set xlabel '{x_axis}'", f"set ylabel '{y_axis}'",
              "set format x '%.0f'", "set offsets graph 0.05, graph 0.05, graph 0.15, graph 0.05"]
    curves = []
    for side, summaries in sides.items():
        name, colour = STYLE[side]
        script += [f"${side} << end"] + [
            f"{size} {summary.median} {summary.low} {summary.high}"
            for size, summary in sorted(summaries.items())] + ["end"]
        curves.append(f"${side} with yerrorlines lw 1.5 pt 7 ps 0.4 lc rgb '{colour}' "
                      f"title '{name}'")
    script.append("plot " + ", ".join(curves))
    subprocess.run(["gnuplot"], input="\n".join(script), text=True, check=True)
    declaration, picture = path.read_text(encoding="utf-8").split("\n", 1)
    path.write_text(f"{declaration}\n<!-- SPDX-License-Identifier: MIT -->\n{picture}",
                    encoding="utf-8")


def draw_all(folder, rows):
    """What was measured at more than one size; answers names and titles of the pictures."""
    folder.mkdir(parents=True, exist_ok=True)
    for benchmark, curve, metric, title, x_axis, y_axis in PICTURES:
        sides = points(rows, benchmark, curve, metric)
        if len(sides.get("subject", {})) > 1:
            name = re.sub(r"[^a-z0-9]+", "-", title.lower()) + ".svg"
            draw(folder / name, title, x_axis, y_axis, sides)
            yield name, title
