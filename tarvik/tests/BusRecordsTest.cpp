// SPDX-License-Identifier: MIT
// Defaults and layout of the records that cross the bus.
#include <algorithm>
#include <cstddef>
#include <cstring>

#include <gtest/gtest.h>

#include <tarvik/interface/ChartRecords.h>
#include <tarvik/interface/ServerRequest.h>
#include <tarvik/interface/SiblingRecords.h>
#include <tarvik/interface/VesselNumbers.h>

namespace Tarvik::Interface {

namespace {

TEST(ServerRequestTest, HeadIsEightBytesLittleEndian) {
    static_assert(offsetof(VoyServerRequest, length) == 0);
    static_assert(offsetof(VoyServerRequest, command) == 4);
    static_assert(offsetof(VoyServerRequest, moduleWord) == 6);
    alignas(VoyServerRequest) char block[10] = {0x04, 0x03, 0x02, 0x01, 0x0B, 0x00, 0x02, 0x10, 'x', 0};
    const auto* head = reinterpret_cast<const VoyServerRequest*>(block);
    EXPECT_EQ(head->length, 0x01020304U);
    EXPECT_EQ(head->command, 11);
    EXPECT_EQ(head->moduleWord, 0x1002);
    EXPECT_EQ(head->Payload(), block + 8);
}

TEST(ServerRequestTest, CommandsHaveTheServersNumbers) {
    EXPECT_EQ(NumberOf(VoyCommand::SearchRoute), 1);
    EXPECT_EQ(NumberOf(VoyCommand::LoadCatalog), 3);
    EXPECT_EQ(NumberOf(VoyCommand::SaveBookRows), 9);
    EXPECT_EQ(NumberOf(VoyCommand::SetBookDate), 14);
    EXPECT_EQ(NumberOf(VoyCommand::ChangeFleet), 16);
    EXPECT_EQ(VoyCommand::Remarks, VoyCommand::SaveBookRows) << "told apart by the module word";
    constexpr std::uint16_t kModeBits = 0x3000;
    EXPECT_EQ(kRemarkModuleWord & kModeBits, 1 << 12);
    EXPECT_EQ(kRemarkModuleWord & ~kModeBits, 2);
}

TEST(VesselNumbersTest, MmsiOfAShipHasACountry) {
    for (const int good : {201000000, 477123456, 775999999}) {
        EXPECT_TRUE(IsShipMmsi(good)) << good;
    }
    for (const int bad : {0, -477123456, 47712345, 200999999, 776000000, 970123456, 1477123456}) {
        EXPECT_FALSE(IsShipMmsi(bad)) << bad;
    }
}

TEST(VesselNumbersTest, ImoNumberHasItsCheckDigit) {
    for (const int good : {9074729, 9134270, 8814275, 1000007}) {
        EXPECT_TRUE(IsImoNumber(good)) << good;
    }
    for (const int bad : {0, -9074729, 9074728, 9047729, 907472, 90747290, 10000074}) {
        EXPECT_FALSE(IsImoNumber(bad)) << bad;
    }
}

TEST(ChartRecordsTest, LayerDefaults) {
    const TrvMapLayerParams layer;
    EXPECT_EQ(layer.layer, "");
    EXPECT_EQ(layer.integers[0], 1);
    EXPECT_EQ(layer.integers[1], 0);
    EXPECT_EQ(layer.integers[2], 0);
    EXPECT_EQ(layer.fontFace, "Arial");
    EXPECT_EQ(layer.fontSize, 12);
    EXPECT_TRUE(
        std::all_of(std::begin(layer.reserved), std::end(layer.reserved), [](int b) { return b == 0; }));
    EXPECT_EQ(layer.pointShape, "circle");
    EXPECT_EQ(layer.pointColour, 0);
    EXPECT_EQ(layer.pointSize, 3);
    EXPECT_EQ(layer.lineColour, 0);
    EXPECT_EQ(layer.lineWidth, 3);
    EXPECT_EQ(layer.lineStyle, "solid");
    EXPECT_EQ(layer.fillColour, 0);
    EXPECT_EQ(layer.fillOpacity, -1.0);
    EXPECT_EQ(layer.fillBorderColour, 0);
    EXPECT_EQ(layer.fillBorderWidth, 3);
    EXPECT_EQ(layer.fillBorderStyle, "solid");
}

TEST(ChartRecordsTest, ObjectDefaults) {
    const TrvMapLineParams line;
    EXPECT_TRUE(line.points.empty());
    EXPECT_EQ(line.colour, 0);
    EXPECT_EQ(line.width, 3);
    EXPECT_EQ(line.style, "solid");
    const TrvMapPointParams point;
    EXPECT_EQ(point.integer, 0);
    EXPECT_EQ(point.shape, "circle");
    EXPECT_EQ(point.colour, 0);
    EXPECT_EQ(point.size, 3);
    const TrvMapObjectList list;
    EXPECT_EQ(list.objects, nullptr);
    EXPECT_EQ(list.count, 0);
}

TEST(ChartRecordsTest, ExtentIsFourAdjacentNumbersAndStartsInsideOut) {
    const TrvMapExtent extent;
    double numbers[4];
    static_assert(sizeof extent == sizeof numbers);
    std::memcpy(numbers, &extent, sizeof numbers);
    EXPECT_EQ(numbers[0], 180.0);
    EXPECT_EQ(numbers[1], 90.0);
    EXPECT_EQ(numbers[2], -180.0);
    EXPECT_EQ(numbers[3], -90.0);
}

TEST(SiblingRecordsTest, CardStartsWithAnUnknownPlaceAndAFixedCursor) {
    const VesselCard card;
    EXPECT_EQ(card.vessel.x, 361.0);
    EXPECT_EQ(card.vessel.y, 361.0);
    EXPECT_EQ(card.vessel.time, 0);
    EXPECT_EQ(card.vessel.zero, 0);
    EXPECT_EQ(card.cursorX, 400);
    EXPECT_EQ(card.cursorY, 200);
}

}  // namespace
}  // namespace Tarvik::Interface
