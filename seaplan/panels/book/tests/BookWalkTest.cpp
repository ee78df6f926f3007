// SPDX-License-Identifier: MIT
#include <cmath>
#include <random>

#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/book/BookPanel.h"
#include "seaplan/panels/book/tests/BookFixture.h"
#include "seaplan/protocol/BookCommands.h"
#include "seaplan/protocol/PortCallCommands.h"

/// A person who does anything at all with the book.
namespace Tarvik::Seaplan {

namespace {

/// All that a save would send of a book, as one text.
std::string TextOf(const PosBookData& book) {
    VoyInfo voyage;
    EXPECT_EQ(PanelToBook(book, voyage), 0);
    std::string text = PortCallsText("v", voyage.portCalls);
    std::string rows;
    EXPECT_TRUE(BookRowsText("b", voyage.positionBook.points,
                             {0, static_cast<int>(voyage.positionBook.points.size())}, rows));
    for (const PosBookPortRow& port : book.ports) {
        text += port.eta.fmt(Util::kTimeFormat) + port.etd.fmt(Util::kTimeFormat);
    }
    return text + rows;
}

class BookWalkTest : public BookFixture, public testing::WithParamInterface<unsigned> {
  protected:
    std::mt19937 random{GetParam()};

    int Any(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random); }
    std::string AnyText(int column) {
        const char* const typed[] = {"",          "12.5",    "-3",         "51 54.5N", "4 29W",
                                     "90",        "Corner|", "5154.5S",    "10N, 20E", "1,5",
                                     "x",         "170",     "-175",       "0",        "60 30N",
                                     "179 59.5E", "49.99",   "N51 E4 \"&", "8",        "14.2"};
        return column == BookName ? "Name " + std::to_string(Any(100))
                                  : typed[Any(static_cast<int>(std::size(typed)))];
    }
    void EditAnyCell() {
        const int row = Any(book.Sheet().RowCount() + 1);
        const int column = Any(10);
        Click(row, column);
        if (bookView.textCell.has_value()) {
            book.Cells().OnTyped(AnyText(column));
            book.Cells().OnTextKey({Any(2) == 0 ? Key::Enter : Key::Tab});
        } else if (bookView.choiceCell.has_value()) {
            book.Cells().OnChosen(Any(static_cast<int>(bookView.choices.size())));
        } else if (bookView.calendar.corner.has_value()) {
            CTrvCalDlg& calendar = book.Cells().Picker().Calendar();
            calendar.OnDay(Any(CalendarModel::kCells));
            calendar.OnOk();
        }
    }
    void EditChosenRows() {
        constexpr KeyPress kKeys[] = {
            {Key::Delete}, {Key::D, false, true}, {Key::Enter, false, true}, {Key::D, false, true}};
        for (int i = Any(5); i > 0; --i) {
            bookView.chosen.push_back(Any(book.Sheet().RowCount() + 1));
        }
        if (Any(2) == 0) {
            book.Commands().OnTableKey(kKeys[Any(4)], book.Sheet().selected, Any(10));
        } else if (Click(Any(book.Sheet().RowCount()), BookSpeed); bookView.textCell.has_value()) {
            book.Cells().OnTyped(AnyText(BookSpeed));
            book.Cells().OnTextKey(kKeys[2]);
        }
        bookView.chosen.clear();
    }
    void Step() {
        switch (Any(13)) {
            case 0:
                return book.Commands().OnExpand(Any(book.Sheet().RowCount()));
            case 1:
                return book.Commands().OnInsert();
            case 2:
                return book.Commands().OnDelete();
            case 3:
                return book.Commands().OnUndo();
            case 4:
                return book.Commands().OnRedo();
            case 5:
                return book.Cells().OnRowSelected(Any(book.Sheet().RowCount() + 2) - 1);
            case 6:
                return book.Commands().OnUnitChosen(static_cast<UnitKind>(1 + Any(3)), Any(2));
            case 7:
                return EditChosenRows();
            default:
                return EditAnyCell();
        }
    }
    void ExpectSound() {
        const BookSheet& sheet = book.Sheet();
        PosBookData again = sheet.data;
        const BookTotals totals = RecomputeBook(again, sheet.units, Util::_datetime_t::gmt_now());
        ASSERT_NEAR(totals.totalDistance, sheet.totals.totalDistance, 1e-9 * totals.totalDistance);
        ASSERT_NEAR(totals.totalTime, sheet.totals.totalTime, 1e-9 * totals.totalTime);
        ASSERT_NEAR(totals.averageSpeed, sheet.totals.averageSpeed, 1e-9 * totals.averageSpeed);
        ASSERT_EQ(TextOf(again), TextOf(sheet.data)) << "times follow the book";
        ASSERT_EQ(sheet.refs, ListBookRows(sheet.data)) << "the list is the book's";
        ASSERT_GE(sheet.selected, -1);
        ASSERT_LT(sheet.selected, sheet.RowCount());
        ASSERT_EQ(sheet.data.ports.size(), 3U);
    }
};

TEST_P(BookWalkTest, FiguresAgreeAndWhatIsSavedOpensAgain) {
    SCOPED_TRACE("seed " + std::to_string(GetParam()));
    OpenExpanded();
    for (int step = 0; step < 120; ++step) {
        Step();
        ExpectSound();
        if (HasFatalFailure()) {
            FAIL() << "step " << step;
        }
    }
    // The book that the walk begins with is not the server's; without an edit that stands none would be sent.
    const int knots = book.Sheet().units.speed == BookSpeedUnit::Knots ? 13 : 25;
    Type(book.Sheet().RowOf({1}), BookSpeed, std::to_string(knots));
    ASSERT_TRUE(Changed());
    book.Commands().OnSave();
    if (Changed()) {
        EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
        return;
    }
    const double distance = book.Sheet().totals.totalDistance;
    PosBookData stored = ReadAgain();
    ASSERT_EQ(stored.ports.size(), Data().ports.size());
    const BookTotals totals = RecomputeBook(stored, book.Sheet().units, Util::_datetime_t::gmt_now());
    // Positions go out with three decimals.
    EXPECT_NEAR(totals.totalDistance, distance,
                0.3 * static_cast<double>(stored.ports[1].rows.size() + stored.ports[2].rows.size() + 2));
}

TEST_P(BookWalkTest, AnyEditsUndoneGiveTheFirstStateBack) {
    SCOPED_TRACE("seed " + std::to_string(GetParam()));
    OpenExpanded();
    const std::string first = TextOf(Data());
    for (int step = 0; step < 60; ++step) {
        Step();
    }
    while (!book.Sheet().edits.redo.empty()) {
        book.Commands().OnRedo();
    }
    const std::string last = TextOf(Data());
    while (!book.Sheet().edits.undo.empty()) {
        book.Commands().OnUndo();
        ExpectSound();
    }
    EXPECT_EQ(TextOf(Data()), first);
    EXPECT_FALSE(Changed());
    while (!book.Sheet().edits.redo.empty()) {
        book.Commands().OnRedo();
    }
    EXPECT_EQ(TextOf(Data()), last);
}

INSTANTIATE_TEST_SUITE_P(Seeds, BookWalkTest, testing::Range(1U, 61U));

}  // namespace

}  // namespace Tarvik::Seaplan
