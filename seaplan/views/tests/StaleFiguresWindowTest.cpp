// SPDX-License-Identifier: MIT
#include <QLabel>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/skin/Palette.h>

#include "seaplan/panels/portcall/PortCallTable.h"
#include "seaplan/views/bunker/BunkerWindow.h"
#include "seaplan/views/tests/PortCallWindowFixture.h"

/// What the window shows of figures that belong to other ports.
namespace Tarvik::Seaplan {

namespace {

class StaleFiguresWindowTest : public PortCallWindowTest {
  protected:
    void TypePort(int row, const char* name) {
        ClickCell(row, ColPort);
        ASSERT_TRUE(PortEditor().isVisible());
        PortEditor().selectAll();
        QTest::keyClicks(&PortEditor(), name);
        QTest::keyClick(&PortEditor(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QApplication::processEvents();
    }
    QModelIndex At(int row, int column) { return Table().model()->index(row, column); }
    bool IsStale(int row, int column) {
        return static_cast<const TableModel*>(Table().model())->CellAt(At(row, column)).ink ==
               Skin::Role::Warning;
    }
    QColor SummaryColour() {
        auto* value = Find<QLabel>(PortCalls(), "totalDistance");
        value->ensurePolished();
        return value->palette().color(QPalette::WindowText);
    }
};

TEST_F(StaleFiguresWindowTest, FiguresOfOtherPortsStandInTheWarningColourWithTheReason) {
    OpenPortCalls("Far East 12");
    ASSERT_FALSE(IsStale(1, ColEta));
    ASSERT_EQ(SummaryColour(), Skin::Colour(Skin::Role::Text));
    TypePort(1, "HAMBURG");
    ASSERT_EQ(Cell(1, ColPort), "HAMBURG");
    for (const int column : {ColSteamTime, ColEta, ColEtd, ColDistance}) {
        EXPECT_TRUE(IsStale(1, column)) << column;
        EXPECT_TRUE(At(1, column).data(Qt::ToolTipRole).toString().contains("calculate")) << column;
        EXPECT_TRUE(At(1, column).data(Qt::AccessibleTextRole).toString().contains("calculate"));
        EXPECT_FALSE(IsStale(0, column)) << column;
    }
    for (const int column : {ColOrder, ColPort, ColPurpose, ColSpeed, ColWeather, ColPortTime}) {
        EXPECT_FALSE(IsStale(1, column)) << "nobody has to calculate what was entered: " << column;
    }
    EXPECT_EQ(SummaryColour(), Skin::Colour(Skin::Role::Warning));
    EXPECT_TRUE(Find<QLabel>(PortCalls(), "totalDistance")->toolTip().contains("calculate"));
}

TEST_F(StaleFiguresWindowTest, TheCaptionNamesTheVoyageInAnyLanguage) {
    OpenPortCalls("Far East 12");
    const auto* caption = Find<QLabel>(PortCalls(), "captionLabel");
    EXPECT_EQ(caption->text(), "Port calls - Far East 12");
    EXPECT_EQ(PortCalls().windowTitle(), "Port calls");
    const FileTexts chinese(std::string(SEAPLAN_LANG_DIR) + "/seaplan.zh-CN.json");
    Interface::Raise(Interface::Bus::SwitchLanguage);
    EXPECT_TRUE(caption->text().endsWith(" - Far East 12"));
    EXPECT_FALSE(caption->text().startsWith("Port calls"));
}

TEST_F(StaleFiguresWindowTest, AnImageBelowABlankRowTellsToFillIt) {
    PortCallTable table;
    table.SetPort(0, "ROTTERDAM", "1");
    table.SetPort(2, "HAMBURG", "2");
    const PortCallLines lines(table);
    for (const char* image : {PortCallImage::kMoveUp, PortCallImage::kMoveDown, PortCallImage::kDelete}) {
        EXPECT_TRUE(lines.ImageTipAt(2, image).contains("blank row")) << image;
    }
    EXPECT_FALSE(lines.ImageTipAt(2, PortCallImage::kRemark).contains("blank row"));
}

}  // namespace

}  // namespace Tarvik::Seaplan
