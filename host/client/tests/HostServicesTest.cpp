// SPDX-License-Identifier: MIT
#include <cstring>

#include <gmock/gmock.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/ServerRequest.h>
#include <tarvik/util/Clock.h>

#include "host/client/services/HostServices.h"
#include "tarvik/src/core/BusTesting.h"

namespace Tarvik::Client {

namespace {

namespace Bus = Interface::Bus;
using Interface::Call;
using Interface::VoyServerRequest;

/// A server that is up or down and tells what it was sent.
class ScriptedLink : public ServerLink {
  public:
    bool Connect(std::string& error) override {
        connected = canConnect;
        if (!canConnect) {
            error = "the server is down";
        }
        return canConnect;
    }
    bool IsConnected() const override { return connected; }
    void LogOut() override { connected = false; }
    std::string Exchange(const std::string& user, const VoyServerRequest& request) override {
        lastUser = user;
        lastText.assign(request.Payload(), request.length);
        return reply;
    }
    std::string User(const std::string& local) const override {
        return !wantsLogin ? local : connected ? "office user" : "";
    }
    std::string Failure() const override { return failure; }
    bool wantsLogin = false;
    std::string failure;
    bool connected = true;
    bool canConnect = true;
    std::string reply = "{\"eid\":0}";
    std::string lastUser;
    std::string lastText;
};

class HostServicesTest : public testing::Test {
  protected:
    ~HostServicesTest() override { Util::Clock::SetLocalZone(""); }

    VoyServerRequest* Exchange(const std::string& text) {
        std::vector<char> block(sizeof(VoyServerRequest) + text.size());
        auto* request = reinterpret_cast<VoyServerRequest*>(block.data());
        *request = {static_cast<std::uint32_t>(text.size()), 3, 5};
        std::memcpy(request->Payload(), text.data(), text.size());
        return Call<const VoyServerRequest>(Bus::ServerExchange, request);
    }

    ScriptedLink link_;
    std::vector<std::string> complaints_;
    HostServices services_{link_, "anna", "China Standard Time",
                           [this](const std::string& line) { complaints_.push_back(line); }};
};

TEST_F(HostServicesTest, AnswersUserAndZone) {
    EXPECT_EQ(*Call(Bus::User), "anna");
    EXPECT_EQ(*Call(Bus::CurrentTimeZone), "China Standard Time");
    EXPECT_EQ(Util::Clock::LocalZone(), "China Standard Time");
}

TEST_F(HostServicesTest, TheConnectionFlagFollowsTheLink) {
    EXPECT_NE(*Call(Bus::IsConnected), 0);
    link_.connected = false;
    EXPECT_EQ(*Call(Bus::IsConnected), 0);
}

TEST_F(HostServicesTest, LoginConnectsAndComplainsWhenItCannot) {
    link_.connected = false;
    Call(Bus::Login);
    EXPECT_TRUE(link_.connected);
    EXPECT_TRUE(complaints_.empty());
    link_.canConnect = false;
    Call(Bus::Login);
    EXPECT_THAT(complaints_, testing::ElementsAre("the server is down"));
}

TEST_F(HostServicesTest, TheReplyIsABusBlockWithHeadAndClosedText) {
    const long before = Core::BusTesting::LiveBlocks();
    VoyServerRequest* reply = Exchange("{a:1}");
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), before + 1);
    EXPECT_STREQ(reply->Payload(), "{\"eid\":0}");
    EXPECT_EQ(reply->length, 10U);
    EXPECT_EQ(reply->command, 3);
    EXPECT_EQ(reply->moduleWord, 5);
    EXPECT_EQ(link_.lastUser, "anna");
    EXPECT_EQ(link_.lastText, "{a:1}");
    Core::FreeBusBlock(reply);
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), before);
}

TEST_F(HostServicesTest, NoReplyNullRequestAndATooLongOneAnswerNull) {
    link_.reply.clear();
    EXPECT_EQ(Exchange("{}"), nullptr);
    EXPECT_EQ(Call<const VoyServerRequest>(Bus::ServerExchange, nullptr), nullptr);
    const VoyServerRequest tooLong{Interface::kMaxPayloadBytes + 1, 3, 5};
    link_.reply = "{}";
    EXPECT_EQ(Call(Bus::ServerExchange, &tooLong), nullptr);
}

TEST_F(HostServicesTest, TheUserIsTheOneWhoLoggedInWhereTheServerWantsThat) {
    link_.wantsLogin = true;
    EXPECT_EQ(*Call(Bus::User), "office user");
    Core::FreeBusBlock(Exchange("{}"));
    EXPECT_EQ(link_.lastUser, "office user");
    link_.connected = false;
    EXPECT_EQ(Call(Bus::User), nullptr);
}

