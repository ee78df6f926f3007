// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>

#include "host/ports/search/Folding.h"

namespace Tarvik::Ports {

namespace {

Words Fold(const std::string& text) {
    return Folding().Fold(text);
}

TEST(Folding, CaseAccentsAndPunctuationMakeNoDifference) {
    EXPECT_EQ(Fold("Paranaguá"), Words{U"paranagua"});
    EXPECT_EQ(Fold("Saint-John's"), (Words{U"saint", U"johns"}));
    EXPECT_EQ(Fold("  IJmuiden/Velsen "), (Words{U"ijmuiden", U"velsen"}));
    EXPECT_EQ(Fold("Køge, Łódź"), (Words{U"koge", U"lodz"}));
    EXPECT_EQ(Fold("ＮＬ　ＲＴＭ"), (Words{U"nl", U"rtm"}));
}

TEST(Folding, TraditionalCharactersAreSimplified) {
    EXPECT_EQ(Fold("廣州"), Fold("广州"));
    EXPECT_EQ(Fold("連雲港"), Words{U"连云港"});
}

TEST(Folding, WordsThatPeopleAddAreLeftOut) {
    EXPECT_EQ(Fold("Port of Rotterdam"), Words{U"rotterdam"});
    EXPECT_EQ(Fold("Port of"), (Words{U"port", U"of"})) << "somebody is still typing";
    EXPECT_EQ(Fold("St. Petersburg"), (Words{U"saint", U"petersburg"}));
    EXPECT_EQ(Fold("st"), Words{U"st"}) << "this may become Stavanger";
}

TEST(Folding, NothingComesOfNothing) {
    EXPECT_TRUE(Fold("").empty());
    EXPECT_TRUE(Fold(" ,.-").empty());
    EXPECT_TRUE(Fold("\xFF\xFE").empty());
}

TEST(Folding, CountriesAreNamedInTheLanguageAskedFor) {
    EXPECT_EQ(CountryName("NL", "en"), "Netherlands");
    EXPECT_EQ(CountryName("NL", "zh_CN"), "荷兰");
    EXPECT_EQ(CountryName("NL", "zh_TW"), "荷蘭");
    EXPECT_EQ(CountryName("", "en"), "");
}

}  // namespace
}  // namespace Tarvik::Ports
