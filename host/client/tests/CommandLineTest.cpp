// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "host/client/services/CommandLine.h"

namespace Tarvik::Client {

namespace {

CommandLine Parsed(const std::vector<std::string>& words) {
    return ParseCommandLine(words, {{"en-US", "English"}, {"zh-CN", "简体中文"}});
}

using testing::ElementsAre;
using testing::HasSubstr;

TEST(CommandLine, WithoutWordsOpensTheWindow) {
    const CommandLine line = Parsed({});
    EXPECT_FALSE(line.plan);
    EXPECT_FALSE(line.help);
    EXPECT_EQ(line.error, "");
}

TEST(CommandLine, GivesThePlanItsWordsAndKeepsTheCommonOptions) {
    const CommandLine line =
        Parsed({"--data", "/d", "plan", "A", "--speed", "9", "--verbose", "B", "--format=json"});
    EXPECT_TRUE(line.plan);
    EXPECT_TRUE(line.session.verbose);
    EXPECT_EQ(line.session.dataFolder, "/d");
    EXPECT_THAT(line.planWords, ElementsAre("A", "--speed", "9", "B", "--format=json"));
}

TEST(CommandLine, AValueOfAPlansOptionIsNoOptionOfItsOwn) {
    EXPECT_THAT(Parsed({"plan", "A", "B", "--save", "--data"}).planWords,
                ElementsAre("A", "B", "--save", "--data"));
}

TEST(CommandLine, LeavesWordsBehindADoubleDashAlone) {
    EXPECT_THAT(Parsed({"plan", "A", "--", "--verbose"}).planWords, ElementsAre("A", "--", "--verbose"));
}

TEST(CommandLine, ReadsThePicturesOptions) {
    const CommandLine line =
        Parsed({"--screenshot", "a.png", "--theme", "dark", "--lang", "zh-CN", "--panel", "3"});
    EXPECT_EQ(line.screenshot, "a.png");
    EXPECT_EQ(line.session.theme, "dark");
    EXPECT_EQ(line.session.language, "zh-CN");
    EXPECT_EQ(line.panel, 3);
}

TEST(CommandLine, LooksAndLanguageAreThePlansToo) {
    const CommandLine line = Parsed({"plan", "A", "B", "--theme", "night", "--lang", "zh-CN"});
    EXPECT_EQ(line.session.theme, "night");
    EXPECT_EQ(line.session.language, "zh-CN");
    EXPECT_THAT(line.planWords, ElementsAre("A", "B"));
    EXPECT_THAT(Parsed({"plan", "A", "B", "--theme", "pink"}).error, HasSubstr("\"pink\" of --theme"));
}

TEST(CommandLine, NamesABadWord) {
    EXPECT_THAT(Parsed({"plain"}).error, HasSubstr("\"plain\""));
    EXPECT_THAT(Parsed({"--theme", "pink"}).error, HasSubstr("\"pink\" of --theme"));
    EXPECT_THAT(Parsed({"--lang", "xx"}).error, HasSubstr("\"xx\" of --lang"));
    EXPECT_THAT(Parsed({"--data"}).error, HasSubstr("--data needs a value"));
    EXPECT_THAT(Parsed({"--panel", "4"}).error, HasSubstr("\"4\" of --panel"));
}

TEST(CommandLine, FindsTheVersion) {
    EXPECT_TRUE(Parsed({"--version"}).version);
    EXPECT_FALSE(Parsed({}).version);
}

TEST(CommandLine, TakesAServersAddressForBothWaysOfRunning) {
    EXPECT_EQ(Parsed({"--server", "https://office:8470"}).session.server, "https://office:8470");
    EXPECT_EQ(Parsed({"plan", "A", "B", "--server", "embedded"}).session.server, "embedded");
    EXPECT_THAT(Parsed({"--server", "office"}).error, HasSubstr("\"office\" of --server"));
}

TEST(CommandLine, FindsHelpBesideThePlan) {
    EXPECT_TRUE(Parsed({"plan", "--help"}).help);
}

}  // namespace
}  // namespace Tarvik::Client
