# SPDX-License-Identifier: MIT
import sys
import unittest
from pathlib import Path

sys.path[:0] = [str(Path(__file__).resolve().parents[1]), str(Path(__file__).resolve().parent)]
import check_rooms  # noqa: E402
from checks import room_block, room_rules  # noqa: E402
from checks.cmake_targets import targets  # noqa: E402
from checks.include_graph import read_graph  # noqa: E402
from made_tree import MadeTree  # noqa: E402

# One legal tree: two rooms of the plug-in, the second one with windows, over the SDK.
LEGAL = {
    "tarvik/include/tarvik/Bus.h": "",
    "tarvik/src/Bus.cpp": '#include <tarvik/Bus.h>\n#include "Near.h"\n',
    "tarvik/src/Near.h": "",
    "tarvik/CMakeLists.txt": "add_library(tarvik SHARED src/Bus.cpp)\n",
    "seaplan/data/Row.h": "#include <tarvik/Bus.h>\n#include <vector>\n",
    "seaplan/data/Row.cpp": '#include "seaplan/data/Row.h"\n// #include "seaplan/views/Window.h"\n',
    "seaplan/data/CMakeLists.txt": "seaplan_library(seaplan_data SOURCES Row.cpp DEPS tarvik)\n",
    "seaplan/views/Window.h": '#include <QWidget>\n#include "seaplan/data/Row.h"\n',
    "seaplan/views/Window.cpp": '#include "seaplan/views/Window.h"\n',
    "seaplan/views/CMakeLists.txt": "seaplan_library(seaplan_views SOURCES Window.cpp DEPS seaplan_data Qt6::Widgets)\n",
    "seaplan/data/tests/RowTest.cpp": '#include "seaplan/views/Window.h"\n',
}
LIST = """```rooms
# A comment.
tarvik             = tarvik
seaplan/data       = seaplan_data  -> tarvik
seaplan/views [Qt] = seaplan_views
    -> seaplan/data
```
"""


