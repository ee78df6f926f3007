#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws ways of the sea network over the land, without a client.

    scripts/chart_routes.py                          docs/pictures/network.png and routes.png, of build/release
    scripts/chart_routes.py --sheet FILE.csv OUT     a picture for every twelve pairs of FILE (columns from, to), such as
                                                     scripts/chart_routes.csv: each way in a panel of its own, OUT-1.png and
                                                     so on, to be looked at by a person

    --build FOLDER    another build with its programs and share/seaplan
"""
import argparse
import csv
import json
import math
import os
import struct
import subprocess
import sys
import zlib

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
SEA, LAND, WAY, PORT = (214, 230, 240), (226, 218, 196), (120, 150, 175), (30, 30, 30)
COLOURS = [(200, 30, 30), (20, 110, 40), (30, 60, 190), (200, 110, 0), (130, 20, 140),
           (0, 130, 140), (150, 80, 30), (220, 40, 130), (90, 110, 0), (60, 60, 60)]
FAMOUS = [("NLRTM", "SGSIN"), ("CNSHA", "USLAX"), ("BRSSZ", "CNSHA"), ("USNYC", "GBSOU"), ("SARTA", "JPYOK"),
          ("AUPHE", "CNTAO"), ("USMSY", "JPYOK"), ("CLVAP", "NZAKL"), ("ZADUR", "AUFRE"), ("RUMMK", "USNYC")]
FONT = {"0": (7, 5, 5, 5, 7), "1": (2, 6, 2, 2, 7), "2": (7, 1, 7, 4, 7), "3": (7, 1, 7, 1, 7), "4": (5, 5, 7, 1, 1),
        "5": (7, 4, 7, 1, 7), "6": (7, 4, 7, 5, 7), "7": (7, 1, 2, 2, 2), "8": (7, 5, 7, 5, 7), "9": (7, 5, 7, 1, 7)}


class Picture:
    """A picture of part of the globe: longitudes from `west` on and latitudes from `north` down, so many pixels a degree."""

    def __init__(self, width, height, west, north, scale):
        self.width, self.height, self.west, self.north, self.scale = width, height, west, north, scale
        self.rows = [bytearray(SEA * width) for _ in range(height)]

    def place(self, x, y):
        return (x - self.west) * self.scale, (self.north - y) * self.scale

    def dot(self, column, row, colour):
        if 0 <= column < self.width and 0 <= row < self.height:
            self.rows[row][3 * column:3 * column + 3] = bytes(colour)

    def line(self, a, b, colour, wide=1):
        (x1, y1), (x2, y2) = self.place(*a), self.place(*b)
        if max(x1, x2) < 0 or min(x1, x2) > self.width or max(y1, y2) < 0 or min(y1, y2) > self.height:
            return
        steps = max(1, math.ceil(max(abs(x2 - x1), abs(y2 - y1))))
        for i in range(steps + 1):
            column, row = int(x1 + (x2 - x1) * i / steps), int(y1 + (y2 - y1) * i / steps)
            for dx in range(wide):
                for dy in range(wide):
                    self.dot(column + dx, row + dy, colour)

    def fill(self, ring, colour):
        """The inside of a ring, by the even-odd rule along each row."""
        points = [self.place(x, y) for x, y in ring]
        low = max(0, math.floor(min(y for _, y in points)))
        high = min(self.height - 1, math.ceil(max(y for _, y in points)))
        for row in range(low, high + 1):
            middle, cuts = row + 0.5, []
            for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
                if (y1 <= middle) != (y2 <= middle):
                    cuts.append(x1 + (middle - y1) / (y2 - y1) * (x2 - x1))
            cuts.sort()
            for left, right in zip(cuts[::2], cuts[1::2]):
                first, last = max(0, round(left)), min(self.width, round(right))
                if first < last:
                    self.rows[row][3 * first:3 * last] = bytes(colour) * (last - first)

    def number(self, text, at, colour):
        """A number in digits of 6 by 10 pixels on a light ground, its middle at a place."""
        column, row = (int(v) for v in self.place(*at))
        for k in range(-1, 8 * len(text)):
            for j in range(-2, 12):
                self.dot(column + k, row + j, (255, 255, 255))
        for k, digit in enumerate(text):
            for j, bits in enumerate(FONT[digit]):
                for i in range(3):
                    if bits >> (2 - i) & 1:
                        for d in range(4):
                            self.dot(column + 8 * k + 2 * i + d % 2, row + 2 * j + d // 2, colour)

    def paste(self, other, column, row):
        for j, line in enumerate(other.rows):
            self.rows[row + j][3 * column:3 * (column + other.width)] = line

    def png(self):
        def chunk(kind, data):
            return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
        body = zlib.compress(b"".join(b"\0" + bytes(row) for row in self.rows), 9)
        head = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", body) + chunk(b"IEND", b"")


def land_of(build, detail):
    """The rings of the land, whose longitudes run on where they pass 180."""
    name = f"{build}/host/data/sources/node_modules/world-atlas/land-{detail}.json"
    with open(name, encoding="utf-8") as file:
        topology = json.load(file)
    (sx, sy), (tx, ty) = topology["transform"]["scale"], topology["transform"]["translate"]
    arcs = []
    for arc in topology["arcs"]:
        x = y = 0
        points = []
        for dx, dy in arc:
            x, y = x + dx, y + dy
            points.append((x * sx + tx, y * sy + ty))
        arcs.append(points)
    rings = []
    for geometry in topology["objects"]["land"]["geometries"]:
        polygons = [geometry["arcs"]] if geometry["type"] == "Polygon" else geometry["arcs"]
        for polygon in polygons:
            for ring in polygon:
                points = [p for i in ring for p in (arcs[i] if i >= 0 else arcs[~i][::-1])]
                rings.append(run_on(points))
    return rings


def run_on(points):
    """Points whose neighbours lie no more than half a turn apart."""
    out = []
    for x, y in points:
        if out:
            x += 360 * round((out[-1][0] - x) / 360)
        out.append((x, y))
    return out


def ways_of(build):
    """The positions of the network's nodes, and its edges as pairs of their numbers."""
    with open(f"{build}/share/seaplan/network.bin", "rb") as file:
        data = file.read()
    at = 24
    (count,) = struct.unpack_from("<I", data, at)
    flat = struct.unpack_from(f"<{2 * count}i", data, at + 4)
    nodes = [(flat[i] / 1e5, flat[i + 1] / 1e5) for i in range(0, 2 * count, 2)]
    at += 4 + 8 * count
    (count,) = struct.unpack_from("<I", data, at)
    edges = [struct.unpack_from("<II", data, at + 4 + 15 * i) for i in range(count)]
    return nodes, edges


