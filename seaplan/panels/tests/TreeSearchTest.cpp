// SPDX-License-Identifier: MIT
/// Finding voyages among the rows of the tree.
#include <gmock/gmock.h>

#include "seaplan/panels/tests/SearchFixture.h"
#include "seaplan/protocol/RemarkList.h"
#include "testsupport/ManualClock.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class TreeSearchTest : public SearchFixture {};

}  // namespace

TEST_F(TreeSearchTest, WhatAnswersIsMarkedAndTheRestPutAside) {
    Search("ann");
    EXPECT_THAT(Rows(), ElementsAre("Bulk", "  Autumn*", "Tankers", "  Anna's*"));
    EXPECT_EQ(view.state.found, 2);
    EXPECT_EQ(view.state.current, 0);
    search.OnTyped("ann autumn");
    EXPECT_THAT(Rows(), ElementsAre("Bulk", "  Autumn*"));
    search.OnTyped("nothing at all");
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_EQ(view.state.found, 0);
}

TEST_F(TreeSearchTest, ACategoryThatAnswersAloneKeepsItsVoyagesFoldedAsTheyWere) {
    Search("tank");
    EXPECT_THAT(Rows(), ElementsAre("Tankers*"));
    EXPECT_EQ(tree.GetRowFinding(tree.Find("Summer")), RowFinding::None);
    search.Close();
    tree.Expand(tree.Find("Tankers"), true);
    Search("tank");
    EXPECT_THAT(Rows(), ElementsAre("Tankers*", "  Anna's", "  Summer"));
}

TEST_F(TreeSearchTest, ABlankTextShowsAllAsItWas) {
    tree.Expand(tree.Find("Bulk"), true);
    const auto before = Rows();
    Search("summer");
    EXPECT_THAT(Rows(), ElementsAre("Tankers", "  Summer*"));
    search.OnTyped("  ");
    EXPECT_EQ(Rows(), before);
    EXPECT_FALSE(view.state.asks);
}

TEST_F(TreeSearchTest, EndingItRestoresTheFolding) {
    tree.Expand(tree.Find("Bulk"), true);
    const auto before = Rows();
    Search("summer");
    search.Close();
    EXPECT_EQ(Rows(), before);
    EXPECT_FALSE(view.open);
    EXPECT_FALSE(search.IsOpen());
    search.Open();
    EXPECT_EQ(view.state.text, "") << "the next search begins empty";
    EXPECT_FALSE(view.state.asks);
    EXPECT_EQ(view.state.found, 0);
}

TEST_F(TreeSearchTest, PortsAreFoundOnceTheyHaveBeenRead) {
    Search("gdansk");
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_EQ(view.state.unread, 4);
    EXPECT_EQ(view.asked, 1);
    ReadAll();
    EXPECT_THAT(Rows(), ElementsAre("Tankers", "  Anna's*"));
    search.OnTyped("2024-03-05");
    EXPECT_THAT(Rows(), ElementsAre("Bulk", "  Autumn*"));
}

// The link to port calls would empty those that the voyage has.
TEST_F(TreeSearchTest, AnAnswerWhosePortsAreKnownShowsItsDatesAndNoLink) {
    Search("gdansk");
    ReadAll();
    const long asked = static_cast<long>(desk.host.requests.size());
    search.OnStep(1);
    ASSERT_EQ(SelectedText(), "Anna's");
    EXPECT_TRUE(Shows("Anna's", Item::kDates));
    EXPECT_FALSE(Shows("Anna's", Item::kSetPortCall));
    EXPECT_EQ(static_cast<long>(desk.host.requests.size()), asked);
}

TEST_F(TreeSearchTest, NothingIsAskedFromTheServerTwice) {
    Search("gdansk");
    ReadAll();
    EXPECT_EQ(desk.Count(Ask::kLoadPortCalls), 4);
    search.Close();
    desk.ForgetRecords();
    Search("hamburg");
    search.OnFilter(VoyageFilter::UnderWay);
    EXPECT_EQ(view.state.unread, 0) << "also a voyage without port calls is known now";
    search.OnIdle();
    EXPECT_TRUE(desk.host.requests.empty());
    search.ForgetRead();
    search.Close();
    Search("hamburg");
    EXPECT_EQ(view.state.unread, 2) << "what has port calls keeps them";
}

TEST_F(TreeSearchTest, NothingIsReadWhileNothingIsAsked) {
    search.Open();
    search.OnIdle();
    EXPECT_EQ(view.asked, 0);
    EXPECT_TRUE(desk.host.requests.empty());
    search.OnTyped("x");
    search.Close();
    search.OnIdle();
    EXPECT_TRUE(desk.host.requests.empty());
}

