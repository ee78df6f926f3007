#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Finds facts with two homes: named constants of one name and value, and watched literals, in more than one source.

    scripts/check_constants.py       says each with its places; exit 0 none, 1 some, 2 scripts/constants.txt is wrong

scripts/constants.txt holds the watched literals and what may stand twice, each with a reason. Only production sources count.
"""
import sys

from checks.constants import named_constants, number, watched_literals
from checks.sources import read, sources_of_command_line

RULES = "scripts/constants.txt"


def read_rules(text):
    """(watched literals, {what is allowed twice: its line}); ValueError for a line that says neither."""
    watched, allowed = [], {}
    for count, line in enumerate(text.split("\n"), 1):
        word, _, rest = line.strip().partition(" ")
        what, separator, reason = (part.strip() for part in rest.partition(" -- "))
        if not word or word.startswith("#"):
            continue
        if word == "watch" and (number(rest) is not None or (rest.startswith('"') and rest.endswith('"'))):
            watched.append(rest)
        elif word == "allow" and what and separator and reason:
            allowed[what] = count
        else:
            raise ValueError(f"line {count}: neither `watch LITERAL` nor `allow WHAT -- REASON`: {line}")
    return watched, allowed


def in_two_files(places):
    """{what: places} of what stands in more than one file."""
    found = {}
    for place in places:
        found.setdefault(place.what, []).append(place)
    return {what: at for what, at in found.items() if len({place.path for place in at}) > 1}


def breaches(sources, watched, allowed):
    """A line for each fact with two homes; `sources` are pairs of path and text."""
    places = []
    for path, text in sources:
        places += named_constants(path, text) + watched_literals(path, text, watched)
    twice = in_two_files(places)
    for what, at in sorted(twice.items()):
        if what not in allowed:
            yield f"{what} stands in {', '.join(f'{place.path}:{place.line}' for place in at)}: one fact, one home"
    for what, line in allowed.items():
        if what not in twice:
            yield f"{RULES}:{line}: {what} does not stand in two sources any more; take the line out"


def main():
    root, sources = sources_of_command_line(__doc__)
    try:
        watched, allowed = read_rules(read(root, RULES))
    except ValueError as error:
        print(f"constants: {RULES}: {error}", file=sys.stderr)
        return 2
    found = list(breaches(sources, watched, allowed))
    for line in found:
        print(f"constants: {line}", file=sys.stderr)
    if not found:
        print(f"constants: {len(sources)} sources, {len(watched)} watched literals, no fact has two homes")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
