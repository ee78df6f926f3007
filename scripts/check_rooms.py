#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds the code to the list of rooms in docs/architecture.md.

    scripts/check_rooms.py           says every breach, a line each; exit 0 none, 1 some, 2 the list cannot be read
    scripts/check_rooms.py --draw    prints the list with the arrows and marks that are true now, ready to be pasted;
                                     without a list its rooms are the folders of the CMake targets

Breaches: an include without an arrow, an arrow without an include, a ring of rooms or of the parts of any folder, a source
in no room, a host/ include of seaplan/ or of another plug-in's own header, a Qt include in a room without [Qt], a room's
CMake target that links what the arrows do not allow. Tests, benchmarks, fuzz targets and previews are free, but those
below host/ do not include seaplan/ either.
"""
import argparse
import os
import sys

from checks.cmake_targets import targets as read_targets
from checks.include_graph import read_graph
from checks.room_block import BlockError, Room, parse, write
from checks.room_rules import breaches, room_of, true_arrows
from checks.sources import is_production, read

LIST = "docs/architecture.md"


def folder_of(target, alone):
    """The folder of a target that is made alone in its CMakeLists.txt, else the one that holds all its sources."""
    home = os.path.dirname(target.file)
    common = os.path.commonpath([os.path.dirname(path) for path in target.sources])
    return common if not alone and common.startswith(home) else home


def guessed_rooms(graph, targets):
    """A room for the folder of each production target, and one for each folder that these leave out."""
    made = [target for target in targets.values() if target.sources and all(map(is_production, target.sources))]
    found = {}
    for target in made:
        alone = sum(other.file == target.file for other in made) == 1
        found.setdefault(folder_of(target, alone), []).append(target.name)
    for path in graph.sources:
        if room_of(path, found) is None:
            found.setdefault(os.path.dirname(path), [])
    return {folder: Room(folder, False, sorted(names), [], 0) for folder, names in sorted(found.items())}


def drawn(graph, rooms, keep_marks):
    """The rooms with the arrows that includes need. Marks and targets stay where the list was written by a person."""
    arrows = true_arrows(graph, rooms)
    with_qt = {room_of(source, rooms) for source, _ in graph.qt_includes}
    return [room._replace(qt=room.qt if keep_marks else room.folder in with_qt,
                          arrows=sorted(end for start, end in arrows if start == room.folder))
            for room in rooms.values()]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--draw", action="store_true", help="print the list as it is true now")
    parser.add_argument("--root", default=os.path.dirname(os.path.dirname(os.path.abspath(__file__))),
                        help="another checkout")
    options = parser.parse_args()
    graph, targets = read_graph(options.root), read_targets(options.root)
    try:
        rooms = parse(read(options.root, LIST))
    except (BlockError, OSError) as error:
        if not options.draw:
            print(f"rooms: {LIST}: {error}", file=sys.stderr)
            return 2
        print(write(drawn(graph, guessed_rooms(graph, targets), keep_marks=False)))
        return 0
    if options.draw:
        print(write(drawn(graph, rooms, keep_marks=True)))
        return 0
    found = list(breaches(graph, rooms, targets))
    for line in found:
        print(f"rooms: {line}", file=sys.stderr)
    if not found:
        print(f"rooms: {len(rooms)} rooms, {sum(len(room.arrows) for room in rooms.values())} arrows, "
              f"{len(graph.includes)} includes, no breach")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
