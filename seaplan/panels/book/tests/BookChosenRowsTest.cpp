// SPDX-License-Identifier: MIT
/// Several rows of the book chosen at once: deleting them, filling down, and one value in all of them.
#include "seaplan/panels/book/tests/BookFixture.h"
#include "seaplan/panels/texts/EditTexts.h"

namespace Tarvik::Seaplan {

namespace {

using testing::ElementsAre;

constexpr KeyPress kDelete{Key::Delete};
constexpr KeyPress kFillDown{Key::D, false, true};
constexpr KeyPress kInAll{Key::Enter, false, true};

class BookChosenRowsTest : public BookFixture {
  protected:
    /// Rows of the book with two more waypoints behind "Plain".
    enum Row : int { First = 2, Second = 3, Third = 4, Port = 5, Last = 6 };

    void OpenWithWaypoints() {
        OpenExpanded();
        for (int i = 0; i < 2; ++i) {
            book.Cells().OnRowSelected(bookView.sheet.RowOf({1}));
            book.Commands().OnInsert();
        }
        ASSERT_EQ(Column(BookName),
                  Names({"ROTTERDAM", "Mid Cape", "Plain", "A new wp", "A new wp", "HAMBURG", "GDANSK"}));
        book.Commands().OnSave();
        ASSERT_FALSE(Changed());
    }
    /// Chooses rows of which the last one is in front.
    void ChooseRows(std::vector<int> rows) {
        book.Cells().OnRowSelected(rows.back());
        bookView.chosen = std::move(rows);
    }
    void Press(KeyPress press, int column) {
        EXPECT_TRUE(book.Commands().OnTableKey(press, bookView.sheet.selected, column));
    }
};

TEST_F(BookChosenRowsTest, DeleteTakesAllChosenWaypointsAsOneEdit) {
    OpenWithWaypoints();
    const auto before = Column(BookLongitude);
    ChooseRows({First, Second, Third});
    Press(kDelete, BookName);
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "HAMBURG", "GDANSK"}));
    EXPECT_EQ(bookView.sheet.selected, First);
    EXPECT_EQ(statusWord, "");
    PosBookData again = Data();
    EXPECT_DOUBLE_EQ(RecomputeBook(again, book.Sheet().units, Util::_datetime_t::gmt_now()).totalDistance,
                     book.Sheet().totals.totalDistance);
    book.Commands().OnUndo();
    EXPECT_EQ(Column(BookLongitude), before);
    EXPECT_FALSE(Changed());
}

TEST_F(BookChosenRowsTest, PortsAndNamedPointsAmongThemStayAndAreTold) {
    texts.given[u"IDS_VIEW_WAYPOINTSKEPT"] = u"kept %1";
    OpenWithWaypoints();
    ChooseRows({MidCape, First, Third, Port});
    Press(kDelete, BookName);
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "A new wp", "HAMBURG", "GDANSK"}));
    EXPECT_EQ(statusWord, "kept 2, 6");
}

TEST_F(BookChosenRowsTest, WhereNoneCanBeDeletedNothingIsMarked) {
    OpenWithWaypoints();
    ChooseRows({Rotterdam, Last});
    Press(kDelete, BookName);
    EXPECT_EQ(bookView.sheet.RowCount(), 7);
    EXPECT_FALSE(Changed());
    EXPECT_EQ(statusWord, "IDS_VIEW_WAYPOINTSKEPT");
}

TEST_F(BookChosenRowsTest, ASpeedTypedWithCtrlEnterStandsInAllChosenRowsAsOneEdit) {
    texts.given[u"IDS_VIEW_ROWSREFUSED"] = u"left %1";
    OpenWithWaypoints();
    const auto before = Column(BookEta);
    ChooseRows({Rotterdam, First, Third});
    Click(Third, BookSpeed);
    bookView.chosen = {Rotterdam, First, Third};
    book.Cells().OnTyped("14");
    EXPECT_TRUE(book.Cells().OnTextKey(kInAll));
    EXPECT_FALSE(bookView.textCell.has_value());
    EXPECT_EQ(Cell(First, BookSpeed), "14.00");
    EXPECT_EQ(Cell(Second, BookSpeed), "10.00");
    EXPECT_EQ(Cell(Third, BookSpeed), "14.00");
    EXPECT_EQ(statusWord, "left 1") << "nothing is sailed to the first port";
    EXPECT_NE(Column(BookEta), before);
    book.Commands().OnUndo();
    EXPECT_EQ(Column(BookEta), before);
    EXPECT_FALSE(Changed());
}

