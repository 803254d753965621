#!/usr/bin/env python3
"""Makes the page of figures: report.py <results> <folder>.

Reads the lines of window.jsonl and the texts of the other benchmarks from the folder of results;
writes performance.md and pictures/performance.svg.
"""

import datetime
import json
import os
import pathlib
import platform
import sys

from chart import Chart

MEGABYTE = 1e6
MEBIBYTE = 2**20


class Results:
    """The lines of one run."""

    def __init__(self, file):
        self.lines = [json.loads(line) for line in file.read_text().splitlines() if line]

    def all(self, **wanted):
        return [line for line in self.lines
                if all(line.get(key) == value for key, value in wanted.items())]

    def one(self, **wanted):
        """The only line that matches; nothing where the machine could not measure it."""
        found = self.all(**wanted)
        return found[0] if found else None


class Table:
    def __init__(self):
        self.rows = []

    def add(self, what, measured, beside="", wanted="", is_met=None):
        verdict = {None: "", True: "met", False: "**missed**"}[is_met]
        self.rows.append((what, measured, beside, wanted, verdict))

    def text(self):
        head = ("", "measured", "beside", "wanted", "")
        lines = [head, tuple("---" for _ in head), *self.rows]
        return "\n".join("| " + " | ".join(line) + " |" for line in lines)


def ms(value):
    digits = 2 if value < 10 else 1 if value < 100 else 0
    return f"{value:,.{digits}f} ms"


def number(value):
    return f"{value:,}"


def add_ratio(table, what, first, last, most, name_of_first):
    ratio = last / first
    table.add(what, f"{ratio:.2f} ×", f"{ms(last)} beside {ms(first)} {name_of_first}",
              f"at most {most} ×", ratio <= most)


def add_drawing(results, table):
    drawing = results.all(row="drawing")
    bare = drawing[-1]
    for canvas in sorted({line["canvas"] for line in drawing if line is not bare}):
        lines = [line for line in drawing if line["canvas"] == canvas]
        worst = max(lines, key=lambda line: line["process"])
        table.add(f"A mouse event while drawing on {canvas}, process",
                  ms(worst["process"]), f"{ms(bare['process'])} of a bare Qt widget",
                  "under 0.3 ms", worst["process"] < 0.3)
        slowest = max(line["ui99"] for line in lines)
        table.add("… its user-interface thread, 99th percentile", ms(slowest),
                  f"{ms(bare['ui99'])} of a bare Qt widget", "under 2 ms", slowest < 2)
        add_ratio(table, "… with 100,000 strokes", lines[0]["process"], lines[-1]["process"], 1.3,
                  "with none")


def add_long_stroke(results, table):
    for early in results.all(row="long stroke", point=100):
        late = results.one(row="long stroke", point=10000, width=early["width"],
                           opacity=early["opacity"])
        add_ratio(table, f"… at the 10,000th point of one stroke, width {early['width']:g}, "
                  f"opacity {early['opacity']:g}", early["process"], late["process"], 1.3,
                  "at the 100th")


def add_editing(results, table):
    titles = {"undo": "Undo of a stroke", "redo": "Redo of a stroke",
              "select": "Selecting a stroke", "drag": "An event while dragging it"}
    for row, title in titles.items():
        few = results.one(row=row, strokes=100)
        spread = results.one(row=row, spread="as dense as 100")
        dense = results.one(row=row, strokes=100000, spread="on 1280 × 720")
        # If events queue up, the median includes waiting, so the mean is used.
        cost = "processMean" if row == "drag" else "process"
        add_ratio(table, f"{title} among 100,000, process", few[cost], spread[cost], 1.5,
                  "among 100 as dense")
        table.add("… all of them on 1280 × 720, until shown", ms(dense["painted"]), "",
                  "under 16 ms", dense["painted"] < 16)


