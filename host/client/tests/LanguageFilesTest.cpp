// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "host/client/services/LanguageFiles.h"
#include "host/client/tests/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

TEST(LanguageFiles, MergesAllComponentsOfTheLanguage) {
    TemporaryFolder folder;
    folder.Write("a.en-US.json", R"({"A":{"X":"ax"}})");
    folder.Write("b.en-US.json", R"({"B":{"X":"bx"},"A":{"Y":"ay"}})");
    folder.Write("b.zh-CN.json", R"({"B":{"X":"港"}})");
    LanguageFiles texts;
    texts.Load(folder.Path(), "en-US");
    EXPECT_EQ(texts.Text("A", "X") + texts.Text("A", "Y") + texts.Text("B", "X"), "axaybx");
    EXPECT_TRUE(texts.Complaints().empty());
    texts.Load(folder.Path(), "zh-CN");
    EXPECT_EQ(texts.Find(u"B", u"B", u"X"), u"港");
    EXPECT_EQ(texts.Find(u"A", u"A", u"X"), std::nullopt);
    EXPECT_EQ(texts.Language(), "zh-CN");
}

TEST(LanguageFiles, AnUnknownKeyShowsItself) {
    EXPECT_EQ(LanguageFiles().Text("A", "GAP"), "GAP");
}

TEST(LanguageFiles, ABrokenFileIsNamedAndTheOthersCount) {
    TemporaryFolder folder;
    folder.Write("a.en-US.json", "{\"A\":");
    folder.Write("b.en-US.json", R"({"B":{"X":"bx"}})");
    LanguageFiles texts;
    texts.Load(folder.Path(), "en-US");
    EXPECT_EQ(texts.Text("B", "X"), "bx");
    ASSERT_EQ(texts.Complaints().size(), 1U);
    EXPECT_THAT(texts.Complaints()[0], testing::HasSubstr("a.en-US.json"));
}

TEST(LanguageFiles, ALanguageWithoutFilesIsNamed) {
    TemporaryFolder folder;
    LanguageFiles texts;
    texts.Load(folder.Path(), "zh-CN");
    EXPECT_EQ(texts.Complaints().size(), 1U);
}

TEST(LanguageFiles, RefusesAnythingButObjectsOfTexts) {
    LanguageFiles texts;
    for (const char* bad : {"", "[]", "{\"A\":1}", "{\"A\":{\"X\":1}}"}) {
        EXPECT_FALSE(texts.Merge(bad)) << bad;
    }
}

TEST(ClientTexts, AreCompleteInBothLanguages) {
    const auto read = [](const std::string& language) {
        std::ifstream in(std::string(CLIENT_LANGUAGES) + "/client." + language + ".json");
        return nlohmann::json::parse(in).at("Client");
    };
    const auto english = read("en-US");
    const auto chinese = read("zh-CN");
    ASSERT_GT(english.size(), 30U);
    EXPECT_EQ(english.size(), chinese.size());
    for (const auto& [key, text] : english.items()) {
        EXPECT_TRUE(chinese.contains(key)) << key;
        EXPECT_FALSE(text.get<std::string>().empty()) << key;
    }
}

}  // namespace
}  // namespace Tarvik::Client
