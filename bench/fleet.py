#!/usr/bin/env python3
"""Measures `qrmkit fleet` against separate `qrmkit updates` runs, in one run
so that the ratios see the same machine:

  a. the catalog read alone (`qrmkit catalog --json`), median of 3;
  b. `qrmkit updates --json` for a sample of 50 inventories (every N/50th),
     median and mean wall time, interleaved with (a); then three more such
     runs for their peak proportional set size (PSS), the highest counts;
  c. one `qrmkit fleet --format jsonl` run over every inventory: wall time
     and the peak over time of the summed PSS of the process and all its
     descendants.

PSS is read from /proc/PID/smaps_rollup every 20 ms by a thread, the same
way for (b) and (c). Also printed: the fleet's cost per inventory after the
catalog read as a share of one updates run (target <= 2 %), the fleet total
(target: 10,000 inventories in <= 60 s) and the PSS ratio fleet / one
updates run (target < 1.5 x). The raw figures go to --json.

    bench/fleet.py --tool build/bench/tools/qrmkit/qrmkit --catalog CAT \\
        [--jobs N] [--json OUT] INVENTORY_DIR
"""
import argparse
import json
import os
import statistics
import subprocess
import sys
import tempfile
import threading
import time

SAMPLE = 50
CATALOG_READS = 3
PSS_RUNS = 3
FEW_SAMPLES = 10        # fewer PSS samples than this: the peak may have been missed
TARGET_SHARE = 2.0      # % of one updates run, per inventory after the catalog read
TARGET_COMPUTERS = 10000
TARGET_SECONDS = 60.0
TARGET_PSS_RATIO = 1.5


def pss_kib(pid):
    """The process's proportional set size in KiB, 0 when it is gone."""
    try:
        with open("/proc/%d/smaps_rollup" % pid) as rollup:
            for line in rollup:
                if line.startswith("Pss:"):
                    return int(line.split()[1])
    except (OSError, ValueError):
        pass
    return 0


def with_descendants(root):
    """root and every process below it, found through the parent ids in /proc/*/stat."""
    children = {}
    for name in os.listdir("/proc"):
        if not name.isdigit():
            continue
        try:
            with open("/proc/%s/stat" % name) as stat:
                text = stat.read()
        except OSError:
            continue  # gone meanwhile
        # "pid (command) state ppid ...": the command may hold spaces and parentheses.
        fields = text[text.rfind(")") + 2:].split()
        if len(fields) > 1:
            children.setdefault(int(fields[1]), []).append(int(name))
    found = [root]
    for pid in found:
        found.extend(children.get(pid, []))
    return found


class PssSampler(threading.Thread):
    """Samples the summed PSS of a process tree until stopped; keeps the peak."""

    def __init__(self, pid, interval=0.02):
        super().__init__(daemon=True)
        self.pid = pid
        self.interval = interval
        self.peak_kib = 0
        self.samples = 0
        self.stopping = threading.Event()

    def run(self):
        while not self.stopping.is_set():
            total = sum(pss_kib(pid) for pid in with_descendants(self.pid))
            self.peak_kib = max(self.peak_kib, total)
            self.samples += 1
            self.stopping.wait(self.interval)

    def stop(self):
        self.stopping.set()
        self.join()


def run(command, sample_pss=False):
    """Runs command with its output discarded. Returns a dict: wall seconds,
    exit status (negative: killed by that signal), the kernel's peak resident
    set of the process itself, the sampled peak PSS of its tree when asked,
    and the end of its standard error."""
    with tempfile.TemporaryFile() as errors:
        start = time.perf_counter()
        process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=errors)
        sampler = PssSampler(process.pid) if sample_pss else None
        if sampler:
            sampler.start()
        _, wait_status, usage = os.wait4(process.pid, 0)
        wall = time.perf_counter() - start
        process.returncode = os.waitstatus_to_exitcode(wait_status)
        if sampler:
            sampler.stop()
        errors.seek(0)
        stderr = errors.read().decode("utf-8", "replace")
    result = {"seconds": wall, "status": process.returncode, "max_rss_kib": usage.ru_maxrss,
              "stderr_tail": stderr[-2000:]}
    if sampler:
        result["peak_pss_kib"] = sampler.peak_kib
        result["pss_samples"] = sampler.samples
    return result


