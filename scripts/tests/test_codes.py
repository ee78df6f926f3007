# SPDX-License-Identifier: MIT
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))
from check_codes import unnamed  # noqa: E402

TABLE = "inline constexpr CodeTable kLoadCodes{\n    Code{Step::Id, -1},  // empty id\n};\n"


class Codes(unittest.TestCase):
    def test_a_named_table_is_fine(self):
        self.assertEqual(unnamed([("a.h", TABLE)], "| loader | `kLoadCodes` |"), [])

    def test_a_table_that_the_page_does_not_name_is_told(self):
        self.assertEqual(unnamed([("a.h", TABLE)], "| loader | `kSaveCodes`, kLoadCodes |"), [("a.h", "kLoadCodes")])

    def test_a_comment_is_no_table(self):
        self.assertEqual(unnamed([("a.h", "// constexpr CodeTable kOld{")], ""), [])


if __name__ == "__main__":
    unittest.main()
