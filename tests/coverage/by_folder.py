#!/usr/bin/env python3
"""Prints the coverage of each folder from gcovr's JSON summary (standard input), and fails below the limits.

./test --coverage runs this script.
"""

import collections
import json
import posixpath
import sys

LEAST_LINES = 98.0    # per cent of the library and the simulated host together
LEAST_BRANCHES = 90.0
COUNTS = ("line_covered", "line_total", "branch_covered", "branch_total")


def percent(covered, total):
    return 100.0 * covered / total if total else 100.0


def main():
    folders = collections.defaultdict(lambda: dict.fromkeys(COUNTS, 0))
    for file in json.load(sys.stdin)["files"]:
        for name in (posixpath.dirname(file["filename"]), "together"):
            for count in COUNTS:
                folders[name][count] += file[count]
    together = folders.pop("together")
    print(f"{'folder':36}{'lines':>8}{'%':>7}{'branches':>10}{'%':>7}")
    for name, counts in [*sorted(folders.items()), ("together", together)]:
        print(f"{name:36}{counts['line_total']:8}{percent(counts['line_covered'], counts['line_total']):7.1f}"
              f"{counts['branch_total']:10}{percent(counts['branch_covered'], counts['branch_total']):7.1f}")
    lines = percent(together["line_covered"], together["line_total"])
    branches = percent(together["branch_covered"], together["branch_total"])
    if lines < LEAST_LINES or branches < LEAST_BRANCHES:
        print(f"coverage: below {LEAST_LINES} per cent of the lines or {LEAST_BRANCHES} of the branches",
              file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
