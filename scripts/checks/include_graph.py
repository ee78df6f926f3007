# SPDX-License-Identifier: MIT
"""Who includes what, from the #include lines of the production sources."""
import os
import re
from collections import namedtuple

from checks.sources import production, read, tracked, without_comments

Graph = namedtuple("Graph", "sources includes qt_includes unresolved test_includes")
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^">]+)[">]', re.M)
# Where a quoted or <tarvik/...> include is looked for beside the including file's own folder.
_FOLDERS = ("", "tarvik/include", "tarvik/src")
_QT_HEADER = re.compile(r"(Qt\w+/)?Q[A-Za-z0-9]+$")


def resolve(source, header, known):
    """The path of the file that an include means, or None."""
    for folder in (os.path.dirname(source), *_FOLDERS):
        path = os.path.normpath(os.path.join(folder, header))
        if path in known:
            return path
    return None


def read_graph(root):
    """includes, qt_includes, unresolved and test_includes are sorted lists of (source, header). All sources are production;
    test_includes are those of the others, as far as they are files of the repository."""
    known, sources = set(tracked(root, "*.h", "*.cpp")), production(root)
    graph = Graph(sources, [], [], [], [])
    for source in sources:
        for bracket, header in INCLUDE.findall(without_comments(read(root, source))):
            if bracket == "<" and not header.startswith("tarvik/"):
                if _QT_HEADER.match(header):
                    graph.qt_includes.append((source, header))
                continue
            target = resolve(source, header, known)
            if target:
                graph.includes.append((source, target))
            else:
                graph.unresolved.append((source, header))
    for source in sorted(known.difference(sources)):
        for _, header in INCLUDE.findall(without_comments(read(root, source))):
            target = resolve(source, header, known)
            if target:
                graph.test_includes.append((source, target))
    return graph
