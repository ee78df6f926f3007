# SPDX-License-Identifier: MIT
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))
import test_named  # noqa: E402


def case(text, path="a/tests/ATest.cpp", program="a_test", kind="TEST_F"):
    suite, name = text.split(".")
    return test_named.Case(program, path, suite, name, test_named.gtest_pattern(kind, suite, name))


CASES = [
    case("ScheduleTest.AddsUp", "calculation/tests/ScheduleTest.cpp"),
    case("BuildScheduleTest.Starts", "calculation/tests/BuildScheduleTest.cpp"),
    case("JsonaTest.ReadsText", "tarvik/tests/JsonaReadTest.cpp", "tarvik_test"),
    case("JsonaTest.Parses", "tarvik/tests/JsonaParseTest.cpp", "tarvik_test", "TEST_P"),
]


def names(pattern):
    return [f"{found.suite}.{found.name}" for found in test_named.matching(pattern, CASES)]


class NamedTests(unittest.TestCase):
    def test_a_whole_suite_keeps_out_others_that_hold_its_name(self):
        self.assertEqual(names("scheduletest"), ["ScheduleTest.AddsUp"])

    def test_a_part_of_suite_and_case_is_found_in_any_case(self):
        self.assertEqual(names("jsonatest.reads"), ["JsonaTest.ReadsText"])
        self.assertEqual(names("SCHEDULE"), ["ScheduleTest.AddsUp", "BuildScheduleTest.Starts"])

    def test_a_source_file_or_program_means_all_its_cases(self):
        self.assertEqual(names("JsonaReadTest"), ["JsonaTest.ReadsText"])
        self.assertEqual(names("calculation/tests/ScheduleTest.cpp"), ["ScheduleTest.AddsUp"])
        self.assertEqual(names("ScheduleTest.cpp"), ["ScheduleTest.AddsUp"])
        self.assertEqual(names("tarvik_test"), ["JsonaTest.ReadsText", "JsonaTest.Parses"])

    def test_a_star_stands_for_anything(self):
        self.assertEqual(names("Build*Starts"), ["BuildScheduleTest.Starts"])

    def test_a_name_as_printed_with_its_parameter_is_known(self):
        self.assertEqual(names("Texts/JsonaTest.Parses/3"), ["JsonaTest.Parses"])

    def test_patterns_fit_what_googletest_makes_of_the_names(self):
        self.assertEqual(test_named.gtest_pattern("TEST", "A", "B"), "A.B")
        self.assertEqual(test_named.gtest_pattern("TEST_P", "A", "B"), "*A.B/*")
        self.assertEqual(test_named.gtest_pattern("TYPED_TEST", "A", "B"), "*A/*.B")

    def test_the_macro_is_found_over_two_lines_and_not_in_the_middle_of_one(self):
        text = "TEST_F(A,\n       B) {\n// as TEST(C, D) does\nTEST(\n    E, F) {"
        self.assertEqual(test_named.CASE.findall(text), [("TEST_F", "A", "B"), ("TEST", "E", "F")])

    def test_an_unknown_name_gets_near_ones(self):
        self.assertEqual(names("Scedule"), [])
        self.assertIn("ScheduleTest", test_named.near_names("SceduleTest", CASES))


if __name__ == "__main__":
    unittest.main()
