// SPDX-License-Identifier: MIT
/// Walking what a search has found.
#include <gmock/gmock.h>

#include "seaplan/panels/tests/SearchFixture.h"
#include "seaplan/panels/tree/TreeKeys.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

class SearchKeysTest : public SearchFixture {};

}  // namespace

TEST_F(SearchKeysTest, EnterGoesOnShiftEnterBackDownIntoTheRowsAndEscapeEndsIt) {
    Search("ann");
    EXPECT_TRUE(search.OnKey(Key::Enter, false));
    EXPECT_TRUE(search.OnKey(Key::Enter, false));
    EXPECT_EQ(SelectedText(), "Anna's");
    EXPECT_TRUE(search.OnKey(Key::Enter, true));
    EXPECT_EQ(SelectedText(), "Autumn");
    EXPECT_TRUE(search.OnKey(Key::Down, false));
    EXPECT_EQ(view.left, 1);
    EXPECT_TRUE(view.open);
    EXPECT_FALSE(search.OnKey(Key::Up, false)) << "the field's own";
    EXPECT_FALSE(search.OnKey(Key::Other, false));
    EXPECT_TRUE(search.OnKey(Key::Escape, false));
    EXPECT_FALSE(view.open);
    EXPECT_FALSE(search.IsOpen());
}

TEST_F(SearchKeysTest, EnterGoesRoundTheAnswersAndAsksTheServerNothing) {
    Search("ann");
    EXPECT_EQ(tree.Selected(), kNoRow);
    std::vector<std::string> way;
    for (const int by : {1, 1, 1, -1, -1}) {
        search.OnStep(by);
        way.push_back(SelectedText() + " " + std::to_string(view.state.current));
        EXPECT_EQ(tree.cursor, tree.Selected());
    }
    EXPECT_THAT(way, ElementsAre("Autumn 1", "Anna's 2", "Autumn 1", "Anna's 2", "Autumn 1"));
    EXPECT_TRUE(desk.host.requests.empty());
    search.OnTyped("nothing");
    search.OnStep(1);
    EXPECT_EQ(SelectedText(), "Autumn");
}

TEST_F(SearchKeysTest, BackwardsFromNoAnswerLeadsToTheLast) {
    Search("ann");
    search.OnStep(-1);
    EXPECT_EQ(SelectedText(), "Anna's");
}

TEST_F(SearchKeysTest, ArrowKeysWalkOnlyWhatIsShown) {
    Search("ann");
    ctrl.OnRowPressed(tree.Find("Bulk"));
    std::vector<std::string> way;
    for (int i = 0; i < 4; ++i) {
        ctrl.Keys().OnKey({Key::Down}, tree.cursor, {});
        way.push_back(tree.GetItemText(tree.cursor));
    }
    EXPECT_THAT(way, ElementsAre("Autumn", "Tankers", "Anna's", "Anna's"));
}

TEST_F(SearchKeysTest, OpeningItAgainGivesTheKeyboardBack) {
    Search("ann");
    search.Open();
    EXPECT_EQ(view.opened, 2);
    EXPECT_EQ(view.state.text, "ann");
}

}  // namespace Tarvik::Seaplan
