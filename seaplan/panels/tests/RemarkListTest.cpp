// SPDX-License-Identifier: MIT
/// The list's events and order, and the title that is cut.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/remark/ClistCtrlViewEx.h"
#include "seaplan/panels/remark/RemarkView.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

int EightALetter(const std::string& text) {
    return 8 * static_cast<int>(Util::StringUtl::TranslateString(text).size());
}

RemarkTitle Title(const std::string& name) {
    return MakeRemarkTitle("Remark of %s", name, EightALetter);
}

}  // namespace

TEST(ClistCtrlViewExTest, EventsOneAndEightReachThePanelWithRowAndItem) {
    ClistCtrlViewEx list;
    std::vector<std::string> told;
    const auto note = [&told](const char* kind) {
        return [&told, kind](int row, const std::string& item) {
            told.push_back(kind + std::to_string(row) + item);
        };
    };
    list.SetReports({note("first "), note("second ")});
    list.OnItemEvent(1, 0x00050007, "flt.remark.del");
    list.OnItemEvent(8, 0xFFFF0000, "rmk.name");
    list.OnItemEvent(2, 0x00010000, "rmk.name");
    EXPECT_THAT(told, ElementsAre("first 5flt.remark.del", "second 65535rmk.name"));
    EXPECT_EQ(ClistCtrlViewEx::PositionOf(5), 0x00050000U);
}

TEST(ClistCtrlViewExTest, DeleteClicksTheImageThatDeletesAndNoOtherKeyClicks) {
    EXPECT_STREQ(ClistCtrlViewEx::ItemOfKey(Key::Delete), RemarkItem::kDelete);
    EXPECT_EQ(ClistCtrlViewEx::ItemOfKey(Key::Enter), nullptr);
    EXPECT_EQ(ClistCtrlViewEx::ItemOfKey(Key::Backspace), nullptr);
}

TEST(ClistCtrlViewExTest, TheCurrentRowGoesAlongWithItsRow) {
    const CRemark old{3, "7", 1, "Old", "", "", "2024-01-01 00:00:00"};
    const CRemark young{3, "7", 2, "Young", "", "", "2024-01-02 00:00:00"};
    ClistCtrlViewEx list;
    list.Append({"Old", "", false, &old});
    list.Append({"Young", "", false, &young});
    list.SetCurrent(0);
    list.InsertFirst({"New", "now"});
    EXPECT_EQ(list.Current(), 1);
    list.SortByTime(false);
    EXPECT_EQ(list.Current(), 2);
    EXPECT_EQ(list.Rows()[1].name, "Young");
    EXPECT_EQ(list.Rows()[1].time, "2024-01-02 00:00:00");
    list.Remove(0);
    EXPECT_EQ(list.Current(), 1);
    list.Remove(1);
    EXPECT_EQ(list.Current(), -1);
}

TEST(ClistCtrlViewExTest, EqualTimesKeepTheirOrder) {
    const CRemark first{3, "7", 1, "First", "", "", ""};
    const CRemark second{3, "7", 2, "Second", "", "", ""};
    ClistCtrlViewEx list;
    list.Append({"First", "", false, &first});
    list.Append({"Second", "", false, &second});
    list.SortByTime(false);
    EXPECT_EQ(list.Rows()[0].name, "First");
    list.SortByTime(true);
    EXPECT_EQ(list.Rows()[0].name, "First");
}

TEST(RemarkTitleTest, UpTo400PixelsTheTextIsWhole) {
    const std::string name(40, 'x');
    EXPECT_EQ(Title(name), (RemarkTitle{"Remark of " + name, 420, 25}));
}

TEST(RemarkTitleTest, AVeryLongNameEndsInDots) {
    // 51 letters of 8 pixels: 50 would fit, 47 and the dots stand there.
    EXPECT_EQ(Title(std::string(41, 'x')),
              (RemarkTitle{"Remark of " + std::string(37, 'x') + "...", 400, 25}));
}

TEST(RemarkTitleTest, NoPairOfUnitsIsParted) {
    std::string name(36, 'x');
    for (int i = 0; i < 8; ++i) {
        name += "\xF0\x9F\x9A\xA2";
    }
    const RemarkTitle title = Title(name);
    EXPECT_EQ(title.text, "Remark of " + std::string(36, 'x') + "...") << "a half ship would be left";
}

TEST(RemarkTitleTest, ATextOfHugeLettersStaysWhole) {
    const auto huge = [](const std::string&) { return 1000000; };
    EXPECT_EQ(MakeRemarkTitle("%s", "Name", huge), (RemarkTitle{"Name", 400, 25}));
}

TEST(RemarkTitleTest, ANameOfManyBytesIsCutToWholeLettersBelow200) {
    std::string name;
    for (int i = 0; i < 100; ++i) {
        name += "船";
    }
    const auto narrow = [](const std::string&) { return 10; };
    const RemarkTitle title = MakeRemarkTitle("%s", name, narrow);
    EXPECT_EQ(title.text.size(), 198U);
}

}  // namespace Tarvik::Seaplan
