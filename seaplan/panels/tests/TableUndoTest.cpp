// SPDX-License-Identifier: MIT
/// Undo and redo over the edits of port calls and distance table.
#include <random>

#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tests/PortCallFixture.h"

namespace Tarvik::Seaplan {

using Interface::SysMsgHandleRes;
using ::testing::ElementsAre;

namespace {

class TableUndoTest : public PortCallFixture {
  protected:
    void Undo() { panel.Commands().OnUndo(); }
    void Redo() { panel.Commands().OnRedo(); }
    void Calculate() { panel.Commands().OnCalculate(); }
    bool CanUndo() const { return !view.edits.undo.empty(); }
    bool CanRedo() const { return !view.edits.redo.empty(); }
    void AddPorts(std::initializer_list<const char*> names) {
        for (const char* name : names) {
            panel.AddPortByName(name);
        }
    }
    /// All that a person sees of the rows: cells, looks, ids, units, figures.
    struct Sight {
        PortCallTable table;
        SummaryTexts summary;
        std::vector<std::string> units;
        bool operator==(const Sight&) const = default;
    };
    Sight InSight() const {
        const PortCallState& state = panel.Sheet().state;
        return {panel.Sheet().table, state.summary, {state.speedUnit, state.distanceUnit, state.timeUnit}};
    }
    bool HasRoute() { return desk.portCallModule.Pending().IsThere(); }
};

/// A person who does whatever the table takes, chosen by a seed.
class Person {
  public:
    Person(unsigned seed, CPortCallPanelDlg& panel, TestSupport::RecordingMsgSink& messages)
        : dice_(seed), panel_(panel), messages_(messages) {}

    void DoAnything() {
        static constexpr const char* kNames[] = {"ROTTERDAM", "HAMBURG", "GDANSK", "ROUEN"};
        const int row = Throw(panel_.Sheet().table.RowCount());
        switch (Throw(9)) {
            case 0:
            case 1:
                return Type(row, ColPort, CellEditor::Port, kNames[Throw(4)]);
            case 2:
                return Type(row, ColSpeed, CellEditor::Speed, std::to_string(8 + Throw(12)));
            case 3:
                return Type(row, ColWeather, CellEditor::Weather, std::to_string(Throw(40)));
            case 4:
                panel_.Cells().OnCellClicked(row, ColPurpose);
                return panel_.Cells().OnPurposeChosen(Throw(10));
            case 5:
                panel_.Rows().OnItemImage(row, Throw(2) == 0 ? "itemMoveUp" : "itemMovedown");
                return;
            case 6:
                panel_.Rows().OnItemImage(row, "itemdel");
                return;
            case 7:
                panel_.Commands().OnUnitChosen(UnitKind::Distance, Throw(2) == 0 ? "KM" : "NM");
                return;
            default:
                if (panel_.Sheet().state.canCalculate) {
                    panel_.Commands().OnCalculate();
                } else {
                    messages_.Answer(SysMsgHandleRes::Ok);
                    panel_.Commands().OnClear();
                }
        }
    }

  private:
    int Throw(int sides) { return std::uniform_int_distribution<int>(0, sides - 1)(dice_); }
    void Type(int row, int column, CellEditor editor, const std::string& text) {
        panel_.Cells().OnCellClicked(row, column);
        panel_.Cells().OnTyped(editor, text);
        panel_.Cells().CommitEditors();
    }

