// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/panels/editors/ListBox.h"
#include "seaplan/panels/editors/TextField.h"

namespace Tarvik::Seaplan {

TEST(TextField, KnowsWhetherItsTextWasTouched) {
    TextField box(30);
    EXPECT_FALSE(box.IsOpen());
    EXPECT_EQ(box.Row(), -1);
    box.Open(2, "10.00");
    EXPECT_TRUE(box.IsOpen());
    EXPECT_TRUE(box.Untouched());
    box.SetText("12");
    EXPECT_FALSE(box.Untouched());
    box.SetText("10.00");
    EXPECT_TRUE(box.Untouched());
    box.Close();
    EXPECT_FALSE(box.IsOpen());
    EXPECT_EQ(box.Text(), "");
    EXPECT_EQ(box.Row(), 2);
}

TEST(TextField, AnEmptyTextIsNeverUntouched) {
    TextField box(30);
    box.Open(0, "");
    EXPECT_FALSE(box.Untouched()) << "a blank cell takes its default";
}

TEST(TextField, KeepsALongerTextThanCanBeTyped) {
    TextField box(3);
    box.Open(0, "longer than three");
    EXPECT_EQ(box.Text(), "longer than three");
    EXPECT_EQ(box.Limit(), 3U);
}

TEST(ListBox, MovesFromNoneToTheFirstAndStaysInside) {
    ListBox list;
    list.Open(1, {"a", "b"});
    EXPECT_EQ(list.CurrentText(), "");
    list.Move(1);
    EXPECT_EQ(list.CurrentText(), "a");
    list.Move(1);
    list.Move(1);
    EXPECT_EQ(list.CurrentText(), "b");
    list.Move(-1);
    list.Move(-1);
    EXPECT_EQ(list.Current(), 0);
    list.SetCurrent(7);
    EXPECT_EQ(list.Current(), 0);
    list.SetCurrent(1);
    EXPECT_EQ(list.CurrentText(), "b");
    list.Close();
    EXPECT_FALSE(list.IsOpen());
    EXPECT_EQ(list.Row(), 1);
}

}  // namespace Tarvik::Seaplan
