// SPDX-License-Identifier: MIT
// The windows for own ports over a session and its server.
#include <tarvik/bus/Binding.h>
#include <tarvik/bus/PlacesContract.h>

#include "host/client/places/tests/OwnPortFixture.h"
#include "host/client/services/RequestBlock.h"
#include "testsupport/HelpAsked.h"

namespace Tarvik::Client {

namespace {

namespace Bus = Interface::Bus;

class OwnPortDeskTest : public OwnPortFixture {
  protected:
    /// What the key of a button does; the window system has no keyboard here.
    void PressKey(const char* button, const char* key) {
        EXPECT_EQ(Part<QPushButton>(button).shortcut().toString(), key);
        Press(button);
    }
    /// As from another computer: the server alone knows.
    static void RemoveElsewhere(const std::string& id) {
        const RequestBlock request(Interface::NumberOf(Interface::VoyCommand::ChangePlace),
                                   Interface::kVoyageModuleWord, R"({"type":"2","ppi":")" + id + "\"}");
        Interface::VoyServerRequest* reply = Interface::Call(Bus::ServerExchange, &*request);
        ASSERT_NE(reply, nullptr);
        Core::FreeBusBlock(reply);
    }
};

TEST_F(OwnPortDeskTest, AnEmptyListTellsWhatToDoFirst) {
    Toggle();
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(Note(), "No ports of your own yet. Add one, or right-click its place on the chart.");
    EXPECT_FALSE(Part<QPushButton>("ownPortChange").isEnabled());
    EXPECT_FALSE(Part<QPushButton>("ownPortRemove").isEnabled());
    Toggle();
    EXPECT_FALSE(Window().isVisible());
}

TEST_F(OwnPortDeskTest, F1OpensItsPageOfTheGuide) {
    const TestSupport::HelpAsked asked;
    Toggle();
    Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    QTest::keyClick(&Table(), Qt::Key_F1);
    EXPECT_TRUE(QTest::qWaitFor([&asked] { return asked.topic == "ports"; })) << asked.topic;
    EXPECT_EQ(Part<QAbstractButton>("helpButton").toolTip(), "Help (F1)");
}

TEST_F(OwnPortDeskTest, APortIsAddedChangedAndRemovedByTheKeyboard) {
    Toggle();
    PressKey("ownPortAdd", "Ctrl+N");
    ASSERT_TRUE(Form().isVisible());
    EXPECT_EQ(Form().accessibleName(), "Add a port");
    Type("ownPortName", "Berth 7");
    Type("ownPortPlace", "51 58.8N 4 3E");
    EXPECT_EQ(Understood(), QString::fromUtf8("Understood: 51° 58.80' N 004° 03.00' E"));
    QTest::keyClick(&Part<QLineEdit>("ownPortPlace"), Qt::Key_Return);
    EXPECT_FALSE(Form().isVisible()) << Fault().toStdString();
    ASSERT_EQ(Table().rowCount(), 1);
    EXPECT_EQ(Table().item(0, 0)->text(), "Berth 7");
    EXPECT_EQ(Table().item(0, 1)->text(), QString::fromUtf8("51° 58.80' N 004° 03.00' E"));
    const std::string id = IdOf("Berth 7");
    EXPECT_NE(id, "");
    EXPECT_TRUE(Part<QPushButton>("ownPortChange").isEnabled()) << "what was added is selected";
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    Table().setFocus();
    QTest::keyClick(&Table(), Qt::Key_Return);
    EXPECT_EQ(Form().accessibleName(), "Change a port");
    Type("ownPortName", "Berth 9");
    QTest::keyClick(&Form(), Qt::Key_Enter);
    EXPECT_EQ(Table().item(0, 0)->text(), "Berth 9");
    EXPECT_EQ(IdOf("Berth 9"), id) << "voyages keep their calls at it";
    EXPECT_EQ(IdOf("Berth 7"), "");
    EXPECT_EQ(Part<QPushButton>("ownPortChange").shortcut().toString(), "F2");
    sink_.Answer(Interface::SysMsgHandleRes::No);
    PressKey("ownPortRemove", "Del");
    EXPECT_EQ(Table().rowCount(), 1);
    sink_.Answer(Interface::SysMsgHandleRes::Yes);
    PressKey("ownPortRemove", "Del");
    EXPECT_EQ(Table().rowCount(), 0);
    EXPECT_EQ(sink_.messages.size(), 2U);
    EXPECT_EQ(IdOf("Berth 9"), "");
}

TEST_F(OwnPortDeskTest, RemovalIsAskedForWithItsOwnButtonsAndACarefulDefault) {
    for (const char* key : {"REMOVE_PORT", "DROP_PORT"}) {
        const QuestionButtons buttons = session_->Texts().ButtonsOf(session_->Texts().Text("OwnPorts", key));
        EXPECT_NE(buttons.yes, "") << key;
        EXPECT_EQ(buttons.no, "Go back") << key;
        EXPECT_FALSE(buttons.yesIsCareful) << key;
    }
}

TEST_F(OwnPortDeskTest, AFaultIsToldBelowTheFieldAndNothingIsSent) {
    Toggle();
    Add("Singapore", "51 58.8N 4 3E");
    EXPECT_TRUE(Form().isVisible());
    EXPECT_EQ(Fault(), "Seaplan has a port of this name already. Choose another name.");
    EXPECT_EQ(Part<QLineEdit>("ownPortName").selectedText(), "Singapore");
    Type("ownPortName", "Berth 7");
    EXPECT_EQ(Fault(), "") << "typing takes it away";
    Type("ownPortPlace", "nowhere");
    Press("ownPortSave");
    EXPECT_EQ(Fault(), "This position cannot be read. Type latitude and longitude, as 51 54.5N 4 29E.");
    EXPECT_EQ(Part<QLineEdit>("ownPortPlace").selectedText(), "nowhere");
    EXPECT_TRUE(session_->OwnPorts().All().empty());
    EXPECT_EQ(Table().rowCount(), 0);
}

TEST_F(OwnPortDeskTest, APortThatIsGoneMeanwhileIsTold) {
    Toggle();
    Add("Berth 7", "51 58.8N 4 3E");
    Table().selectRow(0);
    Press("ownPortChange");
    Type("ownPortName", "Berth 9");
    const Ports::Place port = session_->OwnPorts().All().front();
    ASSERT_EQ(session_->OwnPorts().Change(session_->Link(), PortOperation::Remove, port), PortOutcome::Done);
    Press("ownPortSave");
    EXPECT_TRUE(Form().isVisible());
    EXPECT_EQ(Fault(), "This port was removed meanwhile. Add it anew to keep it.");
    EXPECT_EQ(Table().rowCount(), 0);
}

TEST_F(OwnPortDeskTest, WhatWasTypedIsNotLostWithoutAQuestion) {
    const Interface::OwnPortPlace at{4.05, 51.98};
    Interface::Call(Bus::AddOwnPort, &at);
    ASSERT_TRUE(Form().isVisible());
    EXPECT_EQ(Part<QLineEdit>("ownPortPlace").text(), QString::fromUtf8("51° 58.80' N 004° 03.00' E"));
    Type("ownPortName", "Berth 7");
    sink_.Answer(Interface::SysMsgHandleRes::No);
    const Interface::OwnPortPlace other{10, 20};
    Interface::Call(Bus::AddOwnPort, &other);
    EXPECT_EQ(Part<QLineEdit>("ownPortName").text(), "Berth 7") << "another click on the chart";
    sink_.Answer(Interface::SysMsgHandleRes::No);
    QTest::keyClick(&Form(), Qt::Key_Escape);
    EXPECT_TRUE(Form().isVisible());
    sink_.Answer(Interface::SysMsgHandleRes::Yes);
    QTest::keyClick(&Form(), Qt::Key_Escape);
    EXPECT_FALSE(Form().isVisible());
    EXPECT_EQ(sink_.messages.size(), 3U);
}

TEST_F(OwnPortDeskTest, ThoseOnTheChartAreChangedAndRemovedWithoutTheList) {
    Toggle();
    Add("Berth 7", "51 58.8N 4 3E");
    Toggle();
    const std::string id = IdOf("Berth 7");
    Interface::Call(Bus::ChangeOwnPort, &id);
    ASSERT_TRUE(Form().isVisible());
    EXPECT_EQ(Form().accessibleName(), "Change a port");
    EXPECT_EQ(Part<QLineEdit>("ownPortName").text(), "Berth 7");
    Type("ownPortName", "Berth 9");
    Press("ownPortSave");
    EXPECT_EQ(IdOf("Berth 9"), id);
    sink_.Answer(Interface::SysMsgHandleRes::No);
    Interface::Call(Bus::RemoveOwnPort, &id);
    EXPECT_EQ(IdOf("Berth 9"), id);
    sink_.Answer(Interface::SysMsgHandleRes::Yes);
    Interface::Call(Bus::RemoveOwnPort, &id);
    EXPECT_EQ(IdOf("Berth 9"), "");
    EXPECT_FALSE(Window().isVisible()) << "what went well needs no window";
    sink_.messages.clear();
    Interface::Call(Bus::RemoveOwnPort, &id);
    EXPECT_TRUE(sink_.messages.empty()) << "gone already";
}

TEST_F(OwnPortDeskTest, ARemovalOnTheChartThatFailsOpensTheListWithTheReason) {
    Toggle();
    Add("Berth 7", "51 58.8N 4 3E");
    Toggle();
    const std::string id = IdOf("Berth 7");
    RemoveElsewhere(id);
    sink_.Answer(Interface::SysMsgHandleRes::Yes);
    Interface::Call(Bus::RemoveOwnPort, &id);
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(Note(), "This port was removed meanwhile. Add it anew to keep it.");
}

TEST_F(OwnPortDeskTest, ALogoutClosesAndEmptiesTheWindows) {
    Toggle();
    Add("Berth 7", "51 58.8N 4 3E");
    Press("ownPortAdd");
    Interface::Raise(Bus::Logout);
    EXPECT_FALSE(Window().isVisible());
    EXPECT_FALSE(Form().isVisible());
    EXPECT_EQ(Table().rowCount(), 0);
}

TEST_F(OwnPortDeskTest, EveryControlHasItsNameInEveryLanguage) {
    Toggle();
    Press("ownPortAdd");
    for (const char* language : {"zh-CN", "zh-TW", "en-US"}) {
        Preferences preferences = session_->Preferred();
        preferences.language = language;
        ASSERT_TRUE(session_->Prefer(preferences, error_)) << error_;
        for (QWidget* window : {&Window(), &Form()}) {
            for (const QWidget* part : window->findChildren<QWidget*>(QRegularExpression("^ownPort"))) {
                const auto* button = qobject_cast<const QPushButton*>(part);
                const QString name = button != nullptr ? button->text() : part->accessibleName();
                EXPECT_NE(name, "") << language << " " << part->objectName().toStdString();
                EXPECT_FALSE(name.contains('_')) << language << " " << name.toStdString();
            }
        }
    }
}

}  // namespace

}  // namespace Tarvik::Client
