# SPDX-License-Identifier: MIT
"""The C++ sources of the repository, and their texts without what is not code."""
import argparse
import os
import re
import subprocess

# Folders whose sources serve tests, measuring and trying out, wherever they stand in a path.
NOT_PRODUCTION = {"tests", "testsupport", "bench", "fuzz", "preview", "cmake"}


def tracked(root, *patterns):
    """The files that git knows under `root` and that still exist, as paths from there."""
    listed = subprocess.run(["git", "ls-files", "-z", *patterns], cwd=root, capture_output=True, text=True, check=True)
    return [path for path in listed.stdout.split("\0") if path and os.path.exists(os.path.join(root, path))]


def is_production(path):
    return NOT_PRODUCTION.isdisjoint(path.split("/")[:-1])


def production(root):
    return [path for path in tracked(root, "*.cpp", "*.h") if is_production(path)]


def read(root, path):
    with open(os.path.join(root, path), encoding="utf-8", errors="replace") as file:
        return file.read()


def sources_of_command_line(description):
    """(root, pairs of path and text of the production sources) of a check that takes --root and nothing else."""
    parser = argparse.ArgumentParser(description=description, formatter_class=argparse.RawDescriptionHelpFormatter)
    here = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
    parser.add_argument("--root", default=here, help="another checkout")
    root = parser.parse_args().root
    return root, [(path, read(root, path)) for path in production(root)]


_TOKEN = re.compile(r'R"(?P<mark>[^()\\\s]{0,16})\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'|'
                    r"//(?:\\\n|[^\n])*|/\*.*?\*/|\w[\w.']*", re.S)


def without_comments(text):
    """The text with every comment blanked, line by line as it was; what only looks like one inside a text stays."""
    def blanked(match):
        found = match.group(0)
        return re.sub(r"[^\n]", " ", found) if found.startswith(("//", "/*")) else found
    return _TOKEN.sub(blanked, text)
