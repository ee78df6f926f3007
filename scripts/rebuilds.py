#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tells how many sources, tests among them, a changed line in a header compiles anew: the heaviest first, or the named ones.

    scripts/rebuilds.py [-n COUNT] [HEADER...]
    scripts/rebuilds.py --check   prints only what is over the limit; exit 0 nothing, 1 something, 2 the list is wrong

Limit: no header reaches more than a tenth of the sources, but for those that scripts/rebuilds.txt names with a reason a line. A
share, and not a number, so that a new test does not break it.

From #include lines alone, so it takes a second and no build; `ninja -t deps` of a finished build counts the same. Benchmarks and
fuzz targets, which dev does not build, are left out.
"""
import argparse
import os
import sys

from checks.include_graph import resolve, INCLUDE
from checks.sources import read, tracked, without_comments

ALLOWED = "scripts/rebuilds.txt"
MOST_SHARE = 0.1
NOT_IN_DEV = {"bench", "fuzz", "sample", "snippets"}


def includers(texts):
    """{header: files that include it} of {path: text}."""
    found = {}
    for path, text in texts.items():
        for _, header in INCLUDE.findall(without_comments(text)):
            target = resolve(path, header, texts)
            if target:
                found.setdefault(target, set()).add(path)
    return found


def rebuilt(header, included_by):
    """The .cpp files that a change of the header reaches."""
    reached, waiting = {header}, [header]
    while waiting:
        for path in included_by.get(waiting.pop(), ()):
            if path not in reached:
                reached.add(path)
                waiting.append(path)
    return {path for path in reached if is_source(path)}


def is_source(path):
    return path.endswith(".cpp") and NOT_IN_DEV.isdisjoint(path.split("/")[:-1])


def read_allowed(text):
    """The headers that may be over; ValueError for a line without a reason."""
    allowed = []
    for count, line in enumerate(text.split("\n"), 1):
        if not line.strip() or line.startswith("#"):
            continue
        header, separator, reason = (part.strip() for part in line.partition(" -- "))
        if not header or not separator or not reason:
            raise ValueError(f"line {count}: not `HEADER -- REASON`: {line}")
        allowed.append(header)
    return allowed


def breaches(counted, sources, allowed):
    """The texts of headers over the limit that no line allows, then of lines that nothing needs; `counted` is {header: count}."""
    most = int(sources * MOST_SHARE)
    for header, count in sorted(counted.items(), key=lambda item: (-item[1], item[0])):
        if count > most and header not in allowed:
            yield f"{header}: {count} of {sources} sources, limit {most}"
    # One that is just below the limit keeps its line, for it would be over again tomorrow.
    for header in allowed:
        if counted.get(header, 0) < most * 0.9:
            yield f"{ALLOWED}: {header} is not over the limit any more; take the line out"


def check(root, texts, included_by):
    try:
        allowed = read_allowed(read(root, ALLOWED))
    except (ValueError, OSError) as error:
        print(f"rebuilds: {error}", file=sys.stderr)
        return 2
    counted = {path: len(rebuilt(path, included_by)) for path in texts if path.endswith(".h")}
    over = list(breaches(counted, sum(map(is_source, texts)), allowed))
    for text in over:
        print(f"over: {text}", file=sys.stderr)
    return 1 if over else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    parser.add_argument("--check", action="store_true", help="print only what is over the limit")
    parser.add_argument("-n", type=int, default=20, metavar="COUNT", help="how many headers are told (20)")
    parser.add_argument("--root", default=root, help="another checkout")
    parser.add_argument("headers", nargs="*", metavar="HEADER", help="paths from the repository's root")
    options = parser.parse_args()
    texts = {path: read(options.root, path) for path in tracked(options.root, "*.h", "*.cpp")}
    unknown = [header for header in options.headers if header not in texts]
    if unknown:
        print(f"rebuilds: no such header: {', '.join(unknown)}", file=sys.stderr)
        return 2
    included_by = includers(texts)
    if options.check:
        return check(options.root, texts, included_by)
    headers = options.headers or [path for path in texts if path.endswith(".h")]
    counted = sorted(((len(rebuilt(header, included_by)), header) for header in headers), reverse=True)
    for count, header in counted if options.headers else counted[:options.n]:
        print(f"{count:5d}  {header}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