class Rooms(unittest.TestCase):
    def breaches(self, files=None, block=LIST):
        """What is found in the legal tree with these files added or changed, and this list."""
        tree = MadeTree({**LEGAL, **(files or {})})
        self.addCleanup(tree.close)
        self.tree = tree
        return list(room_rules.breaches(read_graph(tree.root), room_block.parse(block), targets(tree.root)))

    def assert_one(self, found, *parts):
        self.assertEqual(len(found), 1, found)
        for part in parts:
            self.assertIn(part, found[0])

    def test_a_legal_tree_has_no_breach_and_tests_are_free(self):
        self.assertEqual(self.breaches(), [])

    def test_a_host_test_over_the_plug_in_stands_in_the_root_s_tests(self):
        include = '#include "seaplan/data/Row.h"\n'
        self.assertEqual(self.breaches({"tests/both/RowTest.cpp": include}), [])
        self.assert_one(self.breaches({"host/net/tests/RowTest.cpp": include}),
                        "host/net/tests/RowTest.cpp includes seaplan/data/Row.h", "tests/")

    def test_an_include_without_an_arrow(self):
        block = LIST.replace("-> tarvik\n", "\n")
        found = self.breaches(block=block)
        self.assertIn("seaplan/data -> tarvik is not drawn, but seaplan/data/Row.h includes "
                      "tarvik/include/tarvik/Bus.h", found)
        self.assertIn("seaplan/data/CMakeLists.txt: seaplan_data links tarvik of tarvik; that arrow is not drawn", found)

    def test_an_arrow_without_an_include(self):
        self.assert_one(self.breaches(block=LIST.replace("-> seaplan/data", "-> seaplan/data, tarvik")),
                        "seaplan/views -> tarvik is drawn, but nothing")

    def test_a_ring_of_rooms_tells_one_include_for_each_arrow(self):
        found = self.breaches({"seaplan/data/Row.h": '#include <tarvik/Bus.h>\n#include "seaplan/views/Window.h"\n'},
                              LIST.replace("-> tarvik\n", "-> tarvik, seaplan/views\n"))
        self.assertEqual(len(found), 2, found)
        self.assertIn("ring of rooms: seaplan/data -> seaplan/views -> seaplan/data", found[0])
        self.assertIn("seaplan/data/Row.h includes seaplan/views/Window.h", found[0])
        self.assertIn("ring in seaplan/", found[1])

    def test_a_ring_of_subfolders_in_one_room(self):
        self.assert_one(self.breaches({"seaplan/data/a/A.h": '#include "seaplan/data/b/B.h"\n',
                                       "seaplan/data/b/B.h": '#include "seaplan/data/a/A.h"\n'}),
                        "ring in seaplan/data/", "a -> b -> a")

    def test_a_ring_between_a_folder_and_its_subfolder(self):
        self.assert_one(self.breaches({"seaplan/data/Row.cpp": '#include "seaplan/data/a/A.h"\n',
                                       "seaplan/data/a/A.h": '#include "seaplan/data/Row.h"\n'}),
                        "ring in seaplan/data/", ". -> a -> .")

    def test_a_ring_of_folders_that_is_none_of_files_or_rooms(self):
        self.assert_one(self.breaches({"seaplan/data/a/x/A.h": '#include "seaplan/data/b/x/B.h"\n',
                                       "seaplan/data/b/x/B.h": "",
                                       "seaplan/data/b/y/C.h": '#include "seaplan/data/a/y/D.h"\n',
                                       "seaplan/data/a/y/D.h": ""}), "ring in seaplan/data/", "a -> b -> a")

    def test_a_folder_in_no_room_and_a_room_without_a_source(self):
        self.assert_one(self.breaches({"seaplan/chart/Line.h": ""}), "seaplan/chart belongs to no room")
        self.assert_one(self.breaches(block=LIST.replace("# A comment.", "seaplan/chart")), "has no source")

    def test_the_most_specific_room_has_a_file(self):
        rooms = room_block.parse("```rooms\na/b\na\n```")
        self.assertEqual(room_rules.room_of("a/b/c/D.h", rooms), "a/b")
        self.assertEqual(room_rules.room_of("a/bc/D.h", rooms), "a")
        self.assertIsNone(room_rules.room_of("b/D.h", rooms))

    def test_the_host_includes_neither_the_plug_in_nor_a_siblings_header(self):
        found = self.breaches({"host/client/Main.cpp": '#include "seaplan/data/Row.h"\n'},
                              LIST.replace("# A comment.", "host/client -> seaplan/data"))
        self.assert_one(found, "host/client/Main.cpp includes seaplan/data/Row.h: the host knows")
        found = self.breaches({"host/client/Main.cpp": '#include "host/plugins/sea/Map.h"\n',
                               "host/plugins/sea/Map.cpp": '#include "host/plugins/sea/Map.h"\n',
                               "host/plugins/sea/Map.h": ""},
                              LIST.replace("# A comment.", "host/client -> host/plugins/sea\nhost/plugins/sea"))
        self.assert_one(found, "host/client/Main.cpp includes", "private to host/plugins/sea")

    def test_qt_only_where_it_is_marked(self):
        self.assert_one(self.breaches(block=LIST.replace(" [Qt]", "")), "includes <QWidget>", "not marked [Qt]")

    def test_an_include_of_no_file(self):
        self.assert_one(self.breaches({"seaplan/data/Row.cpp": '#include "seaplan/data/Gone.h"\n'}), "Gone.h")

    def test_targets_exist_and_link_and_compile_as_drawn(self):
        self.assert_one(self.breaches(block=LIST.replace("= seaplan_data ", "= seaplan_data, seaplan_dat ")),
                        "no CMakeLists.txt makes a target seaplan_dat")
        self.assert_one(self.breaches({"seaplan/views/CMakeLists.txt":
                                       "seaplan_library(seaplan_views SOURCES Window.cpp PRIVATE_DEPS tarvik)\n"}),
                        "seaplan_views links tarvik of tarvik; that arrow is not drawn")
        self.assert_one(self.breaches({"seaplan/data/CMakeLists.txt":
                                       "seaplan_library(seaplan_data SOURCES Row.cpp ../views/Window.cpp)\n"}),
                        "seaplan_data compiles seaplan/views/Window.cpp of seaplan/views")

    def test_a_list_that_cannot_be_meant_is_refused_with_its_line(self):
        for block, part in (("no block", "no block"), ("```rooms\na\n", "no block"), ("```rooms\na\na\n```", "line 3"),
                            ("```rooms\na -> b\n```", "ends in no room"), ("```rooms\na -> a\n```", "to itself"),
                            ("```rooms\na -> (everything)\n```", "ends in no room"), ("```rooms\na b\n```", "line 2")):
            with self.assertRaisesRegex(room_block.BlockError, part, msg=block):
                room_block.parse(block)

    def test_what_is_written_reads_as_it_was(self):
        rooms = room_block.parse(LIST)
        again = room_block.parse(room_block.write(list(rooms.values())))
        self.assertEqual([room._replace(line=0) for room in again.values()],
                         [room._replace(line=0) for room in rooms.values()])

    def test_a_drawing_without_a_list_holds_but_for_the_rings(self):
        self.breaches()
        graph, made = read_graph(self.tree.root), targets(self.tree.root)
        text = room_block.write(check_rooms.drawn(graph, check_rooms.guessed_rooms(graph, made), keep_marks=False))
        self.assertEqual(list(room_rules.breaches(graph, room_block.parse(text), made)), [])


if __name__ == "__main__":
    unittest.main()
