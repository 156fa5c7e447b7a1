#!/usr/bin/env python3
"""Measures the Python package's qrmkit.updates() against the qrmkit tool and
against a plain ElementTree script that computes the same answer, in one run
so that the ratios see the same machine.

Each of the three is a whole process, run in turn (A B C A B C ...) after
one warm-up each: wall time, and the peak resident set of the largest single
process of its tree (wait4's ru_maxrss, which covers the children it
waited for: for the package, the child the answer is computed in). First
the three answers are checked to be the same document. Targets: the
package at least 6x faster than the ElementTree script, within 1.1x of the
tool's time, and its peak memory within 1.2x of the tool's. Medians are
printed; the raw figures go to --json.

    bench/python_bench.py --tool TOOL --package-dir DIR --catalog CAT --inventory INV [--runs N] [--json OUT]
"""
import argparse
import json
import os
import statistics
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
TARGET_VS_ETREE = 6.0
TARGET_VS_TOOL_TIME = 1.1
TARGET_VS_TOOL_MEMORY = 1.2

PACKAGE_SCRIPT = """
import sys, qrmkit
result = qrmkit.updates(sys.argv[1], sys.argv[2])
if len(sys.argv) > 3:
    import json
    print(json.dumps(result.document))
"""


def run(command, env=None):
    """Runs a command with its output discarded: (wall seconds, peak RSS bytes, exit status)."""
    start = time.monotonic()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, env=env)
    _, status, usage = os.wait4(process.pid, 0)
    wall = time.monotonic() - start
    process.returncode = os.waitstatus_to_exitcode(status)
    return wall, usage.ru_maxrss * 1024, process.returncode


def output(command, env=None):
    return json.loads(subprocess.run(command, stdout=subprocess.PIPE, env=env, check=True).stdout)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--tool", required=True)
    parser.add_argument("--package-dir", required=True, help="the folder that holds the qrmkit package")
    parser.add_argument("--catalog", required=True)
    parser.add_argument("--inventory", required=True)
    parser.add_argument("--runs", type=int, default=5)
    parser.add_argument("--json")
    args = parser.parse_args()

    python = "/usr/bin/python3"
    env = dict(os.environ, PYTHONPATH=args.package_dir)
    commands = {
        "package": [python, "-c", PACKAGE_SCRIPT, args.catalog, args.inventory],
        "tool": [args.tool, "updates", "--json", "--catalog", args.catalog, "--inventory", args.inventory],
        "etree": [python, os.path.join(HERE, "etree_updates.py"), "--catalog", args.catalog,
                  "--inventory", args.inventory],
    }

    tool_document = output(commands["tool"])
    package_document = output(commands["package"] + ["--print"], env)
    etree_document = output(commands["etree"])
    same = tool_document == package_document == etree_document
    print(f"same answer from the package, the tool and the ElementTree script: {'yes' if same else 'NO'} "
          f"({len(tool_document['updates'])} updates)")
    if not same:
        return 1

    figures = {name: {"wall": [], "rss": []} for name in commands}
    for name, command in commands.items():  # warm-up
        run(command, env)
    for _ in range(args.runs):
        for name, command in commands.items():
            wall, rss, status = run(command, env)
            if status != 0:
                print(f"{name} exited with {status}", file=sys.stderr)
                return 1
            figures[name]["wall"].append(wall)
            figures[name]["rss"].append(rss)

    median = {name: {key: statistics.median(values) for key, values in figure.items()}
              for name, figure in figures.items()}
    print(f"medians of {args.runs} interleaved runs; peak RSS of the largest process of each tree")
    for name in commands:
        print(f"  {name:8} {median[name]['wall']:7.2f} s   {median[name]['rss'] / 2**20:8.1f} MiB")
    vs_etree = median["etree"]["wall"] / median["package"]["wall"]
    vs_tool_time = median["package"]["wall"] / median["tool"]["wall"]
    vs_tool_memory = median["package"]["rss"] / median["tool"]["rss"]
    print(f"ElementTree script / package time: {vs_etree:.2f}x (target >= {TARGET_VS_ETREE}x)")
    print(f"package / tool time:               {vs_tool_time:.3f}x (target <= {TARGET_VS_TOOL_TIME}x)")
    print(f"package / tool peak memory:        {vs_tool_memory:.3f}x (target <= {TARGET_VS_TOOL_MEMORY}x)")
    if args.json:
        with open(args.json, "w") as out:
            json.dump({"runs": figures, "median": median, "etree_vs_package": vs_etree,
                       "package_vs_tool_time": vs_tool_time, "package_vs_tool_memory": vs_tool_memory}, out)
    return 0


if __name__ == "__main__":
    sys.exit(main())
