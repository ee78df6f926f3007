// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QWidget>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/interface/ValueDictionary.h>

#include "host/client/places/OwnPortDesk.h"
#include "testsupport/RecordingMsgSink.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

/// A session over the shipped data and the server inside the client, with the windows for own ports.
class OwnPortFixture : public testing::Test {
  protected:
    OwnPortFixture() {
        options_.dataFolder = folder_.File("data");
        options_.language = "en-US";
        session_ = ClientSession::Open(options_, error_);
    }
    void SetUp() override {
        ASSERT_NE(session_, nullptr) << error_;
        main_.resize(900, 600);
        main_.show();
        desk_ = std::make_unique<OwnPortDesk>(main_, *session_);
    }
    void TearDown() override { desk_.reset(); }

    static std::string IdOf(const std::string& name) {
        return Interface::GetNameByValue("/points", name, Interface::kEnglishLanguage);
    }
    static void Toggle() {
        const Interface::PanelShow show{Interface::PanelCode::kOwnPorts, 0};
        Interface::Raise(Interface::Bus::ShowPanel, &show);
    }
    template <class Kind>
    Kind& Part(const char* name) {
        auto* part = main_.findChild<Kind*>(name);
        EXPECT_NE(part, nullptr) << name;
        return *part;
    }
    QWidget& Window() { return Part<QWidget>("ownPorts"); }
    QWidget& Form() { return Part<QWidget>("ownPortForm"); }
    QTableWidget& Table() { return Part<QTableWidget>("ownPortTable"); }
    QString Note() { return Part<QLabel>("ownPortNote").text(); }
    QString Fault() { return Part<QLabel>("ownPortFault").text(); }
    QString Understood() { return Part<QLabel>("ownPortUnderstood").text(); }
    void Press(const char* button) { Part<QPushButton>(button).click(); }
    void Type(const char* field, const char* text) {
        auto& line = Part<QLineEdit>(field);
        line.setFocus();
        line.selectAll();
        QTest::keyClicks(&line, text);
    }
    void Add(const char* name, const char* place) {
        Press("ownPortAdd");
        Type("ownPortName", name);
        Type("ownPortPlace", place);
        Press("ownPortSave");
    }

    TestSupport::TemporaryFolder folder_;
    SessionOptions options_;
    std::string error_;
    TestSupport::RecordingMsgSink sink_;
    std::unique_ptr<ClientSession> session_;
    QWidget main_;
    std::unique_ptr<OwnPortDesk> desk_;
};

}  // namespace Tarvik::Client
