// SPDX-License-Identifier: MIT
// Who waits behind others: every reply goes out as soon as it is there, also while others wait for the same
// threads, and whoever came first is answered first. Nothing is measured: work ends when the test lets it.
#include <array>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

#include <gtest/gtest.h>

#include "host/server/net/http/HttpServer.h"
#include "host/server/net/http/HttpThreads.h"
#include "host/server/net/tests/RawClient.h"

namespace Tarvik::Server {

namespace {

constexpr std::size_t kRequests = 20;
/// A test that waits for nothing fails instead of hanging.
constexpr std::chrono::seconds kPatience{20};

/// Ends one answer for each permit.
class GatedService : public HttpService {
  public:
    explicit GatedService(Lane lane) : lane_(lane) {}

    std::optional<HttpReply> RefuseHead(const HttpRequest&) const override { return std::nullopt; }
    std::uint64_t BodyLimit(const HttpRequest&) const override { return 0; }
    std::optional<HttpReply> RefuseLarge(const HttpRequest&) override { return std::nullopt; }
    Place PlaceOf(const HttpRequest& request) override {
        const std::scoped_lock lock(mutex_);
        came_.push_back(request.target);
        changed_.notify_all();
        return {lane_, "one address"};
    }
    HttpReply Answer(const HttpRequest& request) override {
        std::unique_lock lock(mutex_);
        begun_.push_back(request.target);
        changed_.notify_all();
        const bool permitted = changed_.wait_for(lock, kPatience, [this] { return permits_ > 0; });
        permits_ -= permitted ? 1 : 0;
        return {permitted ? 200 : 500, "text/plain", request.target, {}};
    }
    void Refused(const HttpRequest&, int) override {}
    void ConnectionsChanged(std::size_t) override {}
    void ConnectionRefused(const std::string&) override {}
    void Failed(const std::string&) override {}
    void CutShort() override {}

    void Permit() {
        const std::scoped_lock lock(mutex_);
        ++permits_;
        changed_.notify_all();
    }
    /// What came and what was begun, in their order, when so many are in it.
    std::vector<std::string> Came(std::size_t count) { return When(came_, count); }
    std::vector<std::string> Begun(std::size_t count) { return When(begun_, count); }

  private:
    std::vector<std::string> When(const std::vector<std::string>& targets, std::size_t count) {
        std::unique_lock lock(mutex_);
        changed_.wait_for(lock, kPatience, [&] { return targets.size() >= count; });
        return targets;
    }

    Lane lane_;
    std::mutex mutex_;
    std::condition_variable changed_;
    int permits_ = 0;
    std::vector<std::string> came_;
    std::vector<std::string> begun_;
};

class WaitingTest : public testing::TestWithParam<Lane> {
  protected:
    WaitingTest() {
        std::string error;
        if (!http_.Listen("127.0.0.1", 0, {}, error)) {
            throw std::runtime_error(error);
        }
        thread_ = std::thread([this] { http_.Run(); });
    }
    ~WaitingTest() override {
        http_.Stop();
        thread_.join();
    }
    static HttpLimits Limits() {
        HttpLimits limits;
        limits.connections = limits.queue = 2 * kMostLogins;
        limits.idle = limits.request = limits.stop = kPatience;
        return limits;
    }

    GatedService service_{GetParam()};
    HttpServer http_{service_, Limits()};
    std::thread thread_;
};

std::string NameOf(const testing::TestParamInfo<Lane>& lane) {
    constexpr std::array kNames = {"Inline", "Read", "Write", "Route", "Login"};
    return kNames.at(static_cast<std::size_t>(lane.param));
}

INSTANTIATE_TEST_SUITE_P(Lanes, WaitingTest,
                         testing::Values(Lane::Read, Lane::Write, Lane::Route, Lane::Login), NameOf);

TEST_P(WaitingTest, EachOfTwentyIsAnsweredWhenItsWorkIsDoneWhileAllOthersWait) {
    std::map<std::string, std::unique_ptr<RawClient>> clients;
    for (std::size_t i = 0; i < kRequests; ++i) {
        const std::string target = "/" + std::to_string(i);
        clients[target] = std::make_unique<RawClient>(http_.Port());
        ASSERT_TRUE(clients[target]->Send(RawClient::Request("GET", target, {}, {})));
    }
    const std::vector<std::string> came = service_.Came(kRequests);
    ASSERT_EQ(came.size(), kRequests);
    for (std::size_t i = 0; i < kRequests; ++i) {
        ASSERT_EQ(service_.Begun(i + 1),
                  std::vector<std::string>(came.begin(), came.begin() + static_cast<std::ptrdiff_t>(i) + 1));
        service_.Permit();
        // No other work ends before this is read: a reply that queued again behind it would never come.
        const RawReply reply = clients[came[i]]->Read();
        ASSERT_EQ(reply.status, 200) << i;
        EXPECT_EQ(reply.body, came[i]);
    }
}

using LoginLineTest = WaitingTest;

INSTANTIATE_TEST_SUITE_P(Lanes, LoginLineTest, testing::Values(Lane::Login), NameOf);

TEST_P(LoginLineTest, OneMoreThanMayWaitIsRefusedAtOnceAndAllOthersAreAnswered) {
    std::vector<std::unique_ptr<RawClient>> clients;
    for (std::size_t i = 0; i < 1 + kMostLogins; ++i) {
        clients.push_back(std::make_unique<RawClient>(http_.Port()));
        ASSERT_TRUE(clients.back()->Send(RawClient::Request("GET", "/", {}, {})));
    }
    ASSERT_EQ(service_.Came(clients.size()).size(), clients.size());
    EXPECT_EQ(RawClient(http_.Port()).Ask("GET", "/one-more").status, 503);
    for (std::size_t i = 0; i < clients.size(); ++i) {
        service_.Permit();
    }
    for (const auto& client : clients) {
        ASSERT_EQ(client->Read().status, 200);
    }
}

}  // namespace
}  // namespace Tarvik::Server
