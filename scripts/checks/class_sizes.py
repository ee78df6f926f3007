# SPDX-License-Identifier: MIT
"""Functions and classes of the sources, as universal-ctags sees them."""
import json
import subprocess
from collections import namedtuple

# operations: without constructors, destructor and operators; sources: the .cpp files that define some of them.
Class = namedtuple("Class", "name path line is_class operations fields sources")
Function = namedtuple("Function", "name path line lines")


def tags(root, paths):
    """ctags' records of the files; OSError when it is not installed."""
    command = ["ctags", "--output-format=json", "--fields=+neKSsa", "--kinds-C++=+fpmcs", "--languages=C++",
               "--langmap=C++:+.h", "-L", "-", "-f", "-"]
    listed = subprocess.run(command, cwd=root, input="\n".join(paths), capture_output=True, text=True, check=True)
    records = [json.loads(line) for line in listed.stdout.splitlines()]
    return [record for record in records if record.get("_type") == "tag" and record["path"] in paths]


def functions(records):
    """Every function with a body."""
    for record in records:
        if record["kind"] == "function" and "end" in record:
            scope = record.get("scope", "")
            name = (scope + "::" if scope and not scope.startswith("__anon") else "") + record["name"]
            yield Function(name, record["path"], record["line"], record["end"] - record["line"] + 1)


def _is_operation(record):
    name = record["name"]
    return not (name.startswith(("~", "operator")) or name == record["scope"].split("::")[-1])


def classes(records):
    """Every class and struct; those of one name in different anonymous namespaces are told apart by their files."""
    made, operations, fields, sources = {}, {}, {}, {}
    for record in records:
        if record["kind"] in ("class", "struct") and "end" in record:
            name = (record["scope"] + "::" if "scope" in record else "") + record["name"]
            made[name] = record
    for record in records:
        scope = record.get("scope")
        if scope not in made or record.get("scopeKind") not in ("class", "struct"):
            continue
        if record["kind"] == "member":
            fields.setdefault(scope, set()).add(record["name"])
        elif record["kind"] in ("function", "prototype"):
            if _is_operation(record):
                operations.setdefault(scope, set()).add((record["name"], record.get("signature", "")))
            if record["kind"] == "function" and record["path"].endswith(".cpp"):
                sources.setdefault(scope, set()).add(record["path"])
    for name, record in made.items():
        yield Class(name, record["path"], record["line"], record["kind"] == "class", _distinct(operations.get(name, ())),
                    len(fields.get(name, ())), sorted(sources.get(name, ())))


def _distinct(operations):
    """How many operations these (name, signature) are; a declaration and its definition are one."""
    return len({(name, *_shape(signature)) for name, signature in operations})


def _shape(signature):
    """What a declaration and its definition share however they write their types: the number of parameters and const."""
    inside = signature[signature.find("(") + 1:signature.rfind(")")]
    depth, commas = 0, 0
    for letter in inside:
        depth += (letter in "<([{") - (letter in ">)]}")
        commas += letter == "," and depth == 0
    return commas + 1 if inside.strip() else 0, "const" in signature[signature.rfind(")"):]
