// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/panels/texts/AllTexts.h"
#include "seaplan/views/preview/FileTexts.h"

namespace Tarvik::Seaplan {

namespace {

/// The keys of the string table, and the titles of columns that have no number there.
std::set<std::string> KnownKeys() {
    std::set<std::string> keys{
#define SEAPLAN_KEY_NAME(number, key) #key,
        SEAPLAN_TEXT_KEYS(SEAPLAN_KEY_NAME)
#undef SEAPLAN_KEY_NAME
    };
    for (const PortCallColumnEntry& column : kPortCallColumns) {
        keys.insert(column.title);
    }
    return keys;
}

/// The languages of the files "seaplan.<language>.json" that the client ships.
std::vector<std::string> ShippedLanguages() {
    constexpr std::string_view kHead = "seaplan.";
    std::vector<std::string> languages;
    for (const auto& entry : std::filesystem::directory_iterator(SEAPLAN_LANG_DIR)) {
        const std::string stem = entry.path().stem().string();
        if (stem.starts_with(kHead)) {
            languages.push_back(stem.substr(kHead.size()));
        }
    }
    return languages;
}

class LanguageFile : public ::testing::TestWithParam<std::string> {
  protected:
    const FileTexts texts{std::string(SEAPLAN_LANG_DIR) + "/seaplan." + GetParam() + ".json"};
};

}  // namespace

TEST_P(LanguageFile, EveryKeyOfTheStringTableHasAText) {
    for (const std::string& key : KnownKeys()) {
        const auto found = texts.All().find({"Seaplan", key});
        ASSERT_NE(found, texts.All().end()) << key;
        EXPECT_FALSE(found->second.empty()) << key;
    }
}

TEST_P(LanguageFile, NothingButTheStringTableStandsInTheSection) {
    const std::set<std::string> known = KnownKeys();
    for (const auto& [name, text] : texts.All()) {
        if (name.first == "Seaplan") {
            EXPECT_TRUE(known.contains(name.second)) << name.second;
        }
    }
}

TEST_P(LanguageFile, TheCalendarsButtonsHaveTexts) {
    EXPECT_TRUE(texts.All().contains({"TRV_Shipping", "IDOK"}));
    EXPECT_TRUE(texts.All().contains({"TRV_Shipping", "IDCANCEL"}));
}

INSTANTIATE_TEST_SUITE_P(Shipped, LanguageFile, ::testing::ValuesIn(ShippedLanguages()),
                         [](const auto& file) {
                             std::string name = file.param;
                             std::erase(name, '-');
                             return name;
                         });

TEST_P(LanguageFile, PlacesForNamesAreTheSameAsInEnglish) {
    const auto& all = texts.All();
    const FileTexts english(std::string(SEAPLAN_LANG_DIR) + "/seaplan.en-US.json");
    for (const auto& [name, text] : english.All()) {
        EXPECT_EQ(std::count(text.begin(), text.end(), '%'),
                  std::count(all.at(name).begin(), all.at(name).end(), '%'))
            << name.second;
    }
}

// The words for a name that a deleted voyage has end by the language, which is known by this letter.
TEST_P(LanguageFile, OnlyTheEnglishWordsForATakenNameBeginWithTheLetterOfEnglish) {
    const std::string& words = texts.All().at({"Seaplan", "IDS_VOYTREE_SAMENAME_WARN_FORDISTAB"});
    EXPECT_EQ(words.starts_with('T'), GetParam() == "en-US") << words;
}

}  // namespace Tarvik::Seaplan
