# SPDX-License-Identifier: MIT
"""From samples to rows: medians, quartiles, ratios and whether limits were kept."""
import dataclasses
import json
import statistics


@dataclasses.dataclass
class Limit:
    """`ratio`: of the subject's median to the other's. `most`, `least`: of the subject's own
    better quartile, as other programs on the machine can only make it worse."""
    kind: str
    value: float

    def kept(self, row):
        if self.kind == "least":
            return row.subject.high >= self.value
        return (row.ratio if self.kind == "ratio" else row.subject.low) <= self.value

    def __str__(self):
        return {"ratio": "x ≤ ", "most": "≤ ", "least": "≥ "}[self.kind] + f"{self.value:g}"


class Summary:
    def __init__(self, values):
        self.count = len(values)
        self.median = statistics.median(values)
        self.low, _, self.high = (statistics.quantiles(values, n=4, method="inclusive")
                                  if self.count > 1 else (self.median,) * 3)

    def __str__(self):
        return f"{number(self.median)} ({number(self.low)}–{number(self.high)})"


@dataclasses.dataclass
class Row:
    """One metric of the subject, beside another side's or alone."""
    case: object
    metric: str
    other: str
    floor: Summary
    subject: Summary
    limit: Limit

    @property
    def ratio(self):
        return self.subject.median / self.floor.median if self.floor and self.floor.median else None

    @property
    def verdict(self):
        return "" if not self.limit else "pass" if self.limit.kept(self) else "MISS"


def number(value):
    if value == 0:
        return "0"
    if abs(value) >= 1000:
        return f"{value:,.0f}"
    return f"{value:.3g}"


def rows(case, samples):
    """`samples`: side -> metric -> values."""
    for metric, values in samples.get("subject", {}).items():
        subject = Summary(values)
        others = [side for side in samples if side != "subject" and metric in samples[side]]
        others.sort(key=lambda side: (side != "floor", side))
        for other in others or [""]:
            yield Row(case, metric, other, Summary(samples[other][metric]) if other else None,
                      subject, case.limit(metric, other))


HEADER = ["benchmark", "case", "metric", "against", "its median (quartiles)",
          "ours (quartiles)", "ratio", "limit", ""]


def cells(row):
    unit = row.case.unit(row.metric)
    return [row.case.benchmark, row.case.name, f"{row.metric} [{unit}]" if unit else row.metric,
            row.other, str(row.floor or ""), str(row.subject),
            f"{row.ratio:.2f}" if row.ratio is not None else "", str(row.limit or ""), row.verdict]


def print_table(every):
    table = [HEADER] + [cells(row) for row in every]
    widths = [max(len(line[i]) for line in table) for i in range(len(HEADER))]
    for line in table:
        print("  ".join(cell.ljust(width) for cell, width in zip(line, widths)).rstrip())


def markdown(every):
    lines = ["| " + " | ".join(HEADER[1:]) + " |", "|" + " --- |" * (len(HEADER) - 1)]
    return "\n".join(lines + ["| " + " | ".join(cells(row)[1:]) + " |" for row in every])


def write_json(path, machine, every, samples):
    def summary(side):
        return side and {"median": side.median, "quartiles": [side.low, side.high],
                         "samples": side.count}
    with open(path, "w", encoding="utf-8") as out:
        json.dump({
            "machine": machine,
            "rows": [{"benchmark": row.case.benchmark, "case": row.case.name,
                      "size": row.case.size, "metric": row.metric,
                      "unit": row.case.unit(row.metric), "against": row.other,
                      "floor": summary(row.floor), "subject": summary(row.subject),
                      "ratio": row.ratio, "limit": str(row.limit or ""),
                      "verdict": row.verdict} for row in every],
            "samples": samples}, out, indent=1, ensure_ascii=False)
