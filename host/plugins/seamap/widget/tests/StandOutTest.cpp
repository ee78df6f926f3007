// SPDX-License-Identifier: MIT
/// The voyage that stands out among those on the chart, as it is drawn.
#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/interface/ChartRecords.h>

#include "host/plugins/seamap/widget/tests/ChartFixture.h"

namespace Tarvik::Seamap {

namespace {

constexpr int kColour = 0xC832E9;

class StandOutTest : public ChartFixture {
  protected:
    StandOutTest() {
        chart_->ShowParts({.graticule = false});
        AddLine("7_5", "2");
        AddLine("8_5", "-2");
        chart_->ShowExtent({-10, -6, 10, 6});
    }
    static void AddLine(const std::string& id, const std::string& lat) {
        Interface::TrvMapLineParams line;
        line.ref = {"VOYAGE", id, "BOOK"};
        line.points = {"-8," + lat, "8," + lat};
        line.colour = kColour;
        line.width = 2;
        Interface::Call(Interface::Bus::MapAddLine, &std::as_const(line));
    }
    static void StandOut(const std::string& id) { Interface::Call(Interface::Bus::MapStandOut, &id); }
    /// How far the line at a latitude stands off the sea: the greatest difference in grey along its way.
    int Strength(double lat) const {
        const QImage picture = chart_->grab().toImage();
        const int sea = qGray(picture.pixel(400, 250));
        int most = 0;
        for (double lon = -6; lon <= 6; lon += 0.5) {
            const PixelPoint at = chart_->View().ToScreen(GeoPoint{lon, lat});
            most = std::max(most, sea - qGray(picture.pixel(qRound(at.x), qRound(at.y))));
        }
        return most;
    }
};

TEST_F(StandOutTest, TheOthersBecomeFainterAndComeBack) {
    const int plain = Strength(2);
    EXPECT_GT(plain, 20);
    EXPECT_NEAR(Strength(-2), plain, 6);
    StandOut("7");
    EXPECT_NEAR(Strength(2), plain, 6);
    EXPECT_LT(Strength(-2), plain - 10);
    StandOut("8");
    EXPECT_LT(Strength(2), plain - 10);
    StandOut("");
    EXPECT_NEAR(Strength(2), plain, 6);
    EXPECT_NEAR(Strength(-2), plain, 6);
}

TEST_F(StandOutTest, AVoyageWithoutALineLeavesAllAlike) {
    const int plain = Strength(-2);
    StandOut("9");
    EXPECT_NEAR(Strength(2), plain, 6);
    EXPECT_NEAR(Strength(-2), plain, 6);
}

}  // namespace

}  // namespace Tarvik::Seamap
