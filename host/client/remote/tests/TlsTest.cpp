// SPDX-License-Identifier: MIT
#include <thread>

#include <gtest/gtest.h>
#include <openssl/ssl.h>
#include <openssl/x509_vfy.h>

#include "host/client/remote/RemoteLink.h"
#include "host/client/services/RequestBlock.h"
#include "host/server/net/tests/SilentListener.h"
#include "host/server/net/tests/TestCertificate.h"
#include "host/server/net/tests/TestServer.h"

namespace Tarvik::Server {

namespace {

class TlsTest : public testing::Test {
  protected:
    TlsTest() {
        WriteTestCertificate(folder_.File("other.pem"), folder_.File("other-key.pem"));
        Start({});
    }
    void Start(const CertificateKind& kind) {
        WriteTestCertificate(folder_.File("c.pem"), folder_.File("k.pem"), kind);
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
    const Client::RequestBlock load(3, 5, "{ui:\"anna\"}");
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

TEST_F(TlsTest, ReasonNamesTheHostAndWhatToDo) {
    const auto reason = [&](const std::string& host, const std::string& trusted) {
        Client::RemoteLink link(SettingsFor(host, trusted));
        EXPECT_FALSE(link.Connect(error_));
        const std::size_t place = error_.find("). ");
        return place == std::string::npos ? error_ : error_.substr(place + 3);
    };
    EXPECT_EQ(reason("https://localhost", "c.pem"),
              "The certificate is not one for localhost. Write the address with the name that the server's "
              "certificate bears.");
    EXPECT_EQ(reason("https://127.0.0.1", "other.pem"),
              "The certificate of 127.0.0.1 comes from an authority that this computer does not know. Have "
              "that authority's certificate added to those that are trusted here, or name its file in "
              "SEAPLAN_CA_FILE.");
    Start({-10, 0, {}, 2});
    AwaitExpiry(folder_.File("c.pem"));
    EXPECT_EQ(reason("https://127.0.0.1", "c.pem"),
              "The certificate of 127.0.0.1 has expired. Check the date of this computer, or have the "
              "certificate renewed.");
}

TEST_F(TlsTest, CertificateThatExpiresEndsNoConnectionButTheNext) {
    Start({-10, 0, {}, 2});
    Client::RemoteLink link(SettingsFor("https://127.0.0.1", "c.pem"));
    ASSERT_TRUE(link.Connect(error_)) << error_;
    AwaitExpiry(folder_.File("c.pem"));
    const Client::RequestBlock load(3, 5, "{ui:\"anna\"}");
    EXPECT_EQ(link.Exchange("anna", *load), "[]") << link.LastFailure();
    Client::RemoteLink next(SettingsFor("https://127.0.0.1", "c.pem"));
    EXPECT_FALSE(next.Connect(error_));
}

/// A server of another make, which shows whatever certificate it has: it shakes hands with one client.
class CarelessServer {
  public:
    CarelessServer(const std::string& certificate, const std::string& key)
        : context_(SSL_CTX_new(TLS_server_method()), &SSL_CTX_free) {
        const bool ready =
            SSL_CTX_use_certificate_file(context_.get(), certificate.c_str(), SSL_FILETYPE_PEM) == 1 &&
            SSL_CTX_use_PrivateKey_file(context_.get(), key.c_str(), SSL_FILETYPE_PEM) == 1;
        EXPECT_TRUE(ready);
        thread_ = std::thread([this] {
            const int socket = listener_.Accept();
            const std::unique_ptr<SSL, decltype(&SSL_free)> session(SSL_new(context_.get()), &SSL_free);
            SSL_set_fd(session.get(), socket);
            agreed_ = SSL_accept(session.get()) == 1;
            ::close(socket);
        });
    }
    /// After its client.
    ~CarelessServer() {
        thread_.join();
        EXPECT_FALSE(agreed_);
    }
    CarelessServer(const CarelessServer&) = delete;
    CarelessServer& operator=(const CarelessServer&) = delete;

    std::string Url() const { return "https://127.0.0.1:" + std::to_string(listener_.Port()); }

  private:
    SilentListener listener_;
    std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> context_;
    std::thread thread_;
    bool agreed_ = false;
};

TEST_F(TlsTest, CertificateOfTheFutureIsRefusedAndTheReasonSaysSo) {
    WriteTestCertificate(folder_.File("f.pem"), folder_.File("fk.pem"), {1, 100, {}});
    const CarelessServer server(folder_.File("f.pem"), folder_.File("fk.pem"));
    Client::RemoteSettings settings = SettingsFor("https://127.0.0.1", "f.pem");
    settings.url = server.Url();
    Client::RemoteLink link(settings);
    EXPECT_FALSE(link.Connect(error_));
    EXPECT_NE(error_.find("The certificate of 127.0.0.1 is not valid yet. Check the date of this computer."),
              std::string::npos)
        << error_;
}

TEST(CertificateFault, EveryErrorHasAReason) {
    const Client::ServerUrl url{true, "office.example", 443};
    EXPECT_EQ(Client::WordsOf(Client::FaultOfVerification(X509_V_ERR_CERT_NOT_YET_VALID), url),
              "The certificate of office.example is not valid yet. Check the date of this computer.");
    EXPECT_EQ(Client::WordsOf(Client::FaultOfVerification(X509_V_ERR_INVALID_PURPOSE), url),
              "The certificate of office.example is not one to be trusted. Ask whoever runs the server.");
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
