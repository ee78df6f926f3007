// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/interface/PlanRecords.h>

#include "host/client/shell/FirstStart.h"
#include "host/client/shell/MainWindow.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

/// A client over a data folder that may be new. The plug-in's planning is the test's.
class FirstStartTest : public testing::Test {
  protected:
    struct Client {
        explicit Client(const SessionOptions& options) : session(ClientSession::Open(options, error)) {
            if (session) {
                window = std::make_unique<MainWindow>(*session);
                window->AttachPlugins();
                first = std::make_unique<FirstStart>(*window, *session);
                first->Offer();
                window->show();
            }
        }
        FirstStartCard* Card() const { return window->findChild<FirstStartCard*>("firstStart"); }
        void Press(const char* name) const { window->findChild<QPushButton*>(name)->click(); }

        std::string error;
        std::unique_ptr<ClientSession> session;
        std::unique_ptr<MainWindow> window;
        std::unique_ptr<FirstStart> first;
    };

    FirstStartTest() { options_.dataFolder = folder_.File("data"); }
    std::unique_ptr<Client> Start() const { return std::make_unique<Client>(options_); }
    /// Whether a client that starts now asks.
    bool AsksAtTheNextStart() const { return Start()->Card() != nullptr; }
    /// Works in the next dialog that opens.
    template <class Work>
    static void InTheNextDialog(Work work) {
        QTimer::singleShot(0, qApp, [work] { work(*QApplication::activeModalWidget()); });
    }

    TestSupport::TemporaryFolder folder_;
    SessionOptions options_;
    Interface::PlanRequest planned_;
    Interface::PlanResult answer_;
};

}  // namespace

TEST_F(FirstStartTest, TheCardLiesOverTheChartAndLeavesItTheKeyboard) {
    const auto client = Start();
    ASSERT_NE(client->session, nullptr) << client->error;
    const FirstStartCard* card = client->Card();
    ASSERT_NE(card, nullptr);
    EXPECT_TRUE(card->isVisible());
    EXPECT_EQ(card->parentWidget(), client->window->centralWidget());
    EXPECT_FALSE(card->isAncestorOf(QApplication::focusWidget()));
    for (const QPushButton* way : card->findChildren<QPushButton*>()) {
        EXPECT_FALSE(way->accessibleDescription().isEmpty()) << way->objectName().toStdString();
        EXPECT_TRUE(way->focusPolicy() & Qt::TabFocus);
    }
}

TEST_F(FirstStartTest, TheCardKeepsToTheMiddleAndInsideOfTheChart) {
    const auto client = Start();
    const FirstStartCard* card = client->Card();
    for (const QSize size : {QSize(1280, 800), QSize(700, 620), QSize(1600, 1000)}) {
        client->window->resize(size);
        QApplication::processEvents();
        const QRect chart = client->window->centralWidget()->rect();
        EXPECT_TRUE(chart.contains(card->geometry())) << size.width();
        EXPECT_LE((card->geometry().center() - chart.center()).manhattanLength(), 2) << size.width();
        for (const QLabel* text : card->findChildren<QLabel*>()) {
            EXPECT_GE(text->height(), text->heightForWidth(text->width())) << text->text().toStdString();
        }
    }
}

TEST_F(FirstStartTest, ItComesAgainUntilAWayIsTakenAndThenNeverMore) {
    EXPECT_TRUE(AsksAtTheNextStart());
    EXPECT_TRUE(AsksAtTheNextStart()) << "nothing was chosen";
    {
        const auto client = Start();
        client->Press("firstEmpty");
        EXPECT_FALSE(client->Card()->isVisible());
    }
    EXPECT_FALSE(AsksAtTheNextStart());
}

TEST_F(FirstStartTest, WhoHasBegunIsNotAsked) {
    std::filesystem::create_directories(folder_.File("data"));
    folder_.Write("data/preferences.json", R"({"theme":"dark"})");
    EXPECT_FALSE(AsksAtTheNextStart());
    std::filesystem::remove(folder_.File("data/preferences.json"));
    ASSERT_TRUE(std::filesystem::exists(folder_.File("data/voyages.db")));
    EXPECT_FALSE(AsksAtTheNextStart()) << "voyages without preferences, as of a plan that was saved";
}

