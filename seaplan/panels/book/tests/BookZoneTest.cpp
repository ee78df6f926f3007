// SPDX-License-Identifier: MIT
/// The zones of book and port call table while the book is open.
#include <gmock/gmock.h>

#include "seaplan/panels/book/tests/BookFixture.h"
#include "seaplan/panels/portcall/PanelCommands.h"

namespace Tarvik::Seaplan {

namespace {

using Interface::SysMsgHandleRes;

constexpr const char* kChina = "China Standard Time";

class BookZoneTest : public BookFixture {
  protected:
    /// The person's zone is another one; the table was there first and hears of it first.
    void SwitchZone(const std::string& zone) {
        panel.OnTimeZone(zone);
        book.OnTimeZone(zone);
    }
    /// The same with a table whose changes stay in the zone before, since the server does not take them.
    void SwitchZoneOverChangesThatStay() {
        desk.Refuse(Ask::kSavePortCalls);
        messages.Answer(SysMsgHandleRes::Yes);
        SwitchZone("UTC");
        desk.Heal();
    }
    /// The book over a table with a change that is not saved.
    void OpenBookOverChanges() {
        OpenBook();
        book.Commands().OnClose();
        PortCallFixture::Type(1, ColSpeed, "14");
        messages.Answer(SysMsgHandleRes::Ok);
        panel.Commands().OnPositionBook();
        ASSERT_TRUE(bookView.visible);
    }
};

}  // namespace

TEST_F(BookZoneTest, TheHeadNamesNoOtherZoneWhereTheTableFollows) {
    OpenBook();
    SwitchZone("UTC");
    EXPECT_EQ(bookView.sheet.zone, "UTC");
    EXPECT_EQ(view.state.zone, "UTC");
    EXPECT_EQ(bookView.sheet.tableZone, "UTC") << "the table was read anew";
}

TEST_F(BookZoneTest, TheHeadNamesTheTablesZoneWhileItsChangesStayInThatZone) {
    OpenBookOverChanges();
    SwitchZoneOverChangesThatStay();
    ASSERT_EQ(view.state.zone, kChina);
    EXPECT_EQ(bookView.sheet.zone, "UTC");
    EXPECT_EQ(bookView.sheet.tableZone, kChina);
}

TEST_F(BookZoneTest, AfterASaveTheHeadFollowsTheTableThatIsFilledAnew) {
    OpenBookOverChanges();
    SwitchZoneOverChangesThatStay();
    Type(Hamburg, BookSpeed, "12");
    messages.Answer(SysMsgHandleRes::No);
    book.Commands().OnSave();
    ASSERT_EQ(view.state.zone, "UTC");
    EXPECT_EQ(bookView.sheet.tableZone, "UTC");
}

TEST_F(BookZoneTest, TheZoneThatTheBookHasAlreadyIsHeardForTheTablesSake) {
    OpenBookOverChanges();
    SwitchZoneOverChangesThatStay();
    messages.Answer(SysMsgHandleRes::No);
    SwitchZone("UTC");
    EXPECT_EQ(bookView.sheet.tableZone, "UTC");
}

TEST_F(BookZoneTest, ATextBeingTypedStaysOverAChangeOfZone) {
    OpenExpanded();
    Click(2, BookName);
    book.Cells().OnTyped("Corner");
    SwitchZone("UTC");
    EXPECT_EQ(bookView.textCell, (BookCellPlace{2, BookName}));
    EXPECT_FALSE(Changed());
    book.Cells().OnTextKey({Key::Enter});
    EXPECT_EQ(Cell(2, BookName), "Corner");
    EXPECT_TRUE(Changed());
}

TEST_F(BookZoneTest, AnOpenCalendarClosesWithoutAChange) {
    OpenBook();
    Click(Hamburg, BookEtd);
    ASSERT_TRUE(bookView.calendar.corner.has_value());
    SwitchZone("UTC");
    EXPECT_FALSE(bookView.calendar.corner.has_value());
    EXPECT_FALSE(Changed());
}

TEST_F(BookZoneTest, AHiddenBookHearsOfTheZone) {
    OpenBook();
    book.Commands().OnClose();
    SwitchZone("UTC");
    panel.Commands().OnPositionBook();
    ASSERT_TRUE(bookView.visible);
    EXPECT_EQ(bookView.sheet.zone, "UTC");
    EXPECT_EQ(Cell(Rotterdam, BookEta), "2024-03-05 00:00:00");
}

}  // namespace Tarvik::Seaplan
