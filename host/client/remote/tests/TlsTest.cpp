// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/client/remote/RemoteLink.h"
#include "host/server/net/tests/RequestBlock.h"
#include "host/server/net/tests/TestCertificate.h"
#include "host/server/net/tests/TestServer.h"

namespace Tarvik::Server {

namespace {

class TlsTest : public testing::Test {
  protected:
    TlsTest() {
        WriteTestCertificate(folder_.File("c.pem"), folder_.File("k.pem"));
        WriteTestCertificate(folder_.File("other.pem"), folder_.File("other-key.pem"));
        server_ = std::make_unique<TestServer>([this](Settings& settings) {
            settings.tlsCertificate = folder_.File("c.pem");
            settings.tlsKey = folder_.File("k.pem");
        });
        server_->AddUser("anna", "correct horse");
    }
    Client::RemoteSettings SettingsFor(const std::string& host, const std::string& trusted) {
        Client::RemoteSettings settings;
        settings.url = host + ":" + std::to_string(server_->Port());
        settings.user = "anna";
        settings.password = "correct horse";
        settings.caFile = folder_.File(trusted);
        return settings;
    }

    TempFolder folder_;
    std::unique_ptr<TestServer> server_;
    std::string error_;
};

TEST_F(TlsTest, ExchangesOverOneKeptConnection) {
    Client::RemoteLink link(SettingsFor("https://127.0.0.1", "c.pem"));
    ASSERT_TRUE(link.Connect(error_)) << error_;
    const RequestBlock load(3, 5, "{ui:\"anna\"}");
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(link.Exchange("anna", *load), "[]") << link.LastFailure();
    }
    EXPECT_EQ(server_->OpenedConnections(), 1U);
}

TEST_F(TlsTest, CertificateThatIsNotTrustedIsRefused) {
    Client::RemoteLink link(SettingsFor("https://127.0.0.1", "other.pem"));
    EXPECT_FALSE(link.Connect(error_));
    EXPECT_NE(error_.find("certificate verify failed"), std::string::npos) << error_;
}

TEST_F(TlsTest, CertificateOfAnotherHostIsRefused) {
    Client::RemoteLink link(SettingsFor("https://localhost", "c.pem"));
    EXPECT_FALSE(link.Connect(error_));
    EXPECT_NE(error_.find("certificate verify failed"), std::string::npos) << error_;
}

TEST_F(TlsTest, PlainRequestsAreNotAnswered) {
    RawClient client(server_->Port());
    EXPECT_EQ(client.Ask("GET", "/health").status, 0);
}

TEST_F(TlsTest, KeyOfAnotherCertificateIsRefusedAtTheStart) {
    EXPECT_THROW(TestServer([this](Settings& settings) {
                     settings.tlsCertificate = folder_.File("c.pem");
                     settings.tlsKey = folder_.File("other-key.pem");
                 }),
                 std::runtime_error);
}

}  // namespace
}  // namespace Tarvik::Server
