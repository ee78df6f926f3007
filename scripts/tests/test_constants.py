# SPDX-License-Identifier: MIT
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))
import check_constants  # noqa: E402


def found(*texts, watched=(), allowed=None):
    """What the check says of these texts, taken as sources a.cpp, b.cpp and so on."""
    sources = [(f"{chr(ord('a') + index)}.cpp", text) for index, text in enumerate(texts)]
    return list(check_constants.breaches(sources, list(watched), allowed or {}))


class Constants(unittest.TestCase):
    def test_one_name_and_value_in_two_files(self):
        self.assertEqual(found("constexpr int kRows = 3;", "\ninline constexpr std::size_t kRows{3};"),
                         ["kRows = 3 stands in a.cpp:1, b.cpp:2: one fact, one home"])
        self.assertEqual(len(found("constexpr double kMile = 1852;", "constexpr float kMile = 1'852.0F;")), 1)
        self.assertEqual(len(found('constexpr const char* kZone = "A";', 'constexpr char kZone[] = "A";')), 1)
        self.assertEqual(len(found("constexpr std::array<int, 2> kPair = {1,\n 2};", "constexpr std::array<int, 2> kPair{1, 2};")), 1)

    def test_other_names_other_values_and_one_file_are_fine(self):
        self.assertEqual(found("constexpr int kRows = 3;", "constexpr int kRows = 4;", "constexpr int kLines = 3;"), [])
        self.assertEqual(found("constexpr int kRows = 3;\nconstexpr int kRows = 3;"), [])

    def test_watched_literals_count_without_a_name(self):
        self.assertEqual(found("x = y * 1.852;", "return 1.8520F;", watched=["1.852"]),
                         ["1.852 stands in a.cpp:1, b.cpp:1: one fact, one home"])
        self.assertEqual(len(found('f("A zone");', 'g(std::string("A zone"));', watched=['"A zone"'])), 1)

    def test_comments_texts_and_parts_of_words_are_no_numbers(self):
        self.assertEqual(found("x = 1033;", '// 1033\n/* 1033 */ f("1033"); g(x1033, 0x1033, 1033.5, 10331);',
                               watched=["1033"]), [])
        self.assertEqual(found('f("A zone");', 'g("A zone and more");  // "A zone"', watched=['"A zone"']), [])

    def test_what_is_allowed_is_fine_until_it_stands_in_one_place_only(self):
        twice = ("constexpr int kRows = 3;", "constexpr int kRows = 3;")
        self.assertEqual(found(*twice, allowed={"kRows = 3": 7}), [])
        self.assertIn("take the line out", found(twice[0], allowed={"kRows = 3": 7})[0])

    def test_rules_are_read_and_wrong_ones_refused_with_their_line(self):
        text = '# note\n\nwatch 1.852\nwatch "A zone"\nallow kRows = 3 -- two programs\n'
        self.assertEqual(check_constants.read_rules(text), (["1.852", '"A zone"'], {"kRows = 3": 5}))
        for wrong in ("watch zone", "allow kRows = 3", "allow kRows = 3 -- ", "forbid 3"):
            with self.assertRaisesRegex(ValueError, "line 1", msg=wrong):
                check_constants.read_rules(wrong)


if __name__ == "__main__":
    unittest.main()
