// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/server/net/tests/TestCertificate.h"
#include "host/server/net/tests/TestServer.h"

namespace Tarvik::Server {

namespace {

class TlsStartTest : public testing::Test {
  protected:
    /// Why a server with these files does not start; empty when it does.
    std::string WhyNot(const CertificateKind& kind) {
        WriteTestCertificate(certificate_, key_, kind);
        try {
            TestServer server([this](Settings& settings) {
                settings.tlsCertificate = certificate_;
                settings.tlsKey = key_;
            });
            return {};
        } catch (const std::exception& failure) {
            return failure.what();
        }
    }

    TempFolder folder_;
    std::string certificate_ = folder_.File("chain.pem");
    std::string key_ = folder_.File("key.pem");
};

TEST_F(TlsStartTest, ExpiredAndFutureCertificatesAreTold) {
    EXPECT_EQ(WhyNot({}), "");
    EXPECT_EQ(WhyNot({-100, -1, {}}), "the certificate " + certificate_ + " cannot be used: it has expired");
    EXPECT_EQ(WhyNot({1, 100, {}}),
              "the certificate " + certificate_ + " cannot be used: it is not valid yet");
}

TEST_F(TlsStartTest, EncryptedKeyIsToldAndNobodyIsAsked) {
    EXPECT_EQ(WhyNot({-1, 1, "secret"}),
              "the key " + key_ +
                  " cannot be used: it is encrypted; the server needs one without a "
                  "passphrase");
}

TEST_F(TlsStartTest, OldTlsNeedsForwardSecrecyAndAuthenticatedEncryption) {
    WriteTestCertificate(certificate_, key_);
    TestServer server([this](Settings& settings) {
        settings.tlsCertificate = certificate_;
        settings.tlsKey = key_;
    });
    EXPECT_TRUE(RawClient::TakesSuites(server.Port(), "ECDHE-ECDSA-AES128-GCM-SHA256"));
    EXPECT_TRUE(RawClient::TakesSuites(server.Port(), "ECDHE-ECDSA-CHACHA20-POLY1305"));
    for (const char* old :
         {"ECDHE-ECDSA-AES128-SHA", "ECDHE-ECDSA-AES256-SHA384", "ECDHE-ECDSA-AES128-SHA256"}) {
        EXPECT_FALSE(RawClient::TakesSuites(server.Port(), old)) << old;
    }
}

}  // namespace
}  // namespace Tarvik::Server
