// SPDX-License-Identifier: MIT
#include <algorithm>
#include <random>
#include <utility>

#include <gtest/gtest.h>

#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/ais/AisCorrection.h"
#include "seaplan/calculation/ais/AisRows.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

/// Voyages of two to eight ports with waypoints and positions of the ship between them.
class RandomVoyages {
  public:
    explicit RandomVoyages(unsigned seed) : random_(seed) {}

    void Make(PortCallRows& ports, VoyPositionBook& book, bool corrected) {
        ports.clear();
        book.points.clear();
        book.eta = At(1, 0);
        const int count = 2 + Number(7);
        for (int i = 0; i < count; ++i) {
            for (int n = i == 0 ? 0 : Number(6); n > 0; --n) {
                const int kind = corrected && Number(3) == 0 ? AisTrackPoint : PlainPoint;
                book.points.push_back(Point(Position(), kind, 5.0F + static_cast<float>(Number(20))));
            }
            book.points.push_back(Port(Position(), 12));
            ports.push_back(Call("P" + std::to_string(i), 100, 10, 0.1F, static_cast<float>(Number(48))));
        }
    }
    int Number(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

  private:
    std::string Position() {
        return Util::StringUtl::Format("%.3f,%.3f", Number(359000) / 1000.0 - 179.5,
                                       Number(160000) / 1000.0 - 80.0);
    }
    std::mt19937 random_;
};

/// The name by which the table tells a position: latitude first.
std::string TableName(const std::string& position) {
    const auto comma = position.find(',');
    return position.substr(comma + 1) + "," + position.substr(0, comma);
}

/// Names of the table's rows that a book must give: its ports by their calls, its positions by themselves.
std::vector<std::string> ExpectedNames(const PortCallRows& ports, const BookPoints& points) {
    std::vector<std::string> expected;
    std::size_t port = 0;
    for (const PosBookPoint& row : points) {
        if (row.pst == PortPoint) {
            expected.push_back(ports[port++].ppn);
        } else if (row.pst == AisTrackPoint) {
            expected.push_back(TableName(row.position));
        }
    }
    return expected;
}

TEST(AisProperties, SplittingACorrectedVoyageLosesNoRow) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomVoyages random(seed);
    int split = 0;
    for (int round = 0; round < 300; ++round) {
        PortCallRows ports;
        VoyPositionBook book;
        random.Make(ports, book, true);
        PortCallRows history;
        PortCallRows plan;
        const int code = SplitCorrectedVoyage(book, ports, history, plan);
        const bool corrected = std::any_of(book.points.begin(), book.points.end(),
                                           [](const auto& row) { return row.pst == AisTrackPoint; });
        ASSERT_EQ(code, corrected ? 0 : -5);
        if (code != 0) {
            continue;
        }
        ++split;
        std::vector<std::string> told;
        for (const auto* list : {&history, &plan}) {
            std::transform(list->begin(), list->end(), std::back_inserter(told),
                           [](const auto& row) { return row.ppn; });
        }
        ASSERT_EQ(told, ExpectedNames(ports, book.points));
        ASSERT_TRUE(IsAisRow(history.back()));
        ASSERT_TRUE(std::none_of(plan.begin(), plan.end(), IsAisRow));
        ASSERT_EQ(Names(JoinHistoryAndPlan(history, plan)), Names(ports));
    }
    EXPECT_GT(split, 100);
}

/// The rows that stand in both lists, in order.
bool IsPartOf(const BookPoints& part, const BookPoints& whole) {
    std::size_t at = 0;
    for (const PosBookPoint& row : part) {
        while (at < whole.size() && whole[at].position != row.position) {
            ++at;
        }
        if (at++ == whole.size()) {
            return false;
        }
    }
    return true;
}

// A position replaces waypoints of one leg at most: all ports and the rows of the other legs stay in order.
TEST(AisProperties, PuttingAPositionInKeepsEveryPort) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomVoyages random(seed);
    int inserted = 0;
    for (int round = 0; round < 300; ++round) {
        PortCallRows ports;
        VoyPositionBook book;
        random.Make(ports, book, false);
        const BookPoints before = book.points;
        const auto fix = At(1, 0) + Util::_time_t(random.Number(60 * 24), 0);
        int applied = 0;
        const int code = InsertAisPosition(fix, ports, {"0.001,0.001", "0.002,0.002", "9,9"}, book, applied);
        ASSERT_TRUE(code == 0 || code == -5) << code;
        BookPoints kept;
        std::copy_if(book.points.begin(), book.points.end(), std::back_inserter(kept), [](const auto& row) {
            return row.position != "0.001,0.001" && row.position != "0.002,0.002";
        });
        ASSERT_TRUE(IsPartOf(kept, before));
        const auto isPort = [](const auto& row) { return row.pst == PortPoint; };
        ASSERT_EQ(static_cast<std::size_t>(std::count_if(kept.begin(), kept.end(), isPort)), ports.size());
        inserted += kept.size() < book.points.size() ? 1 : 0;
    }
    EXPECT_GT(inserted, 50);
}

}  // namespace
}  // namespace Tarvik::Seaplan
