// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "host/client/services/LanguageFiles.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

TEST(LanguageFiles, MergesAllComponentsOfTheLanguage) {
    TestSupport::TemporaryFolder folder;
    folder.Write("a.en-US.json", R"({"A":{"X":"ax"}})");
    folder.Write("b.en-US.json", R"({"B":{"X":"bx"},"A":{"Y":"ay"}})");
    folder.Write("b.zh-CN.json", R"({"B":{"X":"港"}})");
    LanguageFiles texts;
    texts.Load(folder.Path(), "en-US");
    EXPECT_EQ(texts.Text("A", "X") + texts.Text("A", "Y") + texts.Text("B", "X"), "axaybx");
    EXPECT_TRUE(texts.Complaints().empty());
    texts.Load(folder.Path(), "zh-CN");
    EXPECT_EQ(texts.Find(u"B", u"B", u"X"), u"港");
    EXPECT_EQ(texts.Find(u"A", u"A", u"X"), u"ax") << "what is missing shows in English";
    EXPECT_EQ(texts.Find(u"A", u"A", u"Z"), std::nullopt);
    EXPECT_EQ(texts.Code(), "zh-CN");
}

TEST(LanguageFiles, AnUnknownKeyShowsItself) {
    EXPECT_EQ(LanguageFiles().Text("A", "GAP"), "GAP");
}

TEST(LanguageFiles, ABrokenFileIsNamedAndTheOthersCount) {
    TestSupport::TemporaryFolder folder;
    folder.Write("a.en-US.json", "{\"A\":");
    folder.Write("b.en-US.json", R"({"B":{"X":"bx"}})");
    LanguageFiles texts;
    texts.Load(folder.Path(), "en-US");
    EXPECT_EQ(texts.Text("B", "X"), "bx");
    ASSERT_EQ(texts.Complaints().size(), 1U);
    EXPECT_THAT(texts.Complaints()[0], testing::HasSubstr("a.en-US.json"));
}

TEST(LanguageFiles, ALanguageWithoutFilesIsNamed) {
    TestSupport::TemporaryFolder folder;
    LanguageFiles texts;
    texts.Load(folder.Path(), "zh-CN");
    EXPECT_EQ(texts.Complaints().size(), 1U);
}

TEST(LanguageFiles, AMissingTextShowsInEnglishAndNeverInTheLanguageBefore) {
    TestSupport::TemporaryFolder folder;
    folder.Write("a.en-US.json", R"({"A":{"X":"ship","Y":"port"}})");
    folder.Write("a.zh-CN.json", R"({"A":{"X":"船","Y":"港口"}})");
    folder.Write("a.zh-TW.json", R"({"A":{"X":"船舶"}})");
    LanguageFiles texts;
    texts.Load(folder.Path(), "zh-CN");
    texts.Load(folder.Path(), "zh-TW");
    EXPECT_EQ(texts.Text("A", "X") + texts.Text("A", "Y"), "船舶port");
    EXPECT_TRUE(texts.Complaints().empty());
}

TEST(LanguageFiles, TheNextLanguageStandsBehindTheOneInForceAndTheFirstBehindTheLast) {
    TestSupport::TemporaryFolder folder;
    LanguageFiles texts;
    texts.Load(folder.Path(), "en-US");
    EXPECT_EQ(texts.Next(), nullptr);
    for (const char* code : {"en-US", "zh-CN", "zh-TW"}) {
        folder.Write(std::string("client.") + code + ".json", R"({"Client":{}})");
    }
    const auto next = [&](const char* code) {
        texts.Load(folder.Path(), code);
        return texts.Next()->code;
    };
    EXPECT_EQ(next("en-US"), "zh-CN");
    EXPECT_EQ(next("zh-CN"), "zh-TW");
    EXPECT_EQ(next("zh-TW"), "en-US");
    EXPECT_EQ(next("nl-NL"), "en-US");
}

TEST(LanguageFiles, RefusesAnythingButObjectsOfTexts) {
    LanguageFiles texts;
    for (const char* bad : {"", "[]", "{\"A\":1}", "{\"A\":{\"X\":1}}"}) {
        EXPECT_FALSE(texts.Merge(bad)) << bad;
    }
}

TEST(LanguageFiles, AFolderOffersTheLanguagesOfItsFilesByTheirOwnNames) {
    TestSupport::TemporaryFolder folder;
    folder.Write("client.nl-NL.json", R"({"Client":{"LANGUAGE_NAME":"Nederlands"}})");
    folder.Write("client.de-DE.json", R"({"Client":{}})");
    folder.Write("seaplan.fr-FR.json", "{}");
    folder.Write("client..json", "{}");
    const auto languages = LanguageFiles::In(folder.Path());
    ASSERT_EQ(languages.size(), 2U);
    EXPECT_EQ(languages[0].name, "de-DE") << "the code stands in for a name that is missing";
    EXPECT_EQ(languages[1].code, "nl-NL");
    EXPECT_EQ(languages[1].name, "Nederlands");
    EXPECT_TRUE(IsOffered(languages, "nl-NL"));
    EXPECT_FALSE(IsOffered(languages, "fr-FR"));
    EXPECT_TRUE(LanguageFiles::In(folder.File("none")).empty());
}

