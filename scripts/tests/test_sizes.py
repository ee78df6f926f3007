# SPDX-License-Identifier: MIT
import sys
import unittest
from pathlib import Path

sys.path[:0] = [str(Path(__file__).resolve().parents[1]), str(Path(__file__).resolve().parent)]
import sizes  # noqa: E402
from checks.class_sizes import classes, functions, tags  # noqa: E402
from made_tree import MadeTree  # noqa: E402

HEADER = """namespace Sea {
class Table {
  public:
    Table();
    ~Table();
    bool operator==(const Table& other) const;
    void Add(int row, std::map<int, int> cells = {});
    int Size() const { return size_; }
    void Add(int row);

  private:
    int size_ = 0;
    int most_ = 0;
};
struct Record { int a, b, c; };
}
"""
SOURCE = """#include "Table.h"
namespace Sea {
Table::Table() {}
void Table::Add(int line, std::map<int, int> texts) {
    size_ = line;
}
namespace {
void Help() {
%s}
}
}
"""


class Sizes(unittest.TestCase):
    def setUp(self):
        self.tree = MadeTree({"a/Table.h": HEADER, "a/Table.cpp": SOURCE % ("    Do();\n" * 60),
                              "a/More.cpp": "namespace Sea { void Table::Add(int row) { size_ = row; } }\n"})
        self.addCleanup(self.tree.close)
        self.records = tags(self.tree.root, ["a/Table.h", "a/Table.cpp", "a/More.cpp"])

    def made(self, name):
        return next(one for one in classes(self.records) if one.name == name)

    def test_operations_fields_and_sources_of_a_class(self):
        table = self.made("Sea::Table")
        self.assertEqual((table.operations, table.fields, table.sources), (3, 2, ["a/More.cpp", "a/Table.cpp"]))
        self.assertEqual((self.made("Sea::Record").operations, self.made("Sea::Record").fields), (0, 3))

    def test_a_long_function_is_told_with_its_place(self):
        (breach,) = sizes.function_breaches(functions(self.records))
        self.assertEqual(breach[0], "function")
        self.assertIn("a/Table.cpp:8: ", breach[2])
        self.assertIn("62 lines", breach[2])

    def test_the_limits_of_a_class(self):
        table = self.made("Sea::Table")
        self.assertEqual(list(sizes.class_breaches([table, table._replace(operations=25, fields=10)])), [])
        for change, part in (({"operations": 26}, "26 operations"), ({"fields": 11}, "11 fields"),
                             ({"sources": ["a", "b", "c"]}, "3 sources")):
            (breach,) = sizes.class_breaches([table._replace(**change)])
            self.assertIn(part, breach[2])

    def test_a_record_may_have_many_fields(self):
        record = self.made("Sea::Record")._replace(fields=30)
        self.assertEqual(list(sizes.class_breaches([record])), [])
        self.assertEqual(len(list(sizes.class_breaches([record._replace(operations=1)]))), 1)

    def test_a_file_of_400_lines_is_the_longest(self):
        self.assertEqual([breach[1] for breach in sizes.file_breaches({"a.cpp": 400, "b.cpp": 401})], ["b.cpp"])

    def test_what_is_allowed_needs_a_reason_and_goes_when_it_is_not_needed(self):
        allowed = sizes.read_allowed("# note\nfile b.cpp -- a table\n")
        breaches = list(sizes.file_breaches({"b.cpp": 401}))
        self.assertEqual(list(sizes.not_allowed(breaches, allowed)), [])
        self.assertIn("take the line out", next(sizes.not_allowed([], allowed)))
        for wrong in ("file b.cpp", "file b.cpp -- ", "files b.cpp -- a table"):
            with self.assertRaisesRegex(ValueError, "line 1", msg=wrong):
                sizes.read_allowed(wrong)


if __name__ == "__main__":
    unittest.main()
