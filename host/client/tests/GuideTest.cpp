// SPDX-License-Identifier: MIT
#include <filesystem>
#include <regex>
#include <set>

#include <gtest/gtest.h>

#include "host/client/services/Guide.h"
#include "host/client/services/LanguageFiles.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

constexpr std::size_t kPages = 10;

class WrittenGuide {
  public:
    WrittenGuide() {
        std::filesystem::create_directories(folder_.File("en-US"));
        std::filesystem::create_directories(folder_.File("xx"));
        folder_.Write("en-US/1-a.md",
                      "<a id=\"top\"></a>\n# First\n\nText\n\n<!-- keys: one -->\n\nEnd [b](2-b.md)\n");
        folder_.Write(
            "en-US/2-b.md",
            "# Second\n\n<a id=\"keys-one\"></a>\n## Keys\n\n| F9 | Go |\n\n## More\n\nnot these\n");
        folder_.Write("xx/2-b.md", "# Zweite\n\n<a id=\"keys-one\"></a>\n## Tasten\n\n| F9 | Los |\n");
    }
    Guide In(const std::string& language) const { return Guide::Read(folder_.File(""), language); }

  private:
    TestSupport::TemporaryFolder folder_;
};

}  // namespace

TEST(Guide, PagesComeByNameWithTheirTitles) {
    const Guide guide = WrittenGuide().In("en-US");
    ASSERT_EQ(guide.Pages().size(), 2U);
    EXPECT_EQ(guide.Pages()[0].title, "First");
    EXPECT_EQ(guide.PageNamed("2-b"), 1U);
    EXPECT_EQ(guide.PageNamed("3-c"), std::nullopt);
}

TEST(Guide, AMarkLeadsToTheHeadingBelowIt) {
    const Guide guide = WrittenGuide().In("en-US");
    EXPECT_EQ(guide.Find("top"), (Guide::Place{0, 0}));
    EXPECT_EQ(guide.Find("keys-one"), (Guide::Place{1, 1}));
    EXPECT_EQ(guide.Find("nothing"), std::nullopt);
}

TEST(Guide, AListOfKeysStandsWhereItIsNamedAndEndsAtTheNextHeading) {
    const std::string text = WrittenGuide().In("en-US").Pages()[0].markdown;
    EXPECT_EQ(text, "# First\n\nText\n\n\n| F9 | Go |\n\n\nEnd [b](2-b.md)\n");
}

TEST(Guide, APageThatALanguageLacksIsThatOfTheReferenceLanguage) {
    const Guide guide = WrittenGuide().In("xx");
    ASSERT_EQ(guide.Pages().size(), 2U);
    EXPECT_EQ(guide.Pages()[0].title, "First");
    EXPECT_EQ(guide.Pages()[1].title, "Zweite");
    EXPECT_NE(guide.Pages()[0].markdown.find("Los"), std::string::npos);
}

TEST(Guide, WithoutAFolderThereAreNoPages) {
    EXPECT_TRUE(Guide::Read("/no/such/folder", "en-US").Pages().empty());
}

/// The pages as they are shipped, in each language that has some.
class ShippedGuide : public testing::TestWithParam<std::string> {
  protected:
    const Guide guide_ = Guide::Read(CLIENT_GUIDE, GetParam());
    const Guide english_ = Guide::Read(CLIENT_GUIDE, kReferenceLanguage);

    /// The keys that a text names, as Ctrl+Shift+R, F9 or Insert.
    static std::set<std::string> KeysIn(const std::string& text) {
        static const std::regex key(
            "((Ctrl|Shift|Alt)\\+)+(F[0-9]+|Enter|Up|Down|Tab|[A-Z0-9+,-])|F[1-9]|Insert|Delete|Enter|Home|"
            "Esc|Tab");
        return {std::sregex_token_iterator(text.begin(), text.end(), key), std::sregex_token_iterator()};
    }
    static std::vector<std::string> TargetsIn(const std::string& text) {
        static const std::regex target("\\]\\(([^)]*)\\)");
        return {std::sregex_token_iterator(text.begin(), text.end(), target, 1),
                std::sregex_token_iterator()};
    }
};

