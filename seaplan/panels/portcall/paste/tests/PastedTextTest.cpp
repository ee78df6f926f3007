// SPDX-License-Identifier: MIT
/// Cells, times and columns of a text from elsewhere.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/panels/portcall/paste/PastedRows.h"
#include "seaplan/panels/tests/KeyTexts.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

using Row = std::vector<std::string>;

std::string PortOf(const std::string& text) {
    return text == "ROTTERDAM" || text == "HAMBURG" || text == "GDANSK" ? text
           : text == "NLRTM"                                            ? "ROTTERDAM"
                                                                        : "";
}

PastedRows Understand(const std::string& text) {
    const PastedText pasted = ReadPastedText(text);
    return ReadPasted(pasted, UnderstandColumns(pasted.rows, PortOf), PortOf);
}

std::vector<std::string> Values(const PastedRows& pasted, std::size_t row) {
    std::vector<std::string> values;
    for (const PastedCell& cell : pasted.rows.at(row)) {
        values.push_back(cell.value);
    }
    return values;
}

TEST(PastedTextTest, TabsPartCellsAndLineEndsRows) {
    const PastedText read = ReadPastedText("a\tb\r\n\r\n c \t\nd");
    EXPECT_THAT(read.rows, ElementsAre(Row{"a", "b"}, Row{"c", ""}, Row{"d", ""}));
    EXPECT_FALSE(read.cut);
}

TEST(PastedTextTest, QuotesHoldTabsLineEndsAndQuotes) {
    EXPECT_THAT(ReadPastedText("\"a\tb\nc \"\"d\"\"\"\te").rows, ElementsAre(Row{"a b c \"d\"", "e"}));
    EXPECT_THAT(ReadPastedText("5\" pipe\tx").rows, ElementsAre(Row{"5\" pipe", "x"}));
}

TEST(PastedTextTest, WhatCannotBeSeenStandsForABlank) {
    EXPECT_THAT(ReadPastedText(std::string("a\0b", 3) + "\t\u202Eevil\u200B").rows,
                ElementsAre(Row{"a b", "evil"}));
}

TEST(PastedTextTest, AHostileTextEndsAtTheLimits) {
    std::string many;
    for (int row = 0; row < 5000; ++row) {
        many += "ROTTERDAM\n";
    }
    EXPECT_EQ(Understand(many).rows.size(), kMostPastedRows);
    EXPECT_TRUE(Understand(many).cut);
    const PastedText wide = ReadPastedText(std::string(5000, '\t') + "x");
    EXPECT_TRUE(wide.cut);
    const PastedText open = ReadPastedText("\"" + std::string(5'000'000, 'x'));
    ASSERT_EQ(open.rows.size(), 1U);
    EXPECT_EQ(open.rows[0][0].size(), kMostPastedUnits);
    EXPECT_TRUE(open.cut);
    EXPECT_TRUE(ReadPastedText("").rows.empty());
    EXPECT_TRUE(ReadPastedText("\t\t\n \n").rows.empty());
}

TEST(PastedTextTest, TimesAreReadInTheFormsOfSchedules) {
    const struct {
        const char* text;
        const char* time;
    } kForms[] = {{"2024-03-05 08:00:00", "2024-03-05 08:00:00"},
                  {"2024-03-05T08:30", "2024-03-05 08:30:00"},
                  {"2024/3/5 8:00", "2024-03-05 08:00:00"},
                  {"5.3.2024 08:00", "2024-03-05 08:00:00"},
                  {"05 Mar 2024 08:00", "2024-03-05 08:00:00"},
                  {"05-MAR-2024", "2024-03-05 00:00:00"},
                  {"5 March 2024, 8:00", "2024-03-05 08:00:00"},
                  {"25/03/2024", "2024-03-25 00:00:00"},
                  {"4/4/2024", "2024-04-04 00:00:00"}};
    for (const auto& form : kForms) {
        EXPECT_EQ(ReadPastedTime(form.text).value_or("none"), form.time) << form.text;
    }
    for (const char* none :
         {"3/4/2024", "03/25/2024", "2024-02-30", "2024-03-05 25:00", "5 Mar 24", "soon", "12.5", "2024", "",
          "2024-03-05 08", "Mar 5 2024", "99999-01-01", "1 2 3 4 5 6 7 8"}) {
        EXPECT_FALSE(ReadPastedTime(none)) << none;
    }
}

TEST(PastedRowsTest, HeadsNameTheColumnsInTheLanguageInForceOrInEnglish) {
    KeyTexts texts;
    texts.given[u"IDS_PORTCALL_PORT"] = u"Hafen";
    const PastedRows own =
        Understand("Hafen\tETA\tDistance NM\tSpeed (kts)\nHAMBURG\t2024-03-05\t240\t12,5\n");
    EXPECT_THAT(own.columns, ElementsAre(ColPort, ColEta, ColDistance, ColSpeed));
    EXPECT_THAT(Values(own, 0), ElementsAre("HAMBURG", "2024-03-05 00:00:00", "", "12.50"));
    const PastedRows english = Understand("Port\tPort stay\tVoyage\nHAMBURG\t1.5\t12\n");
    EXPECT_THAT(english.columns, ElementsAre(ColPort, ColPortTime, kNoColumn));
    EXPECT_THAT(Values(english, 0), ElementsAre("HAMBURG", "1.50", ""));
}

TEST(PastedRowsTest, WithoutHeadsTheCellsTell) {
    KeyTexts texts;
    const PastedRows guessed = Understand(
        "1\tROTTERDAM\tL\t\t2024-03-05 08:00\t2024-03-05 "
        "20:00\n2\tHAMBURG\tD\t14\t2024-03-06 "
        "08:00\t2024-03-06 20:00\t5%\n");
    EXPECT_THAT(guessed.columns,
                ElementsAre(ColOrder, ColPort, ColPurpose, ColSpeed, ColEta, ColEtd, ColWeather));
    EXPECT_THAT(Values(guessed, 1),
                ElementsAre("", "HAMBURG", "D", "14.00", "2024-03-06 08:00:00", "2024-03-06 20:00:00", "5%"));
}

TEST(PastedRowsTest, WhatIsNotKnownIsMarked) {
    KeyTexts texts;
    const PastedRows pasted = Understand("Port\tSpeed\tETA\nATLANTIS\tfast\t3/4/2024\nHAMBURG\t0.00\t\n");
    EXPECT_FALSE(pasted.rows[0][0].known);
    EXPECT_EQ(pasted.rows[0][0].value, "ATLANTIS") << "as it would be typed";
    EXPECT_FALSE(pasted.rows[0][1].known);
    EXPECT_EQ(pasted.rows[0][1].value, "");
    EXPECT_FALSE(pasted.rows[0][2].known);
    EXPECT_TRUE(pasted.rows[1][1].known) << "no speed, as a first row has it";
    EXPECT_EQ(pasted.rows[1][1].value, "");
}

TEST(PastedRowsTest, OfANameAndACodeTheKnownOneCounts) {
    KeyTexts texts;
    const PastedRows pasted = Understand("Port\tUN/LOCODE\nRotterdam Maasvlakte\tNLRTM\nHAMBURG\tXXXXX\n");
    EXPECT_EQ(pasted.rows[0][0].value, "ROTTERDAM");
    EXPECT_TRUE(pasted.rows[0][0].known);
    EXPECT_EQ(pasted.rows[1][0].value, "HAMBURG");
    EXPECT_EQ(pasted.columns[1], kNoColumn);
}

}  // namespace

}  // namespace Tarvik::Seaplan
