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


if __name__ == "__main__":
    unittest.main()