TEST(ClientTexts, AreCompleteInEveryLanguage) {
    const auto read = [](const std::string& language) {
        std::ifstream in(std::string(CLIENT_LANGUAGES) + "/client." + language + ".json");
        return nlohmann::json::parse(in).at("Client");
    };
    const auto english = read("en-US");
    ASSERT_GT(english.size(), 30U);
    const auto languages = LanguageFiles::In(CLIENT_LANGUAGES);
    ASSERT_GE(languages.size(), 2U);
    for (const Language& language : languages) {
        const auto texts = read(language.code);
        EXPECT_EQ(english.size(), texts.size()) << language.code;
        for (const auto& [key, text] : english.items()) {
            EXPECT_TRUE(texts.contains(key)) << key;
            EXPECT_FALSE(text.get<std::string>().empty()) << key;
        }
    }
}

/// Names of the route points in a language, by id.
nlohmann::json PointNames(const std::string& language) {
    std::ifstream in(std::string(CLIENT_LANGUAGES) + "/client." + language + ".json");
    return nlohmann::json::parse(in).at("RoutePoints");
}

TEST(RoutePointNames, AreThoseOfTheTableOfPointsInEveryLanguage) {
    std::ifstream table(ROUTE_POINTS);
    std::string line;
    std::getline(table, line);
    ASSERT_TRUE(line.starts_with("id,name,namecn,")) << line;
    std::size_t count = 0;
    for (; std::getline(table, line); ++count) {
        std::istringstream cells(line);
        std::string id, name, chinese;
        std::getline(std::getline(std::getline(cells, id, ','), name, ','), chinese, ',');
        EXPECT_EQ(PointNames("en-US").value(id, ""), name);
        EXPECT_EQ(PointNames("zh-CN").value(id, ""), chinese) << name;
        EXPECT_NE(PointNames("zh-TW").value(id, name), name);
    }
    EXPECT_GT(count, 100U);
    EXPECT_EQ(PointNames("en-US").size(), count);
    EXPECT_EQ(PointNames("zh-TW").value("179", ""), "臺灣海峽");
}

/// All keys of a component's file, as "section key", in order; none where there is no file.
std::vector<std::string> KeysOf(const std::string& component, const std::string& language) {
    std::ifstream in(std::string(CLIENT_LANGUAGES) + "/" + component + "." + language + ".json");
    std::vector<std::string> keys;
    if (!in) {
        return keys;
    }
    const nlohmann::json sections = nlohmann::json::parse(in);
    for (const auto& [section, texts] : sections.items()) {
        for (const auto& [key, text] : texts.items()) {
            keys.emplace_back(section).append(" ").append(key);
        }
    }
    return keys;
}

TEST(ShippedLanguages, AreAtLeastEnglishAndBothFormsOfChinese) {
    EXPECT_THAT(LanguageCodes(LanguageFiles::In(CLIENT_LANGUAGES)),
                testing::IsSupersetOf({"en-US", "zh-CN", "zh-TW"}));
}

TEST(ShippedLanguages, HaveTheKeysOfTheEnglishFilesAndNoOthers) {
    for (const Language& language : LanguageFiles::In(CLIENT_LANGUAGES)) {
        for (const char* component : {"ais", "client", "fleet", "infosearch", "seaplan"}) {
            EXPECT_EQ(KeysOf(component, language.code), KeysOf(component, kReferenceLanguage))
                << component << " " << language.code;
        }
    }
}

/// A character that Traditional Chinese writes otherwise gives away a text that was copied.
TEST(ShippedLanguages, TraditionalChineseHoldsNoSimplifiedForms) {
    constexpr const char* kSimplified[] = {"们", "这", "为", "时", "显", "录", "设", "选",
                                           "处", "删", "备", "类", "进", "请", "复", "给",
                                           "开", "关", "总", "间", "预", "离", "经", "纬"};
    std::vector<std::filesystem::path> files;
    for (const char* component : {"ais", "client", "fleet", "infosearch", "seaplan"}) {
        files.push_back(std::string(CLIENT_LANGUAGES) + "/" + component + ".zh-TW.json");
    }
    for (const auto& page : std::filesystem::directory_iterator(std::string(CLIENT_GUIDE) + "/zh-TW")) {
        files.push_back(page.path());
    }
    for (const auto& file : files) {
        std::ifstream in(file);
        const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        ASSERT_FALSE(text.empty());
        for (const char* form : kSimplified) {
            EXPECT_EQ(text.find(form), std::string::npos) << file << " " << form;
        }
    }
}

