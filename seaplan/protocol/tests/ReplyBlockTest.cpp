// SPDX-License-Identifier: MIT
// What both paths make of the reply block itself.
#include <gtest/gtest.h>

#include "RawReplyHost.h"
#include "seaplan/protocol/Exchange.h"

namespace Tarvik::Seaplan {

namespace {

using namespace std::string_literals;

TEST(ReplyBlockTest, HeadIsNotInterpreted) {
    const RawReplyHost host("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF{eid:0,vi:\"3\"}\0"s);
    Util::Jsona reply;
    EXPECT_EQ(SendText("{}", Interface::VoyCommand::ChangeVoyage, reply), 0);
    EXPECT_EQ(reply.getv("vi", ""), "3");
}

TEST(ReplyBlockTest, LengthOfZeroDoesNotHideTheText) {
    const RawReplyHost host("\0\0\0\0\0\0\0\0{eid:0}\0"s);
    Util::Jsona reply;
    EXPECT_EQ(SendText("{}", Interface::VoyCommand::ChangeVoyage, reply), 0);
    EXPECT_TRUE(IsSuccess(reply));
}

TEST(ReplyBlockTest, TextEndsAtItsNulWhateverFollows) {
    const RawReplyHost host("\x20\0\0\0\0\0\0\0{eid:0}\0]]]garbage"s);
    Util::Jsona reply;
    EXPECT_EQ(SendText("{}", Interface::VoyCommand::ChangeVoyage, reply), 0);
    EXPECT_EQ(reply.size(), 1);
}

TEST(ReplyBlockTest, EmptyTextDoesNotParse) {
    const RawReplyHost host("\x01\0\0\0\0\0\0\0\0"s);
    Util::Jsona reply;
    EXPECT_EQ(SendText("{}", Interface::VoyCommand::ChangeVoyage, reply), -2);
}

TEST(ReplyBlockTest, RemarkPathReadsItsTextAtTheSamePlace) {
    const RawReplyHost refused("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF{eid:7}\0{eid:0}"s);
    ServerBlock request;
    ServerBlock reply;
    SendRemark("{}", request);
    EXPECT_FALSE(SyncServer(request, reply));
    ASSERT_NE(reply, nullptr);
    EXPECT_STREQ(reply->Payload(), "{eid:7}");
}

}  // namespace
}  // namespace Tarvik::Seaplan
