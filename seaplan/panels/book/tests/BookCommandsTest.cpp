// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/tests/BookFixture.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "testsupport/RecordingHost.h"

/// Opening, rows, units and events of the position book.
namespace Tarvik::Seaplan {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class BookCommandsTest : public BookFixture {
  protected:
    void MakeChange() {
        Type(Hamburg, BookSpeed, "12");
        ASSERT_TRUE(Changed());
    }
};

TEST_F(BookCommandsTest, ItOpensCleanInTheMiddleOfTheMainViewAndItsOwnerCannotBeUsed) {
    OpenBook();
    EXPECT_EQ(bookView.caption, "IDC_WP_T_TITLE");
    EXPECT_FALSE(Changed());
    EXPECT_EQ(bookView.place, (Rect{450, 400, 750, 600}));
    EXPECT_FALSE(view.Enabled());
    EXPECT_TRUE(bookView.Enabled());
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "HAMBURG", "GDANSK"}));
    EXPECT_FALSE(bookView.sheet.CanInsert());
    EXPECT_FALSE(bookView.sheet.CanDelete());
}

TEST_F(BookCommandsTest, AFewRowsStillShowThirteenLines) {
    OpenBook();
    EXPECT_EQ(bookView.sheet.LineCount(), 13);
    EXPECT_EQ(Cell(4, BookOrder), "");
    EXPECT_EQ(Cell(12, BookEtd), "");
    EXPECT_EQ(bookView.sheet.ExpanderAt(5), BookExpander::None);
    EXPECT_FALSE(Opens(7, BookName));
}

TEST_F(BookCommandsTest, TheBookOpensOverUnsavedChangesOnlyWhereThePersonSaysSo) {
    SaveOther([](PortCallRows&) {});
    Open(kept);
    PortCallFixture::Type(1, ColSpeed, "12");
    messages.Answer(Interface::SysMsgHandleRes::Cancel);
    panel.Commands().OnPositionBook();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_WARNSAVEFORPSBK");
    EXPECT_EQ(messages.messages.back().flags, 1);
    EXPECT_FALSE(bookView.visible);
    EXPECT_TRUE(view.Enabled());
    messages.Answer(Interface::SysMsgHandleRes::Ok);
    panel.Commands().OnPositionBook();
    EXPECT_TRUE(bookView.visible);
    EXPECT_FALSE(view.Enabled());
    EXPECT_EQ(Cell(1, BookSpeed), "10.00") << "what is saved";
}

TEST_F(BookCommandsTest, ATextBeingTypedInTheTableCountsAsAChange) {
    SaveOther([](PortCallRows&) {});
    Open(kept);
    panel.Cells().OnCellClicked(1, ColSpeed);
    Retype(CellEditor::Speed, "13");
    messages.Answer(Interface::SysMsgHandleRes::Cancel);
    panel.Commands().OnPositionBook();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_WARNSAVEFORPSBK");
    EXPECT_FALSE(bookView.visible);
}

TEST_F(BookCommandsTest, AVoyageWithoutABookOpensNone) {
    Open(fresh);
    panel.Commands().OnPositionBook();
    EXPECT_FALSE(bookView.visible);
    EXPECT_TRUE(view.Enabled());
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(BookCommandsTest, NamedPointsAndAllPortsButTheLastExpand) {
    OpenBook();
    const auto shown = [&](int row) { return bookView.sheet.ExpanderAt(row); };
    EXPECT_EQ(shown(Rotterdam), BookExpander::Closed);
    EXPECT_EQ(shown(MidCape), BookExpander::Closed);
    EXPECT_EQ(shown(Hamburg), BookExpander::Closed);
    EXPECT_EQ(shown(Gdansk), BookExpander::None);
    book.Commands().OnExpand(MidCape);
    EXPECT_EQ(shown(MidCape), BookExpander::Open);
    EXPECT_EQ(shown(2), BookExpander::None) << "a plain waypoint";
    EXPECT_EQ(bookView.sheet.ImageAt(MidCape), "VoExpandChecked");
    EXPECT_EQ(bookView.sheet.ImageAt(3), "VoExpand");
    EXPECT_EQ(bookView.sheet.ImageAt(2), "");
    book.Commands().OnItemImage(MidCape, "itemdel");
    EXPECT_EQ(shown(MidCape), BookExpander::Open);
    book.Commands().OnItemImage(MidCape, "VoExpandChecked");
    EXPECT_EQ(shown(MidCape), BookExpander::Closed);
    book.Commands().OnItemImage(MidCape, "VoExpand");
    EXPECT_EQ(Column(BookOrder), Names({"1", "2", "3", "4", "5"}));
    book.Commands().OnExpand(3);
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "Plain", "HAMBURG", "", "GDANSK"}));
    EXPECT_EQ(bookView.sheet.LineCount(), 13);
    book.Commands().OnExpand(2);
    book.Commands().OnExpand(5);
    EXPECT_EQ(bookView.sheet.RowCount(), 6) << "neither a plain waypoint nor the last port";
    book.Commands().OnExpand(MidCape);
    EXPECT_EQ(Column(BookOrder), Names({"1", "2", "3", "4", "5"}));
    EXPECT_FALSE(Changed());
}