def add_undoing(results, table):
    titles = {"undo long": "Undo of a long stroke among 100,000, until shown",
              "redo long": "Redo of it", "undo ten": "Each of ten undos in a row",
              "undo zoomed": "Undo after zooming there and back"}
    for row, title in titles.items():
        empty = results.one(row=row, strokes=0)["painted"]
        among = results.one(row=row, strokes=100000)["painted"]
        table.add(title, ms(among), f"{ms(empty)} on an empty page",
                  "at most 5 ms and 1.6 × + 2 ms", among <= min(5, 1.6 * empty + 2))
    beyond = results.one(row="undo beyond bound", strokes=100000)
    table.add("Undo of more strokes than their pixels are kept", ms(beyond["painted"]),
              f"slowest {ms(beyond['paintedMost'])}", "at most 10 ms", beyond["painted"] <= 10)
    hidden = results.one(row="hide again", strokes=100000)
    table.add("Hiding or showing a layer of 100,000 for the second time", ms(hidden["painted"]),
              f"{ms(hidden['process'])} of the process", "at most 10 ms", hidden["painted"] <= 10)
    grid = results.one(row="grid again", strokes=100000)
    table.add("Switching the grid to and fro over 100,000", ms(grid["painted"]),
              f"{ms(results.one(row='grid again', strokes=0)['painted'])} on an empty page")


def add_first_show(results, table):
    one = results.one(row="first show", cores=1)
    two = results.one(row="first show", cores=2)
    if two is None:
        return
    faster = one["painted"] / two["painted"]
    table.add("First show of 100,000 strokes, two cores", ms(two["painted"]),
              f"{ms(one['painted'])} with one: {faster:.2f} × faster", "at least 1.6 ×",
              faster >= 1.6)
    faster = two["qt"] / two["painted"]
    table.add("… beside Qt's painter", f"{faster:.1f} ×", f"{ms(two['qt'])} of Qt's painter",
              "at least 10 ×", faster >= 10)


def add_zoom(results, table):
    some = results.one(row="zoom", strokes=10000)
    rate = 1000 / some["mean"]
    table.add("Dragging the zoom slider over 10,000 strokes", f"{rate:.0f} frames/s", "",
              "above 25", rate > 25)
    many = results.one(row="zoom", strokes=100000)
    table.add("… over 100,000, the slowest frame", ms(many["most"]), "", "at most 333 ms",
              many["most"] <= 333)


def add_memory(results, table):
    memory = results.one(row="memory")
    most = 1.5 * memory["points"] + 150 * MEGABYTE
    table.add("Memory of 100,000 strokes of 40 points with full history",
              f"{memory['resident'] / MEGABYTE:.0f} MB",
              f"{memory['points'] / MEGABYTE:.0f} MB of points, "
              f"{memory['empty'] / MEGABYTE:.0f} MB without strokes",
              f"at most {most / MEGABYTE:.0f} MB", memory["resident"] <= most)


def add_start(results, table):
    program = results.one(row="start", what="Marlevo")
    empty = results.one(row="start", what="empty Qt window")
    table.add("Start to the first painted window", ms(program["painted"]),
              f"{ms(empty['painted'])} of an empty Qt window", "at most 250 ms",
              program["painted"] <= 250)
    table.add("… memory", f"{program['resident'] / MEBIBYTE:.0f} MiB",
              f"{empty['resident'] / MEBIBYTE:.0f} MiB of an empty Qt window", "at most 90 MiB",
              program["resident"] <= 90 * MEBIBYTE)
    drawing = results.one(row="start", what="Marlevo with a drawing")
    table.add("Start to a painted drawing of 100,000 strokes of 40 points",
              ms(drawing["painted"]), "", "at most 1,500 ms", drawing["painted"] <= 1500)


def add_replay(results, table):
    for line in results.all(row="replay"):
        table.add(f"Replay of a hand over {number(line['strokes'])} strokes, event to painted",
                  ms(line["painted"]),
                  f"99th percentile {ms(line['painted99'])}, most {ms(line['paintedMost'])}")


