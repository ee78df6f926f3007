#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds the bus to its contract, the headers of tarvik/include/tarvik/bus.

    scripts/check_bus.py       says every breach, a line each; exit 0 none, 1 some

Breaches: the text of a bus name ("TRV_S_...", "TRV_E_...", "TRV_MAP_...") in another production source; a constant of the
contract without a docstring; two constants of one name; a service that answers something and whose docstring does not tell
whose the answer is; an include of the SDK's private headers (tarvik/src) from outside tarvik.
"""
import re
import sys

from checks.sources import sources_of_command_line, without_comments

CONTRACT = "tarvik/include/tarvik/bus/"
PRIVATE = "tarvik/src/"
_NAME = re.compile(r'"(TRV_(?:S|E|MAP)_\w*)"')
_PRIVATE = re.compile(r'#include\s+["<](' + re.escape(PRIVATE) + r'[^">]+)[">]')
_CONSTANT = re.compile(r'(?P<above>(?:^[ \t]*///[^<\n].*\n)*)^inline constexpr (?P<type>[^;{]*?)\s*(?P<name>\w+)\{\s*"(?P<text>TRV_\w+)"\s*\};'
                       r'(?P<behind>[ \t]*///<.*(?:\n[ \t]+///<.*)*)?', re.M)
# Words by which a docstring tells how long an answer lives, or that the caller frees it.
_OWNER = re.compile(r"\b(valid|frees|stays|stay|owns)\b", re.I)


def constants(text):
    """(name of the constant, type, text of the bus name, docstring) of each constant of a contract header."""
    return [(found["name"], " ".join(found["type"].split()), found["text"],
             (found["above"] or "") + (found["behind"] or "")) for found in _CONSTANT.finditer(text)]


def contract_breaches(headers):
    """`headers` are pairs of path and text."""
    seen = {}
    for path, text in headers:
        known = constants(text)
        for name in _NAME.findall(without_comments(text)):
            if name not in [bus_name for _, _, bus_name, _ in known] and not name.endswith("_"):
                yield f"{path}: {name} is not the name of a constant that this check can read"
        for name, kind, bus_name, docs in known:
            if bus_name in seen:
                yield f"{path}: {name} and {seen[bus_name]} are both {bus_name}"
            seen[bus_name] = name
            if not docs:
                yield f"{path}: {name} has no docstring"
            elif kind.startswith("Service<") and not kind.endswith("None>") and not _OWNER.search(docs):
                yield f"{path}: {name} answers {kind}, and its docstring does not tell whose the answer is"


def use_breaches(sources):
    """`sources` are pairs of path and text, without the contract's headers."""
    for path, text in sources:
        code = without_comments(text)
        for name in _NAME.findall(code):
            yield f'{path}: "{name}" is written out; take its constant from {CONTRACT}'
        for header in _PRIVATE.findall(code):
            if not path.startswith("tarvik/"):
                yield f"{path} includes {header}, which only the SDK and tests may see"


def main():
    _, sources = sources_of_command_line(__doc__)
    contract = [source for source in sources if source[0].startswith(CONTRACT)]
    others = [source for source in sources if not source[0].startswith(CONTRACT)]
    found = list(contract_breaches(contract)) + list(use_breaches(others))
    for line in found:
        print(f"bus: {line}", file=sys.stderr)
    if not found:
        print(f"bus: {sum(len(constants(text)) for _, text in contract)} names, all documented, none written out elsewhere")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
