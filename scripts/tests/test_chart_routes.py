# SPDX-License-Identifier: MIT
"""The pictures of ways: what is drawn where, and the numbers of the network's file."""
import os
import struct
import sys
import tempfile
import unittest
import zlib

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import chart_routes  # noqa: E402


def pixel(picture, column, row):
    return tuple(picture.rows[row][3 * column:3 * column + 3])


class ChartRoutes(unittest.TestCase):
    def test_land_is_filled_and_its_lake_is_not(self):
        picture = chart_routes.Picture(40, 40, 0, 20, 2)
        picture.fill([(2, 2), (18, 2), (18, 18), (2, 18)], chart_routes.LAND)
        self.assertEqual(pixel(picture, 20, 20), chart_routes.LAND)
        self.assertEqual(pixel(picture, 2, 2), chart_routes.SEA)
        self.assertEqual(pixel(picture, 38, 20), chart_routes.SEA)

    def test_a_way_over_the_date_line_runs_on(self):
        points = chart_routes.run_on([(170, 0), (180, 1), (-180, 1), (-170, 2)])
        self.assertEqual([x for x, _ in points], [170, 180, 180, 190])

    def test_a_way_is_drawn_in_each_turn_that_the_picture_shows(self):
        picture = chart_routes.Picture(720, 10, -180, 5, 1)
        chart_routes.draw_way(picture, [(-100, 0), (-90, 0)], (1, 2, 3), 1)
        for column in (80, 90, 440, 450):
            self.assertEqual(pixel(picture, column, 5), (1, 2, 3))
        self.assertEqual(pixel(picture, 100, 5), chart_routes.SEA)

    def test_a_picture_is_a_png_of_its_size_and_rows(self):
        data = chart_routes.Picture(7, 3, 0, 0, 1).png()
        self.assertEqual(data[:8], b"\x89PNG\r\n\x1a\n")
        self.assertEqual(struct.unpack(">II", data[16:24]), (7, 3))
        start = data.index(b"IDAT") + 4
        length = struct.unpack(">I", data[start - 8:start - 4])[0]
        self.assertEqual(zlib.decompress(data[start:start + length]), (b"\0" + bytes(chart_routes.SEA) * 7) * 3)

    def test_nodes_and_edges_are_read_from_the_networks_file(self):
        nodes = struct.pack("<I4i", 2, 1250000, -350000, -18000000, 4500000)
        edges = struct.pack("<IIIfHB", 1, 0, 1, 12.5, 0, 0)
        with tempfile.TemporaryDirectory() as folder:
            os.makedirs(folder + "/share/seaplan")
            with open(folder + "/share/seaplan/network.bin", "wb") as file:
                file.write(b"x" * 24 + nodes + edges)
            self.assertEqual(chart_routes.ways_of(folder), ([(12.5, -3.5), (-180.0, 45.0)], [(0, 1)]))


if __name__ == "__main__":
    unittest.main()
