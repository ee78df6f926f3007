// SPDX-License-Identifier: MIT
#include <algorithm>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "seaplan/panels/TextKeys.h"
#include "seaplan/views/preview/FileTexts.h"

namespace Tarvik::Seaplan {

namespace {

const char* const kKeys[] = {
#define SEAPLAN_KEY_NAME(number, key) #key,
    SEAPLAN_TEXT_KEYS(SEAPLAN_KEY_NAME)
#undef SEAPLAN_KEY_NAME
};

class LanguageFile : public ::testing::TestWithParam<const char*> {
  protected:
    const FileTexts texts{std::string(SEAPLAN_LANG_DIR) + "/" + GetParam() + ".json"};
};

}  // namespace

TEST_P(LanguageFile, EveryKeyOfTheStringTableHasAText) {
    for (const char* key : kKeys) {
        const auto found = texts.All().find({"Seaplan", key});
        ASSERT_NE(found, texts.All().end()) << key;
        EXPECT_FALSE(found->second.empty()) << key;
    }
}

TEST_P(LanguageFile, NothingButTheStringTableStandsInTheSection) {
    const std::set<std::string> known(std::begin(kKeys), std::end(kKeys));
    EXPECT_EQ(known.size(), std::size(kKeys));
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

INSTANTIATE_TEST_SUITE_P(Shipped, LanguageFile, ::testing::Values("en-US", "zh-CN"),
                         [](const auto& file) { return std::string(file.param).substr(0, 2); });

TEST(LanguageFiles, PlacesForNamesAreTheSameInBoth) {
    const FileTexts chinese(std::string(SEAPLAN_LANG_DIR) + "/zh-CN.json");
    const auto& all = chinese.All();
    const FileTexts english(std::string(SEAPLAN_LANG_DIR) + "/en-US.json");
    for (const auto& [name, text] : english.All()) {
        EXPECT_EQ(std::count(text.begin(), text.end(), '%'),
                  std::count(all.at(name).begin(), all.at(name).end(), '%'))
            << name.second;
    }
}

}  // namespace Tarvik::Seaplan
