"""The tables, and the file of the results."""

import dataclasses
import datetime
import json
import platform


def table(head, rows):
    """Columns as wide as they need to be; numbers, which stand from the third column on, to the right."""
    widths = [max(len(row[column]) for row in [head, *rows]) for column in range(len(head))]
    lines = []
    for row in [head, *rows]:
        cells = [text.ljust(width) if column < 2 else text.rjust(width)
                 for column, (text, width) in enumerate(zip(row, widths))]
        lines.append("  ".join(cells).rstrip())
    lines.insert(1, "-" * max(map(len, lines)))
    return "\n".join(lines)


def number(value):
    return f"{value:.3f}" if value < 1 else f"{value:.3g}" if value < 100 else f"{value:.0f}"


def goal_cells(outcome):
    if outcome.goal is None:
        return "", ""
    return f"{outcome.goal:g}", "met" if outcome.met else "NOT MET"


def spread(outcome):
    return f"{number(outcome.low)} .. {number(outcome.high)}"


def comparison_table(outcomes):
    head = ("what", "peer", "ours", "peer", "peer / ours", "quartiles", "goal", "")
    return table(head, [(o.what, o.peer, f"{number(o.ours)} {o.unit}", f"{number(o.theirs)} {o.unit}",
                         number(o.ratio), spread(o), *goal_cells(o)) for o in outcomes])


def drawing_table(outcomes):
    head = ("what", "control", "without drawing", "drawn", "drawn / without", "quartiles")
    return table(head, [(*o.what.split("/"), f"{number(o.ours)} {o.unit}", f"{number(o.theirs)} {o.unit}",
                         number(o.ratio), spread(o)) for o in outcomes])


def left_out(comparisons):
    """One line a peer that is not there."""
    by_program = {}
    for comparison in comparisons:
        by_program.setdefault(comparison.theirs.split(":")[0], []).append(comparison.what)
    return [f"left out: {program} is not here ({', '.join(dict.fromkeys(whats))})"
            for program, whats in by_program.items()]


def write_json(file, outcomes, drawn, missing, rounds):
    document = {
        "date": datetime.datetime.now().astimezone().isoformat(timespec="seconds"),
        "machine": platform.platform(),
        "rounds": rounds,
        "comparisons": [{**dataclasses.asdict(o), "met": o.met} for o in outcomes],
        "drawing": [dataclasses.asdict(o) for o in drawn],
        "left_out": [{"what": c.what, "peer": c.peer} for c in missing],
    }
    with open(file, "w", encoding="utf-8") as out:
        json.dump(document, out, indent=2)
        out.write("\n")