TEST_F(BookChosenRowsTest, ATextThatNoRowTakesIsRefusedInABoxAndChangesNone) {
    OpenWithWaypoints();
    Click(Third, BookSpeed);
    bookView.chosen = {First, Third};
    book.Cells().OnTyped("120");
    EXPECT_TRUE(book.Cells().OnTextKey(kInAll));
    EXPECT_EQ(LastMessage(), "IDS_WP_SPD_ERR");
    EXPECT_EQ(Cell(First, BookSpeed), "10.00");
    EXPECT_FALSE(Changed());
    EXPECT_FALSE(bookView.textCell.has_value());
}

TEST_F(BookChosenRowsTest, TheWayOfSailingIsFilledDownAndAllCutsAreOneEdit) {
    OpenWithWaypoints();
    const auto before = Column(BookTrack);
    const int rows = bookView.sheet.RowCount();
    Choose(First, BookTrack, 0);
    book.Commands().OnSave();
    ChooseRows({First, Second, Third, Port, Last});
    Press(kFillDown, BookTrack);
    for (int row = First; row < bookView.sheet.RowCount(); ++row) {
        EXPECT_EQ(Cell(row, BookTrack), "GC") << row;
    }
    EXPECT_TRUE(Changed());
    book.Commands().OnUndo();
    EXPECT_FALSE(Changed());
    book.Commands().OnUndo();
    EXPECT_EQ(Column(BookTrack), before);
    EXPECT_EQ(bookView.sheet.RowCount(), rows);
}

TEST_F(BookChosenRowsTest, OneRowIsFilledFromTheRowAboveIt) {
    OpenWithWaypoints();
    Type(First, BookSpeed, "12");
    ChooseRows({Second});
    Press(kFillDown, BookSpeed);
    EXPECT_EQ(Cell(Second, BookSpeed), "12.00");
    EXPECT_EQ(Cell(Third, BookSpeed), "10.00");
}

TEST_F(BookChosenRowsTest, CtrlEnterOverTheTablePutsTheCellInFrontIntoTheOthers) {
    OpenWithWaypoints();
    Type(Third, BookSpeed, "12");
    ChooseRows({First, Second, Third});
    Press(kInAll, BookSpeed);
    EXPECT_EQ(Cell(First, BookSpeed), "12.00");
    EXPECT_EQ(Cell(Second, BookSpeed), "12.00");
    EXPECT_FALSE(bookView.textCell.has_value());
}

TEST_F(BookChosenRowsTest, AChoiceIsTakenForAllRows) {
    OpenWithWaypoints();
    Click(Third, BookInterval);
    ASSERT_TRUE(bookView.choiceCell.has_value());
    bookView.chosen = {First, Third};
    EXPECT_TRUE(book.Cells().OnChoiceKey(kInAll, 2));
    EXPECT_EQ(Cell(First, BookInterval), "3");
    EXPECT_EQ(Cell(Third, BookInterval), "3");
    EXPECT_FALSE(bookView.choiceCell.has_value());
}

TEST_F(BookChosenRowsTest, RowsThatAnEditBringsInDoNotMoveItFromTheOthers) {
    OpenWithWaypoints();
    const int rows = bookView.sheet.RowCount();
    Choose(Last, BookTrack, 0);
    Choose(First, BookTrack, 0);
    ASSERT_EQ(bookView.sheet.RowCount(), rows);
    Click(Last, BookInterval);
    ASSERT_TRUE(bookView.choiceCell.has_value());
    bookView.chosen = {First, Last};
    EXPECT_TRUE(book.Cells().OnChoiceKey(kInAll, 0));
    ASSERT_GT(bookView.sheet.RowCount(), rows) << "the leg to the first of them is more than a degree long";
    EXPECT_EQ(Cell(bookView.sheet.RowCount() - 1, BookName), "GDANSK");
    EXPECT_EQ(Cell(bookView.sheet.RowCount() - 1, BookInterval), "1");
    EXPECT_EQ(Cell(bookView.sheet.RowOf({1}), BookInterval), "5") << "HAMBURG was not among them";
}

TEST_F(BookChosenRowsTest, TimesCoursesAndNothingFillNothing) {
    OpenWithWaypoints();
    ChooseRows({Port, Last});
    for (const int column : {BookEtd, BookCourse, BookOrder}) {
        statusWord.clear();
        Press(kFillDown, column);
        EXPECT_EQ(statusWord, "IDS_VIEW_NOTHINGTOFILL") << column;
    }
    ChooseRows({Rotterdam});
    statusWord.clear();
    Press(kFillDown, BookSpeed);
    EXPECT_EQ(statusWord, "IDS_VIEW_NOTHINGTOFILL") << "no row stands above the first";
    EXPECT_FALSE(Changed());
}

TEST_F(BookChosenRowsTest, AValueThatStandsThereAlreadyMarksNothing) {
    OpenWithWaypoints();
    ChooseRows({First, Second, Third});
    Press(kFillDown, BookSpeed);
    EXPECT_FALSE(Changed());
}

}  // namespace

}  // namespace Tarvik::Seaplan
