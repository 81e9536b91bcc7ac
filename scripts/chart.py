#!/usr/bin/env python3
"""Draws the figures that `ways` has written, and prints them as a table for the documents.

Usage: chart.py FIGURES CHART.svg
"""
import sys
from xml.sax.saxutils import escape

WAYS = ["by name", "by hand", "JNA", "cached", "by hand, kept"]
LABELS = {
    "by name": "bridge, by name",
    "by hand": "written by hand, by name",
    "JNA": "JNA structures",
    "cached": "bridge, cached",
    "by hand, kept": "written by hand, identifiers kept",
}
LEFT, BAR, WIDTH, TOP = 236, 420, 760, 96
STEP, THICK, HEAD, GAP = 22, 15, 26, 18


def read(path):
    machine, times, ratios = "", {}, {}
    with open(path, encoding="utf-8") as figures:
        for line in figures:
            words = line.rstrip("\n").split("\t")
            if words[0] == "machine":
                machine = words[1]
            elif words[0] == "time":
                times.setdefault(words[1], {})[words[2]] = float(words[3])
            elif words[0] == "ratio":
                ratios[tuple(words[1:4])] = [float(word) for word in words[4:7]]
    return machine, times, ratios


def duration(milliseconds):
    if milliseconds < 0.1:
        return f"{milliseconds * 1000:.2f} µs"
    return f"{milliseconds:.{2 if milliseconds < 10 else 1 if milliseconds < 100 else 0}f} ms"


def draw(machine, times):
    """A group of bars for each call, each group to the scale of its own slowest way."""
    out, y = [], TOP
    for call, row in times.items():
        out.append(f'<text class="call" x="24" y="{y + 14}">{escape(call)}</text>')
        y += HEAD
        most = max(row.values())
        for way in WAYS:
            middle = y + THICK / 2 + 4.5
            out.append(f'<text class="way" x="{LEFT - 10}" y="{middle}">{escape(LABELS[way])}</text>')
            if way not in row:
                out.append(f'<text class="none" x="{LEFT + 4}" y="{middle}">not measured</text>')
            else:
                length = max(row[way] / most * BAR, 1.5)
                kind = {"by name": "name", "cached": "cached"}.get(way, "other")
                note = duration(row[way])
                if way != "by name":
                    faster = row["by name"] / row[way]
                    note += f" · {1 / faster:.2f}× of by name" if faster < 1.5 else (
                        f" · {faster:.1f} times as fast")
                out.append(f'<rect class="{kind}" x="{LEFT}" y="{y}" width="{length:.1f}" '
                           f'height="{THICK}" rx="2"/>')
                inside = length > BAR - 130
                out.append(f'<text class="{"in " + kind if inside else "out"}" '
                           f'x="{LEFT + length - 8 if inside else LEFT + length + 8:.1f}" '
                           f'y="{middle}">{note}</text>')
            y += STEP
        y += GAP
    height = y + 14
    summary = "; ".join(
        f"{call}: " + ", ".join(f"{LABELS[way]} {duration(row[way])}" for way in WAYS if way in row)
        for call, row in times.items())
    return f"""<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" role="img"
     aria-labelledby="title desc" font-family="system-ui, 'DejaVu Sans', sans-serif" font-size="12.5">
<title id="title">Time of one native call, by the way its Java objects are made or read</title>
<desc id="desc">{escape(summary)}</desc>
<style>
  .page {{ fill: #ffffff }} text {{ fill: #24292f }} .note, .none {{ fill: #57606a }}
  .title {{ font-size: 17px; font-weight: 600 }} .call {{ font-weight: 600; font-size: 13.5px }}
  .way, .in {{ text-anchor: end }} .in {{ fill: #ffffff }}
  .name {{ fill: #57606a }} .cached {{ fill: #0a58ca }} .other {{ fill: #a9b4c0 }}
  text.name, text.cached {{ fill: #ffffff }} text.other {{ fill: #24292f }}
  @media (prefers-color-scheme: dark) {{
    .page {{ fill: #0d1117 }} text {{ fill: #e6edf3 }} .note, .none {{ fill: #9da7b3 }}
    .name {{ fill: #9da7b3 }} .cached {{ fill: #58a6ff }} .other {{ fill: #444c56 }}
    text.name, text.cached {{ fill: #0d1117 }} text.other {{ fill: #e6edf3 }}
  }}
</style>
<rect class="page" width="{WIDTH}" height="{height}" rx="6"/>
<text class="title" x="24" y="36">Time of one native call</text>
<text class="note" x="24" y="58">Shorter is better. Each call has a scale of its own, from 0.</text>
<text class="note" x="24" y="76">{escape(machine)}, 64-bit JVM</text>
{chr(10).join(out)}
</svg>
"""


def table(times, ratios):
    print("| call | " + " | ".join(LABELS[way] for way in WAYS) +
          " | by name / by hand | cached against by name | cached / kept by hand |")
    print("|---|" + "---|" * (len(WAYS) + 3))

    def ratio(call, way, other, inverse=False):
        if (call, way, other) not in ratios:
            return "-"
        value, spread, _ = ratios[call, way, other]
        shown = f"1/{1 / value:.1f}" if inverse and value < 0.7 else f"{value:.2f}"
        return f"{shown} ±{(spread - 1) * 50:.1f} %"

    for call, row in times.items():
        cells = [duration(row[way]) if way in row else "-" for way in WAYS]
        cells += [ratio(call, "by name", "by hand"), ratio(call, "cached", "by name", True),
                  ratio(call, "cached", "by hand, kept")]
        print(f"| `{call}` | " + " | ".join(cells) + " |")


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__.strip())
    machine, times, ratios = read(sys.argv[1])
    if not times:
        sys.exit(f"{sys.argv[1]} has no figures")
    with open(sys.argv[2], "w", encoding="utf-8") as chart:
        chart.write(draw(machine, times))
    table(times, ratios)


main()