TEST_F(TreeSearchTest, TheReadyQuestionsReadWhatTheyNeed) {
    desk.clock.SetUtc(2024, 3, 1, 20);
    search.Open();
    search.OnFilter(VoyageFilter::UnderWay);
    ReadAll();
    EXPECT_THAT(Rows(), ElementsAre("Tankers", "  Anna's*"));
    search.OnFilter(VoyageFilter::ArrivingSoon);
    EXPECT_THAT(Rows(), ElementsAre("Bulk", "  Autumn*", "Tankers", "  Anna's*"));
    search.OnTyped("autumn");
    EXPECT_THAT(Rows(), ElementsAre("Bulk", "  Autumn*")) << "words and question together";
    search.OnTyped("");
    search.OnFilter(VoyageFilter::WithoutRoute);
    EXPECT_THAT(Rows(), ElementsAre("Bulk", "  Winter*", "Tankers", "  Summer*"));
    search.OnFilter(VoyageFilter::All);
    EXPECT_THAT(Rows(), ElementsAre("Bulk", "Tankers", "Empty"));
}

TEST_F(TreeSearchTest, RowsMadeAnewAreSearchedToo) {
    tree.Expand(tree.Find("Bulk"), true);
    Search("ann");
    const auto found = Rows();
    Click("Bulk", "Voyage.parent.svr6");
    EXPECT_EQ(Rows(), found);
    Click("Autumn", "Voyage.child.svr9");
    EXPECT_THAT(Rows(), ElementsAre("Tankers", "  Anna's*"));
    ctrl.ReloadTree();
    EXPECT_THAT(Rows(), ElementsAre("Tankers", "  Anna's*"));
    search.Close();
    EXPECT_THAT(Rows(), ElementsAre("Bulk", "Tankers", "Empty")) << "a reload folds all";
}

TEST_F(TreeSearchTest, ARowThatIsGoneIsPassedOver) {
    Search("an");
    Click("Tankers", "Voyage.parent.svr7");
    search.OnStep(1);
    search.OnStep(1);
    EXPECT_EQ(SelectedText(), "Autumn");
    ReadAll();
}

TEST_F(TreeSearchTest, TheRecycleBinIsFoundByNameAndAnswersNoReadyQuestion) {
    Click("Winter", "Voyage.child.svr9");
    ctrl.SetShowDeleted(true);
    Search("winter");
    EXPECT_THAT(Rows(), ElementsAre("Bulk", "  Winter*"));
    search.OnTyped("");
    search.OnFilter(VoyageFilter::WithoutRoute);
    ReadAll();
    EXPECT_THAT(Rows(), ElementsAre("Tankers", "  Summer*"));
}

TEST_F(TreeSearchTest, RemarksOfMarkedRowsAreReadBetweenEventsAndSearched) {
    RemarkList remarks;
    int seq = 0;
    ASSERT_TRUE(remarks.AddRemark(VoyageRemark, Id("Summer"), seq, "Draft", "SURVEY at the anchorage"));
    ASSERT_TRUE(remarks.AddRemark(CategoryRemark, CategoryId("Bulk"), seq, "Survey reports", "none"));
    Voyage("Summer").vrk = 1;
    desk.Category("Bulk").crk = 1;
    desk.ForgetRecords();
    Search("survey");
    EXPECT_THAT(Rows(), IsEmpty()) << "nothing is read at the key itself";
    ReadAll();
    EXPECT_THAT(Rows(), ElementsAre("Bulk*", "Tankers", "  Summer*"));
    EXPECT_EQ(desk.Count(Ask::kLoadRemarks), 2);
    search.OnTyped("anchorage");
    EXPECT_THAT(Rows(), ElementsAre("Tankers", "  Summer*"));
    search.Close();
    Search("survey");
    ReadAll();
    EXPECT_EQ(desk.Count(Ask::kLoadRemarks), 4) << "each search reads them anew";
}

TEST_F(TreeSearchTest, RemarksThatCannotBeReadAreNotFoundAndSendNobodyAway) {
    RemarkList remarks;
    int seq = 0;
    ASSERT_TRUE(remarks.AddRemark(VoyageRemark, Id("Summer"), seq, "Survey", "x"));
    Voyage("Summer").vrk = 1;
    desk.Lose(Ask::kLoadRemarks);
    Search("survey");
    ReadAll();
    EXPECT_THAT(Rows(), IsEmpty());
    search.OnTyped("summer");
    EXPECT_THAT(Rows(), ElementsAre("Tankers", "  Summer*"));
}

}  // namespace Tarvik::Seaplan
