// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/book/BookCommands.h"
#include "seaplan/panels/book/BookEditing.h"
#include "seaplan/panels/book/BookOwner.h"
#include "seaplan/panels/book/CPosBookDlg.h"
#include "seaplan/panels/book/tests/RecordingBookView.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/tests/DeskRoutes.h"
#include "seaplan/panels/tests/PortCallFixture.h"

namespace Tarvik::Seaplan {

/// The position book over the port call panel on the real server. Its voyage goes from Rotterdam by Hamburg,
/// with 12 hours there, to Gdansk; the first leg passes route point 118, and behind it a plain waypoint more
/// is stored on each leg. All is sailed by rhumb line at 10 knots.
class BookFixture : public PortCallFixture {
  protected:
    static constexpr Rect kMain{100, 100, 1100, 900};  ///< of the screen
    RecordingBookView bookView;
    CPosBookDlg book{{bookView, [this] { return &panel; }, [] { return kMain; }}};

    BookFixture() { positionBook = &book; }

    /// Row numbers of the book as it opens: ports and the named point.
    enum Row : int { Rotterdam = 0, MidCape = 1, Hamburg = 2, Gdansk = 3 };

    void OpenBook() {
        desk.routes->SetPassage("ROTTERDAM", "HAMBURG", 480);
        SaveOther([](PortCallRows&) {});
        Open(kept);
        VoyInfo& voyage = store.voyages[kept];
        BookPoints& points = voyage.positionBook.points;
        for (PosBookPoint& point : points) {
            point.psr = "RL";
        }
        PosBookPoint plain = points[1];
        plain.pst = PlainPoint;
        plain.psn = "Plain";
        plain.position = "0.400,1.000";
        points.insert(points.begin() + 2, plain);
        panel.Commands().OnPositionBook();
        ASSERT_TRUE(bookView.visible);
        desk.ForgetRecords();
    }
    /// The same with the plain waypoint behind the named point in sight, as row 2.
    void OpenExpanded() {
        OpenBook();
        book.Commands().OnExpand(MidCape);
        ASSERT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "Plain", "HAMBURG", "GDANSK"}));
    }
    static std::vector<std::string> Names(std::initializer_list<const char*> names) {
        return {names.begin(), names.end()};
    }
    std::string Cell(int row, int column) const { return bookView.sheet.Cell(row, column); }
    /// Texts of the rows in a column, without the blank lines.
    std::vector<std::string> Column(int column) const {
        std::vector<std::string> found;
        for (int row = 0; row < bookView.sheet.RowCount(); ++row) {
            found.push_back(Cell(row, column));
        }
        return found;
    }
    void Click(int row, int column) { book.Cells().OnCellClicked(row, column); }
    void Type(int row, int column, const std::string& text) {
        Click(row, column);
        ASSERT_TRUE(bookView.textCell.has_value()) << "no editor over " << row << "," << column;
        book.Cells().OnTyped(text);
        book.Cells().OnTextKey({Key::Enter});
    }
    void Choose(int row, int column, int index) {
        Click(row, column);
        ASSERT_TRUE(bookView.choiceCell.has_value()) << "no list over " << row << "," << column;
        book.Cells().OnChosen(index);
    }
    /// Picks a time of the person's zone over a cell.
    void Pick(int row, int column, const std::string& time) {
        Click(row, column);
        ASSERT_TRUE(bookView.calendar.corner.has_value()) << "no calendar over " << row << "," << column;
        CTrvDateTimeCtrl& picker = book.Cells().Picker();
        const auto value = Util::DateTimeUtl::Parse(time);
        CTrvCalDlg& calendar = picker.Calendar();
        // The day is pressed in the month on view; hour and minute are typed.
        for (int cell = 0; cell < CalendarModel::kCells; ++cell) {
            if (bookView.calendar.state.cells[static_cast<std::size_t>(cell)].date ==
                value->fmt("%Y-%m-%d")) {
                calendar.OnDay(cell);
            }
        }
        calendar.OnTimePressed(TimePart::Hour);
        calendar.OnTyped(value->fmt("%H"));
        calendar.OnTypingDone();
        calendar.OnTimePressed(TimePart::Minute);
        calendar.OnTyped(value->fmt("%M"));
        calendar.OnOk();
    }
    bool Opens(int row, int column) {
        Click(row, column);
        const bool opens = bookView.textCell.has_value() || bookView.choiceCell.has_value() ||
                           bookView.calendar.corner.has_value();
        book.Cells().HideEditors();
        return opens;
    }
    /// The book as a new client of the same user reads it from the server; empty, with the test failed, when
    /// it cannot.
    PosBookData ReadAgain() {
        store.voyages[kept].portCalls.clear();
        store.voyages[kept].positionBook.points.clear();
        PortCallRows rows;
        EXPECT_EQ(desk.voyages.LoadSchedule(kept, rows, -1), 0);
        PosBookData stored;
        EXPECT_EQ(desk.voyages.GetPosBookData(kept, stored), 0);
        return stored;
    }
    PosBookRow& Waypoint(PosBookData& data, std::size_t port, std::size_t sub) {
        return data.ports[port].rows[sub];
    }
    const PosBookData& Data() const { return book.Sheet().data; }
    bool Changed() const { return bookView.changed; }
};

}  // namespace Tarvik::Seaplan