TEST_F(BookCommandsTest, TheRowInFrontStaysTheSamePlaceWhenRowsComeAndGo) {
    OpenBook();
    book.Cells().OnRowSelected(Hamburg);
    book.Commands().OnExpand(MidCape);
    EXPECT_EQ(Cell(bookView.sheet.selected, BookName), "HAMBURG");
    book.Cells().OnRowSelected(2);
    book.Commands().OnExpand(MidCape);
    EXPECT_EQ(Cell(bookView.sheet.selected, BookName), "Mid Cape") << "it was hidden";
}

TEST_F(BookCommandsTest, AWaypointComesHalfWayBeforeTheRowInFront) {
    OpenExpanded();
    Click(3, BookCourse);
    EXPECT_TRUE(bookView.sheet.CanInsert());
    book.Commands().OnInsert();
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "Plain", "A new wp", "HAMBURG", "GDANSK"}));
    EXPECT_EQ(Cell(3, BookLatitude), "0.5000");
    EXPECT_EQ(Cell(3, BookLongitude), "0.6000");
    EXPECT_EQ(Cell(3, BookSpeed), Cell(4, BookSpeed));
    EXPECT_EQ(Column(BookOrder), Names({"1", "2", "3", "4", "5", "6"}));
    EXPECT_EQ(bookView.sheet.selected, 4) << "the row in front stays";
    EXPECT_TRUE(Changed());
}

TEST_F(BookCommandsTest, AnInsertedWaypointIsSeen) {
    OpenBook();
    Click(Hamburg, BookCourse);
    book.Commands().OnInsert();
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "Plain", "A new wp", "HAMBURG", "GDANSK"}));
}

TEST_F(BookCommandsTest, NothingComesBeforeTheFirstPortOrWithoutARow) {
    OpenBook();
    book.Commands().OnInsert();
    Click(Rotterdam, BookName);
    EXPECT_FALSE(bookView.sheet.CanInsert());
    book.Commands().OnInsert();
    EXPECT_EQ(book.RegenerateLeg(Rotterdam, true), 0);
    Click(9, BookName);
    EXPECT_EQ(bookView.sheet.selected, -1);
    book.Commands().OnInsert();
    EXPECT_EQ(bookView.sheet.RowCount(), 4);
    EXPECT_FALSE(Changed());
}

TEST_F(BookCommandsTest, APlainWaypointIsDeleted) {
    OpenExpanded();
    Click(2, BookCourse);
    EXPECT_TRUE(bookView.sheet.CanDelete());
    const double distance = book.Sheet().totals.totalDistance;
    book.Commands().OnDelete();
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "HAMBURG", "GDANSK"}));
    EXPECT_LT(book.Sheet().totals.totalDistance, distance);
    EXPECT_EQ(bookView.sheet.selected, 2);
    EXPECT_TRUE(Changed());
    EXPECT_EQ(bookView.sheet.LineCount(), 13);
}

