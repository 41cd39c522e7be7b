#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints the measurements of `bench/run --peers` as a table: medians over the rounds, and ratios."""

import json
import statistics
import sys

CASES = [
    ("paint_1000", "repaint, 13 x 1,000"),
    ("paint_100000", "repaint, 13 x 100,000"),
    ("paint_1000000", "repaint, 13 x 1,000,000"),
    ("window", "repaint, 1,000 in view of 1,000,000"),
    ("bars", "bars, 13 x 50 groups"),
    ("append", "append, one call a sample"),
    ("steady", "append 1, drop 1 of 1,000,000"),
    ("time_1000000", "chart over time, 13 x 1,000,000"),
    ("pan", "the same, half of it in view, panned by a pixel"),
    ("wall", "24 live charts, 4 series, 600 points in view, a step of all"),
    ("random", "chart, 13 x 100,000 in random order of x, lines"),
    ("random_points", "the same, squares of 7 pixels"),
]


def read(path):
    """The values of each case: of a peer's variants, and of the program's own keys."""
    peers, own = {}, {}
    with open(path, encoding="utf-8") as lines:
        for line in lines:
            row = json.loads(line)
            case = "pan" if row.get("case") == "PAN" or row.get("row") == "chart_pan" else row["table"]
            if "peer" in row:
                name = row["peer"].split("-")[0]
                peers.setdefault(case, {}).setdefault(name, {}).setdefault(row["variant"], []).append(row["median"])
            else:
                for key, value in row.items():
                    if isinstance(value, (int, float)):
                        own.setdefault(case, {}).setdefault((row["row"], key), []).append(value)
    return peers, own


def figures_of(variants, is_rate):
    """A peer's usual way (its own repaint of the widget) and its best way, by the medians over the rounds."""
    medians = {name: statistics.median(values) for name, values in variants.items()}
    best = (max if is_rate else min)(medians.values())
    usual = [value for name, value in medians.items() if name.endswith("_replot")]
    return (usual[0] if usual else best), best


def text(value, is_rate):
    return f"{value / 1e6:.3g} M/s" if is_rate else f"{value:.3g} ms"


def main():
    peers, own = read(sys.argv[1])
    print("| case | QCustomPlot | Qwt | Kavlix, window | Kavlix, memory | window, times as fast | memory, times as fast |")
    print("|---|---:|---:|---:|---:|---:|---:|")
    for case, title in CASES:
        is_rate = case in ("append", "steady")
        found = {name: figures_of(variants, is_rate) for name, variants in peers.get(case, {}).items()}
        figures = own.get(case, {})

        def figure(row, key):
            values = figures.get((row, key))
            return statistics.median(values) if values else None

        if case == "append":
            first, second = figure("graph_append_control", "median_samples_per_s"), figure(
                "graph_append_dataset", "median_samples_per_s")
        elif case == "steady":
            first, second = None, figure("graph_steady", "median_steps_per_s")
        else:
            row = case if case.startswith("random") else case.split("_")[0]
            row = ("chart_" if case.startswith(("random", "time", "wall", "pan")) else "graph_") + row
            first = figure(row, "pan_ms" if case == "pan" else "window_median_ms")
            second = figure(row, "memory_median_ms")

        def ratios(value):
            if value is None or not found:
                return "–"
            pick = max if is_rate else min
            both = [pick(pair[i] for pair in found.values()) for i in (0, 1)]
            shown = [f"{value / fastest if is_rate else fastest / value:.2f}" for fastest in both]
            return shown[0] if shown[0] == shown[1] else f"{shown[0]} ({shown[1]})"

        def cell(value):
            return "–" if value is None else text(value, is_rate)

        def peer_cell(name):
            if name not in found:
                return "–"
            usual, best = (text(value, is_rate) for value in found[name])
            return usual if usual == best else f"{usual} ({best})"

        print(f"| {title} | {peer_cell('qcustomplot')} | {peer_cell('qwt')} | {cell(first)} | {cell(second)} "
              f"| {ratios(first)} | {ratios(second)} |")
    print()
    print("Of the peers the repaint of their widget is shown, in brackets their fastest way to a whole picture; the")
    print("ratios are those to the faster peer. For append and steady Kavlix's columns are the control and the datasets.")
    print("Further figures, medians over the rounds:")
    for case, values in own.items():
        for (row, key), numbers in values.items():
            if key.startswith(("alone", "bytes", "worst", "median_worst", "least_worst", "median_pause")):
                print(f"- {row}, {key}: {statistics.median(numbers):.4g} (smallest {min(numbers):.4g})")


if __name__ == "__main__":
    main()
