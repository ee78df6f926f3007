// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/gui/Display.h"
#include "tests/gui/Picture.h"
#include "tests/gui/Sitting.h"

namespace Tarvik::Programs {

namespace {

constexpr Place kVoyageBehindItsCategory{150, 122};
constexpr Place kCategory{100, 61};
constexpr Place kPortCallsButton{55, 181};

/// The second row of the port call table from its number to the hours in port.
std::string SecondRow(const std::string& portCalls) {
    return Cut(portCalls, 10, 94, 400, 19);
}

/// A voyage by hand, from its making to the next start.
class VoyageLife : public testing::TestWithParam<std::string> {
  protected:
    void SetUp() override { ASSERT_NE(display_.Name(), ""); }

    /// Waits until a query of the data base answers the number.
    void Await(const std::string& sql, long number) const {
        AwaitOrThrow([&] { return client_.Number(sql) == number; }, sql);
    }
    /// Types two ports, calculates and saves.
    void PlanAndSave(const Sitting& sitting) const {
        sitting.TypePorts({"Rotterdam", "Hamburg"});
        person_.Press({"F9", "ctrl+s"});
        Await("select count(*) from port_calls", 2);
        Await("select count(*) > 2 from book_rows", 1);
    }

    Display display_{GetParam()};
    Person person_{display_.Name()};
    ClientTree client_;
};

TEST_P(VoyageLife, AVoyageMadeByHandIsThereAfterARestart) {
    std::string shown;
    {
        Sitting sitting(client_, person_, display_.Name());
        sitting.MakeVoyage();
        sitting.OpenEmptyPortCalls();
        const std::string empty = person_.Look(sitting.portCalls);
        PlanAndSave(sitting);
        person_.Press({"ctrl+w"});
        person_.AwaitGone("Port calls");
        sitting.OpenPortCalls(kPortCallsButton);
        shown = person_.LookForChange(sitting.portCalls, empty);
        ASSERT_NE(SecondRow(empty), "");
        ASSERT_NE(SecondRow(shown), SecondRow(empty));
        const Ended ended = sitting.Leave();
        EXPECT_EQ(ended.exitCode, 0) << ended.err;
    }
    Sitting again(client_, person_, display_.Name());
    again.OpenVoyages();
    again.ClickVoyages(kCategory);
    again.ClickVoyages(kVoyageBehindItsCategory);
    again.OpenPortCalls(kPortCallsButton);
    std::string found;
    const auto asBefore = [&] {
        found = person_.Look(again.portCalls);
        return SecondRow(found) == SecondRow(shown);
    };
    EXPECT_TRUE(Eventually(asBefore)) << "the port calls do not look as they did before the restart";
    if (HasFailure()) {
        Keep("before.ppm", shown);
        Keep("after.ppm", found);
    }
    EXPECT_EQ(again.Leave().exitCode, 0);
}

TEST_P(VoyageLife, LeavingWithUnsavedPortCallsAsksFirstAndCanBeTakenBack) {
    Sitting sitting(client_, person_, display_.Name());
    sitting.MakeVoyage();
    sitting.OpenEmptyPortCalls();
    sitting.TypePorts({"Rotterdam", "Hamburg"});
    const std::string typed = person_.Look(sitting.portCalls);
    person_.Press({"F9"});
    person_.LookForChange(sitting.portCalls, typed);
    sitting.AskToLeave();
    // The question has the main window's title.
    person_.AwaitWindows("Seaplan", 2);
    person_.Press({"Escape"});
    person_.AwaitWindows("Seaplan", 1);
    person_.Click(sitting.portCalls, 300, 12);
    person_.Press({"ctrl+s"});
    Await("select count(*) from port_calls", 2);
    const Ended ended = sitting.Leave();
    EXPECT_EQ(ended.exitCode, 0) << ended.err;
}

TEST_P(VoyageLife, APanelThatWasAskedForTakesTheKeys) {
    Sitting sitting(client_, person_, display_.Name());
    sitting.MakeVoyage();
    sitting.OpenEmptyPortCalls();
    person_.AwaitKeys(sitting.portCalls);
    const std::string empty = person_.Look(sitting.portCalls);
    person_.Press({"F2"});
    person_.Type("Rotterdam");
    person_.Press({"Return"});
    EXPECT_NE(person_.LookForChange(sitting.portCalls, empty), empty);
    EXPECT_EQ(client_.Number("select count(*) from voyages where vn='Winter'"), 1);
    EXPECT_EQ(client_.Number("select count(*) from categories where cn='Tankers'"), 1);
}

TEST_P(VoyageLife, ANameIsCutAndPastedByTheMouseMenuOfItsEditor) {
    // Undo, redo, cut, copy, paste, delete and select all, in three groups.
    constexpr double kCut = 0.37;
    constexpr double kPaste = 0.64;
    constexpr Place kEditor{130, 58};
    Sitting sitting(client_, person_, display_.Name());
    sitting.OpenVoyages();
    Await("select count(*) from categories", 1);
    sitting.ClickVoyages(kEditor);
    person_.Press({"ctrl+a"});
    person_.Type("Bulkers");
    person_.Press({"ctrl+a"});
    const std::string typed = person_.Look(sitting.voyages);
    person_.ChooseInMenu(sitting.voyages, kEditor.x, kEditor.y, kCut);
    person_.LookForChange(sitting.voyages, typed);
    person_.Type("Our ");
    person_.ChooseInMenu(sitting.voyages, kEditor.x, kEditor.y, kPaste);
    person_.Type(" and more");
    EXPECT_EQ(client_.Number("select count(*) from categories where cn like '%Bulkers%'"), 0)
        << "the menu took the name before it was whole";
    person_.Press({"Return"});
    Await("select count(*) from categories where cn='Our Bulkers and more'", 1);
    EXPECT_EQ(sitting.Leave().exitCode, 0);
}

TEST_P(VoyageLife, F1HelpsWithTheWindowThatHasTheKeys) {
    Sitting sitting(client_, person_, display_.Name());
    person_.Press({"F1"});
    std::string help = person_.AwaitWindow("Help");
    person_.AwaitKeys(help);
    const std::string general = person_.Look(help);
    person_.Press({"Escape"});
    person_.AwaitGone("Help");
    sitting.MakeVoyage();
    sitting.OpenEmptyPortCalls();
    person_.AwaitKeys(sitting.portCalls);
    person_.Press({"F1"});
    help = person_.AwaitWindow("Help");
    person_.AwaitKeys(help);
    EXPECT_NE(person_.Look(help), general);
    person_.Press({"Escape"});
    person_.AwaitGone("Help");
}

TEST_P(VoyageLife, F6GoesFromWindowToWindow) {
    Sitting sitting(client_, person_, display_.Name());
    sitting.MakeVoyage();
    sitting.OpenEmptyPortCalls();
    person_.AwaitKeys(sitting.portCalls);
    person_.Press({"F6"});
    person_.AwaitKeys(sitting.main);
    person_.Press({"shift+F6"});
    person_.AwaitKeys(sitting.portCalls);
    person_.Press({"shift+F6"});
    person_.AwaitKeys(sitting.voyages);
}

INSTANTIATE_TEST_SUITE_P(Managers, VoyageLife, testing::ValuesIn(Managers()),
                         [](const auto& window) { return ManagerName(window.param); });

}  // namespace
}  // namespace Tarvik::Programs
