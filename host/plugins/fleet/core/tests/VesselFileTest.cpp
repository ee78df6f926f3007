// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/plugins/fleet/core/VesselFile.h"

namespace Tarvik::Fleet {

namespace {

TEST(VesselFile, ColumnsAreKnownByTheirNamesInAnyOrder) {
    const auto rows =
        ReadVesselFile("\xEF\xBB\xBFIMO,Owner,Name,Call sign,SPEED\r\n9074729,Me,Far Star,GBXY,14.5\r\n");
    ASSERT_TRUE(rows);
    ASSERT_EQ(rows->size(), 1U);
    const VesselDraft& draft = rows->front().draft;
    EXPECT_EQ(rows->front().line, 2);
    EXPECT_EQ(draft.name, "Far Star");
    EXPECT_EQ(draft.imo, "9074729");
    EXPECT_EQ(draft.callSign, "GBXY");
    EXPECT_EQ(draft.speed, "14.5");
    EXPECT_EQ(draft.mmsi, "");
}

TEST(VesselFile, SemicolonsTabsAndQuotesAreRead) {
    const auto rows =
        ReadVesselFile("name;type;length\n\"Star; \"\"Far\"\"\";\"two\nlines\";189,9\n\nNear;;\n");
    ASSERT_TRUE(rows);
    ASSERT_EQ(rows->size(), 2U);
    EXPECT_EQ((*rows)[0].draft.name, "Star; \"Far\"");
    EXPECT_EQ((*rows)[0].draft.type, "two\nlines");
    EXPECT_EQ((*rows)[0].draft.length, "189,9");
    EXPECT_EQ((*rows)[1].draft.name, "Near");
    EXPECT_EQ((*rows)[1].line, 5) << "as a person counts them";
    EXPECT_EQ(ReadVesselFile("name\tmmsi\nA\t232000001")->front().draft.mmsi, "232000001");
}

TEST(VesselFile, ShortAndLongRowsAreRead) {
    const auto rows = ReadVesselFile("name,mmsi\nA\nB,1,2,3\n");
    ASSERT_EQ(rows->size(), 2U);
    EXPECT_EQ((*rows)[1].draft.mmsi, "1");
}

TEST(VesselFile, WithoutAColumnOfNamesItIsNone) {
    EXPECT_FALSE(ReadVesselFile(""));
    EXPECT_FALSE(ReadVesselFile("mmsi,imo\n232000001,9074729\n"));
    EXPECT_FALSE(ReadVesselFile("\"unended"));
    EXPECT_TRUE(ReadVesselFile("name")->empty());
}

}  // namespace
}  // namespace Tarvik::Fleet
