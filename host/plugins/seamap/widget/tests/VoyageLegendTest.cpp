// SPDX-License-Identifier: MIT
/// The legend of the voyages' colours: what it names, and what a press on a name means.
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/PlanContract.h>

#include "host/plugins/seamap/widget/VoyageLegend.h"
#include "host/plugins/seamap/widget/tests/ChartFixture.h"

namespace Tarvik::Seamap {

namespace {

class VoyageLegendTest : public ChartFixture {
  protected:
    void Tell(const std::string& id, const std::string& name, const std::string& vessel = "") {
        const Interface::TrvMapPlan plan{
            "VOYAGE", id, "SHIP", name, vessel, {{0, 0, 0, 0, "A", true}, {9, 0, 9, 9, "B", true}}};
        Interface::Call(Interface::Bus::MapSetPlan, &plan);
    }
    void ShowColours(bool shown) {
        ChartParts parts = chart_->Parts();
        parts.tints = shown;
        chart_->ShowParts(parts);
    }
    VoyageLegend& Legend() const { return *chart_->findChild<VoyageLegend*>("voyageLegend"); }
    QLabel& Label() const { return *Legend().findChild<QLabel*>("legendText"); }
    std::string Text() const { return Label().text().toStdString(); }
};

TEST_F(VoyageLegendTest, StandsWhileEachVoyageHasItsColour) {
    Tell("7", "RTM-SIN", "ORION");
    EXPECT_TRUE(Legend().isHidden());
    ShowColours(true);
    EXPECT_FALSE(Legend().isHidden());
    EXPECT_TRUE(chart_->rect().contains(Legend().geometry()));
    ShowColours(false);
    EXPECT_TRUE(Legend().isHidden());
}

TEST_F(VoyageLegendTest, NamesTheVoyagesOnTheChartWithTheirColours) {
    ShowColours(true);
    EXPECT_NE(Text().find("LEGEND_NONE"), std::string::npos);
    Tell("7", "RTM <SIN>", "ORION");
    const std::string colour = QColor(Skin::TintOf(0, Skin::Theme::Light)).name().toStdString();
    EXPECT_NE(Text().find(colour), std::string::npos) << Text();
    EXPECT_NE(Text().find("RTM &lt;SIN&gt;  ORION"), std::string::npos) << Text();
    chart_->SetTheme(Skin::Theme::Dark);
    EXPECT_EQ(Text().find(colour), std::string::npos) << "the colours of another theme";
}

TEST_F(VoyageLegendTest, TellsHowManyVoyagesItDoesNotName) {
    ShowColours(true);
    for (std::size_t i = 0; i < VoyageLegend::kMost + 3; ++i) {
        Tell(std::to_string(i), "voyage-" + std::to_string(i) + ".");
    }
    EXPECT_NE(Text().find("voyage-11."), std::string::npos);
    EXPECT_EQ(Text().find("voyage-12."), std::string::npos);
    EXPECT_NE(Text().find("LEGEND_MORE"), std::string::npos);
}

TEST_F(VoyageLegendTest, APressOnANameStandsForOneOnTheShip) {
    ShowColours(true);
    Tell("7", "first");
    Tell("3", "second");
    QSignalSpy clicks(chart_, &ChartWidget::ObjectClicked);
    emit Label().linkActivated("1");
    ASSERT_EQ(clicks.size(), 1);
    EXPECT_EQ(clicks[0][0].value<ObjectKey>(), (ObjectKey{"VOYAGE", "SHIP", "3"}));
    emit Label().linkActivated("8");
    EXPECT_EQ(clicks.size(), 1) << "a line that is not there";
}

}  // namespace
}  // namespace Tarvik::Seamap
