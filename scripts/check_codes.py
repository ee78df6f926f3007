#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds docs/errors.md to the tables that make result codes.

    scripts/check_codes.py       says every table that the page does not name, a line each; exit 0 none, 1 some

A table is `inline constexpr CodeTable kName{` or `constexpr CodeTable kName{` in a production source.
"""
import os
import re
import sys

from checks.sources import sources_of_command_line, without_comments

PAGE = "docs/errors.md"
_TABLE = re.compile(r"\bconstexpr CodeTable (k\w+)\s*\{")


def unnamed(sources, page):
    """(path, table) of each code table of `sources`, pairs of path and text, that the page's text does not name."""
    known = set(re.findall(r"`(k\w+)`", page))
    return [(path, name) for path, text in sources for name in _TABLE.findall(without_comments(text))
            if name not in known]


def main():
    root, sources = sources_of_command_line(__doc__)
    with open(os.path.join(root, PAGE), encoding="utf-8") as page:
        found = unnamed(sources, page.read())
    for path, name in found:
        print(f"codes: {name} of {path} is not named in {PAGE}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
