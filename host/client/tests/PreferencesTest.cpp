// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/client/services/Preferences.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

const std::vector<Language> kLanguages{{"en-US", "English"}, {"zh-CN", "简体中文"}};

TEST(Preferences, StartWithTheZoneInWhichTimesAreStored) {
    TestSupport::TemporaryFolder folder;
    const Preferences usual = Preferences::Read(folder.File("none.json"), kLanguages);
    EXPECT_EQ(usual, Preferences());
    EXPECT_EQ(usual.timeZone, "China Standard Time");
}

TEST(Preferences, ComeBackAsTheyWereWritten) {
    TestSupport::TemporaryFolder folder;
    const Preferences chosen{"zh-CN", "Europe/Amsterdam", "night", "http://10.0.0.1:80", "anna"};
    Preferences written = chosen;
    written.timeZone = "UTC";
    written.chartParts = {{"names", false}, {"daylight", true}};
    written.firstStart = true;
    std::string error;
    ASSERT_TRUE(written.Write(folder.File("p.json"), error)) << error;
    EXPECT_EQ(Preferences::Read(folder.File("p.json"), kLanguages), written);
    EXPECT_FALSE(std::filesystem::exists(folder.File("p.json.new")));
}

TEST(Preferences, WrongValuesGiveWayToTheUsualOnes) {
    TestSupport::TemporaryFolder folder;
    folder.Write("p.json", R"({"language":"xx","timeZone":"Middle/Earth","theme":3,"server":"ftp"})");
    const Preferences read = Preferences::Read(folder.File("p.json"), kLanguages);
    EXPECT_EQ(read.language, "en-US");
    EXPECT_EQ(read.timeZone, "China Standard Time");
    EXPECT_EQ(read.theme, "light");
    EXPECT_EQ(read.server, "");
    folder.Write("p.json", R"({"chart":{"names":false,"graticule":"no"}})");
    const std::map<std::string, bool> parts{{"names", false}};
    EXPECT_EQ(Preferences::Read(folder.File("p.json"), kLanguages).chartParts, parts);
    folder.Write("p.json", "{\"language\":\"zh-");
    EXPECT_EQ(Preferences::Read(folder.File("p.json"), kLanguages), Preferences());
}

TEST(Preferences, AFailedWriteSaysWhatToDoAndKeepsTheOldFile) {
    TestSupport::TemporaryFolder folder;
    folder.Write("p.json", "{\"theme\":\"dark\"}");
    std::filesystem::create_directories(folder.File("p.json.new/x"));
    std::string error;
    EXPECT_FALSE(Preferences().Write(folder.File("p.json"), error));
    EXPECT_NE(error.find("p.json"), std::string::npos);
    EXPECT_EQ(Preferences::Read(folder.File("p.json"), kLanguages).theme, "dark");
}

}  // namespace
}  // namespace Tarvik::Client
