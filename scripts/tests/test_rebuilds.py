# SPDX-License-Identifier: MIT
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))
import rebuilds  # noqa: E402

TEXTS = {
    "tarvik/include/tarvik/A.h": "",
    "host/B.h": "#include <tarvik/A.h>\n",
    "host/b.cpp": '#include "host/B.h"\n',
    "host/tests/BTest.cpp": '#include "host/B.h"\n#include <vector>\n',
    "host/c.cpp": '#include <tarvik/A.h>\n// #include "host/B.h"\n',
    "bench/a_bench.cpp": "#include <tarvik/A.h>\n",
}


class Rebuilds(unittest.TestCase):
    def test_sources_behind_other_headers_and_tests_count_benchmarks_do_not(self):
        included_by = rebuilds.includers(TEXTS)
        self.assertEqual(rebuilds.rebuilt("tarvik/include/tarvik/A.h", included_by),
                         {"host/b.cpp", "host/c.cpp", "host/tests/BTest.cpp"})
        self.assertEqual(rebuilds.rebuilt("host/B.h", included_by), {"host/b.cpp", "host/tests/BTest.cpp"})

    def test_a_ring_of_headers_ends(self):
        self.assertEqual(rebuilds.rebuilt("x.h", {"x.h": {"y.h"}, "y.h": {"x.h", "z.cpp"}}), {"z.cpp"})

    def test_a_header_over_a_tenth_of_the_sources_needs_a_line_with_a_reason(self):
        counted = {"wide.h": 11, "fair.h": 10}
        self.assertEqual(list(rebuilds.breaches(counted, 100, [])), ["wide.h: 11 of 100 sources, limit 10"])
        self.assertEqual(list(rebuilds.breaches(counted, 100, ["wide.h"])), [])
        with self.assertRaises(ValueError):
            rebuilds.read_allowed("wide.h\n")

    def test_a_line_that_nothing_needs_is_told(self):
        told = list(rebuilds.breaches({"was_wide.h": 3, "nearly.h": 9}, 100, ["was_wide.h", "nearly.h", "gone.h"]))
        self.assertEqual([text.split()[1] for text in told], ["was_wide.h", "gone.h"])


if __name__ == "__main__":
    unittest.main()
