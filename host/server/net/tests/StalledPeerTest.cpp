// SPDX-License-Identifier: MIT
// Peers that stop where the server waits for them: within the handshake, or before a reply. Each is ended in
// its time, costs next to nothing until then, and leaves its place to others.
#include <chrono>

#include "host/server/net/tests/HttpAttack.h"

namespace Tarvik::Server {

namespace {

using std::chrono::steady_clock;

/// For the whole of a test: well above the two seconds that the server grants, and below what a client of the
/// tests waits.
constexpr std::chrono::seconds kInTime{12};
constexpr std::size_t kPeers = 40;

class StalledPeer : public HttpAttack {
  protected:
    StalledPeer()
        : HttpAttack([](Settings& settings) { settings.maxConnectionsPerAddress = kPeers + 1; }),
          watcher_(Connect()) {
        EXPECT_EQ(watcher_.Ask("GET", "/health").status, 200);
    }
    /// Waits until the watcher is alone and expects that somebody else is served then.
    void ExpectPlacesFree() {
        std::string metrics;
        while (metrics.find("seaplan_connections 1\n") == std::string::npos && IsInTime()) {
            metrics = watcher_.Ask("GET", "/metrics").body;
        }
        EXPECT_TRUE(IsInTime());
        ExpectServes();
    }
    bool IsInTime() const { return steady_clock::now() < end_; }
    void ExpectGrownByLessThan(std::size_t bytes) const {
        const std::size_t now = Resident();
        EXPECT_TRUE(!kMemoryIsMeasured || now < before_ + bytes) << now - before_;
    }

    RawClient watcher_;
    steady_clock::time_point end_ = steady_clock::now() + kInTime;
    std::size_t before_ = Resident();
};

INSTANTIATE_TEST_SUITE_P(Wires, StalledPeer, testing::Values(Wire::Plain, Wire::Tls),
                         [](const auto& one) { return one.param == Wire::Tls ? "Tls" : "Plain"; });

/// What a peer says before it stops, none of it a whole handshake.
std::vector<std::string> Beginnings() {
    const std::string hello = RawClient::Hello();
    // One message of 16 KB, of which the last bytes never come.
    const std::string largest =
        std::string("\x16\x03\x01\x40\x00\x01\x00\x3f\xfc", 9) + std::string(16000, 'x');
    return {"", hello.substr(0, 1), hello.substr(0, hello.size() / 2), hello, largest};
}

TEST_P(StalledPeer, BeginningThatNeverEndsIsEndedInItsTimeAndItsPlaceIsFree) {
    const bool tls = GetParam() == Wire::Tls;
    const std::vector<std::string> beginnings = tls ? Beginnings() : std::vector<std::string>{"G", "GET /"};
    std::vector<std::unique_ptr<RawClient>> clients;
    for (std::size_t i = 0; i < kPeers; ++i) {
        clients.push_back(std::make_unique<RawClient>(server_->Port()));
        ASSERT_TRUE(clients.back()->Send(beginnings[i % beginnings.size()]));
    }
    EXPECT_TRUE(RawClient(server_->Port()).SeesEnd()) << "all places are taken";
    ExpectGrownByLessThan(kPeers * kMegabyte);
    for (const auto& client : clients) {
        ASSERT_TRUE(client->SeesEndBehindWhatComes());
    }
    ExpectPlacesFree();
}

TEST_P(StalledPeer, ReplyThatIsNeverTakenIsGivenUpInItsTime) {
    RawClient client = Connect();
    std::string many;
    for (int i = 0; i < 100; ++i) {
        many += RawClient::Request("GET", "/metrics", {}, {});
    }
    // Until the replies fill what the system keeps for both; then the server waits and reads no more.
    while (client.Send(many) && IsInTime()) {
    }
    ExpectGrownByLessThan(4 * kMegabyte);
    ExpectPlacesFree();
}

}  // namespace
}  // namespace Tarvik::Server
