// SPDX-License-Identifier: MIT
/// A text typed on a cell of the position book begins to edit it.
#include "seaplan/panels/book/tests/BookFixture.h"

namespace Tarvik::Seaplan {

namespace {

class BookTypedTest : public BookFixture {
  protected:
    bool TypeOn(int row, int column, const std::string& text) {
        return book.Cells().OnTextTyped(text, row, column);
    }
};

TEST_F(BookTypedTest, ItTakesThePlaceOfWhatStandsThere) {
    OpenExpanded();
    ASSERT_TRUE(TypeOn(2, BookLatitude, "1"));
    EXPECT_EQ(bookView.textCell, (BookCellPlace{2, BookLatitude}));
    EXPECT_EQ(bookView.text, "1");
    EXPECT_FALSE(bookView.echo.empty()) << "what is understood is told from the first character on";
    book.Cells().OnTyped("1.5");
    book.Cells().OnTextKey({Key::Enter});
    EXPECT_EQ(Cell(2, BookLatitude), "1.5000");
    book.Commands().OnUndo();
    EXPECT_EQ(Cell(2, BookLatitude), "1.0000");
}

TEST_F(BookTypedTest, ALetterOrDigitGoesToItsChoice) {
    OpenExpanded();
    ASSERT_TRUE(TypeOn(2, BookTrack, "g"));
    EXPECT_EQ(bookView.choice, 0);
    ASSERT_TRUE(TypeOn(2, BookInterval, "3"));
    EXPECT_EQ(bookView.choice, 2);
    ASSERT_TRUE(TypeOn(2, BookInterval, "9"));
    EXPECT_EQ(bookView.choice, 4) << "no such spacing, and that of the row stays in front";
}

TEST_F(BookTypedTest, ATimeOpensItsCalendar) {
    OpenExpanded();
    EXPECT_TRUE(TypeOn(3, BookEtd, "1"));
    EXPECT_EQ(bookView.pickerCell, (BookCellPlace{3, BookEtd}));
}

TEST_F(BookTypedTest, ABlankAndALockedCellOpenNothing) {
    OpenExpanded();
    EXPECT_FALSE(TypeOn(2, BookName, " "));
    EXPECT_FALSE(TypeOn(0, BookName, "X"));
    EXPECT_FALSE(TypeOn(2, BookCourse, "1"));
    EXPECT_FALSE(bookView.textCell.has_value());
    EXPECT_FALSE(Changed());
}

}  // namespace

}  // namespace Tarvik::Seaplan
