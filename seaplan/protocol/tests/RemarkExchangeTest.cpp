// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/protocol/Exchange.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

namespace {

TEST(SendRemarkTest, EnvelopeIsByteExact) {
    TestSupport::RecordingHost host;
    ServerBlock request;
    ServerBlock reply;
    SendRemark("{optype:\"4\"}", request);
    SyncServer(request, reply);
    ASSERT_EQ(host.requests.size(), 1U);
    const std::string expected("\x0d\x00\x00\x00\x09\x00\x02\x10{optype:\"4\"}\x00", 21);
    EXPECT_EQ(host.requests[0].bytes, expected);
    EXPECT_EQ(host.requests[0].ModuleWord(), 0x1002);
}

TEST(SendRemarkTest, EmptyTextIsItsNulAlone) {
    ServerBlock request;
    SendRemark("", request);
    ASSERT_NE(request, nullptr);
    EXPECT_EQ(request->length, 1U);
    EXPECT_EQ(request->Payload()[0], '\0');
}

TEST(SendRemarkTest, TextEndsAtItsFirstNul) {
    ServerBlock request;
    SendRemark(std::string("ab\0cd", 5), request);
    EXPECT_EQ(request->length, 3U);
    EXPECT_STREQ(request->Payload(), "ab");
}

class SyncServerTest : public testing::Test {
  protected:
    bool Sync(const std::string& json) {
        host.Reply(9, json);
        ServerBlock request;
        SendRemark("{}", request);
        return SyncServer(request, reply);
    }

    TestSupport::RecordingHost host;
    ServerBlock reply;
};

TEST_F(SyncServerTest, WithoutReplyFails) {
    ServerBlock request;
    SendRemark("{}", request);
    EXPECT_FALSE(SyncServer(request, reply));
    EXPECT_EQ(reply, nullptr);
}

TEST_F(SyncServerTest, WithoutRequestNothingIsSent) {
    EXPECT_TRUE(Sync("{}"));
    EXPECT_FALSE(SyncServer({}, reply));
    EXPECT_EQ(reply, nullptr) << "an older reply does not stay";
    EXPECT_EQ(host.requests.size(), 1U);
}

TEST_F(SyncServerTest, ErrorNumberOtherThanZeroFails) {
    EXPECT_FALSE(Sync(R"({eid:7,emsg:"no"})"));
    EXPECT_FALSE(Sync("{eid:-1}"));
    EXPECT_STREQ(reply->Payload(), "{eid:-1}") << "the reply is handed out all the same";
}

TEST_F(SyncServerTest, ErrorNumberThatIsNoIntegerFails) {
    EXPECT_FALSE(Sync(R"({eid:"0"})"));
    EXPECT_FALSE(Sync("{eid:0.0}"));
    EXPECT_FALSE(Sync("{eid:null}"));
}

TEST_F(SyncServerTest, ZeroMissingOrUnreadableIsSuccess) {
    for (const char* json :
         {"{eid:0}", "{}", R"({emsg:"no"})", "[]", "[{eid:7}]", "7", "no json", "", "{eid:7"}) {
        EXPECT_TRUE(Sync(json)) << json;
        EXPECT_NE(reply, nullptr) << json;
    }
}

}  // namespace
}  // namespace Tarvik::Seaplan
