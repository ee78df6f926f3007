// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/SiblingContract.h>

#include "host/plugins/infosearch/window/SearchDesk.h"
#include "testsupport/PluginTexts.h"

namespace Tarvik::InfoSearch {

namespace {

QWidget* Card() {
    const auto windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(),
                                    [](const QWidget* w) { return w->objectName() == "infoVessel"; });
    return found == windows.end() ? nullptr : *found;
}

class VesselFactsTest : public testing::Test {
  protected:
    VesselFactsTest() {
        siblings.Keep(Interface::Offer(Interface::Bus::VesselDetails, [this](const std::string& id) {
            return details && details->id == id ? &*details : nullptr;
        }));
        siblings.Keep(Interface::Offer(Interface::Bus::AllVessels, [this] { return &fleet; }));
        siblings.Keep(
            Interface::Offer(Interface::Bus::VesselPositions, [this](const std::vector<std::string>& ids) {
                asked = ids;
                return &positions;
            }));
    }
    /// The text of a line; "-" without one.
    static QString Line(const char* key) {
        const auto* label = Card()->findChild<QLabel*>(QString("info") + key);
        return label == nullptr ? QString("-") : label->text();
    }
    TestSupport::PluginTexts texts{LANGUAGES "/infosearch.en-US.json"};
    std::optional<Interface::FleetVessel> details;
    std::vector<Interface::FleetEntry> fleet;
    std::vector<Interface::VesselPosition> positions;
    std::vector<std::string> asked;
    Interface::BindingList siblings;
    SearchDesk desk{""};
};

TEST_F(VesselFactsTest, TellsWhatFleetAndFeedKnow) {
    details = {"v1", "Far Star", 232000001, 9074729, "GBXY", "Bulk carrier", 189.9, 14.5};
    positions = {{"v1", 232000001, 0, 1709251200, 4.4833, 51.9083}};
    const std::string id = "v1";
    Interface::Call(Interface::Bus::ShowVesselInfo, &id);
    ASSERT_NE(Card(), nullptr);
    EXPECT_TRUE(Card()->isVisible());
    EXPECT_EQ(Card()->accessibleName(), "Far Star");
    EXPECT_EQ(Line("IMO"), "9074729");
    EXPECT_EQ(Line("LENGTH"), "189.9 m");
    EXPECT_EQ(Line("SERVICE_SPEED"), "14.5 kn");
    EXPECT_EQ(Line("POSITION"), "51° 54.5' N 004° 29.0' E");
    EXPECT_EQ(Line("TIME"), "2024-03-01 00:00:00 UTC");
    EXPECT_EQ(asked, std::vector<std::string>{"v1|232000001"});
}

TEST_F(VesselFactsTest, DoesWithTheListWhereNobodyTellsMore) {
    fleet = {{"v2", "Near Star", 2320001}};
    const std::string id = "v2";
    Interface::Call(Interface::Bus::ShowVesselInfo, &id);
    EXPECT_EQ(Line("NAME"), "Near Star");
    EXPECT_EQ(Line("MMSI"), "002320001");
    EXPECT_EQ(Line("IMO"), "-");
    EXPECT_EQ(Line("POSITION"), "Not heard yet");
}

TEST_F(VesselFactsTest, AVesselThatNobodyKnowsIsNamedByItsId) {
    const std::string id = "v3";
    Interface::Call(Interface::Bus::ShowVesselInfo, &id);
    EXPECT_EQ(Card()->accessibleName(), "v3");
    const std::string none;
    Card()->hide();
    Interface::Call(Interface::Bus::ShowVesselInfo, &none);
    EXPECT_FALSE(Card()->isVisible());
}

}  // namespace
}  // namespace Tarvik::InfoSearch