TEST_F(BookCommandsTest, PortsAndNamedPointsStay) {
    OpenExpanded();
    for (const int row : {0, 1, 3, 4}) {
        Click(row, BookCourse);
        EXPECT_FALSE(bookView.sheet.CanDelete()) << row;
        book.Commands().OnDelete();
        EXPECT_FALSE(book.DeleteRow(row)) << row;
    }
    EXPECT_EQ(bookView.sheet.RowCount(), 5);
    EXPECT_FALSE(Changed());
}

TEST_F(BookCommandsTest, TheWayBehindADeletedWaypointIsComputedAlsoOnAShortGreatCircle) {
    OpenExpanded();
    Choose(3, BookTrack, 0);
    Click(2, BookCourse);
    book.Commands().OnDelete();
    PosBookData again = Data();
    EXPECT_DOUBLE_EQ(RecomputeBook(again, book.Sheet().units, Util::_datetime_t::gmt_now()).totalDistance,
                     book.Sheet().totals.totalDistance);
}

TEST_F(BookCommandsTest, UnitsChangeWhatIsShownAndNotWhatIsStored) {
    OpenBook();
    const BookSheet& sheet = bookView.sheet;
    const double hours = sheet.totals.totalTime * 24;
    const double miles = sheet.totals.totalDistance;
    EXPECT_EQ(sheet.UnitText(UnitKind::Speed), "kts");
    EXPECT_EQ(sheet.UnitText(UnitKind::Distance), "NM");
    EXPECT_EQ(sheet.UnitText(UnitKind::Time), "days");
    EXPECT_EQ(sheet.Total(UnitKind::Time), TwoDecimals(hours / 24));
    book.Commands().OnUnitChosen(UnitKind::Time, 1);
    EXPECT_EQ(sheet.UnitText(UnitKind::Time), "hours");
    EXPECT_EQ(sheet.Total(UnitKind::Time), TwoDecimals(hours));
    book.Commands().OnUnitChosen(UnitKind::Distance, 1);
    EXPECT_EQ(sheet.Total(UnitKind::Distance), TwoDecimals(miles * 1.852));
    EXPECT_EQ(sheet.UnitText(UnitKind::Distance), "KM");
    book.Commands().OnUnitChosen(UnitKind::Speed, 1);
    EXPECT_EQ(sheet.UnitText(UnitKind::Speed), "KPH");
    EXPECT_EQ(Cell(Hamburg, BookSpeed), "18.52");
    EXPECT_DOUBLE_EQ(Data().ports[1].speed, 18.52);
    book.Commands().OnUnitChosen(UnitKind::Speed, 1);
    EXPECT_EQ(Cell(Hamburg, BookSpeed), "18.52") << "the unit on show is no change";
    book.Commands().OnUnitChosen(UnitKind::Speed, 0);
    book.Commands().OnUnitChosen(UnitKind::Distance, 0);
    EXPECT_EQ(sheet.Total(UnitKind::Distance), TwoDecimals(miles));
    EXPECT_EQ(Cell(Hamburg, BookSpeed), "10.00");
    EXPECT_FALSE(Changed());
}

TEST_F(BookCommandsTest, ABookThatTakesNoTimeShowsNoAverage) {
    OpenBook();
    PosBookData none = Data();
    none.ports.resize(2);
    none.ports[0].rows.clear();
    none.ports[1] = none.ports[0];
    book.ShowBook(none);
    EXPECT_EQ(bookView.sheet.Total(UnitKind::Speed), "");
    EXPECT_EQ(bookView.sheet.Total(UnitKind::Distance), "0.00");
}

