#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tells names that are not spelled as docs/style.md says: functions, types, private fields, constants.

    scripts/check_names.py [FILE...]   all production sources, or only these; exit 0 none, 1 some

Free are the SDK, whose names are its contract, overrides of another library's functions, main, and what the
standard library calls of a range (begin, end, size, data, empty).
"""
import os
import re
import sys

from checks.class_sizes import tags
from checks.sources import is_production, production, read, without_comments

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
FREE_FUNCTIONS = {"main", "begin", "end", "size", "data", "empty"}
UPPER_CAMEL = re.compile(r"[A-Z][A-Za-z0-9]*$")
LOWER_CAMEL_ = re.compile(r"[a-z][A-Za-z0-9]*_$")
CONSTANT = re.compile(r"\bconstexpr\s+(?:[\w:<>,*&]+\s+)+?(\w+)\s*(?:\[\w*\])?\s*[={]")


def in_namespace_of_file(text, path):
    """(line, constant) for each constexpr variable outside functions: those that begin a line with little indent."""
    for number, line in enumerate(without_comments(text).split("\n"), 1):
        if re.match(r"( {2,4})?(static |inline )*constexpr ", line) and (found := CONSTANT.search(line)):
            yield number, found[1]


def overridden(records, texts):
    """(class, name) of the functions that a class declares with `override`."""
    found = set()
    for record in records:
        if record["kind"] in ("function", "prototype") and record["path"].endswith(".h"):
            statement = " ".join(texts[record["path"]].split("\n")[record["line"] - 1:record["line"] + 2])
            if re.search(r"\b(override|final)\b", re.split(r";|(?<!=\s){", statement)[0]):
                found.add((record.get("scope", ""), record["name"]))
    return found


def wrong_functions(records, texts):
    ours = overridden(records, texts)
    for record in records:
        name, scope = record["name"], record.get("scope", "")
        if record["kind"] not in ("function", "prototype") or name.startswith(("~", "operator", "__anon")):
            continue
        if not UPPER_CAMEL.match(name) and name not in FREE_FUNCTIONS and (scope, name) not in ours:
            yield record["path"], record["line"], f"the function {name} is not UpperCamelCase"


def wrong_types_and_fields(records):
    for record in records:
        name, kind = record["name"], record["kind"]
        if kind in ("class", "struct", "enum") and not name.startswith("__anon") and not UPPER_CAMEL.match(name):
            yield record["path"], record["line"], f"the {kind} {name} is not UpperCamelCase"
        if kind == "member" and record.get("access") == "private" and not LOWER_CAMEL_.match(name) and \
                not re.match(r"k[A-Z]", name):
            yield record["path"], record["line"], f"the private field {name} is not lowerCamelCase_"


def wrong_constants(texts):
    for path, text in texts.items():
        for line, name in in_namespace_of_file(text, path):
            if not re.match(r"k[A-Z][A-Za-z0-9]*$", name) and "::" not in name:
                yield path, line, f"the constant {name} is not kUpperCamel"


def wrong_names(root, wanted=None):
    """Sorted (path, line, text) for the wanted paths, or for all; headers are read for what they override."""
    paths = [path for path in production(root) if not path.startswith("tarvik/")]
    texts = {path: read(root, path) for path in paths}
    records = tags(root, paths)
    found = {*wrong_functions(records, texts), *wrong_types_and_fields(records), *wrong_constants(texts)}
    return sorted(wrong for wrong in found if wanted is None or wrong[0] in wanted)


def main(arguments):
    found = wrong_names(ROOT, set(filter(is_production, arguments)) if arguments else None)
    for path, line, text in found:
        print(f"names: {path}:{line}: {text}", file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
