// SPDX-License-Identifier: MIT
// A session over the shipped data, and the ports of the user's own in it.
#include <algorithm>

#include <gmock/gmock.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/interface/ValueDictionary.h>

#include "host/client/services/RequestBlock.h"
#include "host/client/session/ClientSession.h"
#include "host/client/session/OwnPorts.h"
#include "host/client/tests/PortDatabase.h"
#include "host/server/net/tests/TestServer.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

using testing::HasSubstr;

constexpr const char* kBerth = R"({ppi:"",type:"0",ppn:"Berth 7",xc:"4.050",yc:"51.980"})";

std::string Ask(ServerLink& link, Interface::VoyCommand command, const std::string& text) {
    return link.Exchange(link.User("local"),
                         *RequestBlock(NumberOf(command), Interface::kVoyageModuleWord, text));
}

class OwnPortsTest : public testing::Test {
  protected:
    OwnPortsTest() { options_.dataFolder = folder_.File("data"); }

    void Open() {
        session_.reset();
        session_ = ClientSession::Open(options_, error_);
        ASSERT_NE(session_, nullptr) << error_;
    }
    /// Opens a session at a server that has anna and bert, who logs in is `user_`.
    void OpenAt(Server::TestServer& server) {
        server.AddUser("anna", "correct horse");
        server.AddUser("bert", "correct horse");
        options_.server = server.Url();
        Open();
        session_->SetAsker([this](const std::string&, const std::string&, const std::string&) {
            return std::optional(Credentials{user_, "correct horse"});
        });
    }
    static std::string IdOf(const std::string& name) {
        return Interface::GetNameByValue("/points", name, Interface::kEnglishLanguage);
    }
    /// The row of the table that plug-ins read.
    std::optional<Ports::Place> RowOf(const std::string& name) {
        std::vector<Ports::Place> places;
        EXPECT_TRUE(Ports::ReadPlaces(session_->Folders().BusinessData("trvdb.db"), places, error_));
        const auto row = std::find_if(places.begin(), places.end(),
                                      [&name](const Ports::Place& place) { return place.name == name; });
        return row == places.end() ? std::nullopt : std::optional(*row);
    }

    TestSupport::TemporaryFolder folder_;
    SessionOptions options_;
    std::string user_ = "anna";
    std::string error_;
    std::unique_ptr<ClientSession> session_;
};

