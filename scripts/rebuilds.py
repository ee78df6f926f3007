#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tells how many sources, tests among them, a changed line in a header compiles anew: the heaviest first, or the named ones.

    scripts/rebuilds.py [-n COUNT] [HEADER...]

From #include lines alone, so it takes a second and no build; `ninja -t deps` of a finished build counts the same. Benchmarks and
fuzz targets, which dev does not build, are left out.
"""
import argparse
import os
import sys

from checks.include_graph import resolve, INCLUDE
from checks.sources import read, tracked, without_comments

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
    return {path for path in reached if path.endswith(".cpp") and NOT_IN_DEV.isdisjoint(path.split("/")[:-1])}


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
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
    headers = options.headers or [path for path in texts if path.endswith(".h")]
    counted = sorted(((len(rebuilt(header, included_by)), header) for header in headers), reverse=True)
    for count, header in counted if options.headers else counted[:options.n]:
        print(f"{count:5d}  {header}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
