// SPDX-License-Identifier: MIT
// The plug-in at work over the bus: a TCP server in the test, the client's timer by hand.
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <algorithm>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/write.hpp>
#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>

#include "host/plugins/ais/core/SentenceWriter.h"
#include "host/plugins/ais/window/InputsPage.h"
#include "host/plugins/ais/window/Watch.h"
#include "testsupport/DataFolder.h"
#include "testsupport/ManualTimer.h"
#include "testsupport/PluginTexts.h"

namespace Tarvik::Ais {

namespace {

namespace asio = boost::asio;

class WatchTest : public testing::Test {
  protected:
    WatchTest() {
        client.Keep(Interface::Offer(Interface::Bus::MapSetShips,
                                     [this](const Interface::TrvMapShips& drawn) { ships = drawn.ships; }));
        client.Keep(Interface::Subscribe(Interface::Bus::TellStatus,
                                         [this](const Interface::StatusWord& told) { word = told; }));
        watch.Start();
    }
    /// Opens the page, types and agrees; gives what the page says of it.
    std::string Prefer(const std::string& inputs, bool show) {
        Interface::PreferencePages pages{&dialog, {}};
        Interface::Raise(Interface::Bus::OpenPreferences, &pages);
        EXPECT_EQ(pages.pages.size(), 1U);
        Interface::PreferencePage& mine = pages.pages[0];
        mine.page->findChild<QPlainTextEdit*>("aisInputs")->setPlainText(QString::fromStdString(inputs));
        mine.page->findChild<QCheckBox*>("aisShowShips")->setChecked(show);
        const std::string fault = mine.check();
        if (fault.empty()) {
            mine.take();
        }
        delete mine.page;
        return fault;
    }
    std::string Server() const {
        return "tcp://127.0.0.1:" + std::to_string(acceptor.local_endpoint().port());
    }
    /// Fires the client's timer until the condition holds.
    template <class Condition>
    void Until(const Condition& holds) {
        const auto bound = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        do {
            timer.Fire();
            std::this_thread::yield();
        } while (!holds() && std::chrono::steady_clock::now() < bound);
        EXPECT_TRUE(holds());
    }

    TestSupport::PluginTexts texts{AIS_LANGUAGES "/ais.en-US.json"};
    TestSupport::DataFolder folder;
    TestSupport::ManualTimer timer;
    asio::io_context io;
    asio::ip::tcp::acceptor acceptor{io, {asio::ip::address_v4::loopback(), 0}};
    QWidget dialog;
    std::vector<Interface::TrvMapShip> ships;
    Interface::StatusWord word;
    Interface::BindingList client;
    Watch watch{(folder.Path() / "ais").string()};
};

TEST_F(WatchTest, InputThatIsTypedIsHeardAndItsShipsAreShown) {
    EXPECT_EQ(Prefer(Server(), true), "");
    auto peer = acceptor.accept();
    asio::write(peer, asio::buffer(std::string("!AIVDM,1,1,,A,15RTgt0PAso;90TKcjM8h6g208CQ,0*4A\r\n")));
    Until([this] { return ships.size() == 1; });
    EXPECT_EQ(ships[0].id, "371798000");
    EXPECT_EQ(ships[0].heading, 215);
    Until([this] { return word.text == "AIS 1/min"; });
    EXPECT_EQ(word.tip, "1 of 1 inputs open, 1 messages, 0 bad lines");
    peer.close();
    Until([this] { return word.text == "AIS 1/min – " + Server() + ": closed by the other side"; });
}

TEST_F(WatchTest, WrongInputKeepsThePageOpenAndChangesNothing) {
    EXPECT_EQ(Prefer("udp://:10110\nnonsense", true), "This is no input: nonsense");
    Until([this] { return word.owner == "ais"; });
    EXPECT_EQ(word.text, "") << "no input, no word";
}

TEST_F(WatchTest, ShipsAreSwitchedOffAndOn) {
    EXPECT_EQ(Prefer(Server(), true), "");
    auto peer = acceptor.accept();
    asio::write(peer, asio::buffer(std::string("!AIVDM,1,1,,A,15RTgt0PAso;90TKcjM8h6g208CQ,0*4A\r\n")));
    Until([this] { return ships.size() == 1; });
    bool show = false;
    EXPECT_FALSE(*Interface::Call(Interface::Bus::ShowShips, &std::as_const(show)));
    EXPECT_TRUE(ships.empty());
    timer.Fire();
    EXPECT_TRUE(ships.empty());
    EXPECT_FALSE(*Interface::Call(Interface::Bus::ShowShips, nullptr)) << "asking changes nothing";
    show = true;
    EXPECT_TRUE(*Interface::Call(Interface::Bus::ShowShips, &std::as_const(show)));
    EXPECT_EQ(ships.size(), 1U);
}

TEST_F(WatchTest, InputThatStaysIsNotCalledAnew) {
    EXPECT_EQ(Prefer(Server(), true), "");
    auto peer = acceptor.accept();
    Until([this] { return watch.Status().open == 1; });
    EXPECT_EQ(Prefer(Server(), false), "");
    asio::write(peer, asio::buffer(std::string("!AIVDM,1,1,,A,15RTgt0PAso;90TKcjM8h6g208CQ,0*4A\r\n")));
    Until([this] { return watch.Status().messages == 1; });
    EXPECT_EQ(watch.Status().openings, 1U);
    EXPECT_TRUE(ships.empty());
}

TEST_F(WatchTest, ClickOnAShipOpensItsCard) {
    EXPECT_EQ(Prefer(Server(), true), "");
    auto peer = acceptor.accept();
    asio::write(peer, asio::buffer(std::string("!AIVDM,1,1,,A,15RTgt0PAso;90TKcjM8h6g208CQ,0*4A\r\n")));
    Until([this] { return ships.size() == 1; });
    Interface::RaiseClick(ShipLayer::kType, "371798000");
    const auto windows = QApplication::topLevelWidgets();
    EXPECT_TRUE(std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->objectName() == "aisVesselCard" && window->isVisible();
    }));
}

TEST_F(WatchTest, CardFollowsItsShip) {
    EXPECT_EQ(Prefer(Server(), true), "");
    auto peer = acceptor.accept();
    const auto report = [&peer](int latitude) {
        RawMovement raw{1, 371798000};
        raw.latitude = latitude * 600000;
        asio::write(peer, asio::buffer(Sentences(ClassA(raw))[0] + "\r\n"));
    };
    const auto position = [] {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (const auto* label = window->findChild<QLabel*>("aisPOSITION")) {
                return label->text();
            }
        }
        return QString();
    };
    report(10);
    Until([this] { return ships.size() == 1; });
    Interface::RaiseClick(ShipLayer::kType, "371798000");
    EXPECT_EQ(position(), "10° 00.0' N 000° 00.0' E");
    report(20);
    Until([&position] { return position() == "20° 00.0' N 000° 00.0' E"; });
}

TEST_F(WatchTest, SettingsOutliveTheProgram) {
    EXPECT_EQ(Prefer(Server() + "\n\n  udp://:10999 ", false), "");
    const Settings kept = Settings::Read((folder.Path() / "ais" / "settings.json").string());
    EXPECT_EQ(kept.inputs, (std::vector<std::string>{Server(), "udp://:10999"}));
    EXPECT_FALSE(kept.showShips);
}

}  // namespace
}  // namespace Tarvik::Ais
