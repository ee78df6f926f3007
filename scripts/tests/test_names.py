# SPDX-License-Identifier: MIT
import sys
import unittest
from pathlib import Path

sys.path[:0] = [str(Path(__file__).resolve().parents[1]), str(Path(__file__).resolve().parent)]
from check_names import wrong_names  # noqa: E402
from made_tree import MadeTree  # noqa: E402

RIGHT = """namespace Sea {
constexpr int kMostRows = 3;
class Table : public QWidget {
  public:
    void AddRow(int rowNumber);
    auto begin() const { return rows_.begin(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    int rowCount(const QModelIndex& parent = {}) const override;

  private:
    static constexpr int kWidth = 4;
    std::vector<int> rows_;
};
struct Record { int speed; };
}
"""


class Names(unittest.TestCase):
    def wrong(self, files, wanted=None):
        tree = MadeTree({"a/Table.h": RIGHT, "a/Table.cpp": "void Sea::Table::paintEvent(QPaintEvent* event) {}\n", **files})
        self.addCleanup(tree.close)
        return [(path, text) for path, _, text in wrong_names(tree.root, wanted)]

    def test_right_spelling_and_overrides_and_records_are_fine(self):
        self.assertEqual(self.wrong({}), [])

    def test_each_kind_of_name(self):
        for right, wrong, text in (("void AddRow", "void addRow", "the function addRow is not UpperCamelCase"),
                                   ("class Table", "class table", "the class table is not UpperCamelCase"),
                                   ("int> rows_", "int> rows", "the private field rows is not lowerCamelCase_"),
                                   ("int kMostRows", "int mostRows", "the constant mostRows is not kUpperCamel"),
                                   ("int kWidth", "int width", "the constant width is not kUpperCamel")):
            self.assertIn(("a/Table.h", text), self.wrong({"a/Table.h": RIGHT.replace(right, wrong)}))

    def test_functions_of_a_source_alone_count(self):
        self.assertEqual(self.wrong({"a/B.cpp": "namespace {\n\nint rowOf(int x) { return x; }\n\n}\n"}),
                         [("a/B.cpp", "the function rowOf is not UpperCamelCase")])

    def test_only_the_wanted_files_are_told_and_sdk_and_tests_are_free(self):
        bad = {"a/B.cpp": "void bad() {}\n", "a/C.cpp": "void bad() {}\n", "tarvik/src/D.cpp": "void bad() {}\n",
               "a/tests/E.cpp": "void bad() {}\n"}
        self.assertEqual(self.wrong(bad, {"a/C.cpp"}), [("a/C.cpp", "the function bad is not UpperCamelCase")])
        self.assertEqual({path for path, _ in self.wrong(bad)}, {"a/B.cpp", "a/C.cpp"})


if __name__ == "__main__":
    unittest.main()
