// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/server/net/tests/TestServer.h"

namespace Tarvik::Server {

namespace {

const std::string kSomeToken(43, 'A');

TEST(HttpLimits, UnknownPathsAndMethodsAreTold) {
    TestServer server;
    RawClient client(server.Port());
    EXPECT_EQ(client.Ask("GET", "/").status, 404);
    const RawReply wrong = client.Ask("GET", "/v1/login");
    EXPECT_EQ(wrong.status, 405);
    EXPECT_EQ(wrong.fields.at("allow"), "POST");
    EXPECT_EQ(client.Ask("GET", "/health?from=monitor").status, 200);
}

TEST(HttpLimits, ReplyToHeadHasNoBody) {
    TestServer server;
    RawClient client(server.Port());
    const RawReply head = client.Ask("HEAD", "/health");
    EXPECT_EQ(head.status, 405);
    EXPECT_EQ(head.fields.at("content-length"), "0");
    EXPECT_EQ(client.Ask("GET", "/health").status, 200);
}

TEST(HttpLimits, OversizedBodyIsRefusedAndTheReplyArrives) {
    TestServer server([](Settings& settings) { settings.maxBodyKilobytes = 64; });
    RawClient client(server.Port());
    const RawReply reply = client.Ask("POST", "/v1/exchange", std::string(1'000'000, 'x'), kSomeToken);
    EXPECT_EQ(reply.status, 413);
    EXPECT_EQ(reply.fields.at("connection"), "close");
}

TEST(HttpLimits, BodyOfTheLargestSizeIsTaken) {
    TestServer server([](Settings& settings) { settings.maxBodyKilobytes = 64; });
    const RawReply reply = server.Ask("POST", "/v1/exchange", std::string(65536, 'x'), kSomeToken);
    EXPECT_EQ(reply.status, 401);
    EXPECT_EQ(server.Ask("POST", "/v1/exchange", std::string(65537, 'x'), kSomeToken).status, 413);
}

TEST(HttpLimits, OversizedBodyInChunksIsRefused) {
    TestServer server([](Settings& settings) { settings.maxBodyKilobytes = 1; });
    RawClient client(server.Port());
    client.Send("POST /v1/exchange HTTP/1.1\r\nHost: x\r\nAuthorization: Bearer " + kSomeToken +
                "\r\nTransfer-Encoding: chunked\r\n\r\n800\r\n" + std::string(0x800, 'x') + "\r\n0\r\n\r\n");
    EXPECT_EQ(client.Read().status, 413);
}

TEST(HttpLimits, LoginBodiesHaveASmallLimitOfTheirOwn) {
    TestServer server;
    EXPECT_EQ(server.Ask("POST", "/v1/login", std::string(8193, ' ')).status, 413);
    EXPECT_EQ(server.Ask("POST", "/v1/login", std::string(8192, ' ')).status, 400);
}

TEST(HttpLimits, ExpectedContinueIsSaid) {
    TestServer server;
    RawClient client(server.Port());
    client.Send("POST /v1/login HTTP/1.1\r\nHost: x\r\nExpect: 100-continue\r\nContent-Length: 2\r\n\r\n");
    EXPECT_EQ(client.Read().status, 100);
    client.Send("{}");
    EXPECT_EQ(client.Read().status, 400);
}

TEST(HttpLimits, MalformedRequestsAreToldAndTheConnectionEnds) {
    TestServer server;
    for (const std::string& bytes :
         {std::string("\r\n\r\n\r\n"), std::string("nonsense\r\n\r\n"),
          std::string("GET /health HTTP/7.3\r\n\r\n"),
          std::string("GET /health HTTP/1.1\r\nno colon here\r\n\r\n"),
          std::string("POST /v1/login HTTP/1.1\r\nContent-Length: many\r\n\r\n"),
          std::string("POST /v1/login HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\n")}) {
        RawClient client(server.Port());
        client.Send(bytes);
        EXPECT_EQ(client.Read().status, 400) << bytes;
    }
    EXPECT_EQ(server.Ask("GET", "/health").status, 200);
}

TEST(HttpLimits, EndlessHeadIsRefused) {
    TestServer server;
    RawClient client(server.Port());
    client.Send("GET /health HTTP/1.1\r\nX: " + std::string(20000, 'x'));
    EXPECT_EQ(client.Read().status, 431);
}

TEST(HttpLimits, OldHttpClosesUnlessAskedToStay) {
    TestServer server;
    RawClient client(server.Port());
    client.Send("GET /health HTTP/1.0\r\n\r\n");
    EXPECT_EQ(client.Read().status, 200);
    EXPECT_TRUE(client.SeesEnd());
}

TEST(HttpLimits, ConnectionsBeyondTheLimitAreClosedAndCounted) {
    TestServer server([](Settings& settings) { settings.maxConnections = 2; });
    RawClient first(server.Port());
    RawClient second(server.Port());
    ASSERT_EQ(first.Ask("GET", "/health").status, 200);
    ASSERT_EQ(second.Ask("GET", "/health").status, 200);
    RawClient third(server.Port());
    EXPECT_TRUE(third.SeesEnd());
    const std::string metrics = first.Ask("GET", "/metrics").body;
    EXPECT_NE(metrics.find("seaplan_connections 2\n"), std::string::npos);
    EXPECT_NE(metrics.find("seaplan_connections_refused_total 1\n"), std::string::npos);
}

TEST(HttpLimits, ConnectionsOfOneAddressHaveALimitOfTheirOwn) {
    EXPECT_EQ(Settings().maxConnectionsPerAddress, 64);
    TestServer server([](Settings& settings) { settings.maxConnectionsPerAddress = 1; });
    {
        RawClient first(server.Port());
        ASSERT_EQ(first.Ask("GET", "/health").status, 200);
        EXPECT_TRUE(RawClient(server.Port()).SeesEnd());
    }
    // The place is free again once the server has seen the end.
    int status = 0;
    for (int i = 0; i < 1000 && status == 0; ++i) {
        status = server.Ask("GET", "/health").status;
    }
    EXPECT_EQ(status, 200);
}

TEST(HttpLimits, SilentConnectionIsEnded) {
    TestServer server([](Settings& settings) { settings.idleSeconds = 1; });
    RawClient client(server.Port());
    EXPECT_TRUE(client.SeesEnd());
}

TEST(HttpLimits, RequestThatDoesNotArriveWholeIsEndedAndCounted) {
    TestServer server([](Settings& settings) { settings.requestSeconds = 1; });
    RawClient client(server.Port());
    client.Send("POST /v1/login HTTP/1.1\r\nContent-Length: 10\r\n\r\n{");
    EXPECT_TRUE(client.SeesEnd());
    const std::string metrics = server.Ask("GET", "/metrics").body;
    EXPECT_NE(metrics.find("seaplan_requests_total{command=\"login\",result=\"bad\"} 1\n"), std::string::npos)
        << metrics;
}

}  // namespace
}  // namespace Tarvik::Server
