# SPDX-License-Identifier: MIT
"""What each CMake target of the project compiles and links, as its CMakeLists.txt says.

Reads the project's own functions (seaplan_library, seaplan_plugin, seaplan_program, seaplan_test) and add_library,
add_executable and target_link_libraries. Conditions count as true; a source behind a variable is left out, but ${PROJECT_SOURCE_DIR}.
"""
import os
import re
from collections import namedtuple

from checks.sources import read, tracked

Target = namedtuple("Target", "name file sources links")
_COMMAND = re.compile(r"^[ \t]*(\w+)[ \t]*\(((?:[^()\"]|\"[^\"]*\"|\([^()]*\))*)\)", re.M)
_MAKERS = {"seaplan_library", "seaplan_plugin", "seaplan_program", "seaplan_test", "add_library", "add_executable"}
_KINDS = {"STATIC", "SHARED", "MODULE", "OBJECT", "INTERFACE", "EXCLUDE_FROM_ALL", "SOURCES"}


def _source(word, folder):
    if word.startswith("${PROJECT_SOURCE_DIR}/"):
        return word[len("${PROJECT_SOURCE_DIR}/"):]
    if "$" in word or not word.endswith((".cpp", ".h")):
        return None
    return os.path.normpath(os.path.join(folder, word))


def _make(words, path):
    target, links = Target(words[0], path, [], []), False
    for word in words[1:]:
        if word in ("DEPS", "PRIVATE_DEPS"):
            links = True
        elif word in _KINDS:
            links = False
        elif links:
            target.links.append(word)
        elif source := _source(word, os.path.dirname(path)):
            target.sources.append(source)
    return target


def targets(root):
    """{name: Target} of every CMakeLists.txt."""
    found = {}
    for path in tracked(root, "CMakeLists.txt", "*/CMakeLists.txt"):
        text = re.sub(r"#[^\n]*", "", read(root, path))
        for command, inside in _COMMAND.findall(text):
            words = inside.split()
            if command in _MAKERS and words and "$" not in words[0]:
                made = _make(words, path)
                known = found.setdefault(made.name, made)
                if known is not made:
                    known.sources.extend(made.sources)
            elif command == "target_link_libraries" and words and words[0] in found:
                found[words[0]].links.extend(word for word in words[1:] if word not in ("PUBLIC", "PRIVATE", "INTERFACE"))
    return found
