// SPDX-License-Identifier: MIT
// The consumption tells whose figures it shows.
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/panels/tree/TreeKeys.h"
#include "seaplan/views/bunker/BunkerWindow.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

namespace {

class FiguresTitleTest : public ViewsFixture {
  protected:
    void Open() {
        OpenVoyage("Far East 12");
        ClickPart("Far East 12", "Voyage.child.svr5");
        ASSERT_NE(views.FiguresWindow(), nullptr);
        ASSERT_EQ(Title(), "Consumption - Far East 12");
    }
    QString Title() { return views.FiguresWindow()->windowTitle(); }
};

}  // namespace

TEST_F(FiguresTitleTest, ARenamedVoyageHasItsNewNameInIt) {
    Open();
    ClickPart("Far East 12", "Voyage_child_rename");
    auto* name = Find<QLineEdit>(Panel(), "renameEditor");
    name->selectAll();
    QTest::keyClicks(name, "Far East 13");
    QTest::keyClick(name, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(Title(), "Consumption - Far East 13");
    views.Tree().Keys().Undo();
    EXPECT_EQ(Title(), "Consumption - Far East 12");
}

TEST_F(FiguresTitleTest, ADestroyedVoyageHasNoName) {
    Open();
    views.Tree().SetShowDeleted(true);
    ClickRow("Container 2024");
    ClickRow("Far East 12");
    ClickPart("Far East 12", "Voyage.child.svr9");
    EXPECT_EQ(Title(), "Consumption - Far East 12") << "it can be recovered";
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    ClickPart("Far East 12", "Voyage.child.svr.clear");
    EXPECT_EQ(Title(), "Consumption");
}

}  // namespace Tarvik::Seaplan
