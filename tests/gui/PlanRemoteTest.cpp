// SPDX-License-Identifier: MIT
#include <filesystem>

#include <gmock/gmock.h>

#include "host/server/graph/adapter/GraphRouteSource.h"
#include "host/server/net/tests/TestServer.h"
#include "tests/gui/ClientTree.h"

namespace Tarvik::Programs {

namespace {

using testing::HasSubstr;

/// A voyage server with the sea network, as an office has it.
class PlanRemote : public testing::Test {
  protected:
    PlanRemote() : server_({}, Routes()) { server_.AddUser("anna", "correct horse"); }

    static std::unique_ptr<Server::RouteSource> Routes() {
        std::string error;
        const auto share =
            std::filesystem::path(CLIENT_PROGRAM).parent_path().parent_path() / "share/seaplan";
        auto source = Server::GraphRouteSource::Open((share / "network.bin").string(), error);
        EXPECT_NE(source, nullptr) << error;
        return source;
    }
    Ended Plan(const std::string& password, const std::vector<std::string>& words) const {
        auto start = client_.Words({"--server", server_.Url(), "plan", "Rotterdam"});
        start.words.insert(start.words.end(), words.begin(), words.end());
        start.environment["SEAPLAN_USER"] = "anna";
        start.environment["SEAPLAN_PASSWORD"] = password;
        return RunToEnd(start);
    }

    Server::TestServer server_;
    ClientTree client_;
};

TEST_F(PlanRemote, PlansAndSavesAtTheServerAndNotHere) {
    const Ended ended = Plan("correct horse", {"Hamburg", "--save", "Trade/First"});
    EXPECT_EQ(ended.exitCode, 0) << ended.err;
    EXPECT_THAT(ended.out, HasSubstr("Hamburg"));
    EXPECT_FALSE(std::filesystem::exists(client_.Data("voyages.db")));
    const Ended again = Plan("correct horse", {"Hamburg", "--save", "Trade/First"});
    EXPECT_EQ(again.exitCode, 2);
    EXPECT_THAT(again.err, HasSubstr("a voyage of this name exists"));
}

TEST_F(PlanRemote, AWrongPasswordIsNamed) {
    const Ended ended = Plan("guessed", {"Hamburg"});
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_THAT(ended.err, HasSubstr("refuses the user name or the password of anna"));
}

TEST_F(PlanRemote, APortOfTheUsersOwnIsCalledAt) {
    const std::string token = server_.Token("anna", "correct horse");
    server_.Ask("POST", "/v1/exchange",
                Server::EnvelopeBody(18, R"({ppi:"",type:"0",ppn:"Berth 7",xc:"8.400",yc:"53.950"})"), token);
    const Ended ended = Plan("correct horse", {"Berth 7"});
    EXPECT_EQ(ended.exitCode, 0) << ended.err;
    EXPECT_THAT(ended.out, HasSubstr("Berth 7"));
    EXPECT_EQ(Plan("correct horse", {"Berth 8"}).exitCode, 2);
}

}  // namespace
}  // namespace Tarvik::Programs
