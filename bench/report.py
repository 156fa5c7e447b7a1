#!/usr/bin/env python3
"""Prints the medians of bench/run's benchmark reports, and their ratios."""
import json
import sys


def medians(path):
    with open(path) as source:
        report = json.load(source)
    result = {}
    for entry in report["benchmarks"]:
        if entry.get("aggregate_name") == "median":
            name = entry["run_name"].split("/")[0]
            result[name] = (entry["real_time"], entry.get("components"), entry.get("devices"))
    return result


def main_report(path):
    m = medians(path)
    floor = m["XMLParserLoadAndWalk"][0]
    parse = m["Parse"][0]
    print("%-30s %12s %14s" % ("benchmark", "median ms", "ratio"))
    for name in ["XMLParserLoadAndWalk", "Parse", "WellFormednessCheck", "WellFormednessCheckBeyondASCII",
                 "ParseInventory", "ApplicableUpdates", "CategoryQueries"]:
        if name not in m:
            continue
        time = m[name][0]
        if name == "Parse":
            ratio = "%.2f x XML" % (time / floor)
        elif name == "XMLParserLoadAndWalk":
            ratio = "1.00 x XML"
        else:
            ratio = "%.2f %% Parse" % (100.0 * time / parse)
        print("%-30s %12.2f %14s" % (name, time, ratio))


def memory_report(path):
    with open(path) as source:
        runs = [json.loads(line) for line in source if line.strip()]
    def median(key):
        values = sorted(run[key] for run in runs)
        return values[len(values) // 2]
    size = runs[0]["file_bytes"]
    peak = median("peak_resident_bytes")
    store = median("store_bytes")
    print("%-28s %10.1f MB" % ("catalog file", size / 1e6))
    print("%-28s %10.1f MB %6.2f x file" % ("peak resident while parsing", peak / 1e6, peak / size))
    print("%-28s %10.1f MB %6.2f x file" % ("store after Parse", store / 1e6, store / size))


def scaling_report(paths):
    print("%12s %10s %14s %22s" % ("components", "devices", "Parse ms", "ApplicableUpdates ms"))
    base = None
    for path in paths:
        m = medians(path)
        parse, components, _ = m["Parse"]
        updates, _, devices = m["ApplicableUpdates"]
        if base is None:
            base = (parse, updates)
        print("%12d %10d %9.1f (%4.2fx) %15.2f (%4.2fx)" % (
            components, devices, parse, parse / base[0], updates, updates / base[1]))


def runs(path, name):
    """Every run of one benchmark in a report, as its real times."""
    with open(path) as source:
        report = json.load(source)
    return [entry["real_time"] for entry in report["benchmarks"]
            if entry.get("run_type") == "iteration" and entry["run_name"].split("/")[0] == name]


def baseline_report(pairs, folder):
    """Parse before (the baseline revision) and after (the working tree),
    from the pairs bench/run ran in turn: the median of the pairs' medians,
    and the fastest run of each side, which a shared machine's interruptions
    can only slow down, never speed up."""
    def report(pair, side):
        return "%s/pair-%d-%s.json" % (folder, pair, side)
    before = [medians(report(pair, "before"))["Parse"][0] for pair in range(1, pairs + 1)]
    after = [medians(report(pair, "after"))["Parse"][0] for pair in range(1, pairs + 1)]
    fastest_before = min(min(runs(report(pair, "before"), "Parse")) for pair in range(1, pairs + 1))
    fastest_after = min(min(runs(report(pair, "after"), "Parse")) for pair in range(1, pairs + 1))
    ratios = sorted(a / b for a, b in zip(after, before))
    def median(values):
        ordered = sorted(values)
        middle = len(ordered) // 2
        return ordered[middle] if len(ordered) % 2 else (ordered[middle - 1] + ordered[middle]) / 2
    print("%-24s %12s %12s" % ("Parse", "median ms", "fastest ms"))
    print("%-24s %12.2f %12.2f" % ("before (baseline)", median(before), fastest_before))
    print("%-24s %12.2f %12.2f" % ("after (working tree)", median(after), fastest_after))
    print("after / before           %12.3f x %10.3f x  (pairs' medians from %.3f to %.3f x)" % (
        median(after) / median(before), fastest_after / fastest_before, ratios[0], ratios[-1]))


if __name__ == "__main__":
    if sys.argv[1] == "main":
        main_report(sys.argv[2])
    elif sys.argv[1] == "memory":
        memory_report(sys.argv[2])
    elif sys.argv[1] == "baseline":
        baseline_report(int(sys.argv[2]), sys.argv[3])
    else:
        scaling_report(sys.argv[2:])
