// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <tarvik/core/TObject.h>

#include "seaplan/protocol/Exchange.h"
#include "tarvik/src/core/BusTesting.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

namespace {

using TestSupport::RecordingHost;

Util::CAutoBuffer BufferOf(const std::string& text) {
    Util::CAutoBuffer buffer(256);
    Util::CBlockBuffer::format0(buffer, "%s", text.c_str());
    return buffer;
}

TEST(SendRequestTest, EnvelopeIsByteExactAndCountsTheTerminatingNul) {
    RecordingHost host;
    host.Reply(3, "[]");
    Util::Jsona reply;
    EXPECT_EQ(SendRequest(BufferOf("{ui:\"7\"}"), 3, reply), 0);
    ASSERT_EQ(host.requests.size(), 1U);
    const std::string expected("\x09\x00\x00\x00\x03\x00\x05\x00{ui:\"7\"}\x00", 17);
    EXPECT_EQ(host.requests[0].bytes, expected);
}

TEST(SendRequestTest, WithoutReplyFails) {
    RecordingHost host;
    Util::Jsona reply;
    EXPECT_EQ(SendRequest(BufferOf("{}"), 3, reply), -1);
}

TEST(SendRequestTest, WithoutHostFails) {
    Util::Jsona reply;
    EXPECT_EQ(SendRequest(BufferOf("{}"), 3, reply), -1);
}

TEST(SendRequestTest, RequestBlockIsFreedWhateverTheHostAnswers) {
    RecordingHost host;
    const long before = Core::BusTesting::LiveBlocks();
    Util::Jsona reply;
    EXPECT_EQ(SendRequest(BufferOf("{}"), 3, reply), -1);
    EXPECT_EQ(host.requests.size(), 1U) << "the host was asked and answered nothing";
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), before);
    host.Reply(3, "[]");
    EXPECT_EQ(SendRequest(BufferOf("{}"), 3, reply), 0);
    host.Reply(3, "no json");
    EXPECT_EQ(SendRequest(BufferOf("{}"), 3, reply), -2);
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), before);
}

TEST(SendRequestTest, ReplyThatDoesNotParseFailsAndItsBlockIsFreed) {
    RecordingHost host;
    host.Reply(3, "{eid:");
    const long before = Core::BusTesting::LiveBlocks();
    Util::Jsona reply;
    EXPECT_EQ(SendRequest(BufferOf("{}"), 3, reply), -2);
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), before);
}

TEST(SendRequestTest, GoodReplyBlockIsFreedAndItsTextStays) {
    RecordingHost host;
    host.Reply(3, "{eid:0,ci:\"12\"}");
    const long before = Core::BusTesting::LiveBlocks();
    Util::Jsona reply;
    EXPECT_EQ(SendRequest(BufferOf("{}"), 3, reply), 0);
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), before);
    EXPECT_EQ(reply.getv("ci", ""), "12");
}

TEST(SendRequestTest, TextOfMoreThanTheFirstCapacityIsNotCut) {
    RecordingHost host;
    host.Reply(4, "{eid:0}");
    const std::string name(5000, 'x');
    Util::Jsona reply;
    EXPECT_EQ(SendText(name, Interface::VoyCommand::ChangeCategory, reply), 0);
    EXPECT_EQ(host.requests[0].Text(), name);
    EXPECT_EQ(host.requests[0].Length(), 5001U);
}

TEST(SendTextTest, PercentSignsGoInAsTheyStand) {
    RecordingHost host;
    Util::Jsona reply;
    SendText("{cn:\"50%s\"}", Interface::VoyCommand::ChangeCategory, reply);
    EXPECT_EQ(host.requests[0].Text(), "{cn:\"50%s\"}");
}

TEST(SendChangeTest, LaddersTellTheStepThatFailed) {
    RecordingHost host;
    host.ReplyNothing(4);
    host.Reply(4, "{}");
    host.Reply(4, "{eid:7}");
    host.Reply(4, "{ci:\"1\"}");
    host.Reply(4, "{eid:0}");
    EXPECT_EQ(kPreparedCommandCodes.Of(SendChange("x", Interface::VoyCommand::ChangeCategory)), -3);
    EXPECT_EQ(kPreparedCommandCodes.Of(SendChange("x", Interface::VoyCommand::ChangeCategory)), -4);
    EXPECT_EQ(kPreparedCommandCodes.Of(SendChange("x", Interface::VoyCommand::ChangeCategory)), -5);
    EXPECT_EQ(kPreparedCommandCodes.Of(SendChange("x", Interface::VoyCommand::ChangeCategory)), -5)
        << "a status without eid is a failure";
    EXPECT_EQ(kPreparedCommandCodes.Of(SendChange("x", Interface::VoyCommand::ChangeCategory)), 0);
}

TEST(SendTextTest, StatusOfAnotherKindThanIntegerIsNoSuccess) {
    Util::Jsona reply;
    for (const char* json : {"{eid:\"0\"}", "{eid:0.0}", "{eid:null}", "{eid:-1}", "{}", "[]", "0"}) {
        ASSERT_TRUE(reply.parse(json)) << json;
        EXPECT_FALSE(IsSuccess(reply)) << json;
    }
    ASSERT_TRUE(reply.parse("{\"eid\":0}"));
    EXPECT_TRUE(IsSuccess(reply));
}

