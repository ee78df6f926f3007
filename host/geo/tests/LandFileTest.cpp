// SPDX-License-Identifier: MIT
#include <filesystem>

#include <gmock/gmock.h>

#include "host/geo/LandFile.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Data {

namespace {

LandFile Sample() {
    LandFile land;
    for (std::size_t level = 0; level < LandFile::kLevels; ++level) {
        const float size = static_cast<float>(level) + 1.0F;
        land.levels[level].resize(2);
        land.levels[level][0].points = {{0, 0}, {size, 0}, {size, -size}};
        land.levels[level][1].points = {{-180, 80}, {-170, 80}, {-170, 90}};
        land.coasts[level].resize(1);
        land.coasts[level][0].points = {{0, 0}, {size, 5}};
    }
    return land;
}

std::string ErrorOf(const std::string& bytes) {
    std::string error;
    return LandFile::Decode(bytes, error) ? "none" : error;
}

TEST(LandFile, ReadsWhatItWroteAndMeasuresEveryCell) {
    std::string error;
    const auto land = LandFile::Decode(Sample().Encode(), error);
    ASSERT_TRUE(land) << error;
    EXPECT_EQ(land->Encode(), Sample().Encode());
    const LandFile::Cell& cell = land->levels[2][0];
    EXPECT_EQ(cell.minX, 0);
    EXPECT_EQ(cell.minY, -3);
    EXPECT_EQ(cell.maxX, 3);
    EXPECT_EQ(cell.maxY, 0);
}

TEST(LandFile, RefusesAFileCutAnywhere) {
    const std::string bytes = Sample().Encode();
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        EXPECT_EQ(ErrorOf(bytes.substr(0, length)),
                  length < 16 ? "this is not a land file" : "the land file is cut or has grown")
            << length;
    }
    EXPECT_EQ(ErrorOf(bytes + "x"), "the land file is cut or has grown");
}

TEST(LandFile, RefusesListsThatDoNotFitTheLength) {
    std::string bytes = Sample().Encode();
    for (std::size_t length = 16; length < bytes.size(); ++length) {
        std::string cut = bytes.substr(0, length);
        const std::size_t payload = length - 16;
        for (std::size_t i = 0; i < 8; ++i) {
            cut[8 + i] = static_cast<char>((payload >> (8 * i)) & 0xFF);
        }
        EXPECT_EQ(ErrorOf(cut), "the land file is damaged") << length;
    }
    bytes[19] = '\x7F';  // a count of two thousand million cells
    EXPECT_EQ(ErrorOf(bytes), "the land file is damaged");
}

TEST(LandFile, RefusesAForeignFileAndImpossiblePlaces) {
    std::string bytes = Sample().Encode();
    bytes[0] = 'l';
    EXPECT_EQ(ErrorOf(bytes), "this is not a land file");
    LandFile land = Sample();
    land.levels[0][0].points[1].first = 181.0F;
    EXPECT_EQ(ErrorOf(land.Encode()), "the land file is damaged");
    land = Sample();
    land.coasts[1][0].points.assign(LandFile::kMaxPoints + 1, {0.0F, 0.0F});
    EXPECT_EQ(ErrorOf(land.Encode()), "the land file is damaged");
    land = Sample();
    land.coasts[1][0].points.clear();
    EXPECT_EQ(ErrorOf(land.Encode()), "the land file is damaged");
}

TEST(LandFile, AMissingOrCutFileIsNamedWithWhatToDo) {
    const TestSupport::TemporaryFolder folder;
    const std::string path = folder.File("land.bin");
    std::string error;
    EXPECT_FALSE(LandFile::Load(path, error));
    EXPECT_EQ(error, "cannot open the land file " + path + ". Build or install the client again.");
    ASSERT_EQ(Sample().Save(path), "");
    EXPECT_TRUE(LandFile::Load(path, error));
    std::filesystem::resize_file(path, 40);
    EXPECT_FALSE(LandFile::Load(path, error));
    EXPECT_EQ(error, "the land file is cut or has grown: " + path + ". Build or install the client again.");
    EXPECT_EQ(Sample().Save(path + "/x"), "cannot write " + path + "/x");
}

}  // namespace
}  // namespace Tarvik::Data
