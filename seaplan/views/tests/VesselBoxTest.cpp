// SPDX-License-Identifier: MIT
#include <QListWidget>
#include <QScrollBar>
#include <string>
#include <vector>

#include <tarvik/bus/SiblingContract.h>
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/SiblingRecords.h>

#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/panels/tree/VesselCommands.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

namespace {

/// A fleet on the bus.
class Vessels final : public Core::TObject {
  public:
    Vessels() {
        event_.Set<&Vessels::OnAll>(this);
        Core::TrvKernel::Instance()->CreateTrvService(kName, this, "", "", nullptr);
        Core::TrvKernel::Instance()->BindTrvService(kName, &event_);
    }
    ~Vessels() override {
        Core::TrvKernel::Instance()->UnBindTrvService(kName, &event_);
        Core::TrvKernel::Instance()->DeleteTrvService(kName, this);
    }
    std::vector<Interface::FleetEntry> all = {{"1", "NORTHERN LIGHT", 211}, {"2", "NORA", 212}};

  private:
    static constexpr const char* kName = Interface::Bus::AllVessels.name;
    void* OnAll(void*) { return &all; }
    Core::TEvent event_;
};

class VesselBoxTest : public ViewsFixture {
  protected:
    Vessels fleet;
    QLineEdit& Box() { return *Find<QLineEdit>(Panel(), "vesselEditor"); }
    QListWidget& List() { return *Find<QListWidget>(Panel(), "vesselList"); }
};

}  // namespace

TEST_F(VesselBoxTest, AVesselIsPickedFromTheList) {
    OpenVoyage("North Sea");
    ClickPart("North Sea", "Voyage_AssignShip");
    ASSERT_TRUE(Box().isVisible());
    EXPECT_FALSE(Box().accessibleName().isEmpty());
    EXPECT_EQ(Box().size(), QSize(120, 25));
    ASSERT_TRUE(List().isVisible());
    EXPECT_EQ(List().size(), QSize(157, 41));
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, List().visualItemRect(List().item(1)).center());
    EXPECT_EQ(desk.Voyage("North Sea").vsn, "NORA");
    EXPECT_FALSE(Box().isVisible());
    EXPECT_FALSE(List().isVisible());
    EXPECT_TRUE(Shows("North Sea", "Voyage_ShipInfo"));
}

TEST_F(VesselBoxTest, AVesselIsTypedAndArrowsWalkTheList) {
    OpenVoyage("North Sea");
    ClickPart("North Sea", "Voyage_AssignShip");
    QTest::keyClicks(&Box(), "nor");
    EXPECT_EQ(List().count(), 2);
    QTest::keyClick(&Box(), Qt::Key_Down);
    QTest::keyClick(&Box(), Qt::Key_Return);
    EXPECT_EQ(desk.Voyage("North Sea").vsn, "NORA");
    ClickPart("North Sea", "Voyage_ReplaceShip");
    Box().selectAll();
    QTest::keyClicks(&Box(), "SEA STAR");
    EXPECT_FALSE(List().isVisible());
    QTest::keyClick(&Box(), Qt::Key_Return);
    EXPECT_EQ(desk.Voyage("North Sea").vsn, "SEA STAR");
    EXPECT_TRUE(Shows("North Sea", "Voyage_Alert"));
}

TEST_F(VesselBoxTest, AListOfManyStandsAtItsTopWithRoomForItsBar) {
    OpenVoyage("North Sea");
    for (const int count : {11, 12, 16}) {
        fleet.all.clear();
        for (int i = 0; i < count; ++i) {
            fleet.all.push_back({std::to_string(i), "SHIP " + std::to_string(i), 300 + i});
        }
        ClickPart("North Sea", "Voyage_AssignShip");
        ASSERT_TRUE(List().isVisible()) << count;
        EXPECT_EQ(List().size(), QSize(157, 203)) << count;
        EXPECT_EQ(List().count(), count);
        EXPECT_EQ(List().item(0)->sizeHint(), QSize(count == 11 ? 152 : 136, 18)) << count;
        EXPECT_EQ(List().currentRow(), 0) << count;
        EXPECT_EQ(List().verticalScrollBar()->value(), 0) << count;
        ClickPart("North Sea", "Voyage_AssignShip");
    }
}

