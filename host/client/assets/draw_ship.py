#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws ship.png, the ship's icon on the chart: a hull seen from above, bow up, 32 by 32 pixels."""
import struct
import sys
import zlib

SIZE, SUB = 32, 8
HULL = [(16, 2), (19, 6), (21.500, 11), (22, 15), (22, 27), (20, 30), (12, 30), (10, 27), (10, 15), (10.500, 11), (13, 6)]
BRIDGE = [(12.500, 22), (19.500, 22), (19.500, 26), (12.500, 26)]
BORDER, BODY, HOUSE = (16, 42, 67), (227, 96, 44), (255, 255, 255)


def inside(polygon, x, y, scale=1.0):
    hit = False
    for (x1, y1), (x2, y2) in zip(polygon, polygon[1:] + polygon[:1]):
        x1, x2 = 16 + (x1 - 16) * scale, 16 + (x2 - 16) * scale
        y1, y2 = 16 + (y1 - 16) * scale, 16 + (y2 - 16) * scale
        if (y1 > y) != (y2 > y) and x < (x2 - x1) * (y - y1) / (y2 - y1) + x1:
            hit = not hit
    return hit


def pixel(px, py):
    total, count = [0, 0, 0], 0
    for i in range(SUB * SUB):
        x, y = px + (i % SUB + 0.5) / SUB, py + (i // SUB + 0.5) / SUB
        if not inside(HULL, x, y):
            continue
        color = BORDER if not inside(HULL, x, y, 0.88) else HOUSE if inside(BRIDGE, x, y) else BODY
        total = [a + b for a, b in zip(total, color)]
        count += 1
    return bytes([v // max(count, 1) for v in total] + [255 * count // (SUB * SUB)])


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


rows = b"".join(b"\0" + b"".join(pixel(x, y) for x in range(SIZE)) for y in range(SIZE))
with open(sys.argv[1], "wb") as out:
    out.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", SIZE, SIZE, 8, 6, 0, 0, 0)) +
              chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))
