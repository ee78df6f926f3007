# SPDX-License-Identifier: MIT
"""The rules between rooms. Each yields one line for each breach."""
from checks.rings import folder_rings, rings


def room_of(path, rooms):
    """The room of the most specific folder that holds the path, or None."""
    folder = path
    while "/" in folder:
        folder = folder.rsplit("/", 1)[0]
        if folder in rooms:
            return folder
    return None


def true_arrows(graph, rooms):
    """{(room, room): (source, header)}: every arrow that an include needs, with the first such include."""
    found = {}
    for source, header in graph.includes:
        ends = room_of(source, rooms), room_of(header, rooms)
        if None not in ends and ends[0] != ends[1]:
            found.setdefault(ends, (source, header))
    return found


def homeless(graph, rooms):
    for folder in sorted({path.rsplit("/", 1)[0] for path in graph.sources if room_of(path, rooms) is None}):
        yield f"{folder} belongs to no room: name it, or a folder above it, in the list"
    for room in rooms:
        if not any(room_of(path, rooms) == room for path in graph.sources):
            yield f"{room} is listed as a room and has no source"


def unknown_includes(graph):
    for source, header in graph.unresolved:
        yield f'{source} includes "{header}", which is no file of the repository'


def arrows_and_includes(graph, rooms):
    needed = true_arrows(graph, rooms)
    drawn = {(room.folder, arrow) for room in rooms.values() for arrow in room.arrows}
    for (source_room, room), (source, header) in sorted(needed.items()):
        if (source_room, room) not in drawn:
            yield f"{source_room} -> {room} is not drawn, but {source} includes {header}"
    for source_room, room in sorted(drawn - set(needed)):
        yield f"{source_room} -> {room} is drawn, but nothing in {source_room} includes a header of {room}"


def _told(ring, samples):
    """A ring's lines: its nodes, then one include for each of its arrows."""
    arrows = list(zip(ring, ring[1:] + ring[:1]))
    lines = ["{} includes {}".format(*samples[arrow]) for arrow in arrows]
    return " -> ".join(ring + ring[:1]) + "".join("\n        " + line for line in lines)


def room_rings(graph, rooms):
    samples = true_arrows(graph, rooms)
    arrows = {}
    for source_room, room in samples:
        arrows.setdefault(source_room, set()).add(room)
    for ring in rings(arrows):
        yield "ring of rooms: " + _told(ring, samples)


def rings_in_folders(graph):
    for folder, ring, samples in folder_rings(graph.includes):
        yield f"ring in {folder or 'the root'}/ (. is the folder itself): " + _told(ring, samples)


def _plugin(path):
    """host/plugins/X for a file of that plug-in, else None."""
    parts = path.split("/")
    return "/".join(parts[:3]) if path.startswith("host/plugins/") and len(parts) > 3 else None


def host_borders(graph):
    for source, header in graph.includes:
        if not source.startswith("host/"):
            continue
        if header.startswith("seaplan/"):
            yield f"{source} includes {header}: the host knows the plug-in only over the bus of tarvik/"
        if _plugin(header) and _plugin(source) != _plugin(header):
            yield f"{source} includes {header}, which is private to {_plugin(header)}"


def host_tests(graph):
    """A host test over the plug-in belongs into the root's tests/, where both may be."""
    for source, header in graph.test_includes:
        if source.startswith("host/") and header.startswith("seaplan/"):
            yield f"{source} includes {header}: a test of host and plug-in together stands in tests/"


def qt_borders(graph, rooms):
    """The other way round, a mark that no include needs is not held against a room: Qt may come by its target."""
    for source, header in graph.qt_includes:
        room = room_of(source, rooms)
        if room and not rooms[room].qt:
            yield f"{source} includes <{header}>, and {room} is not marked [Qt]"


def targets_and_arrows(rooms, targets):
    """A room's targets exist, compile sources of its rooms only, and link targets of rooms only that it may include."""
    homes = {}
    for room in rooms.values():
        for name in room.targets:
            homes.setdefault(name, set()).add(room.folder)
            if name not in targets:
                yield f"{room.folder} = {name}: no CMakeLists.txt makes a target {name}"
    for name, home in sorted(homes.items()):
        if name not in targets:
            continue
        target = targets[name]
        for source in target.sources:
            room = room_of(source, rooms)
            if room and room not in home:
                yield f"{target.file}: {name} compiles {source} of {room}, where it is not listed"
        allowed = home.union(*(rooms[room].arrows for room in home))
        for link in dict.fromkeys(target.links):
            if link in targets and link in homes and not homes[link] & allowed:
                yield f"{target.file}: {name} links {link} of {', '.join(sorted(homes[link]))}; that arrow is not drawn"
            elif link in targets and link not in homes:
                yield f"{target.file}: {name} links {link}, which is listed for no room"


def breaches(graph, rooms, targets):
    yield from homeless(graph, rooms)
    yield from unknown_includes(graph)
    yield from arrows_and_includes(graph, rooms)
    yield from room_rings(graph, rooms)
    yield from rings_in_folders(graph)
    yield from host_borders(graph)
    yield from host_tests(graph)
    yield from qt_borders(graph, rooms)
    yield from targets_and_arrows(rooms, targets)