/// What a text promises is what the program does.
TEST(ShippedLanguages, LimitsCausesAndTipsAreTheRightOnes) {
    struct Words {
        const char* language;
        const char* ports;
        const char* route;
        const char* connection;
        const char* hide;
    };
    for (const Words& words :
         {Words{"en-US", "ports", "route", "connection", "ide"},
          Words{"zh-CN", "港口", "航线", "连接", "隐藏"}, Words{"zh-TW", "港口", "航線", "連線", "隱藏"}}) {
        LanguageFiles texts;
        texts.Load(CLIENT_LANGUAGES, words.language);
        const std::string limits = texts.Text("Seaplan", "IDS_BK_ERR_INPUT");
        EXPECT_THAT(limits, testing::ContainsRegex("[^0-9]0[^0-9]")) << words.language;
        EXPECT_THAT(limits, testing::ContainsRegex("[^0-9]500000[^0-9]")) << words.language;
        const std::string notSaved = texts.Text("Seaplan", "IDS_PORTCALL_SAVEEXCEPTION");
        for (const char* cause : {words.ports, words.route, words.connection}) {
            EXPECT_THAT(notSaved, testing::HasSubstr(cause)) << "more than one thing may be wrong";
        }
        EXPECT_THAT(texts.Text("Client", "DISTANCES_TIP"), testing::Not(testing::HasSubstr(words.hide)))
            << "it opens and does not hide";
    }
}

TEST(QuestionButtonsTest, AreToldForTheSameQuestionsInEveryLanguage) {
    const auto read = [](const std::string& component, const std::string& language) {
        std::ifstream in(std::string(CLIENT_LANGUAGES) + "/" + component + "." + language + ".json");
        return nlohmann::json::parse(in);
    };
    for (const auto& [component, section] : {std::pair{"seaplan", "Seaplan"}, {"fleet", "Fleet"}}) {
        const auto english = read(component, "en-US");
        ASSERT_GT(english.at("Buttons").size(), 5U);
        for (const Language& language : LanguageFiles::In(CLIENT_LANGUAGES)) {
            const auto texts = read(component, language.code);
            EXPECT_EQ(texts.at("Buttons").size(), english.at("Buttons").size()) << language.code;
            for (const auto& [key, words] : english.at("Buttons").items()) {
                EXPECT_TRUE(texts.at("Buttons").contains(key)) << key;
                EXPECT_TRUE(texts.at(section).contains(key.substr(0, key.find('.')))) << key;
            }
        }
    }
}

TEST(QuestionButtonsTest, WhatLosesSomethingIsNotTheCarefulAnswer) {
    LanguageFiles texts;
    texts.Load(CLIENT_LANGUAGES, "en-US");
    const auto buttons = [&texts](const char* key) { return texts.ButtonsOf(texts.Text("Seaplan", key)); };
    EXPECT_EQ(buttons("IDS_PORTCALL_CLOSESAVE").yes, "Lose them");
    EXPECT_EQ(buttons("IDS_PORTCALL_CLOSESAVE").no, "Go back");
    EXPECT_FALSE(buttons("IDS_PORTCALL_CLOSESAVE").yesIsCareful);
    EXPECT_EQ(buttons("IDS_PORTCALL_SAVENEXT").yes, "Save");
    EXPECT_TRUE(buttons("IDS_PORTCALL_SAVENEXT").yesIsCareful);
    const auto leaving = [&texts](const char* detail) {
        return texts.ButtonsOf(texts.Text("Seaplan", "IDS_PORTCALL_SAVENEXT") + '\n' + detail);
    };
    const QuestionButtons table =
        leaving("Port distance table, rows: 3. They are kept only under a name, as a voyage.");
    EXPECT_EQ(table.yes, "Save as voyage") << "it has no voyage that a plain save could go to";
    EXPECT_EQ(table.no, "Lose the table");
    EXPECT_TRUE(table.yesIsCareful);
    EXPECT_EQ(leaving("Voyage \"A\", changed rows: 2").yes, "Save");
    EXPECT_FALSE(buttons("IDS_TREE_CLEARVOYORCATE").yesIsCareful);
    for (const char* key : {"IDS_REMARKSAVETIP", "IDS_BK_TIP_SAVE", "IDS_WP_TIP_SAVE"}) {
        EXPECT_EQ(buttons(key).yes, "Save") << key;
        EXPECT_TRUE(buttons(key).yesIsCareful) << key << ": whoever types on must not lose the changes";
    }
    const std::string close = texts.Text("Seaplan", "IDS_PORTCALL_CLOSESAVE");
    EXPECT_EQ(texts.ButtonsOf(close + "\nVoyage \"A\"").yes, "Lose them") << "with what is lost below it";
    std::string removal = texts.Text("Fleet", "REMOVE_QUESTION");
    removal.replace(removal.find("%1"), 2, "FAR STAR");
    EXPECT_EQ(texts.ButtonsOf(removal).yes, "Remove") << "with the vessel's name below it";
    EXPECT_EQ(texts.ButtonsOf("Anything else?").yes, "");
}

}  // namespace
}  // namespace Tarvik::Client
