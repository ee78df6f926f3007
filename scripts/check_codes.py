#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds the numbers of failures to the tables that make them, and the tables to docs/errors.md.

    scripts/check_codes.py       says every breach, a line each; exit 0 none, 1 some, 2 scripts/borders.txt is wrong

A table is `inline constexpr CodeTable kName{` or `constexpr CodeTable kName{` in a production source; the page names
each. Behind them a function of the plug-in fails by an Outcome, an enum or false: what stands in an anonymous
namespace returns no bare negative number at all, and elsewhere such numbers stand only in the sources of
scripts/borders.txt, not more of them than it says.
"""
import os
import re
import sys

from checks.sources import read, sources_of_command_line, without_comments

PAGE = "docs/errors.md"
BORDERS = "scripts/borders.txt"
ROOMS = "seaplan/"
_TABLE = re.compile(r"\bconstexpr CodeTable (k\w+)\s*\{")
_BARE = re.compile(r"\breturn\b(?:[^;{}\"]*[?:])?\s*-[0-9]+\s*[;:]")
_ANONYMOUS = re.compile(r"^namespace \{$.*?^\}  // namespace$", re.S | re.M)


def unnamed(sources, page):
    """(path, table) of each code table of `sources`, pairs of path and text, that the page's text does not name."""
    known = set(re.findall(r"`(k\w+)`", page))
    return [(path, name) for path, text in sources for name in _TABLE.findall(without_comments(text))
            if name not in known]


def read_borders(text):
    """{path: how many bare numbers it may return}; ValueError for a line that does not say so."""
    borders = {}
    for count, line in enumerate(text.split("\n"), 1):
        words = line.split()
        if not words or words[0].startswith("#"):
            continue
        if len(words) != 2 or not words[1].isdigit() or words[0] in borders:
            raise ValueError(f"line {count}: not `PATH COUNT`, or a second time: {line}")
        borders[words[0]] = int(words[1])
    return borders


def bare_numbers(text):
    """(line, whether inside an anonymous namespace) of each `return` of a bare negative number."""
    code = without_comments(text)
    inner = [found.span() for found in _ANONYMOUS.finditer(text)]
    return [(code.count("\n", 0, found.start()) + 1, any(a <= found.start() < b for a, b in inner))
            for found in _BARE.finditer(code)]


def bare_breaches(sources, borders):
    """A line for each number that has no business where it stands, and for each count that is not true."""
    for path, text in sources:
        if not path.startswith(ROOMS):
            continue
        found, allowed = bare_numbers(text), borders.get(path, 0)
        hidden = [line for line, is_inner in found if is_inner]
        if allowed == 0 or hidden:
            yield from (f"{path}:{line} returns a bare number behind the border: answer with the step that failed"
                        for line in (hidden if allowed else [line for line, _ in found]))
        if len(found) > allowed > 0:
            yield f"{path} returns {len(found)} bare numbers, and {BORDERS} says {allowed}"
    known = {path for path, _ in sources}
    yield from (f"{BORDERS}: {path} is no source any more" for path in borders if path not in known)


def main():
    root, sources = sources_of_command_line(__doc__)
    try:
        borders = read_borders(read(root, BORDERS))
    except ValueError as error:
        print(f"codes: {BORDERS}: {error}", file=sys.stderr)
        return 2
    with open(os.path.join(root, PAGE), encoding="utf-8") as page:
        found = [f"{name} of {path} is not named in {PAGE}" for path, name in unnamed(sources, page.read())]
    found += bare_breaches(sources, borders)
    for line in found:
        print(f"codes: {line}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