TEST_F(OwnPortsTest, AreFoundByNameAndReachedByARoute) {
    Open();
    EXPECT_EQ(IdOf("Berth 7"), "");
    EXPECT_THAT(Ask(session_->Link(), Interface::VoyCommand::ChangePlace, kBerth), HasSubstr(R"("eid":0)"));
    Open();
    const std::string id = IdOf("Berth 7");
    ASSERT_NE(id, "");
    const auto row = RowOf("Berth 7");
    ASSERT_TRUE(row && row->isPort && row->position);
    EXPECT_EQ(row->id, id);
    EXPECT_NEAR(row->position->x, 4.05, 1e-6);
    EXPECT_NEAR(row->position->y, 51.98, 1e-6);
    const std::string route = Ask(
        session_->Link(), Interface::VoyCommand::SearchRoute,
        R"({rp_id:"",orig_rp_id:"",leg:-1,rp_group:"",pointList:")" + id + "#" + IdOf("Singapore") + R"("})");
    EXPECT_THAT(route, HasSubstr(R"("point_cd":")" + id));
    EXPECT_THAT(route, HasSubstr("4.05,51.98"));
}

TEST_F(OwnPortsTest, OneThatIsRemovedIsGoneAtTheNextStart) {
    Open();
    Ask(session_->Link(), Interface::VoyCommand::ChangePlace, kBerth);
    Open();
    const std::string id = IdOf("Berth 7");
    ASSERT_NE(id, "");
    Ask(session_->Link(), Interface::VoyCommand::ChangePlace, "{ppi:\"" + id + "\",type:\"2\"}");
    Open();
    EXPECT_EQ(IdOf("Berth 7"), "");
    EXPECT_FALSE(RowOf("Berth 7"));
    EXPECT_NE(IdOf("Rotterdam"), "");
}

TEST_F(OwnPortsTest, ShippedPortOfTheSameNameKeepsIt) {
    Open();
    const std::string rotterdam = IdOf("Rotterdam");
    Ask(session_->Link(), Interface::VoyCommand::ChangePlace,
        R"({ppi:"",type:"0",ppn:"Rotterdam",xc:"4.050",yc:"51.980"})");
    Open();
    EXPECT_EQ(IdOf("Rotterdam"), rotterdam);
    EXPECT_EQ(std::count_if(session_->Ports().begin(), session_->Ports().end(),
                            [](const Port& port) { return port.name == "Rotterdam"; }),
              2);
}

TEST_F(OwnPortsTest, AreThoseOfWhoeverLogsIn) {
    Server::TestServer server;
    server.AddUser("anna", "correct horse");
    server.AddUser("bert", "correct horse");
    options_.server = server.Url();
    std::string user = "anna";
    Open();
    session_->SetAsker([&user](const std::string&, const std::string&, const std::string&) {
        return std::optional(Credentials{user, "correct horse"});
    });
    ServerLink& link = session_->Link();
    ASSERT_TRUE(link.Connect(error_)) << error_;
    Ask(link, Interface::VoyCommand::ChangePlace, kBerth);
    link.LogOut();
    ASSERT_TRUE(link.Connect(error_)) << error_;
    EXPECT_NE(IdOf("Berth 7"), "");
    Open();
    EXPECT_EQ(IdOf("Berth 7"), "") << "nobody is logged in yet";
    user = "bert";
    session_->SetAsker([&user](const std::string&, const std::string&, const std::string&) {
        return std::optional(Credentials{user, "correct horse"});
    });
    ASSERT_TRUE(session_->Link().Connect(error_)) << error_;
    EXPECT_EQ(IdOf("Berth 7"), "");
}

TEST_F(OwnPortsTest, ALogoutAndALoginInTheSameRunAreToldAndTakeEffectAtOnce) {
    Server::TestServer server;
    OpenAt(server);
    int told = 0;
    const auto listener = Interface::Subscribe(Interface::Bus::PortsChanged, [&told] { ++told; });
    Interface::Call(Interface::Bus::Login);
    OwnPorts& own = session_->OwnPorts();
    EXPECT_EQ(told, 0) << "anna has none";
    const Ports::Place berth{"", "Berth 7", "", "", Server::GeoPoint{4.05, 51.98}, true};
    ASSERT_EQ(own.Change(session_->Link(), PortOperation::Add, berth), PortOutcome::Done);
    EXPECT_EQ(told, 1);
    EXPECT_NE(IdOf("Berth 7"), "");
    session_->LogOut();
    EXPECT_EQ(told, 2);
    EXPECT_EQ(IdOf("Berth 7"), "") << "nothing of anna's stays";
    EXPECT_FALSE(RowOf("Berth 7"));
    EXPECT_EQ(own.Change(session_->Link(), PortOperation::Add, berth), PortOutcome::NoUser);
    user_ = "bert";
    Interface::Call(Interface::Bus::Login);
    EXPECT_EQ(IdOf("Berth 7"), "");
    session_->LogOut();
    user_ = "anna";
    Interface::Call(Interface::Bus::Login);
    EXPECT_EQ(told, 3);
    EXPECT_NE(IdOf("Berth 7"), "");
    ASSERT_TRUE(RowOf("Berth 7"));
}

TEST_F(OwnPortsTest, ARefusalChangesNothingAndAnOutageIsTold) {
    auto server = std::make_unique<Server::TestServer>();
    OpenAt(*server);
    Interface::Call(Interface::Bus::Login);
    OwnPorts& own = session_->OwnPorts();
    Ports::Place berth{"", "Berth|7", "", "", Server::GeoPoint{4.05, 51.98}, true};
    EXPECT_EQ(own.Change(session_->Link(), PortOperation::Add, berth), PortOutcome::Refused);
    berth.name = "Berth 7";
    berth.id = "1000999";
    EXPECT_EQ(own.Change(session_->Link(), PortOperation::Change, berth), PortOutcome::Gone);
    berth.id.clear();
    EXPECT_EQ(own.Change(session_->Link(), PortOperation::Add, berth), PortOutcome::Done);
    ASSERT_EQ(own.All().size(), 1U);
    server.reset();
    berth.name = "Berth 8";
    EXPECT_EQ(own.Change(session_->Link(), PortOperation::Add, berth), PortOutcome::NoServer);
    EXPECT_FALSE(own.Load(session_->Link()));
    ASSERT_EQ(own.All().size(), 1U) << "what was known stays";
    EXPECT_EQ(own.All().front().name, "Berth 7");
    EXPECT_EQ(IdOf("Berth 8"), "");
}

/// A server with one answer to everything.
class OneAnswer : public ServerLink {
  public:
    explicit OneAnswer(std::string text) : text_(std::move(text)) {}
    bool Connect(std::string& /*error*/) override { return true; }
    bool IsConnected() const override { return true; }
    std::string Exchange(const std::string& /*user*/, const Interface::VoyServerRequest& /*one*/) override {
        return text_;
    }

  private:
    std::string text_;
};

TEST(OwnPortsReply, OddRepliesAreNoList) {
    for (const char* text :
         {"", R"({"eid":50,"emsg":"the data could not be stored or read"})", R"([{"ppi":1}])", "[3]", "{"}) {
        OneAnswer link(text);
        EXPECT_FALSE(LoadOwnPorts(link, "anna").has_value()) << text;
    }
}

TEST(OwnPortsReply, AServerWithoutTheCommandKeepsNone) {
    for (const char* text : {"[]", R"({"eid":3,"emsg":"unknown command"})"}) {
        OneAnswer link(text);
        const auto own = LoadOwnPorts(link, "anna");
        ASSERT_TRUE(own.has_value()) << text;
        EXPECT_TRUE(own->empty()) << text;
    }
}

TEST(OwnPortsTable, StaysAsItIsWhenItCannotBeWritten) {
    const TestSupport::TemporaryFolder folder;
    MakePortDatabase(folder.File("shipped.db"));
    folder.Write("table.db", "kept");
    MakeDatabase(folder.File("foreign.db"), "create table other(a);");
    std::string error;
    const std::vector<Ports::Place> own = {{"1000001", "A", "", "", Server::GeoPoint{1, 2}, true}};
    EXPECT_FALSE(WritePortTable(folder.File("foreign.db"), folder.File("table.db"), own, error));
    EXPECT_THAT(error, HasSubstr("Your own ports cannot be shown"));
    EXPECT_EQ(folder.Read("table.db"), "kept");
    EXPECT_TRUE(WritePortTable(folder.File("shipped.db"), folder.File("table.db"), own, error)) << error;
    std::vector<Ports::Place> places;
    ASSERT_TRUE(Ports::ReadPlaces(folder.File("table.db"), places, error)) << error;
    EXPECT_EQ(places.size(), 5U);
}

}  // namespace

}  // namespace Tarvik::Client