def route_of(build, start, end):
    """The way between two ports as points that run on past 180, and its nautical miles."""
    told = subprocess.run([f"{build}/bin/seaplan-server", "route", start, end, "--format", "geojson"],
                          check=True, capture_output=True, text=True, env={"PATH": os.environ["PATH"]})
    features = json.loads(told.stdout)["features"]
    points = [tuple(p) for feature in features for p in feature["geometry"]["coordinates"]]
    return run_on(points), sum(feature["properties"]["nm"] for feature in features)


def draw_land(picture, rings):
    for ring in rings:
        low, high = min(x for x, _ in ring), max(x for x, _ in ring)
        if high - low > 300:
            ring = ring + [(ring[-1][0], -90), (ring[0][0], -90)]
        for shift in (-360, 0, 360, 720):
            if high + shift > picture.west and low + shift < picture.west + picture.width / picture.scale:
                picture.fill([(x + shift, y) for x, y in ring], LAND)


def draw_way(picture, points, colour, wide=2):
    for shift in (-360, 0, 360):
        for a, b in zip(points, points[1:]):
            picture.line((a[0] + shift, a[1]), (b[0] + shift, b[1]), colour, wide)


def panel(build, rings, pair, size):
    """One way with some room round it."""
    points, nm = route_of(build, *pair)
    xs, ys = [x for x, _ in points], [y for _, y in points]
    wide, high = max(xs) - min(xs) + 4, max(ys) - min(ys) + 4
    scale = min(size[0] / wide, size[1] / high)
    west = (min(xs) + max(xs) - size[0] / scale) / 2
    north = (min(ys) + max(ys) + size[1] / scale) / 2
    picture = Picture(size[0], size[1], west, north, scale)
    draw_land(picture, rings)
    draw_way(picture, points, COLOURS[0], 1)
    return picture, nm


def sheets(build, pairs, out):
    columns, size, gap = 4, (470, 400), 4
    rings = land_of(build, "50m")
    for first in range(0, len(pairs), 12):
        some = pairs[first:first + 12]
        lines = math.ceil(len(some) / columns)
        sheet = Picture(columns * (size[0] + gap), lines * (size[1] + gap), 0, 0, 1)
        for i, pair in enumerate(some):
            picture, nm = panel(build, rings, pair, size)
            picture.number(str(first + i + 1), (picture.west, picture.north), PORT)
            sheet.paste(picture, i % columns * (size[0] + gap), i // columns * (size[1] + gap))
            print(f"{first + i + 1:3} {pair[0]} {pair[1]} {nm:.0f}")
        with open(f"{out}-{first // 12 + 1}.png", "wb") as file:
            file.write(sheet.png())


def pictures(build, folder):
    rings = land_of(build, "110m")
    network = Picture(1800, 900, -180, 90, 5)
    draw_land(network, rings)
    nodes, edges = ways_of(build)
    for a, b in edges:
        line = run_on([nodes[a], nodes[b]])
        draw_way(network, line, WAY, 1)
    routes = Picture(1800, 760, -110, 78, 5)
    draw_land(routes, rings)
    for i, pair in enumerate(FAMOUS):
        points, nm = route_of(build, *pair)
        draw_way(routes, points, COLOURS[i])
        middle = points[len(points) // 2]
        shift = 360 * math.floor((routes.west + 360 - middle[0]) / 360)
        routes.number(str(i + 1), (middle[0] + shift, middle[1]), COLOURS[i])
        print(f"{i + 1:3} {pair[0]} {pair[1]} {nm:.0f}")
    for name, picture in (("network", network), ("routes", routes)):
        with open(f"{folder}/{name}.png", "wb") as file:
            file.write(picture.png())


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", default=os.path.join(ROOT, "build/release"))
    parser.add_argument("--sheet", nargs=2, metavar=("FILE", "OUT"))
    asked = parser.parse_args()
    if asked.sheet:
        with open(asked.sheet[0], encoding="utf-8") as file:
            pairs = [(row["from"], row["to"]) for row in csv.DictReader(file)]
        sheets(asked.build, pairs, asked.sheet[1])
    else:
        pictures(asked.build, os.path.join(ROOT, "docs/pictures"))
    return 0


if __name__ == "__main__":
    sys.exit(main())
