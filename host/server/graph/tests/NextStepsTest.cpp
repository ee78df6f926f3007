// SPDX-License-Identifier: MIT
#include <numeric>

#include <gtest/gtest.h>

#include "host/server/graph/NextSteps.h"

namespace Tarvik::Server {

namespace {

/// 0 -1- 1 -1- 2, the same two joined by 5 miles, and 3 apart from all with an arc to 4.
ArcTable SmallTable() {
    struct Way {
        std::uint32_t a;
        std::uint32_t b;
        float nm;
    };
    const std::vector<Way> ways{{0, 1, 1.0F}, {1, 2, 1.0F}, {0, 2, 5.0F}, {3, 4, 2.0F}};
    ArcTable table;
    table.start.push_back(0);
    for (std::uint32_t node = 0; node < 6; ++node) {
        for (std::uint32_t i = 0; i < ways.size(); ++i) {
            if (ways[i].a == node || ways[i].b == node) {
                table.arcs.push_back({ways[i].a == node ? ways[i].b : ways[i].a, i, ways[i].nm, 0});
            }
        }
        table.start.push_back(static_cast<std::uint32_t>(table.arcs.size()));
    }
    return table;
}

class NextStepsTest : public testing::Test {
  protected:
    const ArcTable table_ = SmallTable();
    const std::vector<std::uint32_t> targets_{0, 2, 5};
    std::vector<std::uint8_t> told_ = NextSteps::Reckon(table_, targets_);

    std::optional<std::vector<std::uint32_t>> Nodes(std::uint32_t from, std::uint32_t to) const {
        const auto way = NextSteps(table_, targets_, FrozenArray(told_)).Walk(table_, from, to);
        if (!way) {
            return std::nullopt;
        }
        std::vector<std::uint32_t> nodes;
        for (const Arc& arc : *way) {
            nodes.push_back(arc.to);
        }
        return nodes;
    }
};

using Way = std::vector<std::uint32_t>;

TEST_F(NextStepsTest, LeadTheShortestWayToATarget) {
    EXPECT_EQ(Nodes(0, 2), (Way{1, 2}));
    EXPECT_EQ(Nodes(2, 0), (Way{1, 0}));
    EXPECT_EQ(Nodes(1, 0), Way{0});
    EXPECT_EQ(Nodes(2, 2), Way{});
}

TEST_F(NextStepsTest, TellNothingOfOtherTargetsAndWhereNoWayLeads) {
    EXPECT_FALSE(Nodes(0, 1)) << "no target";
    EXPECT_FALSE(Nodes(0, 3));
    EXPECT_FALSE(Nodes(3, 0)) << "apart";
    EXPECT_FALSE(Nodes(0, 5)) << "a target without arcs";
    EXPECT_FALSE(Nodes(5, 0));
    EXPECT_FALSE(NextSteps().Walk(table_, 0, 2));
}

TEST_F(NextStepsTest, AreOneForEachTargetAndNodeWithArcs) {
    EXPECT_EQ(told_.size(), NextSteps::SizeOf(targets_.size(), 5));
}

TEST_F(NextStepsTest, ThatTurnInACircleOrLeadNowhereTellNothing) {
    const std::size_t toTwo = 5;  // where the row of target 2 begins
    told_[toTwo + 1] = 0;         // from 1 back to 0
    EXPECT_FALSE(Nodes(0, 2));
    told_[toTwo] = 7;
    EXPECT_FALSE(Nodes(0, 2)) << "0 has no eighth arc";
}

}  // namespace

}  // namespace Tarvik::Server
