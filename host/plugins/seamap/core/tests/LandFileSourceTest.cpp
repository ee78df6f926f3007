// SPDX-License-Identifier: MIT
#include <fstream>

#include <gtest/gtest.h>

#include "host/geo/LandFile.h"
#include "host/plugins/seamap/core/LandSource.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Seamap {

namespace {

class LandFileSourceTest : public ::testing::Test {
  protected:
    TestSupport::TemporaryFolder folder_;
    const std::string path_ = folder_.File("land.bin");
};

TEST_F(LandFileSourceTest, ReadsEveryLevelWithItsCellsAndCoasts) {
    Data::LandFile file;
    for (std::size_t level = 0; level < Data::LandFile::kLevels; ++level) {
        const float size = static_cast<float>(level) + 1;
        file.levels[level] = {{0, 0, 0, 0, {{0, 0}, {size, 0}, {size, size}}}};
        file.coasts[level] = {{0, 0, 0, 0, {{0, 0}, {size, 5}}}, {0, 0, 0, 0, {{7, 7}, {8, 8}}}};
    }
    ASSERT_EQ(file.Save(path_), "");
    const auto levels = LandFileSource(path_).Load();
    ASSERT_EQ(levels.size(), 3u);
    for (std::size_t level = 0; level < 3; ++level) {
        ASSERT_EQ(levels[level].cells.size(), 1u);
        ASSERT_EQ(levels[level].coasts.size(), 2u);
        EXPECT_EQ(levels[level].cells[0].size(), 3u);
        EXPECT_EQ(levels[level].coasts[0][1].lon, static_cast<float>(level) + 1);
        EXPECT_EQ(levels[level].coasts[0][1].lat, 5);
    }
}

TEST_F(LandFileSourceTest, AMissingOrDamagedFileHasNoLand) {
    EXPECT_TRUE(LandFileSource(path_).Load().empty());
    std::ofstream(path_) << "LANDV001 and then nonsense";
    EXPECT_TRUE(LandFileSource(path_).Load().empty());
}

}  // namespace
}  // namespace Tarvik::Seamap
