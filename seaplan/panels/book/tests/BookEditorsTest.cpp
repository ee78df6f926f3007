// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/tests/BookFixture.h"
#include "testsupport/ManualClock.h"

/// What opens over which cell of the book, and when it closes.
namespace Tarvik::Seaplan {

namespace {

using testing::ElementsAre;

class BookEditorsTest : public BookFixture {
  protected:
    /// Columns of a row over which an editor opens.
    std::vector<int> EditedColumns(int row) {
        std::vector<int> columns;
        for (int column = BookOrder; column <= BookEtd; ++column) {
            if (Opens(row, column)) {
                columns.push_back(column);
            }
        }
        return columns;
    }
};

TEST_F(BookEditorsTest, EachKindOfRowOffersItsOwnColumns) {
    OpenExpanded();
    EXPECT_THAT(EditedColumns(0), ElementsAre(BookEta, BookEtd)) << "no name, position, track or speed";
    EXPECT_THAT(EditedColumns(1), ElementsAre(BookTrack, BookInterval, BookSpeed)) << "a named point";
    EXPECT_THAT(EditedColumns(2),
                ElementsAre(BookName, BookLatitude, BookLongitude, BookTrack, BookInterval, BookSpeed));
    EXPECT_THAT(EditedColumns(3), ElementsAre(BookTrack, BookInterval, BookSpeed, BookEtd)) << "a port";
    EXPECT_THAT(EditedColumns(5), ElementsAre()) << "a blank line";
}

TEST_F(BookEditorsTest, EditorsOpenWithWhatStandsInTheCell) {
    OpenExpanded();
    Click(2, BookLatitude);
    EXPECT_EQ(bookView.textCell, (BookCellPlace{2, BookLatitude}));
    EXPECT_EQ(bookView.text, "1.0000");
    Click(2, BookTrack);
    EXPECT_FALSE(bookView.textCell.has_value());
    EXPECT_EQ(bookView.choices, Names({"GC", "RL"}));
    EXPECT_EQ(bookView.choice, 1);
    Click(2, BookInterval);
    EXPECT_EQ(bookView.choices, Names({"1", "2", "3", "4", "5"}));
    EXPECT_EQ(bookView.choice, 4);
    Click(3, BookEtd);
    EXPECT_FALSE(bookView.choiceCell.has_value());
    EXPECT_EQ(bookView.pickerCell, (BookCellPlace{3, BookEtd}));
    EXPECT_EQ(bookView.calendar.text, Cell(3, BookEtd));
}

TEST_F(BookEditorsTest, ASecondPressOnTheCellOfAnOpenListClosesIt) {
    OpenExpanded();
    Click(2, BookTrack);
    Click(2, BookTrack);
    EXPECT_FALSE(bookView.choiceCell.has_value());
    Click(2, BookTrack);
    EXPECT_TRUE(bookView.choiceCell.has_value());
    Click(2, BookInterval);
    EXPECT_EQ(bookView.choiceCell, (BookCellPlace{2, BookInterval}));
}

TEST_F(BookEditorsTest, ARowThatTheShipHasPassedIsLocked) {
    OpenExpanded();
    // Behind the plain waypoint and before Hamburg.
    const auto then = Util::DateTimeUtl::AddHour(Data().ports[1].rows[1].eta, 1);
    desk.clock.AdvanceSeconds(then.to_gmt_timer() - Util::_datetime_t::gmt_now().to_gmt_timer());
    book.Recompute();
    for (const int row : {0, 1, 2}) {
        EXPECT_TRUE(bookView.sheet.IsLocked(row)) << row;
        EXPECT_THAT(EditedColumns(row), ElementsAre()) << row;
        EXPECT_FALSE(bookView.sheet.CanInsert());
        EXPECT_FALSE(bookView.sheet.CanDelete());
    }
    EXPECT_THAT(EditedColumns(3), ElementsAre(BookTrack, BookInterval, BookSpeed, BookEtd));
    EXPECT_TRUE(bookView.sheet.CanInsert());
    EXPECT_FALSE(book.DeleteRow(2));
    EXPECT_FALSE(Changed());
}

TEST_F(BookEditorsTest, APressElsewhereTakesWhatIsTyped) {
    OpenExpanded();
    Click(2, BookName);
    book.Cells().OnTyped("Corner");
    Click(3, BookCourse);
    EXPECT_EQ(Cell(2, BookName), "Corner");
    EXPECT_EQ(bookView.sheet.selected, 3);
    Click(2, BookSpeed);
    book.Cells().OnTyped("12");
    book.Cells().OnTextFocusLost();
    EXPECT_EQ(Cell(2, BookSpeed), "12.00");
    EXPECT_FALSE(bookView.textCell.has_value());
}

TEST_F(BookEditorsTest, ThePressedRowIsTheSameOneWhenTypedTextBringsRowsAboveIt) {
    OpenExpanded();
    Choose(2, BookTrack, 0);
    Choose(3, BookTrack, 0);
    Click(2, BookLongitude);
    book.Cells().OnTyped("12");
    Click(3, BookSpeed);
    ASSERT_TRUE(bookView.textCell.has_value());
    EXPECT_EQ(Cell(bookView.textCell->row, BookName), "HAMBURG");
    EXPECT_EQ(bookView.sheet.selected, bookView.textCell->row);
}

TEST_F(BookEditorsTest, TabLeadsToTheNextTextOfTheRow) {
    OpenExpanded();
    Click(2, BookName);
    book.Cells().OnTyped("Corner");
    book.Cells().OnTextKey({Key::Tab});
    EXPECT_EQ(bookView.textCell, (BookCellPlace{2, BookLatitude}));
    book.Cells().OnTextKey({Key::Tab});
    EXPECT_EQ(bookView.textCell, (BookCellPlace{2, BookLongitude}));
    book.Cells().OnTextKey({Key::Tab});
    EXPECT_EQ(bookView.textCell, (BookCellPlace{2, BookSpeed}));
    book.Cells().OnTextKey({Key::Tab});
    EXPECT_FALSE(bookView.textCell.has_value());
    EXPECT_EQ(Cell(2, BookName), "Corner");
}

TEST_F(BookEditorsTest, EscapeClosesAnUntouchedEditorAndNeverLosesText) {
    OpenExpanded();
    Click(2, BookName);
    book.Cells().OnTextKey({Key::Escape});
    EXPECT_FALSE(bookView.textCell.has_value());
    Click(2, BookName);
    book.Cells().OnTyped("Corner");
    book.Cells().OnTextKey({Key::Escape});
    EXPECT_TRUE(bookView.textCell.has_value());
    Click(2, BookTrack);
    EXPECT_TRUE(book.Cells().OnChoiceKey({Key::Escape}, 0));
    EXPECT_FALSE(bookView.choiceCell.has_value());
    EXPECT_EQ(Cell(2, BookTrack), "RL");
    Click(2, BookTrack);
    EXPECT_FALSE(book.Cells().OnChoiceKey({Key::Up}, 1));
    EXPECT_TRUE(book.Cells().OnChoiceKey({Key::Enter}, 0));
    EXPECT_EQ(Cell(2, BookTrack), "GC");
}

TEST_F(BookEditorsTest, KeysOfTheTableOpenInsertDeleteAndExpand) {
    OpenExpanded();
    EXPECT_TRUE(book.Commands().OnTableKey({Key::F2}, 2, BookName));
    EXPECT_TRUE(bookView.textCell.has_value());
    EXPECT_TRUE(book.Commands().OnTableKey({Key::Escape}, 2, BookName));
    EXPECT_FALSE(bookView.textCell.has_value());
    EXPECT_TRUE(book.Commands().OnTableKey({Key::Insert}, 2, BookName));
    EXPECT_EQ(bookView.sheet.RowCount(), 6);
    EXPECT_EQ(Cell(2, BookName), "A new wp");
    book.Cells().OnRowSelected(2);
    EXPECT_TRUE(book.Commands().OnTableKey({Key::Delete}, 2, BookName));
    EXPECT_EQ(bookView.sheet.RowCount(), 5);
    EXPECT_TRUE(book.Commands().OnTableKey({Key::Space}, 1, BookName));
    EXPECT_EQ(bookView.sheet.RowCount(), 4);
    EXPECT_FALSE(book.Commands().OnTableKey({Key::Down}, 1, BookName));
}

TEST_F(BookEditorsTest, ASpacingOutOfTheListOpensWithoutAChoice) {
    OpenBook();
    book.Commands().OnClose();
    for (const int stored : {0, 9}) {
        PosBookData odd = Data();
        odd.ports[1].interval = stored;
        book.ShowBook(odd);
        Click(Hamburg, BookInterval);
        ASSERT_TRUE(bookView.choiceCell.has_value());
        EXPECT_EQ(bookView.choices.size(), 5U);
        EXPECT_TRUE(book.Cells().OnChoiceKey({Key::Enter}, -1));
        EXPECT_FALSE(Changed()) << "none was chosen";
        book.Cells().OnChosen(2);
        EXPECT_EQ(Data().ports[1].interval, 3);
    }
}

}  // namespace

}  // namespace Tarvik::Seaplan
