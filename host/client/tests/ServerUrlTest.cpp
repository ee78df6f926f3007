// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/client/services/ServerUrl.h"

namespace Tarvik::Client {

namespace {

TEST(ServerUrl, TellsHostPortAndTls) {
    const auto plain = ServerUrl::Parse("http://voyages.example");
    ASSERT_TRUE(plain);
    EXPECT_FALSE(plain->tls);
    EXPECT_EQ(plain->host, "voyages.example");
    EXPECT_EQ(plain->port, 80);
    EXPECT_EQ(plain->HostField(), "voyages.example");
    const auto tls = ServerUrl::Parse("https://voyages.example:8470/");
    ASSERT_TRUE(tls);
    EXPECT_TRUE(tls->tls);
    EXPECT_EQ(tls->port, 8470);
    EXPECT_EQ(tls->HostField(), "voyages.example:8470");
    EXPECT_EQ(ServerUrl::Parse("https://h")->port, 443);
    const auto wide = ServerUrl::Parse("http://[::1]:9000");
    ASSERT_TRUE(wide);
    EXPECT_EQ(wide->host, "::1");
    EXPECT_EQ(wide->HostField(), "[::1]:9000");
}

TEST(ServerUrl, OtherFormsAreNone) {
    for (const char* text : {"", "voyages.example", "ftp://h", "http://", "http://:80",
                             "http://h:", "http://h:0", "http://h:65536", "http://h:80x", "http://h/path",
                             "http://u@h", "http://[::1", "http://[]:1", "http://h:80/path", "http://a b"}) {
        EXPECT_FALSE(ServerUrl::Parse(text)) << text;
    }
}

}  // namespace
}  // namespace Tarvik::Client
