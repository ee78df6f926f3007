// SPDX-License-Identifier: MIT
/// The strip of questions below the port calls, over a voyage that the server has calculated.
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/WhatIf.h"
#include "seaplan/panels/tests/PortCallFixture.h"

namespace Tarvik::Seaplan {

namespace {

/// Rotterdam on March 5 at 08:00, 240 miles at 10 knots, 12 hours in Hamburg, 240 miles on to Gdansk.
class WhatIfStripTest : public PortCallFixture {
  protected:
    WhatIf& Strip() { return panel.Commands().Questions(); }
    void OpenStrip() {
        Open(kept);
        Strip().OnOpen();
        ASSERT_TRUE(view.whatIf.open);
        ASSERT_EQ(view.whatIf.note, "");
    }
    WhatIfState::Line Line(WhatIfLine line) const {
        return view.whatIf.lines[static_cast<std::size_t>(line)];
    }
    void Undo() { panel.Commands().OnUndo(); }
};

TEST_F(WhatIfStripTest, ItOpensWithTheLastPortAndItsArrival) {
    OpenStrip();
    EXPECT_EQ(view.whatIf.ports, (std::vector<std::string>{"HAMBURG", "GDANSK"}));
    EXPECT_EQ(view.whatIf.port, 1);
    EXPECT_EQ(view.whatIf.arrival, Cell(2, ColEta));
    EXPECT_FALSE(Line(WhatIfLine::Departure).canTake) << "nothing would change";
    EXPECT_TRUE(Line(WhatIfLine::Faster).canTake);
    Strip().OnPortChosen(0);
    EXPECT_EQ(view.whatIf.arrival, Cell(1, ColEta));
    Strip().OnOpen();
    EXPECT_FALSE(view.whatIf.open);
}

TEST_F(WhatIfStripTest, TheLatestDepartureIsToldThenTakenAsOneEdit) {
    OpenStrip();
    const PortCallTable before = view.table;
    Strip().OnArrivalTyped("2024-03-08 08:00");
    ASSERT_TRUE(Line(WhatIfLine::Departure).canTake);
    EXPECT_EQ(view.table, before) << "told, not taken";
    EXPECT_FALSE(view.state.changed);
    Strip().OnTake(WhatIfLine::Departure);
    EXPECT_NEAR(HoursTo(Cell(2, ColEta), "2024-03-08 08:00:00"), 0, 0.001);
    EXPECT_EQ(Cell(1, ColSpeed), "10.00");
    EXPECT_EQ(Cell(1, ColPortTime), before.Cell(1, ColPortTime));
    EXPECT_TRUE(view.state.changed);
    EXPECT_EQ(Calculations(), 0) << "no new route is needed";
    Undo();
    EXPECT_EQ(view.table, before);
    EXPECT_FALSE(view.state.changed);
}

TEST_F(WhatIfStripTest, OneSpeedReachesTheArrivalOverAllLegs) {
    OpenStrip();
    Strip().OnArrivalTyped("2024-03-07 04:00:00");
    ASSERT_TRUE(Line(WhatIfLine::OneSpeed).canTake);
    Strip().OnTake(WhatIfLine::OneSpeed);
    EXPECT_EQ(Cell(1, ColSpeed), Cell(2, ColSpeed));
    EXPECT_NEAR(std::stod(Cell(1, ColSpeed)), 15, 0.01) << "480 miles in 44 hours less 12";
    EXPECT_NEAR(HoursTo(Cell(2, ColEta), "2024-03-07 04:00:00"), 0, 0.01);
    Undo();
    EXPECT_EQ(Cell(1, ColSpeed), "10.00");
}

TEST_F(WhatIfStripTest, HalfAKnotIsShownBothWaysAndTaken) {
    OpenStrip();
    Strip().OnTake(WhatIfLine::Faster);
    EXPECT_EQ(Cell(1, ColSpeed), "10.50");
    EXPECT_EQ(Cell(2, ColSpeed), "10.50");
    Strip().OnTake(WhatIfLine::Slower);
    Strip().OnTake(WhatIfLine::Slower);
    EXPECT_EQ(Cell(2, ColSpeed), "9.50");
    Undo();
    Undo();
    EXPECT_EQ(Cell(2, ColSpeed), "10.50") << "each is an edit of its own";
}

TEST_F(WhatIfStripTest, TheAnswersFollowTheTable) {
    OpenStrip();
    const std::string faster = Line(WhatIfLine::Faster).text;
    texts.given[u"IDS_VIEW_WHATIFFASTER"] = u"%1";
    Type(1, ColSpeed, "12");
    EXPECT_NE(Line(WhatIfLine::Faster).text, faster);
    EXPECT_EQ(view.whatIf.arrival, Cell(2, ColEta)) << "no arrival was typed";
}

TEST_F(WhatIfStripTest, WhatIsNoTimeAnswersNothingAboutIt) {
    OpenStrip();
    Strip().OnArrivalTyped("tomorrow");
    EXPECT_EQ(Line(WhatIfLine::Departure).text, "IDS_VIEW_WHATIFNOTIME");
    EXPECT_FALSE(Line(WhatIfLine::OneSpeed).canTake);
    EXPECT_TRUE(Line(WhatIfLine::Slower).canTake);
    const PortCallTable before = view.table;
    Strip().OnTake(WhatIfLine::OneSpeed);
    EXPECT_EQ(view.table, before);
}

TEST_F(WhatIfStripTest, AnArrivalThatTheStaysForbidHasNoSpeed) {
    OpenStrip();
    Strip().OnArrivalTyped("2024-03-05 20:00");
    EXPECT_EQ(Line(WhatIfLine::OneSpeed).text, "IDS_VIEW_WHATIFTOOEARLY");
    EXPECT_TRUE(Line(WhatIfLine::Departure).canTake) << "an earlier departure reaches it";
}

TEST_F(WhatIfStripTest, RowsWithoutTheirRouteHaveNoAnswers) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    Strip().OnOpen();
    EXPECT_EQ(view.whatIf.note, "IDS_VIEW_WHATIFNEEDS");
    EXPECT_TRUE(view.whatIf.ports.empty());
    panel.Commands().OnCalculate();
    EXPECT_EQ(view.whatIf.note, "");
    Type(1, ColPort, "GDANSK");
    EXPECT_EQ(view.whatIf.note, "IDS_VIEW_WHATIFNEEDS") << "the figures are those of another port";
    Strip().OnTake(WhatIfLine::Faster);
    EXPECT_EQ(Cell(1, ColSpeed), "10.00");
}

TEST_F(WhatIfStripTest, AnswersStandInTheUnitsOnShow) {
    OpenStrip();
    texts.given[u"IDS_VIEW_WHATIFSPEED"] = u"%1 %2";
    panel.Commands().OnUnitChosen(UnitKind::Speed, "KPH");
    Strip().OnArrivalTyped("2024-03-07 04:00:00");
    EXPECT_EQ(Line(WhatIfLine::OneSpeed).text.substr(0, 3), "27.") << Line(WhatIfLine::OneSpeed).text;
    EXPECT_NE(Line(WhatIfLine::OneSpeed).text.find("KPH"), std::string::npos);
}

}  // namespace

}  // namespace Tarvik::Seaplan