TEST_F(FirstStartTest, NoCardWhereAServerWasNamedByTheCommandLine) {
    options_.server = "http://127.0.0.1:1";
    EXPECT_FALSE(AsksAtTheNextStart());
}

TEST_F(FirstStartTest, TheSampleIsPlannedAndSavedAndItsVoyagesAreShown) {
    const auto client = Start();
    const auto planning =
        Interface::Offer(Interface::Bus::PlanVoyage, [this](const Interface::PlanRequest& request) {
            planned_ = request;
            return &answer_;
        });
    int shown = 0;
    const auto panels = Interface::Subscribe(
        Interface::Bus::ShowPanel, [&shown](const Interface::PanelShow& show) { shown = show.panel; });
    client->Press("firstSample");
    ASSERT_EQ(planned_.ports.size(), 3U);
    EXPECT_EQ(planned_.ports[0].name, "Rotterdam");
    EXPECT_EQ(planned_.ports[1].name, "Singapore");
    EXPECT_EQ(planned_.ports[2].name, "Shanghai");
    EXPECT_TRUE(planned_.save);
    EXPECT_EQ(planned_.category, "Samples");
    EXPECT_EQ(planned_.voyage, "Rotterdam - Shanghai");
    EXPECT_EQ(shown, Interface::PanelCode::kVoyages);
    EXPECT_FALSE(client->Card()->isVisible());
    EXPECT_FALSE(client->session->Preferred().firstStart);
}

TEST_F(FirstStartTest, ASampleThatCannotBePlannedIsToldAndTheCardStays) {
    const auto client = Start();
    answer_.code = Interface::PlanNotSaved;
    answer_.step = "the schedule was not saved";
    const auto planning = Interface::Offer(Interface::Bus::PlanVoyage,
                                           [this](const Interface::PlanRequest&) { return &answer_; });
    QString told;
    InTheNextDialog([&told](QWidget& box) {
        told = dynamic_cast<QMessageBox&>(box).text();
        box.close();
    });
    client->Press("firstSample");
    EXPECT_TRUE(told.contains("the schedule was not saved")) << told.toStdString();
    EXPECT_TRUE(client->Card()->isVisible());
    EXPECT_TRUE(client->session->Preferred().firstStart);
}

TEST_F(FirstStartTest, ConnectAsksForTheServerAndStaysWithoutOne) {
    const auto client = Start();
    InTheNextDialog([](QWidget& dialog) {
        EXPECT_EQ(dialog.focusWidget()->objectName(), "serverAddress");
        dialog.close();
    });
    client->Press("firstConnect");
    EXPECT_TRUE(client->Card()->isVisible());
    InTheNextDialog([](QWidget& dialog) {
        dialog.findChild<QLineEdit*>("serverAddress")->setText("http://127.0.0.1:1");
        dialog.findChild<QPushButton*>("preferencesOk")->click();
    });
    client->Press("firstConnect");
    EXPECT_TRUE(client->session->IsRemote());
    EXPECT_FALSE(client->Card()->isVisible());
    EXPECT_FALSE(client->session->Preferred().firstStart);
}

TEST_F(FirstStartTest, TheCardSpeaksTheLanguageInForce) {
    const auto client = Start();
    const QString english = client->window->findChild<QPushButton*>("firstSample")->text();
    Preferences other = client->session->Preferred();
    other.language = "zh-CN";
    client->window->Prefer(other);
    EXPECT_EQ(client->window->findChild<QPushButton*>("firstSample")->text(), "示例航次");
    EXPECT_NE(english, "示例航次");
    EXPECT_TRUE(client->session->Preferred().firstStart) << "another language chooses nothing";
}

}  // namespace Tarvik::Client
