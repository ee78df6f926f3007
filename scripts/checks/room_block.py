# SPDX-License-Identifier: MIT
"""The list of rooms in docs/architecture.md: reads it and writes it.

    ```rooms
    # folder [Qt]      = CMake targets     -> rooms whose headers it may include
    tarvik/include     = tarvik
    seaplan/data       = seaplan_data      -> tarvik/include
    seaplan/views [Qt] = seaplan_views     -> seaplan/data,
                                              tarvik/include
    ```

A room is a folder with all that is below it but the rooms nested there. [Qt], targets and arrows may be missing.
"""
import re
from collections import namedtuple

Room = namedtuple("Room", "folder qt targets arrows line")
_LINE = re.compile(r"(?P<folder>[\w./-]+)\s*(?P<qt>\[Qt\])?\s*(?:=\s*(?P<targets>[^>]*?))?\s*(?:->\s*(?P<arrows>.*))?$")
WIDTH = 120


class BlockError(Exception):
    """What is wrong with the list, and where."""


def _items(text):
    return [item.strip() for item in (text or "").split(",") if item.strip()]


def _statements(text):
    """(number, statement) for each room of the block; a line that begins with a blank goes on with the one before."""
    inside, found = False, []
    for number, line in enumerate(text.split("\n"), 1):
        if not inside:
            inside = line.strip() == "```rooms"
        elif line.startswith("```"):
            return found
        elif line.strip() and not line.lstrip().startswith("#"):
            if line[0].isspace() and found:
                found[-1] = (found[-1][0], found[-1][1] + " " + line.strip())
            else:
                found.append((number, line.strip()))
    raise BlockError("there is no block ```rooms that ends")


def parse(text):
    """{folder: Room} of the block in the text of a document; BlockError for what cannot be meant."""
    rooms = {}
    for number, statement in _statements(text):
        match = _LINE.match(statement)
        if not match:
            raise BlockError(f"line {number}: not `folder [Qt] = target, target -> room, room`: {statement}")
        folder = match["folder"].rstrip("/")
        if folder in rooms:
            raise BlockError(f"line {number}: the room {folder} stands twice")
        rooms[folder] = Room(folder, bool(match["qt"]), _items(match["targets"]), _items(match["arrows"]), number)
    for room in rooms.values():
        for arrow in room.arrows:
            if arrow not in rooms:
                raise BlockError(f"line {room.line}: the arrow {room.folder} -> {arrow} ends in no room")
            if arrow == room.folder:
                raise BlockError(f"line {room.line}: the room {room.folder} has an arrow to itself")
    return rooms


def write(rooms):
    """The block's text for rooms, in the order given."""
    names = [room.folder + (" [Qt]" if room.qt else "") for room in rooms]
    targets = ["= " + ", ".join(room.targets) if room.targets else "" for room in rooms]
    first = max(map(len, names), default=0)
    second = max((len(text) for text in targets if len(text) < 40), default=0)
    lines = ["```rooms"]
    for room, name, target in zip(rooms, names, targets):
        line = f"{name:{first}} {target:{second}}"
        if room.arrows:
            line += " ->"
            for index, arrow in enumerate(room.arrows):
                piece = f" {arrow}" + ("," if index + 1 < len(room.arrows) else "")
                if len(line) + len(piece) > WIDTH:
                    lines.append(line)
                    line = " " * (first + second + 4)
                line += piece
        lines.append(line.rstrip())
    return "\n".join(lines + ["```"])