TEST_P(ShippedGuide, HasTenPagesOfItsOwn) {
    EXPECT_EQ(guide_.Pages().size(), kPages);
    for (const GuidePage& page : guide_.Pages()) {
        EXPECT_TRUE(
            std::filesystem::exists(std::string(CLIENT_GUIDE) + "/" + GetParam() + "/" + page.name + ".md"))
            << page.name;
        EXPECT_FALSE(page.title.empty()) << page.name;
    }
}

TEST_P(ShippedGuide, HasThePageOfEachPanelsTopic) {
    const std::pair<const char*, const char*> topics[] = {
        {"GENERAL", "01-first-voyage"},  {"func033", "01-first-voyage"}, {"func034", "03-speeds-and-eta"},
        {"func035", "04-position-book"}, {"func036", "06-vessels"},      {"func024", "08-remarks"},
        {"distances", "05-distances"},   {"fleet", "06-vessels"},        {"ports", "01-first-voyage"}};
    for (const auto& [topic, page] : topics) {
        const auto place = guide_.Find(topic);
        ASSERT_TRUE(place.has_value()) << topic;
        EXPECT_EQ(guide_.Pages()[place->page].name, page) << topic;
    }
}

TEST_P(ShippedGuide, HasTheMarksAndKeysOfTheEnglishOne) {
    for (std::size_t i = 0; i < kPages; ++i) {
        EXPECT_EQ(guide_.Pages()[i].headings, english_.Pages()[i].headings) << guide_.Pages()[i].name;
        EXPECT_EQ(KeysIn(guide_.Pages()[i].markdown), KeysIn(english_.Pages()[i].markdown))
            << guide_.Pages()[i].name;
    }
    EXPECT_GT(KeysIn(guide_.Pages().back().markdown).size(), 30U);
}

TEST_P(ShippedGuide, HasItsKeysBelowThePanelsPages) {
    for (const char* topic : {"func024", "func033", "func034", "func035", "func036"}) {
        const GuidePage& page = guide_.Pages()[guide_.Find(topic)->page];
        EXPECT_NE(page.markdown.find("|---|---|"), std::string::npos) << page.name;
        EXPECT_EQ(page.markdown.find("<!--"), std::string::npos) << page.name;
        EXPECT_TRUE(guide_.Find(std::string("keys-") + topic).has_value()) << topic;
    }
}

TEST_P(ShippedGuide, NamesTheKeysOfTheVoyagePanelThatAreNoShortcuts) {
    const std::string page = guide_.Pages()[guide_.Find("func033")->page].markdown;
    for (const char* key : {"Enter", "Tab", "Shift+F10", "F2", "Delete"}) {
        EXPECT_NE(page.find(key), std::string::npos) << key;
    }
}

TEST_P(ShippedGuide, LinksLeadToPagesMarksAndPicturesThatAreThere) {
    for (const GuidePage& page : guide_.Pages()) {
        for (const std::string& target : TargetsIn(page.markdown)) {
            const std::string file = target.substr(0, target.find('#'));
            EXPECT_TRUE(std::filesystem::exists(std::string(CLIENT_GUIDE) + "/" + GetParam() + "/" + file))
                << page.name << ' ' << target;
            if (file.size() < target.size()) {
                const auto place = guide_.Find(target.substr(file.size() + 1));
                ASSERT_TRUE(place.has_value()) << page.name << ' ' << target;
                EXPECT_EQ(guide_.Pages()[place->page].name + ".md", file) << target;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, ShippedGuide, testing::Values("en-US", "zh-CN", "zh-TW"),
                         [](const auto& language) {
                             std::string name = language.param;
                             std::erase(name, '-');
                             return name;
                         });

}  // namespace Tarvik::Client
