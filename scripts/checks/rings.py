# SPDX-License-Identifier: MIT
"""Rings in a graph of includes: among rooms, and among the parts of each folder."""


def ring_through(arrows):
    """The nodes of some shortest ring of `arrows` (node: set of nodes), or [] when there is none. O(nodes * arrows)."""
    best = []
    for start in sorted(arrows):
        came_from = {start: None}
        queue = [start]
        while queue:
            node = queue.pop(0)
            if start in arrows.get(node, ()):
                path = []
                while node is not None:
                    path.append(node)
                    node = came_from[node]
                if not best or len(path) < len(best):
                    best = path[::-1]
                break
            for following in sorted(arrows.get(node, ())):
                if following not in came_from:
                    came_from[following] = node
                    queue.append(following)
    return best


def rings(arrows):
    """Rings until none is left, each with one arrow fewer: every ring shares an arrow with one that is told."""
    left = {node: set(targets) - {node} for node, targets in arrows.items()}
    found = []
    while ring := ring_through(left):
        found.append(ring)
        left[ring[-1]].discard(ring[0])
    return found


def part_of(path, folder):
    """The part of `folder` that a path lies in: a subfolder, "." for the folder's own files; None outside."""
    inside = path if not folder else path[len(folder) + 1:] if path.startswith(folder + "/") else None
    if inside is None:
        return None
    return inside.split("/")[0] if "/" in inside else "."


def folders_of(paths):
    """Every folder above the paths, the root ("") first."""
    found = {""}
    for path in paths:
        parts = path.split("/")[:-1]
        found.update("/".join(parts[:depth + 1]) for depth in range(len(parts)))
    return sorted(found)


def folder_rings(includes):
    """Yields (folder, ring of its parts, arrows between its parts with one include each) for each ring.

    `includes` is pairs of paths. A ring of any folders shows at the lowest folder that holds them all.
    """
    for folder in folders_of([path for pair in includes for path in pair]):
        arrows, samples = {}, {}
        for source, header in includes:
            parts = part_of(source, folder), part_of(header, folder)
            if None not in parts and parts[0] != parts[1]:
                arrows.setdefault(parts[0], set()).add(parts[1])
                samples.setdefault(parts, (source, header))
        for ring in rings(arrows):
            yield folder, ring, samples