TEST_F(HostServicesTest, KeepsAndTellsTheServersWordsUntilTheNextExchange) {
    Core::FreeBusBlock(Exchange("{}"));
    EXPECT_EQ(services_.LastFailure(), "");
    link_.reply = R"({"eid":7,"emsg":"the disk is full"})";
    Core::FreeBusBlock(Exchange("{}"));
    EXPECT_EQ(services_.LastFailure(), "the disk is full");
    link_.reply = "";
    link_.failure = "no answer";
    EXPECT_EQ(Exchange("{}"), nullptr);
    EXPECT_EQ(services_.LastFailure(), "no answer");
    link_.reply = "[]";
    link_.failure = "";
    Core::FreeBusBlock(Exchange("{}"));
    EXPECT_EQ(services_.LastFailure(), "");
    EXPECT_THAT(complaints_, testing::ElementsAre("the disk is full", "no answer"));
}

TEST_F(HostServicesTest, TellsWhenTheConnectionIsLostAndMade) {
    int changes = 0;
    services_.Watch().OnChange([&] { ++changes; });
    Core::FreeBusBlock(Exchange("{}"));
    EXPECT_EQ(changes, 0);
    link_.connected = false;
    Core::FreeBusBlock(Exchange("{}"));
    EXPECT_EQ(changes, 1);
    Call(Bus::Login);
    EXPECT_EQ(changes, 2);
}

TEST_F(HostServicesTest, ARequestWithoutAnswerBeginsAnOutageAndAnAnswerEndsIt) {
    link_.reply = "";
    link_.failure = "no answer";
    EXPECT_EQ(Exchange("{}"), nullptr);
    EXPECT_TRUE(services_.Watch().Now().silentSince);
    EXPECT_EQ(services_.Watch().Now().reason, "no answer");
    EXPECT_NE(*Call(Bus::IsConnected), 0) << "the login is still there, nobody is asked for another";
    link_.reply = R"({"eid":7,"emsg":"the disk is full"})";
    Core::FreeBusBlock(Exchange("{}"));
    EXPECT_FALSE(services_.Watch().Now().silentSince) << "a refusal is an answer";
    EXPECT_TRUE(services_.Watch().Now().backSince);
}

TEST_F(HostServicesTest, ALoginThatIsOverIsNoOutage) {
    link_.reply = "";
    link_.failure = "the login is over";
    link_.connected = false;
    EXPECT_EQ(Exchange("{}"), nullptr);
    EXPECT_EQ(services_.Watch().Now(), Connection());
}

/// Counts the logouts that plug-ins hear of.
class LogoutListener : public Core::TObject {
  public:
    LogoutListener() {
        event_.Set<&LogoutListener::OnLogout>(this);
        Core::TrvKernel::Instance()->BindTrvEvent(Bus::Logout.name, &event_);
    }
    ~LogoutListener() override { Core::TrvKernel::Instance()->UnBindTrvEvent(Bus::Logout.name, &event_); }
    void* OnLogout(void* /*input*/) {
        ++count;
        return nullptr;
    }
    int count = 0;

  private:
    Core::TEvent event_;
};

TEST_F(HostServicesTest, ALogoutReachesThePluginsAndTheServer) {
    LogoutListener listener;
    int changes = 0;
    services_.Watch().OnChange([&] { ++changes; });
    services_.LogOut();
    EXPECT_EQ(listener.count, 1);
    EXPECT_FALSE(link_.connected);
    EXPECT_EQ(changes, 1);
}

TEST_F(HostServicesTest, AnotherServerMeansALogoutAndIsAskedFromThenOn) {
    LogoutListener listener;
    ScriptedLink other;
    services_.SetLink(other);
    EXPECT_EQ(listener.count, 1);
    Core::FreeBusBlock(Exchange("{b:2}"));
    EXPECT_EQ(other.lastText, "{b:2}");
    EXPECT_EQ(link_.lastText, "");
}

/// Notes the zone that the event carries.
class ZoneListener : public Core::TObject {
  public:
    ZoneListener() {
        event_.Set<&ZoneListener::OnZone>(this);
        Core::TrvKernel::Instance()->BindTrvEvent(Bus::SwitchTimeZone.name, &event_);
    }
    ~ZoneListener() override {
        Core::TrvKernel::Instance()->UnBindTrvEvent(Bus::SwitchTimeZone.name, &event_);
    }
    void* OnZone(void* input) {
        zone = *static_cast<const std::string*>(input);
        return nullptr;
    }
    std::string zone;

  private:
    Core::TEvent event_;
};

TEST_F(HostServicesTest, ANewZoneIsAnsweredTheClocksAndTold) {
    ZoneListener listener;
    services_.SetTimeZone("UTC");
    EXPECT_EQ(listener.zone, "UTC");
    EXPECT_EQ(*Call(Bus::CurrentTimeZone), "UTC");
    EXPECT_EQ(Util::Clock::LocalZone(), "UTC");
}

TEST(HostServicesEnd, LeavesNothingOnTheBus) {
    {
        ScriptedLink link;
        const HostServices services(link, "u", "UTC", {});
        EXPECT_TRUE(Core::TrvKernel::Instance()->IsBound(Bus::User.name));
    }
    EXPECT_FALSE(Core::TrvKernel::Instance()->IsBound(Bus::User.name));
    Util::Clock::SetLocalZone("");
}

}  // namespace
}  // namespace Tarvik::Client
