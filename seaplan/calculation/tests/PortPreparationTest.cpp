// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/calculation/Schedule.h"

namespace Tarvik::Seaplan {

namespace {

PortCallRows RowsOf(const std::vector<std::string>& names, const std::string& purpose = "D") {
    PortCallRows rows;
    for (const std::string& name : names) {
        VoyPortCall row;
        row.ppn = name;
        row.ppi = "id" + name;
        row.pp = purpose;
        rows.push_back(row);
    }
    return rows;
}

std::string NamesOf(const PortCallRows& rows) {
    std::string names;
    for (const VoyPortCall& row : rows) {
        names += row.ppn;
    }
    return names;
}

TEST(PortPreparationTest, NeighbouringRowsOfOnePortLoseTheSecond) {
    PortCallRows out;
    EXPECT_EQ(DropSamePortRows(RowsOf({"A", "A", "B", "A"}), {}, out), 0);
    EXPECT_EQ(NamesOf(out), "ABA");
}

TEST(PortPreparationTest, LinkedPortsAreOnePlace) {
    PortCallRows out;
    const SamePortLinks links{{"idB-idA", ""}, {"idA-idB", ""}};
    EXPECT_EQ(DropSamePortRows(RowsOf({"A", "B", "C"}), links, out), 0);
    EXPECT_EQ(NamesOf(out), "AC");
}

TEST(PortPreparationTest, EveryRowIsComparedWithTheOneBeforeItAsRead) {
    PortCallRows out;
    const SamePortLinks links{{"idA-idB", ""}, {"idB-idC", ""}};
    EXPECT_EQ(DropSamePortRows(RowsOf({"A", "B", "C", "D"}), links, out), 0);
    EXPECT_EQ(NamesOf(out), "AD") << "C is one place with B, which is dropped itself";
}

TEST(PortPreparationTest, FewerThanTwoPlacesAreNoCalculation) {
    PortCallRows out = RowsOf({"x"});
    EXPECT_EQ(DropSamePortRows(RowsOf({"A", "A", "A"}), {}, out), -1);
    EXPECT_TRUE(out.empty());
    EXPECT_EQ(DropSamePortRows({}, {}, out), -1);
}

TEST(PortPreparationTest, MissingPurposesAreLoadingFirstAndDischargingLater) {
    for (const char* blank : {"", " "}) {
        PortCallRows rows = RowsOf({"A", "B"}, blank);
        PortCallRows out;
        PrepareFirstPurpose(rows);
        EXPECT_EQ(DropSamePortRows(rows, {}, out), 0);
        EXPECT_EQ(out[0].pp, "L");
        EXPECT_EQ(out[1].pp, "D");
    }
    PortCallRows rows = RowsOf({"A", "B"}, "B");
    PrepareFirstPurpose(rows);
    EXPECT_EQ(rows[0].pp, "B");
}

}  // namespace
}  // namespace Tarvik::Seaplan