def make_table(results):
    table = Table()
    for add in (add_drawing, add_long_stroke, add_editing, add_undoing, add_first_show, add_zoom,
                add_memory, add_start, add_replay):
        add(results, table)
    return table.text()


def make_chart(results):
    chart = Chart()
    drawing = results.all(row="drawing")
    chart.group("One mouse event while drawing, processor time of the process",
                [(f"{line['canvas']}, {number(line['strokes'])} strokes"
                  if line is not drawing[-1] else line["canvas"], line["process"],
                  line is drawing[-1]) for line in drawing])
    chart.group("Undo of one stroke, until it is shown",
                [(f"{number(line['strokes'])} strokes {line['spread']}", line["painted"], False)
                 for line in results.all(row="undo")])
    shows = results.all(row="first show")
    chart.group("First show of 100,000 strokes",
                [(f"{line['cores']} core{'s' * (line['cores'] > 1)}", line["painted"], False)
                 for line in shows]
                + [("Qt's painter", line["qt"], True) for line in shows if "qt" in line])
    chart.group("Start to the painted window",
                [(line["what"], line["painted"], line["what"].startswith("empty"))
                 for line in results.all(row="start")])
    return chart.svg()


def machine():
    model = next((line.split(":")[1].strip() for line in open("/proc/cpuinfo")
                  if line.startswith("model name")), platform.machine())
    load = ", ".join(f"{value:.1f}" for value in os.getloadavg())
    return (f"{os.cpu_count()} cores of {model}, {platform.system()} {platform.release()}, no "
            f"graphics card; load over the last 1, 5 and 15 minutes, this run included: {load}.")


def raw(results):
    rows = []
    for line in results.all():
        if "process" not in line:
            continue
        name = ", ".join(f"{key} {line[key]}" for key in
                         ("row", "canvas", "strokes", "spread", "width", "opacity", "point")
                         if key in line)
        costs = [f"{line[key]:.2f}" if key in line else ""
                 for key in ("process", "processMean", "ui", "ui99", "painted", "painted99",
                             "paintedMost")]
        rows.append((name, f"{line['events']:g}", *costs))
    head = ("", "events", "process", "mean", "ui", "ui 99 %", "painted", "painted 99 %", "most")
    lines = [head, ("---",) + ("--:",) * (len(head) - 1), *rows]
    return "\n".join("| " + " | ".join(line) + " |" for line in lines)


PAGE = """# Performance

Made by `scripts/bench.sh` on {date}, on {machine}

The program runs in its real window on a virtual screen of 3840 × 2160; another process moves the
mouse through the X server, 8 pixels and 12 milliseconds a step. Processor time is that of the whole
process from one event to the next, medians; "until shown" is the wall time from the event to the
painted window. Each ratio is taken within one run. A canvas larger than the screen is shown as far
as it fits.

![The main figures as bars](pictures/performance.svg)

{table}

<details><summary>Every series, in milliseconds</summary>

{raw}

</details>
{others}"""


def others(folder):
    """What the benchmarks without a window printed."""
    text = ""
    for file in sorted(folder.glob("*.txt")):
        text += (f"\n<details><summary>bench_{file.stem}</summary>\n\n```\n"
                 f"{file.read_text().rstrip()}\n```\n\n</details>\n")
    return text


def main():
    source, target = (pathlib.Path(argument) for argument in sys.argv[1:])
    results = Results(source / "window.jsonl")
    (target / "pictures").mkdir(parents=True, exist_ok=True)
    (target / "performance.md").write_text(
        PAGE.format(date=datetime.date.today(), machine=machine(), table=make_table(results),
                    raw=raw(results), others=others(source)))
    (target / "pictures" / "performance.svg").write_text(make_chart(results))
    print(f"The figures are in {target / 'performance.md'}.")


if __name__ == "__main__":
    main()
