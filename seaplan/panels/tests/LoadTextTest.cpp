// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/tests/KeyTexts.h"
#include "seaplan/panels/texts/TreeTexts.h"

namespace Tarvik::Seaplan {

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
    EXPECT_EQ(Text(TextIds::IDS_TREE_VOYTITLE), "");
}

TEST(LoadText, APanelsTextMayBeTwiceAsLongAsAControls) {
    KeyTexts texts;
    texts.given[u"IDS_TREE_VOYTITLE"] = std::u16string(5000, u'a');
    EXPECT_EQ(Text(TextIds::IDS_TREE_VOYTITLE).size(), 4095U);
    EXPECT_EQ(TextOfKey("IDS_TREE_VOYTITLE").size(), 2047U);
}

}  // namespace Tarvik::Seaplan