TEST_F(VesselBoxTest, AFleetWithoutVesselsOpensTheBoxAlone) {
    OpenVoyage("North Sea");
    fleet.all.clear();
    ClickPart("North Sea", "Voyage_AssignShip");
    EXPECT_TRUE(Box().isVisible());
    EXPECT_FALSE(List().isVisible());
}

TEST_F(VesselBoxTest, ASecondClickClosesTheBox) {
    OpenVoyage("North Sea");
    ClickPart("North Sea", "Voyage_AssignShip");
    ASSERT_TRUE(Box().isVisible());
    ClickPart("North Sea", "Voyage_AssignShip");
    EXPECT_FALSE(Box().isVisible());
    ClickPart("North Sea", "Voyage_AssignShip");
    EXPECT_TRUE(Box().isVisible());
}

TEST_F(VesselBoxTest, APressInTheBoxHidesItsList) {
    OpenVoyage("North Sea");
    ClickPart("North Sea", "Voyage_AssignShip");
    QTest::keyClicks(&Box(), "nor");
    ASSERT_TRUE(List().isVisible());
    QTest::mouseClick(&Box(), Qt::RightButton);
    EXPECT_TRUE(List().isVisible());
    QTest::mouseClick(&Box(), Qt::LeftButton);
    EXPECT_FALSE(List().isVisible());
    EXPECT_TRUE(Box().isVisible());
    EXPECT_EQ(Box().text(), "nor");
}

TEST_F(VesselBoxTest, APressElsewhereTakesTheTypedName) {
    OpenVoyage("North Sea");
    ClickPart("North Sea", "Voyage_AssignShip");
    QTest::keyClicks(&Box(), "STELLA");
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, QPoint(100, 370));
    EXPECT_FALSE(Box().isVisible());
    QApplication::processEvents();
    EXPECT_EQ(desk.Voyage("North Sea").vsn, "STELLA");
}

TEST_F(VesselBoxTest, OnlyTheLeftButtonTakesTheTypedName) {
    OpenVoyage("North Sea");
    ClickPart("North Sea", "Voyage_AssignShip");
    QTest::keyClicks(&Box(), "STELLA");
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(Tree().viewport(), button, {}, QPoint(100, 370));
        QApplication::processEvents();
        EXPECT_TRUE(Box().isVisible()) << button;
        EXPECT_EQ(desk.Count(Ask::kChangeVessel), 0) << button;
    }
}

// A box inside the press would swallow its release, and the row that was pressed would act behind it.
TEST_F(VesselBoxTest, ARefusedNameIsToldWhenThePressHasBeenDelivered) {
    OpenVoyage("North Sea");
    ClickPart("North Sea", "Voyage_AssignShip");
    QTest::keyClicks(&Box(), "STELLA");
    desk.Refuse(Ask::kChangeVessel);
    const QPoint other = Tree().visualRect(Tree().model()->index(0, 0)).center();
    QTest::mousePress(Tree().viewport(), Qt::LeftButton, {}, other);
    EXPECT_FALSE(Box().isVisible());
    EXPECT_FALSE(List().isVisible());
    EXPECT_EQ(desk.Count(Ask::kChangeVessel), 0);
    EXPECT_NE(Rows().Selected(), RowOf("North Sea")) << "the press has arrived at its row";
    QTest::mouseRelease(Tree().viewport(), Qt::LeftButton, {}, other);
    QApplication::processEvents();
    EXPECT_EQ(desk.Count(Ask::kChangeVessel, "STELLA"), 1);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "Add a vessel failed!");
}

TEST_F(VesselBoxTest, TheNameGoesToTheRowThatTheBoxStoodOverWhateverIsPressedNext) {
    OpenVoyage("North Sea");
    ClickPart("North Sea", "Voyage_AssignShip");
    QTest::keyClicks(&Box(), "STELLA");
    const std::string before = desk.Voyage("Baltic feeder").vsn;
    // Click and command before the event loop turns, as with a slow machine.
    QTest::mousePress(Tree().viewport(), Qt::LeftButton, {}, QPoint(100, 370));
    views.Tree().OnItemClicked(RowOf("Baltic feeder"), "Voyage.child.svr10");
    QApplication::processEvents();
    EXPECT_EQ(desk.Voyage("North Sea").vsn, "STELLA");
    EXPECT_EQ(desk.Voyage("Baltic feeder").vsn, before);
}

}  // namespace Tarvik::Seaplan
