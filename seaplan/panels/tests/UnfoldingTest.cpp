// SPDX-License-Identifier: MIT
/// Unfolding a category with many voyages: each is asked for once, in pieces between events.
#include <algorithm>
#include <chrono>
#include <set>
#include <thread>

#include <tarvik/interface/ServerRequest.h>

#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/protocol/VoyCatalogModule.h"
#include "testsupport/ManualTimer.h"

namespace Tarvik::Seaplan {

namespace {

class UnfoldingTest : public TreeFixture {
  protected:
    static constexpr int kVoyages = 1000;

    UnfoldingTest() {
        desk.AddCategory("Full");
        for (int i = 0; i < kVoyages; ++i) {
            std::string vi;
            EXPECT_EQ(desk.catalogModule.CreateVoyage("V" + std::to_string(i), OnlyCategory(), vi), 0);
        }
        ctrl.ReloadTree();
        // A server with a millisecond of way: all of them take a second and more.
        desk.host.server = [answer = desk.host.server](const Interface::VoyServerRequest& request) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            return answer(request);
        };
        desk.ForgetRecords();
    }
    std::string OnlyCategory() {
        if (ci_.empty()) {
            VoyageStore all;
            EXPECT_EQ(VoyCatalogModule(&all).LoadAll(desk.host.user.value_or("")), 0);
            ci_ = all.categories.begin()->first;
        }
        return ci_;
    }
    void Unfold() { ctrl.OnRowPressed(tree.Find("Full"), true); }
    /// Lets events come until nothing is left to do.
    void LetItEnd() {
        for (int i = 0; i < kVoyages && desk.timer.Running() > 0; ++i) {
            desk.timer.Fire();
        }
    }

  private:
    std::string ci_;
};

}  // namespace

TEST_F(UnfoldingTest, AskedForInPiecesWithABusySignAndNothingTwice) {
    Unfold();
    const long atOnce = desk.Count(Ask::kLoadPortCalls);
    EXPECT_GT(atOnce, 0);
    EXPECT_LT(atOnce, kVoyages) << "the person waits for a part only";
    EXPECT_TRUE(tree.busy);
    desk.timer.Fire();
    const long next = desk.Count(Ask::kLoadPortCalls);
    EXPECT_GT(next, atOnce);
    EXPECT_LT(next, kVoyages);
    Unfold();
    Unfold();
    LetItEnd();
    EXPECT_FALSE(tree.busy);
    EXPECT_EQ(desk.timer.Running(), 0U);
    const std::vector<std::string> asked = desk.Sent(Ask::kLoadPortCalls);
    EXPECT_EQ(asked.size(), static_cast<std::size_t>(kVoyages));
    EXPECT_EQ(std::set<std::string>(asked.begin(), asked.end()).size(), asked.size());
    EXPECT_EQ(ctrl.Context().voyageStatuses.size(), static_cast<std::size_t>(kVoyages));
    Unfold();
    Unfold();
    EXPECT_EQ(desk.Count(Ask::kLoadPortCalls), kVoyages) << "statuses are known now";
}

TEST_F(UnfoldingTest, RowsThatGoMeanwhileAreLeftOut) {
    Unfold();
    ASSERT_TRUE(tree.busy);
    ctrl.ForgetAfterLogout();
    store.Clear();
    desk.ForgetRecords();
    LetItEnd();
    EXPECT_FALSE(tree.busy);
    EXPECT_EQ(desk.Count(Ask::kLoadPortCalls), 0) << "nobody is logged in to ask for them";
}

}  // namespace Tarvik::Seaplan
