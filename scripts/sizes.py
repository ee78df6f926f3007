#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tells the sizes of the production sources, functions and classes, and holds them to their limits.

    scripts/sizes.py           prints them
    scripts/sizes.py --check   prints only what is over a limit; exit 0 nothing, 1 something, 2 a tool or list is wrong

Limits: a file 400 lines (over 250 it is told), a function 50, a class 25 operations, 10 fields, two .cpp. Operations count
without constructors, destructor and operators; a struct without operations is a record and may have any fields.
scripts/sizes.txt names what may be over, with a reason a line.
"""
import argparse
import os
import statistics
import subprocess
import sys

from checks.class_sizes import classes, functions, tags
from checks.sources import production, read

ALLOWED = "scripts/sizes.txt"
LONG_FILE, MOST_LINES, TINY_HEADER = 250, 400, 30
MOST_FUNCTION_LINES = 50
MOST_OPERATIONS, MOST_FIELDS, MOST_SOURCES = 25, 10, 2


def read_allowed(text):
    """{(kind, name): line} of what may be over; ValueError for a line without kind, name or reason."""
    allowed = {}
    for count, line in enumerate(text.split("\n"), 1):
        if not line.strip() or line.startswith("#"):
            continue
        what, separator, reason = (part.strip() for part in line.partition(" -- "))
        kind, _, name = what.partition(" ")
        if kind not in ("file", "function", "class") or not name or not separator or not reason:
            raise ValueError(f"line {count}: not `file|function|class NAME -- REASON`: {line}")
        allowed[kind, name] = count
    return allowed


def file_breaches(lines):
    for path, count in lines.items():
        if count > MOST_LINES:
            yield "file", path, f"{path}: {count} lines, limit {MOST_LINES}"


def function_breaches(found):
    for function in found:
        if function.lines > MOST_FUNCTION_LINES:
            yield "function", function.name, (f"{function.path}:{function.line}: {function.name} has {function.lines} lines, "
                                              f"limit {MOST_FUNCTION_LINES}")


def class_breaches(found):
    for one in found:
        over = []
        if one.operations > MOST_OPERATIONS:
            over.append(f"{one.operations} operations, limit {MOST_OPERATIONS}")
        if one.fields > MOST_FIELDS and (one.is_class or one.operations):
            over.append(f"{one.fields} fields, limit {MOST_FIELDS}")
        if len(one.sources) > MOST_SOURCES:
            over.append(f"{len(one.sources)} sources, limit {MOST_SOURCES}")
        if over:
            yield "class", one.name, f"{one.path}:{one.line}: {one.name} has {' and '.join(over)}"


def not_allowed(breaches, allowed):
    """The texts of the breaches that no line allows, then those of lines that nothing needs."""
    breaches = list(breaches)
    yield from (text for kind, name, text in breaches if (kind, name) not in allowed)
    for (kind, name), line in allowed.items():
        if (kind, name) not in {breach[:2] for breach in breaches}:
            yield f"{ALLOWED}:{line}: {kind} {name} is not over a limit any more; take the line out"


def told(name, counts):
    ordered = sorted(counts)
    high = ordered[min(len(ordered) - 1, int(len(ordered) * 0.95))]
    return f"{name:10} {len(ordered):5}   median {statistics.median(ordered):4.0f}   95th {high:4}   most {ordered[-1]:4}"


def show(lines, found, made):
    headers = [count for path, count in lines.items() if path.endswith(".h")]
    tiny = sum(count < TINY_HEADER for count in headers)
    print(told("sources", [count for path, count in lines.items() if path.endswith(".cpp")]))
    print(told("headers", headers) + f"   under {TINY_HEADER} lines {tiny} ({100 * tiny / len(headers):.0f} %)")
    print(told("functions", [function.lines for function in found]))
    print(told("operations", [one.operations for one in made if one.operations]) + "   of a class")
    for path, count in sorted(lines.items(), key=lambda item: -item[1]):
        if count > LONG_FILE:
            print(f"long file: {path}: {count} lines")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true", help="print only what is over a limit")
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    parser.add_argument("--root", default=root, help="another checkout")
    options = parser.parse_args()
    paths = production(options.root)
    lines = {path: read(options.root, path).count("\n") for path in paths}
    try:
        allowed = read_allowed(read(options.root, ALLOWED))
        records = tags(options.root, paths)
    except (ValueError, OSError, subprocess.CalledProcessError) as error:
        print(f"sizes: {error}", file=sys.stderr)
        return 2
    found, made = list(functions(records)), list(classes(records))
    over = list(not_allowed([*file_breaches(lines), *function_breaches(found), *class_breaches(made)], allowed))
    if not options.check:
        show(lines, found, made)
    for text in over:
        print(f"over: {text}", file=sys.stderr if options.check else sys.stdout)
    return 1 if options.check and over else 0


if __name__ == "__main__":
    sys.exit(main())
