"""Computes one answer of the qrmkit package in a fresh interpreter.

The package starts this module (``python -m qrmkit._worker OP FD``) once
the low-level layer has read documents into the calling process's stores,
or while the calling process runs other threads, so that the answer is
computed from stores a fresh process has, by a process with one thread. FD
is a pipe that holds a JSON list of the operation's arguments, paths as str
(file-system encoding with surrogate escapes). It prints the answer's JSON
text (for "fleet", one line per inventory as each is ready).
"""

import json
import os
import sys

from . import _qrmkit


def main() -> int:
    with open(int(sys.argv[2]), "rb") as arguments:
        op, args = sys.argv[1], json.loads(arguments.read())
    if op == "fleet":
        catalog, inventories, bundle_type, jobs, timeout = args
        stream = _qrmkit._FleetStream(
            os.fsencode(catalog), [os.fsencode(item) for item in inventories], bundle_type, jobs, timeout
        )
        while True:
            line = stream.next()
            if line is None:
                return 0
            sys.stdout.write(line + "\n")
            sys.stdout.flush()
    if op in ("updates", "explain"):
        paths, rest = [os.fsencode(args[0]), os.fsencode(args[1])], args[2:]
    else:
        paths, rest = [os.fsencode(args[0])], args[1:]
    sys.stdout.write(getattr(_qrmkit, "_" + op)(*paths, *rest) + "\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())
