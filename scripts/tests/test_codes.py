# SPDX-License-Identifier: MIT
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))
from check_codes import bare_breaches, bare_numbers, read_borders, unnamed  # noqa: E402

TABLE = "inline constexpr CodeTable kLoadCodes{\n    Code{Step::Id, -1},  // empty id\n};\n"


class Codes(unittest.TestCase):
    def test_a_named_table_is_fine(self):
        self.assertEqual(unnamed([("a.h", TABLE)], "| loader | `kLoadCodes` |"), [])

    def test_a_table_that_the_page_does_not_name_is_told(self):
        self.assertEqual(unnamed([("a.h", TABLE)], "| loader | `kSaveCodes`, kLoadCodes |"), [("a.h", "kLoadCodes")])

    def test_a_comment_is_no_table(self):
        self.assertEqual(unnamed([("a.h", "// constexpr CodeTable kOld{")], ""), [])


INNER = "namespace {\n\nint Find() {\n    return -1;\n}\n\n}  // namespace\n"
OUTER = "int Load() {\n    return ready ? 0 : -2;\n}\n"


class BareNumbers(unittest.TestCase):
    def test_numbers_are_found_with_their_place(self):
        self.assertEqual(bare_numbers(INNER + OUTER), [(4, True), (9, False)])

    def test_sums_texts_tables_and_comments_are_no_numbers(self):
        for text in ("return at - 1;", "return at -1;", 'return "-1";', "Code{Step::Id, -1}", "// return -1;", "return f(-1);"):
            self.assertEqual(bare_numbers(text), [], text)

    def test_a_source_without_a_line_returns_none(self):
        self.assertEqual(len(list(bare_breaches([("seaplan/a.cpp", OUTER)], {}))), 1)
        self.assertEqual(list(bare_breaches([("host/a.cpp", OUTER)], {})), [])

    def test_a_border_returns_as_many_as_it_says_and_hides_none(self):
        self.assertEqual(list(bare_breaches([("seaplan/a.cpp", OUTER)], {"seaplan/a.cpp": 1})), [])
        self.assertEqual(len(list(bare_breaches([("seaplan/a.cpp", OUTER + OUTER)], {"seaplan/a.cpp": 1}))), 1)
        self.assertEqual(len(list(bare_breaches([("seaplan/a.cpp", INNER + OUTER)], {"seaplan/a.cpp": 2}))), 1)

    def test_a_line_without_its_source_is_told(self):
        self.assertEqual(len(list(bare_breaches([], {"seaplan/a.cpp": 1}))), 1)

    def test_a_line_says_path_and_count_once(self):
        self.assertEqual(read_borders("# why\na.cpp 2\n"), {"a.cpp": 2})
        for text in ("a.cpp", "a.cpp two", "a.cpp 1\na.cpp 1"):
            with self.assertRaises(ValueError):
                read_borders(text)


if __name__ == "__main__":
    unittest.main()
