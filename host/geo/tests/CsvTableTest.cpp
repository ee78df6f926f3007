// SPDX-License-Identifier: MIT
#include <stdexcept>

#include <gmock/gmock.h>

#include "host/geo/CsvTable.h"

namespace Tarvik::Data {

namespace {

using ::testing::ElementsAre;

TEST(CsvTable, FindsFieldsByColumnName) {
    const CsvTable table("code,name\nA,Alpha\r\nB,Beta\n");
    ASSERT_EQ(table.size(), 2u);
    EXPECT_EQ(table.At(0, "name"), "Alpha");
    EXPECT_EQ(table.At(1, "code"), "B");
}

TEST(CsvTable, QuotedFieldsHoldCommasAndQuotes) {
    EXPECT_THAT(CsvTable::SplitLine(R"(a,"b, c","say ""no""",)"), ElementsAre("a", "b, c", "say \"no\"", ""));
}

TEST(CsvTable, ShortRowsUnknownColumnsAndBlankLinesReadAsEmpty) {
    const CsvTable table("a,b\n\n1\n\r\n");
    ASSERT_EQ(table.size(), 1u);
    EXPECT_EQ(table.At(0, "b"), "");
    EXPECT_EQ(table.At(0, "c"), "");
    EXPECT_EQ(CsvTable("").size(), 0u);
}

TEST(ToLine, ReadsPositionsPartedBySemicolons) {
    EXPECT_THAT(ToLine("5 6;-7.5 8"), ElementsAre(GeoPoint{5, 6}, GeoPoint{-7.5, 8}));
    EXPECT_THAT(ToLine(""), ::testing::IsEmpty());
    EXPECT_THROW(ToLine("5 6;7"), std::runtime_error);
    EXPECT_THROW(ToNumber("5,5"), std::runtime_error);
}

TEST(SplitText, KeepsEmptyPieces) {
    EXPECT_THAT(SplitText("a;;b;", ';'), ElementsAre("a", "", "b", ""));
    EXPECT_TRUE(SplitText("", ';').empty());
}

}  // namespace
}  // namespace Tarvik::Data
