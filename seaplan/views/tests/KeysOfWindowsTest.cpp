// SPDX-License-Identifier: MIT
/// Keys that belong to the port calls while another window has the keyboard.
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/portcall/PortCallSheet.h"
#include "seaplan/views/tests/PortCallWindowFixture.h"
#include "seaplan/views/tree/VoyageTreeView.h"

namespace Tarvik::Seaplan {

namespace {

class KeysOfWindowsTest : public PortCallWindowTest {
  protected:
    void SetUp() override {
        OpenPortCalls("Far East 12");
        Table().setFocus();
        Table().setCurrentIndex(Table().model()->index(1, ColSpeed));
        QTest::keyClick(&Table(), Qt::Key_F2);
        ASSERT_TRUE(SpeedEditor().isVisible());
        QTest::keyClicks(&SpeedEditor(), "17");
    }
    bool Changed() { return views.PortCalls().Sheet().state.changed; }
};

TEST_F(KeysOfWindowsTest, CtrlSInTheTreeSavesWhatIsTypedInThePortCalls) {
    QTest::keyClick(&Tree(), Qt::Key_S, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_FALSE(SpeedEditor().isVisible());
    EXPECT_EQ(Cell(1, ColSpeed), "17.00");
    EXPECT_FALSE(Changed());
}

}  // namespace

}  // namespace Tarvik::Seaplan
