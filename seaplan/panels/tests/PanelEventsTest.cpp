// SPDX-License-Identifier: MIT
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/panels/window/PanelEvents.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

struct HearingPanel {
    std::vector<std::string> heard;
    void ApplyLanguage() { heard.emplace_back("language"); }
    void OnLogout() { heard.emplace_back("logout"); }
    void OnTimeZone(const std::string& zone) { heard.push_back("zone " + zone); }
};

struct PanelWithoutTimes {
    int languages = 0;
    void ApplyLanguage() { ++languages; }
};

void RaiseAll(const std::string& zone) {
    Interface::Raise(Interface::Bus::SwitchLanguage);
    Interface::Raise(Interface::Bus::Logout);
    Interface::Raise(Interface::Bus::SwitchTimeZone, &zone);
}

}  // namespace

TEST(PanelEvents, ReachThePanelWhileItIsBound) {
    const TestSupport::RecordingHost host;
    HearingPanel panel;
    {
        const PanelEvents<HearingPanel> events(panel);
        RaiseAll("Europe/Paris");
        EXPECT_THAT(panel.heard, ElementsAre("language", "logout", "zone Europe/Paris"));
    }
    panel.heard.clear();
    RaiseAll("Europe/Paris");
    EXPECT_TRUE(panel.heard.empty());
}

TEST(PanelEvents, AZoneThatIsNotCarriedIsAskedFor) {
    const TestSupport::RecordingHost host;
    HearingPanel panel;
    const PanelEvents<HearingPanel> events(panel);
    Interface::Raise<const std::string>(Interface::Bus::SwitchTimeZone, nullptr);
    EXPECT_THAT(panel.heard, ElementsAre("zone " + *Interface::Call(Interface::Bus::CurrentTimeZone)));
}

TEST(PanelEvents, APanelIsToldOnlyWhatItHasAnOperationFor) {
    const TestSupport::RecordingHost host;
    PanelWithoutTimes panel;
    const PanelEvents<PanelWithoutTimes> events(panel);
    RaiseAll("Europe/Paris");
    EXPECT_EQ(panel.languages, 1);
}

}  // namespace Tarvik::Seaplan