def fail(what, result):
    sys.stderr.write("fleet.py: %s ended with status %d\n%s" % (what, result["status"], result["stderr_tail"]))
    sys.exit(1)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--tool", required=True, help="the qrmkit executable")
    parser.add_argument("--catalog", required=True)
    parser.add_argument("--jobs", type=int, help="passed to qrmkit fleet --jobs")
    parser.add_argument("--json", help="write the raw figures here")
    parser.add_argument("inventories", metavar="INVENTORY_DIR")
    args = parser.parse_args()

    inventories = sorted(os.path.join(args.inventories, name) for name in os.listdir(args.inventories)
                         if name.endswith(".xml"))
    count = len(inventories)
    if count == 0:
        sys.exit("fleet.py: no *.xml in %s" % args.inventories)
    sample = inventories[::max(1, count // SAMPLE)][:SAMPLE]

    # a and b, interleaved: a catalog read before each third of the updates runs.
    catalog_at = {round(k * len(sample) / CATALOG_READS) for k in range(CATALOG_READS)}
    catalog_runs, updates_runs = [], []
    for index, inventory in enumerate(sample):
        if index in catalog_at:
            result = run([args.tool, "catalog", "--catalog", args.catalog, "--json"])
            if result["status"] != 0:
                fail("qrmkit catalog", result)
            catalog_runs.append(result)
        result = run([args.tool, "updates", "--catalog", args.catalog, "--inventory", inventory, "--json"])
        # 4: no bundle for the computer's system, as for about 10 % of the fleet.
        if result["status"] not in (0, 4):
            fail("qrmkit updates on " + inventory, result)
        result["inventory"] = inventory
        updates_runs.append(result)

    # b, memory: three more runs on the first sampled inventory that has a
    # bundle; the highest peak counts (a sampler can only miss the peak).
    evaluated = [r["inventory"] for r in updates_runs if r["status"] == 0]
    if not evaluated:
        sys.exit("fleet.py: no sampled inventory has a bundle in the catalog")
    pss_runs = []
    for _ in range(PSS_RUNS):
        result = run([args.tool, "updates", "--catalog", args.catalog, "--inventory", evaluated[0], "--json"],
                     sample_pss=True)
        if result["status"] != 0:
            fail("qrmkit updates on " + evaluated[0], result)
        result["inventory"] = evaluated[0]
        pss_runs.append(result)
    single = max(pss_runs, key=lambda r: r["peak_pss_kib"])

    # c
    command = [args.tool, "fleet", "--catalog", args.catalog, "--format", "jsonl", "--output", "/dev/null"]
    if args.jobs:
        command += ["--jobs", str(args.jobs)]
    fleet = run(command + [args.inventories], sample_pss=True)
    # 3: some inventories failed, expected here (those without a bundle).
    if fleet["status"] not in (0, 3):
        fail("qrmkit fleet", fleet)

    catalog_read = statistics.median(r["seconds"] for r in catalog_runs)
    updates_median = statistics.median(r["seconds"] for r in updates_runs)
    updates_mean = statistics.mean(r["seconds"] for r in updates_runs)
    per_inventory = (fleet["seconds"] - catalog_read) / count
    share = 100.0 * per_inventory / updates_median
    projected = catalog_read + per_inventory * TARGET_COMPUTERS
    pss_ratio = fleet["peak_pss_kib"] / single["peak_pss_kib"] if single["peak_pss_kib"] else None
    no_bundle = sum(1 for r in updates_runs if r["status"] == 4)

    def line(label, value, note=""):
        print(("%-46s %10s   %s" % (label, value, note)).rstrip())

    def verdict(ok):
        return "ok" if ok else "MISSED"

    def mib(kib):
        return "%.1f MiB" % (kib / 1024.0)

    print("== qrmkit fleet: %d inventories, catalog %s (%.1f MB)"
          % (count, args.catalog, os.path.getsize(args.catalog) / 1e6))
    line("catalog read (median of %d)" % len(catalog_runs), "%.3f s" % catalog_read)
    line("updates run (median of %d)" % len(updates_runs), "%.3f s" % updates_median,
         "mean %.3f s; %d of them without a bundle (exit 4)" % (updates_mean, no_bundle))
    line("fleet total", "%.3f s" % fleet["seconds"], "exit %d" % fleet["status"])
    line("fleet per inventory after the catalog read", "%.3f ms" % (per_inventory * 1000),
         "= %.2f %% of one updates run; target <= %.0f %%: %s"
         % (share, TARGET_SHARE, verdict(share <= TARGET_SHARE)))
    if count == TARGET_COMPUTERS:
        line("%d inventories" % count, "%.1f s" % fleet["seconds"],
             "target <= %.0f s: %s" % (TARGET_SECONDS, verdict(fleet["seconds"] <= TARGET_SECONDS)))
    else:
        line("%d inventories, projected from this run" % TARGET_COMPUTERS, "%.1f s" % projected,
             "target <= %.0f s: %s" % (TARGET_SECONDS, verdict(projected <= TARGET_SECONDS)))
    line("peak PSS, fleet (process and descendants)", mib(fleet["peak_pss_kib"]),
         "%d samples; kernel peak RSS of the process %s" % (fleet["pss_samples"], mib(fleet["max_rss_kib"])))
    line("peak PSS, one updates run (highest of %d)" % len(pss_runs), mib(single["peak_pss_kib"]),
         "%d samples; kernel peak RSS %s" % (single["pss_samples"], mib(single["max_rss_kib"])))
    if min(fleet["pss_samples"], single["pss_samples"]) < FEW_SAMPLES:
        print("  (fewer than %d PSS samples in a run: its sampled peak may be low; compare the kernel peak RSS,"
              " or use a bigger catalog)" % FEW_SAMPLES)
    if pss_ratio is None:
        line("peak PSS fleet / one updates run", "-", "no sample caught the updates run")
    else:
        line("peak PSS fleet / one updates run", "%.2f x" % pss_ratio,
             "target < %.1f x: %s" % (TARGET_PSS_RATIO, verdict(pss_ratio < TARGET_PSS_RATIO)))

    if args.json:
        os.makedirs(os.path.dirname(args.json) or ".", exist_ok=True)
        with open(args.json, "w") as out:
            json.dump({
                "tool": args.tool, "catalog": args.catalog, "catalog_bytes": os.path.getsize(args.catalog),
                "inventories": args.inventories, "computers": count, "jobs": args.jobs,
                "catalog_read_runs": catalog_runs, "updates_runs": updates_runs,
                "updates_pss_runs": pss_runs, "fleet_run": fleet,
                "catalog_read_seconds": catalog_read,
                "updates_median_seconds": updates_median, "updates_mean_seconds": updates_mean,
                "fleet_seconds": fleet["seconds"],
                "fleet_per_inventory_seconds": per_inventory, "fleet_per_inventory_percent": share,
                "fleet_projected_seconds_for_%d" % TARGET_COMPUTERS: projected,
                "fleet_peak_pss_kib": fleet["peak_pss_kib"], "updates_peak_pss_kib": single["peak_pss_kib"],
                "pss_ratio": pss_ratio,
                "targets": {"per_inventory_percent": TARGET_SHARE, "computers": TARGET_COMPUTERS,
                            "seconds": TARGET_SECONDS, "pss_ratio": TARGET_PSS_RATIO},
            }, out, indent=2)
            out.write("\n")


if __name__ == "__main__":
    main()