TEST_F(BookCommandsTest, TheOpenBookStandsOnTheChartWithNumberedRowsAndTheOneInFront) {
    OpenExpanded();
    const auto drawn = [&](const std::string& type) {
        std::vector<std::string> marks;
        for (const auto& call : desk.host.ChartCallsOf("TRV_MAP_ADD_POINT_LABEL")) {
            if (call.type == type) {
                marks.push_back(call.id + " " + call.position);
            }
        }
        desk.ForgetRecords();
        return marks;
    };
    EXPECT_THAT(drawn("BOOKPOINTTYPE"), SizeIs(5)) << "the rows after one was expanded";
    Click(2, BookCourse);
    EXPECT_THAT(drawn("BOOKFRONTTYPE"), ElementsAre("3 0.4000,1.0000"));
    Type(2, BookLatitude, "2.5");
    const auto lines = desk.host.ChartCallsOf("TRV_MAP_ADD_LINE");
    ASSERT_THAT(lines, SizeIs(1));
    EXPECT_EQ(lines[0].type, "BOOKLINETYPE");
    EXPECT_EQ(lines[0].points[2], "0.4000,2.5000") << "the line follows before anything is saved";
    EXPECT_THAT(drawn("BOOKFRONTTYPE"), ElementsAre("3 0.4000,2.5000"));
    messages.Answer(Interface::SysMsgHandleRes::No);
    book.Commands().OnClose();
    EXPECT_THAT(desk.host.ChartCallsOf("TRV_MAP_DEL_OBJECT_BY_TYPE"), SizeIs(3));
}

TEST_F(BookCommandsTest, HelpHasItsOwnTopicAndSize) {
    book.Commands().OnHelp();
    EXPECT_EQ(bookView.help, "func035 350x370");
}

TEST_F(BookCommandsTest, LogoutHidesWithoutAQuestion) {
    OpenBook();
    MakeChange();
    Click(Hamburg, BookEtd);
    book.OnLogout();
    EXPECT_FALSE(bookView.visible);
    EXPECT_FALSE(bookView.calendar.corner.has_value());
    EXPECT_TRUE(view.Enabled());
    EXPECT_THAT(messages.messages, IsEmpty());
    EXPECT_FALSE(Changed());
    EXPECT_EQ(bookView.sheet.RowCount(), 0);
}

TEST_F(BookCommandsTest, LogoutDropsWhatIsTypedAndClosesEveryEditor) {
    OpenBook();
    Click(Hamburg, BookSpeed);
    book.Cells().OnTyped("13");
    book.OnLogout();
    EXPECT_FALSE(bookView.textCell.has_value());
    OpenBook();
    Click(Hamburg, BookTrack);
    book.OnLogout();
    EXPECT_FALSE(bookView.choiceCell.has_value());
    EXPECT_THAT(messages.messages, IsEmpty());
    EXPECT_TRUE(desk.Sent(Ask::kSaveBook).empty());
}

TEST_F(BookCommandsTest, AnotherZoneRewritesTheTimesAndNothingElse) {
    OpenBook();
    MakeChange();
    EXPECT_EQ(bookView.sheet.zone, "China Standard Time");
    EXPECT_EQ(bookView.sheet.tableZone, "China Standard Time");
    const auto course = Column(BookCourse);
    book.OnTimeZone("UTC");
    EXPECT_EQ(Cell(Rotterdam, BookEta), "2024-03-05 00:00:00");
    EXPECT_EQ(Cell(Rotterdam, BookEtd), "2024-03-05 00:00:00");
    EXPECT_EQ(Column(BookCourse), course);
    EXPECT_TRUE(Changed());
    EXPECT_EQ(bookView.sheet.zone, "UTC");
    EXPECT_EQ(bookView.sheet.tableZone, "China Standard Time") << "the table has its own";
    book.Commands().OnCancel();
    book.OnTimeZone("China Standard Time");
    EXPECT_EQ(Cell(Rotterdam, BookEta), "2024-03-05 08:00:00");
    EXPECT_FALSE(Changed());
}

TEST_F(BookCommandsTest, ALanguageRenewsTitleAndTexts) {
    OpenBook();
    const int applied = bookView.textsApplied;
    book.ApplyLanguage();
    EXPECT_EQ(bookView.textsApplied, applied + 1);
    EXPECT_EQ(bookView.caption, "IDC_WP_T_TITLE");
}

TEST_F(BookCommandsTest, IsNumberTextIsTheBooks) {
    EXPECT_TRUE(CPosBookDlg::IsNumberText("-1,5"));
    EXPECT_FALSE(CPosBookDlg::IsNumberText("."));
}

}  // namespace

}  // namespace Tarvik::Seaplan