TEST(EnsureConnectedTest, ClientThatDoesNotAnswerCountsAsUnconnected) {
    EXPECT_EQ(EnsureConnected(), -1);
}

TEST(EnsureConnectedTest, ConnectedClientNeedsNoLogin) {
    RecordingHost host;
    EXPECT_EQ(EnsureConnected(), 0);
    EXPECT_EQ(host.logins, 0);
}

TEST(EnsureConnectedTest, UnconnectedClientOpensLoginAndDoesNotWait) {
    RecordingHost host;
    host.connected = false;
    EXPECT_EQ(EnsureConnected(), -1);
    EXPECT_EQ(host.logins, 1);
}

TEST(GetUserTest, EmptyUserIdIsHandedOn) {
    RecordingHost host;
    host.user = "";
    std::string user = "before";
    EXPECT_EQ(GetUser(user), 0);
    EXPECT_EQ(user, "");
}

TEST(GetUserTest, NobodyLoggedInLeavesAnEmptyUser) {
    RecordingHost host;
    host.user.reset();
    std::string user = "before";
    EXPECT_EQ(GetUser(user), -1);
    EXPECT_EQ(user, "");
    host.user = "42";
    EXPECT_EQ(GetUser(user), 0);
    EXPECT_EQ(user, "42");
}

TEST(ServerTimeTest, TextsBeforeTheCutOverGoOutUnchanged) {
    std::string out;
    EXPECT_EQ(ToServerTime("2011-10-02 07:59:59", out), 0);
    EXPECT_EQ(out, "2011-10-02 07:59:59");
    EXPECT_EQ(ToServerTime("", out), 0);
    EXPECT_EQ(out, "");
}

TEST(ServerTimeTest, TextsFromTheCutOverOnGoOutAsUtc) {
    std::string out;
    EXPECT_EQ(ToServerTime("2011-10-02 08:00:00", out), 0);
    EXPECT_EQ(out, "2011-10-02 00:00:00");
    EXPECT_EQ(ToServerTime("2024-01-01 03:30:15", out), 0);
    EXPECT_EQ(out, "2023-12-31 19:30:15");
}

TEST(ServerTimeTest, TextsAreComparedAsTexts) {
    RecordingHost host;
    std::string out;
    EXPECT_EQ(ToServerTime("2011-10-02", out), 0);
    EXPECT_EQ(out, "2011-10-02") << "the shorter text sorts first";
    EXPECT_EQ(FromServerTime("1999 or so", out), 0);
    EXPECT_EQ(out, "1999 or so");
    EXPECT_EQ(ToServerTime("soon", out), -1);
    EXPECT_EQ(FromServerTime("soon", out), -1);
}

TEST(ServerTimeTest, WritingIgnoresTheZoneThatReadingTakes) {
    RecordingHost host;
    host.zone = "UTC";
    std::string wire;
    std::string back;
    EXPECT_EQ(ToServerTime("2024-01-01 12:00:00", wire), 0);
    EXPECT_EQ(wire, "2024-01-01 04:00:00");
    EXPECT_EQ(FromServerTime(wire, back), 0);
    EXPECT_EQ(back, "2024-01-01 04:00:00");
}

TEST(ServerTimeTest, ResultMayReplaceItsText) {
    const RecordingHost host;
    std::string text = "2024-01-01 12:00:00";
    EXPECT_EQ(ToServerTime(text, text), 0);
    EXPECT_EQ(text, "2024-01-01 04:00:00");
    EXPECT_EQ(FromServerTime(text, text), 0);
    EXPECT_EQ(text, "2024-01-01 12:00:00");
}

TEST(ServerTimeTest, LaterTextThatIsNoTimeIsRefused) {
    std::string out = "before";
    EXPECT_EQ(ToServerTime("2024-02-30 00:00:00", out), -1);
    EXPECT_EQ(ToServerTime("2024-02-03 00:00", out), -1);
    EXPECT_EQ(out, "before");
}

TEST(ServerTimeTest, TextsBeforeTheCutOverComeBackUnchangedWithoutAskingForAZone) {
    std::string out;
    EXPECT_EQ(FromServerTime("2011-10-01 23:59:59", out), 0);
    EXPECT_EQ(out, "2011-10-01 23:59:59");
}

TEST(ServerTimeTest, TextsFromTheCutOverOnComeBackInTheChosenZone) {
    RecordingHost host;
    std::string out;
    EXPECT_EQ(FromServerTime("2011-10-02 00:00:00", out), 0);
    EXPECT_EQ(out, "2011-10-02 08:00:00");
    host.zone = "UTC";
    EXPECT_EQ(FromServerTime("2024-06-30 12:00:00", out), 0);
    EXPECT_EQ(out, "2024-06-30 12:00:00");
}

TEST(ServerTimeTest, ReadingFailsForABadTextAndWithoutZone) {
    RecordingHost host;
    std::string out;
    EXPECT_EQ(FromServerTime("2024-13-01 00:00:00", out), -1);
    host.zone.reset();
    EXPECT_EQ(FromServerTime("2024-06-30 12:00:00", out), -2);
    EXPECT_EQ(FromServerTime("2024-13-01 00:00:00", out), -1) << "the text is looked at before the zone";
}

}  // namespace
}  // namespace Tarvik::Seaplan
