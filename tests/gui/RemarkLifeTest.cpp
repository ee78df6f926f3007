// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/gui/Display.h"
#include "tests/gui/Sitting.h"

namespace Tarvik::Programs {

namespace {

constexpr Place kVoyageBehindItsCategory{150, 122};
constexpr Place kConsumptionButton{83, 181};
constexpr Place kRemarkButton{195, 181};

/// A person notes remarks and consumption at the items of a voyage's row.
class RemarkLife : public testing::TestWithParam<std::string> {
  protected:
    void SetUp() override { ASSERT_NE(display_.Name(), ""); }

    void Await(const std::string& sql, long number) const {
        AwaitOrThrow([&] { return client_.Number(sql) == number; }, sql);
    }
    /// Presses an item of the voyage's row and waits until the window that it opens takes the keys.
    std::string Open(const Sitting& sitting, const Place& item, const std::string& title) const {
        person_.PressAt(sitting.voyages, item.x, item.y);
        const std::string window = person_.AwaitWindow(title);
        person_.AwaitKeys(window);
        return window;
    }
    void Close(const std::string& title) const {
        person_.Press({"ctrl+w"});
        person_.AwaitGone(title);
    }

    Display display_{GetParam()};
    Person person_{display_.Name()};
    ClientTree client_;
};

}  // namespace

TEST_P(RemarkLife, ARemarkIsWrittenClosedAndOpenedAgain) {
    constexpr const char* kTitle = "Remarks of Winter";
    Sitting sitting(client_, person_, display_.Name());
    sitting.MakeVoyage();
    sitting.ClickVoyages(kVoyageBehindItsCategory);
    Open(sitting, kRemarkButton, kTitle);
    person_.Type("Draft");
    person_.Press({"Return"});
    person_.Type("11.5 m");
    person_.Press({"ctrl+s"});
    Await("select count(*) from remarks where subject='Draft' and body='11.5 m'", 1);
    Close(kTitle);
    Open(sitting, kRemarkButton, kTitle);
    person_.Press({"Escape"});
    person_.AwaitGone(kTitle);
    const Ended ended = sitting.Leave();
    EXPECT_EQ(ended.exitCode, 0) << ended.err;
}

TEST_P(RemarkLife, ATypedRemarkIsAskedAboutWhenThePanelCloses) {
    constexpr const char* kTitle = "Remarks of Winter";
    Sitting sitting(client_, person_, display_.Name());
    sitting.MakeVoyage();
    sitting.ClickVoyages(kVoyageBehindItsCategory);
    const std::string window = Open(sitting, kRemarkButton, kTitle);
    person_.Type("Draft");
    const std::string typed = person_.Look(window);
    person_.Press({"ctrl+w"});
    person_.LookForChange(window, typed);
    // Whoever types on loses nothing.
    person_.Press({"Return"});
    person_.AwaitGone(kTitle);
    Await("select count(*) from remarks where subject='Draft'", 1);
    EXPECT_EQ(sitting.Leave().exitCode, 0);
}

TEST_P(RemarkLife, ConsumptionIsKeptForAVoyageWithPortCalls) {
    constexpr const char* kTitle = "Consumption - Winter";
    Sitting sitting(client_, person_, display_.Name());
    sitting.MakeVoyage();
    sitting.OpenEmptyPortCalls();
    sitting.TypePorts({"Rotterdam", "Hamburg"});
    person_.Press({"F9", "ctrl+s"});
    Await("select count(*) from port_calls", 2);
    person_.Press({"ctrl+w"});
    person_.AwaitGone("Port calls");
    Open(sitting, kConsumptionButton, kTitle);
    person_.Type("11");
    person_.Press({"Tab"});
    person_.Type("22");
    person_.Press({"ctrl+s"});
    Await("select count(*) from voyages where vfn=11 and vff=22", 1);
    Close(kTitle);
    EXPECT_EQ(sitting.Leave().exitCode, 0);
}

INSTANTIATE_TEST_SUITE_P(Managers, RemarkLife, testing::ValuesIn(Managers()),
                         [](const auto& window) { return ManagerName(window.param); });

}  // namespace Tarvik::Programs
