// SPDX-License-Identifier: MIT
// What a network's file holds so that loading it need not reckon: the cells of the coast and the landmarks.
#include <gmock/gmock.h>

#include "host/server/graph/SeaNetworkFile.h"
#include "host/server/graph/tests/SmallSea.h"

namespace Tarvik::Server {

namespace {

using ::testing::HasSubstr;

NetworkData WithTables() {
    NetworkData data = SmallSea();
    data.areas = {{{20, 20}, {22, 20}, {22, 22}, {20, 22}}};
    data.tables = SeaNetwork(data).Tables();
    return data;
}

std::optional<NetworkData> Again(const NetworkData& data, std::string& error) {
    return SeaNetworkFile::Decode(SeaNetworkFile::Encode(data), error);
}

std::string ErrorOf(const NetworkData& data) {
    std::string error;
    return Again(data, error) ? "none" : error;
}

template <typename T>
void Change(FrozenArray<T>& array, std::size_t at, T value) {
    std::vector<T> items(array.View().begin(), array.View().end());
    items.at(at) = value;
    array = FrozenArray<T>(std::move(items));
}

TEST(SeaNetworkTables, ANetworkOfItsTablesKnowsWhatOneOfItsRingsKnows) {
    std::string error;
    auto data = Again(WithTables(), error);
    ASSERT_TRUE(data) << error;
    data->land.clear();  // so that nothing but the tables can tell
    const SeaNetwork read(std::move(*data));
    EXPECT_TRUE(read.Land().IsLand({0, 0}));
    EXPECT_FALSE(read.Land().IsLand({21, 21}));
    EXPECT_TRUE(read.Land().Blocks({-10, 0}, {10, 0}));
    EXPECT_TRUE(read.Land().Blocks({19, 21}, {23, 21}));
    EXPECT_FALSE(read.Land().Blocks({-10, 0}, {0, 12}));
    EXPECT_TRUE(read.Land().Grazes({-4, 5.05}, {4, 5.05}, 4.0, 6.0));
    const auto reckoned = SmallNetwork();
    EXPECT_GT(reckoned->Bounds().Bound(0, 3), 1000.0F);
    for (std::uint32_t a = 0; a < 8; ++a) {
        for (std::uint32_t b = 0; b < 8; ++b) {
            EXPECT_EQ(read.Bounds().Bound(a, b), reckoned->Bounds().Bound(a, b)) << a << " " << b;
        }
    }
}

TEST(SeaNetworkTables, OutliveTheDataThatTheyWereReadWith) {
    std::string error;
    NetworkTables kept;
    {
        const auto data = Again(WithTables(), error);
        ASSERT_TRUE(data) << error;
        kept = *data->tables;
    }
    EXPECT_TRUE(LandIndex(kept.land).IsLand({0, 0}));
    EXPECT_EQ(kept.landmarks.Size() % 8, 0u);
}

TEST(SeaNetworkTables, AreWrittenAgainByteForByte) {
    const std::string bytes = SeaNetworkFile::Encode(WithTables());
    std::string error;
    const auto data = SeaNetworkFile::Decode(bytes, error);
    ASSERT_TRUE(data) << error;
    EXPECT_TRUE(SeaNetworkFile::Encode(*data) == bytes);
}

TEST(SeaNetworkTables, DamageAndCutsAreFoundAnywhereInThem) {
    const std::string bytes = SeaNetworkFile::Encode(WithTables());
    ASSERT_GT(bytes.size(), 8'000'000u);
    for (const std::size_t share : {1U, 2U, 3U, 4U, 5U, 6U, 7U}) {
        std::string damaged = bytes;
        const std::size_t at = bytes.size() / 8 * share + share;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x01);
        std::string error;
        EXPECT_FALSE(SeaNetworkFile::Decode(damaged, error));
        EXPECT_EQ(error, "the sea network file is damaged") << at;
        EXPECT_FALSE(SeaNetworkFile::Decode(bytes.substr(0, at), error));
        EXPECT_EQ(error, "the sea network file is cut or has grown") << at;
    }
}

TEST(SeaNetworkTables, ThatDoNotFitAreRefused) {
    EXPECT_EQ(ErrorOf(WithTables()), "none");
    NetworkData data = WithTables();
    Change(data.tables->land.cells.items, 0, 99U);
    EXPECT_THAT(ErrorOf(data), HasSubstr("pieces that do not exist"));
    data = WithTables();
    Change(data.tables->land.near.items, 0, data.tables->land.landPieces);  // an area's piece
    EXPECT_THAT(ErrorOf(data), HasSubstr("pieces that do not exist"));
    data = WithTables();
    Change(data.tables->land.cells.start, 5, 1'000'000U);
    EXPECT_THAT(ErrorOf(data), HasSubstr("pieces that do not exist"));
    data = WithTables();
    data.tables->land.near.start = {};
    EXPECT_THAT(ErrorOf(data), HasSubstr("pieces that do not exist"));
    data = WithTables();
    data.tables->land.landPieces = 99;
    EXPECT_THAT(ErrorOf(data), HasSubstr("pieces that do not exist"));
    data = WithTables();
    data.tables->landmarks = FrozenArray(std::vector<float>(9, 1.0F));
    EXPECT_THAT(ErrorOf(data), HasSubstr("landmarks"));
    data.tables->landmarks = {};
    EXPECT_THAT(ErrorOf(data), HasSubstr("landmarks"));
    data = WithTables();
    data.tables->usual = FrozenArray(std::vector<std::uint8_t>(3, 1));
    EXPECT_THAT(ErrorOf(data), HasSubstr("which edges are usual"));
    data = WithTables();
    data.tables->steps = FrozenArray(std::vector<std::uint8_t>(3, 1));
    EXPECT_THAT(ErrorOf(data), HasSubstr("steps to every port"));
}

}  // namespace
}  // namespace Tarvik::Server
