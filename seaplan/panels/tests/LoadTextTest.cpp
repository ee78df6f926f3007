// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/language/Messages.h"
#include "seaplan/panels/tests/KeyTexts.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

using Interface::SysMsgHandleRes;

TEST(LoadText, ANumberWithoutEntryGivesTheFallback) {
    const KeyTexts texts;
    std::string out;
    EXPECT_FALSE(LoadText(out, 1, "as made"));
    EXPECT_EQ(out, "as made");
    EXPECT_TRUE(LoadText(out, 49, "as made"));
    EXPECT_EQ(out, "IDS_TREE_VOYTITLE");
    EXPECT_STREQ(TextKeyOf(3), "IDS_BK_TIP_SAVE");
    EXPECT_STREQ(TextKeyOf(1152), "IDC_BK_T_TITLE");
    EXPECT_STREQ(TextKeyOf(5038), "IDS_BK_ERR_INPUT");
}

TEST(LoadText, AKeyThatTheLanguageLacksGivesTheFallback) {
    KeyTexts texts;
    texts.missing = {u"IDS_TREE_VOYTITLE"};
    std::string out;
    EXPECT_FALSE(LoadText(out, 49, "VoyageManager"));
    EXPECT_EQ(out, "VoyageManager");
    EXPECT_EQ(Text(TextId::IDS_TREE_VOYTITLE), "");
}

TEST(Messages, KindsAndAnswersAreTheHosts) {
    const KeyTexts texts;
    TestSupport::RecordingMsgSink sink;
    int window = 0;
    sink.Answer(SysMsgHandleRes::Yes);
    EXPECT_TRUE(Question(TextId::IDS_PORTCALL_CLOSESAVE, &window));
    sink.Answer(SysMsgHandleRes::No);
    EXPECT_FALSE(Question(TextId::IDS_PORTCALL_CLOSESAVE, &window));
    sink.Answer(SysMsgHandleRes::Ok);
    EXPECT_TRUE(OkOrCancel(TextId::IDS_PORTCALL_CLEARFORBLANK, &window));
    sink.Answer(SysMsgHandleRes::Cancel);
    EXPECT_FALSE(OkOrCancel(TextId::IDS_PORTCALL_CLEARFORBLANK, &window));
    Notice(TextId::IDS_PORTCALL_ERRETA, &window);
    ASSERT_EQ(sink.messages.size(), 5U);
    EXPECT_EQ(sink.messages[0].flags, 4);
    EXPECT_EQ(sink.messages[2].flags, 1);
    EXPECT_EQ(sink.messages[4].flags, 0);
    for (const auto& message : sink.messages) {
        EXPECT_EQ(message.level, 1);
        EXPECT_EQ(message.title, "");
        EXPECT_EQ(message.owner, &window);
    }
}

}  // namespace Tarvik::Seaplan
