// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/gui/Display.h"
#include "tests/gui/Picture.h"
#include "tests/gui/Sitting.h"

namespace Tarvik::Programs {

namespace {

class PositionBook : public testing::Test {
  protected:
    void SetUp() override { ASSERT_NE(display_.Name(), ""); }

    /// Waits until a query of the data base answers the number.
    void Await(const std::string& sql, long number) const {
        AwaitOrThrow([&] { return client_.Number(sql) == number; }, sql);
    }
    /// Opens the book of the port calls that take the keys.
    std::string OpenBook() const {
        person_.Press({"ctrl+b"});
        const std::string window = person_.AwaitWindow("Position book");
        person_.AwaitKeys(window);
        return window;
    }

    Display display_{""};
    Person person_{display_.Name()};
    ClientTree client_;
};

TEST_F(PositionBook, AWaypointIsInsertedSavedAndUndoneFromTheKeyboard) {
    Sitting sitting(client_, person_, display_.Name());
    sitting.MakeVoyage();
    sitting.OpenEmptyPortCalls();
    sitting.TypePorts({"Rotterdam", "Hamburg"});
    person_.Press({"F9", "ctrl+s"});
    Await("select count(*) from port_calls", 2);
    Await("select count(*) > 2 from book_rows", 1);
    const long rows = client_.Number("select count(*) from book_rows");
    OpenBook();
    person_.Press({"Down", "Insert", "ctrl+s"});
    Await("select count(*) from book_rows", rows + 1);
    person_.Press({"ctrl+z", "ctrl+s"});
    Await("select count(*) from book_rows", rows);
    person_.Press({"ctrl+w"});
    person_.AwaitGone("Position book");
    EXPECT_EQ(sitting.Leave().exitCode, 0);
}

}  // namespace
}  // namespace Tarvik::Programs
