// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>
#include <fstream>
#include <unistd.h>

#include <gtest/gtest.h>

#include "host/server/net/tests/TestCertificate.h"
#include "host/server/net/tests/TestServer.h"

namespace Tarvik::Server {

inline constexpr std::size_t kMegabyte = 1024U * 1024;

/// The address sanitizer keeps what was freed.
#ifdef __SANITIZE_ADDRESS__
inline constexpr bool kMemoryIsMeasured = false;
#else
inline constexpr bool kMemoryIsMeasured = true;
#endif

/// Resident bytes of this process, in which the server runs.
inline std::size_t Resident() {
    std::ifstream in("/proc/self/statm");
    std::size_t all = 0;
    std::size_t resident = 0;
    in >> all >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

/// A server that strangers attack, with and without TLS.
class HttpAttack : public testing::TestWithParam<Wire> {
  protected:
    explicit HttpAttack(const TestServer::Change& change = {}) {
        // A connection that the server ends while TLS still writes raises it.
        std::signal(SIGPIPE, SIG_IGN);
        const std::string certificate = folder_.File("chain.pem");
        const std::string key = folder_.File("key.pem");
        WriteTestCertificate(certificate, key);
        server_ = std::make_unique<TestServer>([&](Settings& settings) {
            settings.requestSeconds = 2;
            if (GetParam() == Wire::Tls) {
                settings.tlsCertificate = certificate;
                settings.tlsKey = key;
            }
            if (change) {
                change(settings);
            }
        });
    }
    RawClient Connect() { return RawClient(server_->Port(), GetParam()); }
    static std::string Chunked(const std::string& path = "/v1/login") {
        return "POST " + path + " HTTP/1.1\r\nHost: x\r\nAuthorization: Bearer " + std::string(43, 'A') +
               "\r\nTransfer-Encoding: chunked\r\n\r\n";
    }
    /// Sends the start and then the piece until the server ends the connection or so much was sent.
    static int StatusAfter(RawClient& client, const std::string& start, const std::string& piece,
                           std::size_t most) {
        if (client.Send(start)) {
            for (std::size_t sent = 0; sent < most && client.Send(piece); sent += piece.size()) {
            }
        }
        return client.Read().status;
    }
    void ExpectServes() {
        RawClient client = Connect();
        EXPECT_EQ(client.Ask("GET", "/health").status, 200);
    }
    /// Sends it over many megabytes; expects the status, or nothing where the end overtakes the reply.
    void ExpectRefusedCheaply(const std::string& start, const std::string& piece, int status) {
        ExpectServes();
        const std::size_t before = Resident();
        RawClient client = Connect();
        const int got = StatusAfter(client, start, piece, 32 * kMegabyte);
        EXPECT_TRUE(got == status || got == 0) << got;
        EXPECT_TRUE(!kMemoryIsMeasured || Resident() < before + 4 * kMegabyte) << Resident() - before;
        ExpectServes();
    }

    TempFolder folder_;
    std::unique_ptr<TestServer> server_;
};

}  // namespace Tarvik::Server
