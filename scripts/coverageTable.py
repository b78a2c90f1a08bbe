"""Prints the line and branch coverage of base/ and modules/, and whatever is neither covered nor in
the list of exceptions. Usage: coverageTable.py LCOV JSON EXCEPTIONS"""

import json
import os
import sys
from collections import defaultdict

lcov_file, json_file, exceptions_file = sys.argv[1:]


def project_path(name):
    return os.path.relpath(os.path.realpath(name))


def is_measured(path):
    return path.startswith(("base/", "modules/"))


# Execution counts, by file and line.
lines = defaultdict(dict)
for row in open(lcov_file):
    key, _, value = row.strip().partition(":")
    if key == "SF":
        path = project_path(value)
    elif key == "DA" and is_measured(path):
        line, count = value.split(",")[:2]
        lines[path][int(line)] = int(count)

# Counts of both sides, by file, line and column, over all instances of a template.
branches = defaultdict(lambda: defaultdict(lambda: [0, 0]))
for function in json.load(open(json_file))["data"][0]["functions"]:
    for line, column, _, _, taken, not_taken, file, *_ in function["branches"]:
        path = project_path(function["filenames"][file])
        if is_measured(path):
            sides = branches[path][line, column]
            sides[0] += taken
            sides[1] += not_taken


def share(counts):
    counts = list(counts)
    run = sum(count > 0 for count in counts)
    return f"{run:5} of {len(counts):3}"


missed = set()
print(f"{'File':58} {'Lines':>12} {'Branches':>12}")
for path in sorted(lines):
    sides = [side for both in branches[path].values() for side in both]
    print(f"{path:58} {share(lines[path].values())} {share(sides)}")
    source = open(path).read().splitlines()
    for line in [line for line, count in lines[path].items() if not count] + [
        line for (line, _), both in branches[path].items() if 0 in both
    ]:
        missed.add(f"{path}: {source[line - 1].strip()}")

explained = {row.strip() for row in open(exceptions_file) if row.strip() and row[0] != "#"}
for row in sorted(missed - explained):
    print(f"not covered: {row}", file=sys.stderr)
for row in sorted(explained - missed):
    print(f"covered, but listed in {exceptions_file}: {row}", file=sys.stderr)
sys.exit(missed != explained)
