// SPDX-License-Identifier: MIT
// The windows over the bus and the server itself.
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <algorithm>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/SiblingContract.h>

#include "host/plugins/fleet/tests/FleetServer.h"
#include "host/plugins/fleet/window/FleetDesk.h"
#include "host/plugins/fleet/window/FleetWindow.h"
#include "testsupport/DataFolder.h"
#include "testsupport/HelpAsked.h"
#include "testsupport/PluginTexts.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Fleet {

namespace {

namespace Bus = Interface::Bus;

class FleetDeskTest : public testing::Test {
  protected:
    static QWidget* Window(const char* name) {
        const auto windows = QApplication::topLevelWidgets();
        const auto found = std::find_if(windows.begin(), windows.end(),
                                        [name](const QWidget* w) { return w->objectName() == name; });
        return found == windows.end() ? nullptr : *found;
    }
    template <class Kind>
    static Kind& Part(const char* window, const char* name) {
        auto* part = Window(window)->findChild<Kind*>(name);
        EXPECT_NE(part, nullptr) << name;
        return *part;
    }
    static void Toggle() {
        const Interface::PanelShow show{Interface::PanelCode::kFleet, 0};
        Interface::Raise(Bus::ShowPanel, &show);
    }
    static void Press(const char* name) { Part<QPushButton>("fleetPanel", name).click(); }
    static QTableWidget& Table() { return Part<QTableWidget>("fleetPanel", "fleetTable"); }
    static QString Note() { return Part<QLabel>("fleetPanel", "fleetNote").text(); }
    static QWidget& Form() { return *Window("fleetVesselForm"); }
    static void Type(const char* field, const char* text) {
        auto& line = Part<QLineEdit>("fleetVesselForm", field);
        line.setFocus();
        line.selectAll();
        QTest::keyClicks(&line, text);
    }
    static QString Fault() { return Part<QLabel>("fleetVesselForm", "fleetFault").text(); }
    static void Save() { Part<QPushButton>("fleetVesselForm", "fleetSave").click(); }
    void AddByHand(const char* name) {
        Press("fleetAdd");
        Type("fleetName", name);
        Save();
    }
    TestSupport::PluginTexts texts{LANGUAGES "/fleet.en-US.json"};
    TestSupport::RecordingMsgSink sink;
    FleetServer server;
    FleetDesk desk;
};

TEST_F(FleetDeskTest, AnEmptyListTellsWhatToDoFirst) {
    Toggle();
    EXPECT_TRUE(Window("fleetPanel")->isVisible());
    EXPECT_EQ(Note(), "No vessels yet. Add one, or import a CSV file.");
    EXPECT_FALSE(Part<QPushButton>("fleetPanel", "fleetChange").isEnabled());
    Toggle();
    EXPECT_FALSE(Window("fleetPanel")->isVisible());
}

TEST_F(FleetDeskTest, F1OpensItsPageOfTheGuide) {
    const TestSupport::HelpAsked asked;
    QWidget mainWindow;
    mainWindow.show();
    FleetWindow window(&mainWindow, {});
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(window.findChild<QTableWidget*>("fleetTable"), Qt::Key_F1);
    EXPECT_TRUE(QTest::qWaitFor([&asked] { return asked.topic == "fleet"; })) << asked.topic;
    EXPECT_EQ(window.findChild<QAbstractButton*>("helpButton")->toolTip(), "Help (F1)");
}

TEST_F(FleetDeskTest, AVesselIsAddedChangedAndRemoved) {
    Toggle();
    AddByHand("Far Star");
    EXPECT_FALSE(Form().isVisible());
    ASSERT_EQ(Table().rowCount(), 1);
    Table().selectRow(0);
    Press("fleetChange");
    EXPECT_EQ(Form().accessibleName(), "Change a vessel");
    Type("fleetImo", "9074729");
    QTest::keyClick(&Part<QLineEdit>("fleetVesselForm", "fleetImo"), Qt::Key_Return);
    EXPECT_EQ(Table().item(0, 2)->text(), "9074729");
    EXPECT_EQ(Interface::Call(Bus::AllVessels)->front().name, "Far Star");
    const std::string id = Interface::Call(Bus::AllVessels)->front().id;
    EXPECT_EQ(Interface::Call(Bus::VesselDetails, &id)->imo, 9074729);
    sink.Answer(Interface::SysMsgHandleRes::No);
    Press("fleetRemove");
    EXPECT_EQ(Table().rowCount(), 1);
    sink.Answer(Interface::SysMsgHandleRes::Yes);
    Press("fleetRemove");
    EXPECT_EQ(Table().rowCount(), 0);
    EXPECT_TRUE(Interface::Call(Bus::AllVessels)->empty());
}

TEST_F(FleetDeskTest, AFaultIsToldBelowTheFieldsAndNothingIsSent) {
    Toggle();
    Press("fleetAdd");
    Type("fleetName", "Far Star");
    Type("fleetImo", "9074728");
    server.host.requests.clear();
    Save();
    EXPECT_TRUE(Form().isVisible());
    EXPECT_EQ(Fault(), "The last digit of the IMO number does not fit the others: one of them is wrong.");
    EXPECT_TRUE(Part<QLineEdit>("fleetVesselForm", "fleetImo").hasSelectedText());
    EXPECT_TRUE(server.host.requests.empty());
    Type("fleetImo", "9074729");
    EXPECT_EQ(Fault(), "") << "typing takes it away";
    server.host.server = nullptr;
    Save();
    EXPECT_EQ(Fault(), "The voyage server does not answer, nothing was saved. Try again later.");
    EXPECT_TRUE(Form().isVisible());
}

TEST_F(FleetDeskTest, AnotherVesselComesIntoTheFormWhenWhatWasTypedMayGo) {
    Toggle();
    Press("fleetAdd");
    Type("fleetName", "Far Star");
    sink.Answer(Interface::SysMsgHandleRes::No);
    Press("fleetAdd");
    EXPECT_EQ(Part<QLineEdit>("fleetVesselForm", "fleetName").text(), "Far Star");
    EXPECT_EQ(sink.messages.size(), 1U);
    sink.Answer(Interface::SysMsgHandleRes::Yes);
    Press("fleetAdd");
    EXPECT_EQ(Part<QLineEdit>("fleetVesselForm", "fleetName").text(), "");
    Press("fleetAdd");
    EXPECT_EQ(sink.messages.size(), 2U) << "nothing was typed";
}

TEST_F(FleetDeskTest, ANumberThatTheFleetHasAlreadyIsAskedAbout) {
    Toggle();
    for (const char* name : {"Far Star", "Near Star"}) {
        Press("fleetAdd");
        Type("fleetName", name);
        Type("fleetImo", "9074729");
        if (Table().rowCount() > 0) {
            sink.Answer(Interface::SysMsgHandleRes::No);
        }
        Save();
    }
    EXPECT_EQ(Fault(), "Not saved: Far Star of the fleet has this MMSI or IMO number.");
    EXPECT_EQ(Table().rowCount(), 1);
    sink.Answer(Interface::SysMsgHandleRes::Yes);
    Save();
    EXPECT_EQ(Table().rowCount(), 2);
}

TEST_F(FleetDeskTest, TheWindowForAVesselOfAVoyageIsFilledAndNotShown) {
    const Interface::FleetEntry entry{"", "Typed Star", 0};
    void* const* handle = Interface::Call(Bus::ShowAddVessel, &entry);
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(static_cast<QWidget*>(*handle), &Form());
    EXPECT_FALSE(Form().isVisible());
    EXPECT_EQ(Part<QLineEdit>("fleetVesselForm", "fleetName").text(), "Typed Star");
    Form().show();
    Save();
    EXPECT_EQ(Interface::Call(Bus::AllVessels)->front().name, "Typed Star");
}

TEST_F(FleetDeskTest, WhatWasTypedIsNotLostWithoutAQuestion) {
    Toggle();
    Press("fleetAdd");
    Type("fleetName", "Far");
    sink.Answer(Interface::SysMsgHandleRes::No);
    QTest::keyClick(&Form(), Qt::Key_Escape);
    EXPECT_TRUE(Form().isVisible());
    sink.Answer(Interface::SysMsgHandleRes::Yes);
    QTest::keyClick(&Form(), Qt::Key_Escape);
    EXPECT_FALSE(Form().isVisible());
    Press("fleetAdd");
    QTest::keyClick(&Form(), Qt::Key_Escape);
    EXPECT_FALSE(Form().isVisible()) << "nothing typed, nothing asked";
}

TEST_F(FleetDeskTest, AFileIsImportedAndItsFaultsAreTold) {
    const TestSupport::DataFolder folder;
    const std::string file = (folder.Path() / "fleet.csv").string();
    std::ofstream(file) << "name,imo\nFar Star,9074729\nBad Star,9074728\n";
    Toggle();
    desk.Import(file);
    EXPECT_EQ(Table().rowCount(), 1);
    EXPECT_EQ(
        Note(),
        "1 vessels added, 0 changed, 0 as before.\nLine 3 was left out. The last digit of the IMO number "
        "does not fit the others: one of them is wrong.");
    desk.Import((folder.Path() / "none.csv").string());
    EXPECT_TRUE(Note().endsWith("cannot be read.")) << Note().toStdString();
    std::ofstream(file) << "ship\nFar Star\n";
    desk.Import(file);
    EXPECT_EQ(Note(), "The first line of the file must name the columns, \"name\" among them.");
}

TEST_F(FleetDeskTest, ALogoutEmptiesAndClosesEverything) {
    Toggle();
    AddByHand("Far Star");
    Press("fleetAdd");
    Interface::Raise(Bus::Logout);
    EXPECT_FALSE(Window("fleetPanel")->isVisible());
    EXPECT_FALSE(Form().isVisible());
    EXPECT_EQ(Table().rowCount(), 0);
}

}  // namespace
}  // namespace Tarvik::Fleet
