// SPDX-License-Identifier: MIT
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "host/plugins/ais/services/Settings.h"
#include "testsupport/DataFolder.h"

namespace Tarvik::Ais {

namespace {

class SettingsTest : public testing::Test {
  protected:
    TestSupport::DataFolder folder;
    std::string file = (folder.Path() / "ais" / "settings.json").string();
};

TEST_F(SettingsTest, ComeBackAsWritten) {
    const Settings settings{{"tcp://a:1", "file:/x \"y\""}, false};
    ASSERT_TRUE(settings.Write(file));
    EXPECT_EQ(Settings::Read(file), settings);
    ASSERT_TRUE(Settings().Write(file));
    EXPECT_EQ(Settings::Read(file), Settings());
}

TEST_F(SettingsTest, BadFileGivesTheUsualOnes) {
    EXPECT_EQ(Settings::Read(file), Settings());
    const std::string bad = (folder.Path() / "bad.json").string();
    for (const char* text :
         {"", "{", "[1]", "{\"inputs\":\"tcp://a\",\"showShips\":1}", "{\"inputs\":[1,null]}"}) {
        std::ofstream(bad, std::ios::trunc) << text;
        EXPECT_EQ(Settings::Read(bad), Settings()) << text;
    }
}

TEST_F(SettingsTest, UnwritableFileIsTold) {
    EXPECT_FALSE(Settings().Write("/proc/none/settings.json"));
}

}  // namespace
}  // namespace Tarvik::Ais
