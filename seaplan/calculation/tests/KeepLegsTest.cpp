// SPDX-License-Identifier: MIT
#include <random>

#include <gtest/gtest.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

PortCallRows PortsOf(const std::string& letters) {
    PortCallRows rows;
    for (const char letter : letters) {
        rows.push_back(Call(std::string(1, letter), 0));
    }
    return rows;
}

/// A book of these ports with one waypoint a leg; positions bear the prefix.
BookPoints BookOf(const std::string& letters, const std::string& prefix) {
    BookPoints rows;
    for (std::size_t i = 0; i < letters.size(); ++i) {
        const std::string number = std::to_string(i);
        if (i > 0) {
            std::string waypoint = prefix;
            rows.push_back(Point(waypoint.append("w").append(number)));
        }
        std::string name = prefix;
        rows.push_back(Port(name.append(1, letters[i]).append(number)));
    }
    return rows;
}

std::string Joined(const std::string& old, const std::string& fresh) {
    BookPoints out;
    EXPECT_EQ(JoinKeepingLegs(PortsOf(old), BookOf(old, "s"), PortsOf(fresh), BookOf(fresh, "n"), out), 0);
    return Positions(out);
}

TEST(JoinKeepingLegs, KnownLegComesWithItsEndPortsRow) {
    EXPECT_EQ(Joined("AB", "AB"), "nA0|sw1|sB1") << "the first row is the new route's";
}

TEST(JoinKeepingLegs, UnknownLegIsTheNewRoutes) {
    EXPECT_EQ(Joined("AB", "ABC"), "nA0|sw1|sB1|nw2|nC2");
    EXPECT_EQ(Joined("AB", "BA"), "nB0|nw1|nA1") << "direction matters";
}

TEST(JoinKeepingLegs, LegsOfOneKeyAreTakenInTurnAndTheLastAgain) {
    EXPECT_EQ(Joined("ABAB", "ABABAB"), "nA0|sw1|sB1|sw2|sA2|sw3|sB3|sw2|sA2|sw3|sB3");
}

TEST(JoinKeepingLegs, NamesWithAHyphenMayShareAKey) {
    PortCallRows old{Call("A-B", 0), Call("C", 0)};
    PortCallRows fresh{Call("A", 0), Call("B-C", 0)};
    BookPoints out;
    ASSERT_EQ(JoinKeepingLegs(old, BookOf("XY", "s"), fresh, BookOf("XY", "n"), out), 0);
    EXPECT_EQ(Positions(out), "nX0|sw1|sY1");
}

TEST(JoinKeepingLegs, RefusesShortOrUnmatchedSides) {
    BookPoints out{Port("kept")};
    const auto code = [&out](const char* oldPorts, const char* stored, const char* newPorts,
                             const char* fresh) {
        return JoinKeepingLegs(PortsOf(oldPorts), BookOf(stored, "s"), PortsOf(newPorts), BookOf(fresh, "n"),
                               out);
    };
    EXPECT_EQ(code("A", "A", "AB", "AB"), -1);
    EXPECT_EQ(code("AB", "AB", "A", "A"), -1);
    EXPECT_EQ(code("AB", "AB", "ABC", "AB"), -1);
    EXPECT_EQ(Positions(out), "kept");
}

// A save that broke off may leave the port calls of one list and the book of another, or none.
TEST(JoinKeepingLegs, StoredBookOfOtherPortsGivesNoLegs) {
    for (const char* stored : {"", "A", "ABC"}) {
        BookPoints out;
        EXPECT_EQ(JoinKeepingLegs(PortsOf("AB"), BookOf(stored, "s"), PortsOf("AB"), BookOf("AB", "n"), out),
                  0);
        EXPECT_EQ(Positions(out), "nA0|nw1|nB1") << stored;
    }
}

TEST(JoinKeepingLegs, SplittingAndJoiningTheSameBookChangesNothing) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int round = 0; round < 300; ++round) {
        BookPoints rows{Port("p0")};
        PortCallRows ports{Call("A", 0)};
        for (int i = 1; i < 30; ++i) {
            const bool isPort = i == 29 || random() % 4 == 0;
            rows.push_back(Point("r" + std::to_string(i), isPort ? PortPoint : PlainPoint));
            if (isPort) {
                ports.push_back(Call(std::string(1, static_cast<char>('A' + random() % 3)), 0));
            }
        }
        BookPoints out;
        ASSERT_EQ(JoinKeepingLegs(ports, rows, ports, rows, out), 0);
        ASSERT_EQ(Positions(out), Positions(rows));
    }
}

}  // namespace
}  // namespace Tarvik::Seaplan
