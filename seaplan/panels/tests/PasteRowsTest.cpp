// SPDX-License-Identifier: MIT
/// Ctrl+V over port calls and distance table.
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/portcall/paste/PastedColumns.h"
#include "seaplan/panels/tests/PortCallFixture.h"
#include "seaplan/panels/texts/EditTexts.h"
#include "testsupport/DataFolder.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using Mark = RowsPreview::Mark;

namespace {

class PasteRowsTest : public PortCallFixture {
  protected:
    void Paste(const std::string& text, int row = 0) {
        view.clipboard = text;
        EXPECT_TRUE(panel.Rows().OnTableKey({Key::V, false, true}, row, ColPort));
    }
    const RowsPreview::Cell& Shown(std::size_t row, std::size_t column) const {
        return view.pastes.back().rows.at(row).at(column);
    }
    std::vector<std::string> Ports() const {
        std::vector<std::string> names = Column(ColPort);
        std::erase(names, " ");
        return names;
    }
};

constexpr const char* kSchedule =
    "Port\tPurpose\tSpeed\tETA\tETD\n"
    "rotterdam\tL\t\t2024-03-05 08:00\t2024-03-05 20:00\n"
    "Hamburg\tD\t12.5\t2024-03-06 20:00\t2024-03-07 08:00\n"
    "ATLANTIS\tD\tfast\t\t\n";

TEST_F(PasteRowsTest, ASpeedInAnotherUnitThanTheTablesIsNotTaken) {
    Open(fresh);
    Paste("Port\tSpeed KPH\nrotterdam\t\nHamburg\t23\n");
    EXPECT_EQ(Shown(1, 2).mark, Mark::Unknown);
    EXPECT_EQ(Cell(1, ColSpeed), " ");
    Open(kept);
    view.takesPaste = false;
    ASSERT_EQ(panel.Commands().OnUnitChosen(UnitKind::Speed, "KPH"), 0);
    Paste("Port\tSpeed\nrotterdam\t\nHamburg\t12.5 kn\n");
    EXPECT_EQ(Shown(1, 2).mark, Mark::Unknown);
    Paste("Port\tSpeed KPH\nrotterdam\t\nHamburg\t23\n");
    EXPECT_NE(Shown(1, 2).mark, Mark::Unknown);
}

TEST_F(PasteRowsTest, RowsAreTakenAsOneEditOnlyOnAYes) {
    Open(fresh);
    const PortCallTable before = view.table;
    view.takesPaste = false;
    Paste(kSchedule);
    EXPECT_TRUE(view.table == before);
    EXPECT_FALSE(view.state.changed);
    view.takesPaste = true;
    Paste(kSchedule);
    EXPECT_THAT(Ports(), ElementsAre("ROTTERDAM", "HAMBURG", "ATLANTIS"));
    EXPECT_EQ(Cell(0, ColPurpose), "L");
    EXPECT_EQ(Cell(0, ColEta), "2024-03-05 08:00:00");
    EXPECT_EQ(Cell(1, ColSpeed), "12.50");
    EXPECT_EQ(Cell(1, ColPortTime), "0.50") << "12 hours between arrival and departure, in days";
    EXPECT_EQ(Cell(1, ColEta), " ") << "it follows from the calculation";
    EXPECT_TRUE(view.table.Rows()[2].unknownPort);
    EXPECT_TRUE(view.state.changed);
    panel.Commands().OnUndo();
    EXPECT_TRUE(view.table == before);
    EXPECT_TRUE(view.edits.undo.empty());
}

TEST_F(PasteRowsTest, ThePreviewMarksWhatItDoesNotKnow) {
    Open(fresh);
    Paste(kSchedule);
    ASSERT_EQ(view.pastes.size(), 1U);
    EXPECT_THAT(view.pastes[0].titles,
                ElementsAre("IDS_PORTCALL_ORDER", "IDS_PORTCALL_PORT", "IDS_PORTCALL_PURPOSE",
                            "IDS_PORTCALL_SPEED", "IDS_PORTCALL_ETA", "IDS_PORTCALL_ETD"));
    EXPECT_EQ(Shown(0, 1), (RowsPreview::Cell{"ROTTERDAM", Mark::Plain}));
    EXPECT_EQ(Shown(2, 1), (RowsPreview::Cell{"ATLANTIS", Mark::Unknown}));
    EXPECT_EQ(Shown(2, 3), (RowsPreview::Cell{"fast", Mark::Unknown}));
    EXPECT_EQ(Shown(0, 4).mark, Mark::Plain);
    EXPECT_EQ(Shown(1, 4).mark, Mark::Ignored);
    EXPECT_THAT(view.pastes[0].words, HasSubstr("IDS_VIEW_PASTETIMES"));
}

TEST_F(PasteRowsTest, WhatWouldBeOverwrittenIsShown) {
    texts.given[u"IDS_VIEW_PASTEREPLACES"] = u"%1 for %2";
    Open(kept);
    Paste("ROUEN\nGDANSK\n", 1);
    EXPECT_EQ(Shown(0, 0).text, "2");
    EXPECT_EQ(Shown(0, 1), (RowsPreview::Cell{"ROUEN for HAMBURG", Mark::Replaces}));
    EXPECT_EQ(Shown(1, 1), (RowsPreview::Cell{"GDANSK", Mark::Plain})) << "it stands there already";
    EXPECT_THAT(Ports(), ElementsAre("ROTTERDAM", "ROUEN", "GDANSK"));
    EXPECT_EQ(Cell(1, ColSpeed), "10.00") << "as if the port was typed";
}

TEST_F(PasteRowsTest, PortsBeginInTheFirstBlankRowAndTheTableGrows) {
    Open(kept);
    std::string many;
    for (int row = 0; row < 150; ++row) {
        many += row % 2 == 0 ? "HAMBURG\n" : "GDANSK\n";
    }
    Paste(many, 5);
    EXPECT_EQ(Ports().size(), 153U);
    EXPECT_EQ(view.table.RowCount(), 154);
    EXPECT_EQ(Cell(154, ColOrder), "RES");
}

TEST_F(PasteRowsTest, SpeedsAloneGoIntoTheRowsThatAreThere) {
    Open(kept);
    Paste("Speed\n14\n15\n16\n", 1);
    EXPECT_EQ(Cell(1, ColSpeed), "14.00");
    EXPECT_EQ(Cell(2, ColSpeed), "15.00");
    EXPECT_EQ(Cell(3, ColSpeed), " ");
    EXPECT_EQ(Shown(2, 1).mark, Mark::Ignored) << "no port, no speed";
    EXPECT_EQ(Cell(1, ColEta), "2024-03-06 01:08:34") << "the schedule follows";
}

TEST_F(PasteRowsTest, TimesOfTheSamePortsAreTakenAsIfTheyWereTyped) {
    texts.given[u"IDS_VIEW_ROWSREFUSED"] = u"left %1";
    Open(kept);
    Paste("Port\tETA\nHAMBURG\t2024-03-06 20:00\nGDANSK\t2024-03-01 00:00\n", 1);
    EXPECT_EQ(Cell(1, ColEta), "2024-03-06 20:00:00");
    EXPECT_EQ(Cell(1, ColSpeed), "6.67") << "240 miles in 36 hours";
    EXPECT_EQ(statusWord, "left 3") << "before the last departure";
    EXPECT_TRUE(messages.messages.empty());
    panel.Commands().OnUndo();
    EXPECT_EQ(Cell(1, ColSpeed), "10.00");
}

TEST_F(PasteRowsTest, RowsThatAreThereAlreadyChangeNothing) {
    Open(kept);
    Paste("ROTTERDAM\nHAMBURG\n");
    EXPECT_FALSE(view.state.changed);
    EXPECT_TRUE(view.edits.undo.empty());
}

TEST_F(PasteRowsTest, ATextWithoutAnyOfItIsToldAndNotShown) {
    Open(kept);
    Paste("\t\t\n");
    EXPECT_TRUE(view.pastes.empty());
    EXPECT_EQ(statusWord, "IDS_VIEW_PASTENOTHING");
}

TEST_F(PasteRowsTest, ACodeOrAnOtherNameGivesItsPort) {
    Open(fresh);
    Paste("DEHAM\nde ham\nGdingen\nXXXXX\n");
    EXPECT_THAT(Ports(), ElementsAre("HAMBURG", "HAMBURG", "GDANSK", "XXXXX"));
    EXPECT_EQ(Shown(3, 1).mark, Mark::Unknown);
}

TEST_F(PasteRowsTest, AColumnThatWasTakenForTheWrongKindIsCorrectedInThePreview) {
    Open(fresh);
    constexpr std::size_t kSpeedKind = 3;
    constexpr std::size_t kStayKind = 5;
    ASSERT_EQ(kPastedKinds[kSpeedKind], ColSpeed);
    ASSERT_EQ(kPastedKinds[kStayKind], ColPortTime);
    view.takesColumns = {{1, kStayKind}, {2, kSpeedKind}};
    Paste("rotterdam\t5\t\nHamburg\t6\t14\nGdansk\t7\t15\n");
    ASSERT_EQ(view.pastes.size(), 3U);
    EXPECT_THAT(view.pastes[0].taken, ElementsAre(1U, kSpeedKind, 0U)) << "one speed is guessed";
    EXPECT_THAT(view.pastes[1].taken, ElementsAre(1U, kStayKind, 0U));
    EXPECT_THAT(view.pastes[2].taken, ElementsAre(1U, kStayKind, kSpeedKind));
    EXPECT_EQ(view.pastes[0].kinds.size(), std::size(kPastedKinds));
    EXPECT_EQ(Cell(1, ColPortTime), "6.00");
    EXPECT_EQ(Cell(1, ColSpeed), "14.00");
    EXPECT_EQ(Cell(2, ColSpeed), "15.00");
}

TEST_F(PasteRowsTest, AKindThatAnotherColumnGetsIsTakenFromTheFirst) {
    Open(fresh);
    view.takesColumns = {{1, 1}};
    Paste("rotterdam\tHamburg\nHamburg\tGdansk\n");
    EXPECT_THAT(view.pastes.back().taken, ElementsAre(0U, 1U));
    EXPECT_THAT(Ports(), ElementsAre("HAMBURG", "GDANSK"));
}

TEST_F(PasteRowsTest, TheDistanceTableTakesRowsAsWell) {
    ASSERT_EQ(panel.OpenDistanceTable(), 0);
    Paste("ROTTERDAM\nHAMBURG\nGDANSK\n");
    EXPECT_THAT(Ports(), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK"));
    panel.Commands().OnCalculate();
    EXPECT_EQ(Cell(1, ColDistance), "240.00");
}

}  // namespace

}  // namespace Tarvik::Seaplan
