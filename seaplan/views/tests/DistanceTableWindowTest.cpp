// SPDX-License-Identifier: MIT
/// The port distance table and its dialog, driven as a person does it.
#include <QLabel>
#include <QListWidget>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/VoyageContract.h>

#include "seaplan/views/distances/KeepTableWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"

namespace Tarvik::Seaplan {

namespace {

class DistanceTableWindowTest : public ViewsFixture {
  protected:
    static void OpenTable() {
        const Interface::PanelShow show{Interface::PanelCode::kDistances, 0};
        Interface::Raise(Interface::Bus::ShowPanel, &show);
        QApplication::processEvents();
    }
    static void SendPorts(std::initializer_list<const char*> names) {
        for (const char* name : names) {
            const std::string port = name;
            Interface::Call(Interface::Bus::AddPortName, &port);
        }
    }
    KeepTableWindow& Dialog() { return *views.KeepWindow(); }
    QLineEdit& Field(const char* name) { return *Find<QLineEdit>(Dialog(), name); }
    QListWidget& List() { return *Find<QListWidget>(Dialog(), "categoryList"); }
    void Key(QWidget& widget, Qt::Key key) {
        QTest::keyClick(&widget, key);
        QApplication::processEvents();
    }
};

}  // namespace

TEST_F(DistanceTableWindowTest, TheTableIsKeptByTheKeyboardAlone) {
    Toggle();
    OpenTable();
    SendPorts({"ROTTERDAM", "SINGAPORE"});
    ASSERT_TRUE(PortCalls().isVisible());
    EXPECT_EQ(Find<QLabel>(PortCalls(), "captionLabel")->text(), "Port distances");
    Press(PortCalls(), "saveButton");
    ASSERT_TRUE(Dialog().isVisible());
    EXPECT_TRUE(Field("categoryField").hasFocus());
    QTest::keyClicks(&Field("categoryField"), "Cont");
    EXPECT_TRUE(List().isVisible());
    EXPECT_TRUE(Field("categoryField").hasFocus()) << "the names leave the keyboard where it is";
    Key(Field("categoryField"), Qt::Key_Down);
    EXPECT_EQ(List().currentRow(), 0);
    Key(List(), Qt::Key_Return);
    EXPECT_EQ(Field("categoryField").text(), "Container 2024");
    EXPECT_EQ(Field("categoryField").selectedText(), "Container 2024");
    EXPECT_FALSE(List().isVisible());
    Key(Field("categoryField"), Qt::Key_Tab);
    EXPECT_TRUE(Field("voyageField").hasFocus());
    EXPECT_EQ(Field("voyageField").text(), "New voyage - 0");
    Key(Field("voyageField"), Qt::Key_Return);
    EXPECT_FALSE(Dialog().isVisible());
    EXPECT_EQ(desk.Voyage("New voyage - 0").portCalls.size(), 2U);
}

TEST_F(DistanceTableWindowTest, TheUndoButtonTellsWhatItWouldTakeBack) {
    OpenTable();
    SendPorts({"ROTTERDAM", "SINGAPORE"});
    auto* undo = Find<QAbstractButton>(PortCalls(), "undoButton");
    EXPECT_EQ(undo->toolTip(), "Undo port of row 2 (Ctrl+Z)");
    EXPECT_EQ(undo->accessibleName(), "Undo port of row 2");
    QTest::keyClick(&PortCalls(), Qt::Key_Z, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_EQ(undo->toolTip(), "Undo port of row 1 (Ctrl+Z)");
    EXPECT_EQ(Find<QAbstractButton>(PortCalls(), "redoButton")->toolTip(), "Redo port of row 2 (Ctrl+Y)");
    QTest::keyClick(&PortCalls(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QApplication::processEvents();
    EXPECT_EQ(undo->toolTip(), "Undo port of row 2 (Ctrl+Z)");
}

TEST_F(DistanceTableWindowTest, TheArrowShowsAllNamesAndAPressElsewhereHidesThem) {
    OpenTable();
    SendPorts({"ROTTERDAM", "SINGAPORE"});
    Press(PortCalls(), "saveButton");
    Press(Dialog(), "categoryArrow");
    EXPECT_TRUE(List().isVisible());
    EXPECT_GT(List().count(), 1);
    EXPECT_EQ(List().height(), std::min(List().count(), 6) * 23);
    QTest::mouseClick(&Field("voyageField"), Qt::LeftButton);
    EXPECT_FALSE(List().isVisible());
    Key(Field("voyageField"), Qt::Key_Escape);
    EXPECT_FALSE(Dialog().isVisible());
    EXPECT_TRUE(PortCalls().isVisible());
}

}  // namespace Tarvik::Seaplan