    std::mt19937 dice_;
    CPortCallPanelDlg& panel_;
    TestSupport::RecordingMsgSink& messages_;
};

}  // namespace

TEST_F(TableUndoTest, EachEditIsTakenBackAndMadeAgain) {
    Open(kept);
    EXPECT_FALSE(CanUndo());
    EXPECT_FALSE(CanRedo());
    const Sight first = InSight();
    Type(1, ColSpeed, "12");
    Type(2, ColWeather, "5");
    EXPECT_TRUE(CanUndo());
    Undo();
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
    EXPECT_EQ(Cell(2, ColWeather), "0%");
    Undo();
    EXPECT_TRUE(InSight() == first);
    EXPECT_FALSE(CanUndo());
    EXPECT_FALSE(view.state.changed) << "this is what is stored";
    Undo();
    EXPECT_TRUE(InSight() == first);
    Redo();
    Redo();
    EXPECT_EQ(Cell(2, ColWeather), "5%");
    EXPECT_TRUE(view.state.changed);
    EXPECT_TRUE(view.state.canSave);
    EXPECT_FALSE(CanRedo());
}

TEST_F(TableUndoTest, TheTextJustTypedIsTheFirstThingTakenBack) {
    Open(kept);
    panel.Cells().OnCellClicked(1, ColSpeed);
    Retype(CellEditor::Speed, "15");
    Undo();
    EXPECT_EQ(Cell(1, ColSpeed), "10.00");
    Redo();
    EXPECT_EQ(Cell(1, ColSpeed), "15.00");
}

TEST_F(TableUndoTest, AClickThatChangesNothingIsNoEdit) {
    Open(fresh);
    panel.Cells().OnCellClicked(5, ColPort);
    panel.Cells().CommitEditors();
    EXPECT_EQ(view.table.RowCount(), 7);
    EXPECT_FALSE(CanUndo()) << "a free row more is no edit";
}

TEST_F(TableUndoTest, AnEditBehindAnUndoEndsWhatCouldBeMadeAgain) {
    Open(kept);
    Type(1, ColSpeed, "12");
    Undo();
    Type(1, ColSpeed, "14");
    EXPECT_FALSE(CanRedo());
    Undo();
    EXPECT_EQ(Cell(1, ColSpeed), "10.00");
}

TEST_F(TableUndoTest, ASaveMarksTheStateAndEndsNothing) {
    Open(kept);
    Type(1, ColSpeed, "12");
    panel.Commands().OnSave();
    ASSERT_FALSE(view.state.changed);
    EXPECT_TRUE(CanUndo());
    Undo();
    EXPECT_EQ(Cell(1, ColSpeed), "10.00");
    EXPECT_TRUE(view.state.changed) << "the server has the other speed";
    Redo();
    EXPECT_FALSE(view.state.changed);
    Undo();
    panel.Commands().OnSave();
    EXPECT_EQ(SavedRows(kept)[1].psp, 10.0F);
    EXPECT_FALSE(view.state.changed);
}

TEST_F(TableUndoTest, ACalculationGoesWithItsRoute) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    const Sight typed = InSight();
    Calculate();
    ASSERT_TRUE(HasRoute());
    const Sight calculated = InSight();
    Undo();
    EXPECT_TRUE(InSight() == typed);
    EXPECT_FALSE(HasRoute());
    Redo();
    EXPECT_TRUE(InSight() == calculated);
    EXPECT_TRUE(HasRoute());
    const long asked = Calculations();
    panel.Commands().OnSave();
    EXPECT_EQ(Calculations(), asked) << "the route is there again";
    EXPECT_EQ(SavedRows(fresh).size(), 2U);
}

TEST_F(TableUndoTest, TheCalculationOfASavedVoyageIsTakenBackToo) {
    Open(kept);
    ASSERT_EQ(panel.Rows().OnItemImage(2, "itemdel"), 0);
    Calculate();
    ASSERT_EQ(SavedRows(kept).size(), 2U) << "it was saved at once";
    EXPECT_FALSE(view.state.changed);
    Undo();
    Undo();
    EXPECT_EQ(Cell(2, ColPort), "GDANSK");
    EXPECT_TRUE(view.state.changed);
    panel.Commands().OnSave();
    EXPECT_EQ(SavedRows(kept).size(), 3U);
}

TEST_F(TableUndoTest, AnotherVoyageBeginsAListOfItsOwn) {
    Open(kept);
    Type(1, ColSpeed, "12");
    messages.Answer(SysMsgHandleRes::No);
    Open(fresh);
    EXPECT_FALSE(CanUndo());
    Undo();
    EXPECT_EQ(Cell(0, ColPort), " ");
    EXPECT_EQ(panel.Sheet().voyageId, fresh);
}

TEST_F(TableUndoTest, ClearingTheTableIsTakenBack) {
    Open(kept);
    const Sight first = InSight();
    messages.Answer(SysMsgHandleRes::Ok);
    panel.Commands().OnClear();
    Undo();
    EXPECT_TRUE(InSight() == first);
}

TEST_F(TableUndoTest, PortsThatArriveInTheDistanceTableAreTakenBackOneByOne) {
    AddPorts({"ROTTERDAM", "HAMBURG", "GDANSK"});
    Undo();
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", " ", " ", " ", " "));
    EXPECT_TRUE(view.state.changed);
    Undo();
    EXPECT_FALSE(view.state.canCalculate);
    EXPECT_TRUE(view.state.distanceTable);
    Redo();
    Redo();
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK", " ", " ", " "));
}

TEST_F(TableUndoTest, AnySequenceOfEditsUndoneGivesTheFirstState) {
    for (unsigned seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const bool table = seed % 3 == 0;
        messages.Answer(SysMsgHandleRes::No);
        if (table) {
            panel.OpenDistanceTable();
        } else {
            Open(seed % 3 == 1 ? fresh : kept);
        }
        ASSERT_FALSE(CanUndo());
        const Sight first = InSight();
        Person person(seed, panel, messages);
        for (int step = 0; step < 30; ++step) {
            person.DoAnything();
        }
        const Sight last = InSight();
        int steps = 0;
        for (; CanUndo() && steps < 100; ++steps) {
            Undo();
        }
        EXPECT_TRUE(InSight() == first);
        EXPECT_GT(steps, 5);
        while (CanRedo()) {
            Redo();
        }
        EXPECT_TRUE(InSight().summary == last.summary);
        for (int row = 0; row < std::min(InSight().table.RowCount(), last.table.RowCount()); ++row) {
            EXPECT_EQ(InSight().table.Rows()[row].cells, last.table.Rows()[row].cells) << row;
        }
    }
}

}  // namespace Tarvik::Seaplan
