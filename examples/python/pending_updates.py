#!/usr/bin/env python3
"""Prints the pending updates of a fleet: for every computer, each installed
application a catalog package is newer for.

    examples/python/pending_updates.py CATALOG INVENTORY_OR_DIRECTORY...

Each inventory is evaluated in a process of its own (as ``qrmkit fleet``
does), all processors at once. Exits with 1 when an inventory could not be
evaluated, 0 otherwise.
"""

import argparse
import sys
from typing import List

import qrmkit


def main(argv: List[str]) -> int:
    parser = argparse.ArgumentParser(description="Print the pending updates of a fleet.")
    parser.add_argument("catalog", help="the update catalog (XML, possibly compressed)")
    parser.add_argument("inventories", nargs="+", help="inventory files, or directories of them")
    parser.add_argument("--bundle-type", default="auto", help="auto (default) or BTW32, BTW64, BTLX, ...")
    args = parser.parse_args(argv)

    try:
        results = qrmkit.fleet(args.catalog, args.inventories, bundle_type=args.bundle_type)
    except qrmkit.Error as error:
        print(f"pending_updates: {error}", file=sys.stderr)
        return 2

    failed = 0
    computers = 0
    pending = 0
    with results:
        for result in results:
            computers += 1
            if "error" in result:
                failed += 1
                print(f"{result['inventory']}: not evaluated ({result['error']['code']}): "
                      f"{result['error']['message']}")
                continue
            newer = [update for update in result["updates"] if update["status"] == "newer"]
            pending += len(newer)
            print(f"{result['inventory']}: system {result['system_id']}, {len(newer)} pending")
            for update in newer:
                print(f"  {update['device']} / {update['application']}: "
                      f"{update['installed_version']} -> {update['available_version']} "
                      f"(criticality {update['criticality']}, {update['location']})")
    print(f"{computers} computers, {pending} pending updates, {failed} not evaluated")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
