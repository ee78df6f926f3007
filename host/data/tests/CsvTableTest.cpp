// SPDX-License-Identifier: MIT
#include "host/data/builder/CsvTable.h"

#include <gmock/gmock.h>

namespace Tarvik::Data {
namespace {

using ::testing::ElementsAre;

TEST(CsvTable, FindsFieldsByColumnName) {
    const CsvTable table("code,name\nA,Alpha\r\nB,Beta\n");
    ASSERT_EQ(table.size(), 2u);
    EXPECT_EQ(table.at(0, "name"), "Alpha");
    EXPECT_EQ(table.at(1, "code"), "B");
}

TEST(CsvTable, QuotedFieldsHoldCommasAndQuotes) {
    EXPECT_THAT(CsvTable::splitLine(R"(a,"b, c","say ""no""",)"), ElementsAre("a", "b, c", "say \"no\"", ""));
}

TEST(CsvTable, ShortRowsUnknownColumnsAndBlankLinesReadAsEmpty) {
    const CsvTable table("a,b\n\n1\n\r\n");
    ASSERT_EQ(table.size(), 1u);
    EXPECT_EQ(table.at(0, "b"), "");
    EXPECT_EQ(table.at(0, "c"), "");
    EXPECT_EQ(CsvTable("").size(), 0u);
}

TEST(SplitText, KeepsEmptyPieces) {
    EXPECT_THAT(splitText("a;;b;", ';'), ElementsAre("a", "", "b", ""));
    EXPECT_TRUE(splitText("", ';').empty());
}

}  // namespace
}  // namespace Tarvik::Data
