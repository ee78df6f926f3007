// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tarvik/bus/ChartContract.h>

#include "seaplan/panels/tests/KeyTexts.h"
#include "seaplan/panels/tests/PanelDesk.h"
#include "seaplan/panels/tests/TreeViews.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/panels/tree/TreeRename.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

/// The voyage tree over the plug-in's controllers and the real server.
class TreeFixture : public ::testing::Test {
  protected:
    KeyTexts texts;
    PanelDesk desk;
    TestSupport::RecordingMsgSink& messages = desk.messages;
    VoyageStore& store = desk.store;
    RecordingTree tree;
    RecordingTextBox box;
    RecordingVesselView vessels;
    RecordingChoices sortPopup;
    SeaplanTreeCtrl ctrl{{desk.store, desk.catalog, desk.voyages, tree, box, vessels, sortPopup}};

    /// Two port calls a day apart, for a record.
    static PortCallRows TwoCalls(int day) {
        PortCallRows rows(2);
        rows[0].ppn = "ROTTERDAM";
        rows[1].ppn = "HAMBURG";
        rows[1].distance = 240;
        rows[0].eta = rows[0].etd = Util::_datetime_t(0, 0, 8, day, 3, 2024);
        rows[1].eta = rows[1].etd = Util::_datetime_t(0, 0, 8, day + 1, 3, 2024);
        return rows;
    }
    VoyInfo& Voyage(const std::string& name) { return desk.Voyage(name); }
    std::string Id(const std::string& name) { return desk.Voyage(name).vi; }
    std::string CategoryId(const std::string& name) { return desk.Category(name).ci; }
    int Click(const std::string& text, const std::string& item) {
        return ctrl.OnItemClicked(tree.Find(text), item);
    }
    void Press(const std::string& text) { ctrl.OnRowPressed(tree.Find(text)); }
    bool Shows(const std::string& text, const char* item) const {
        return tree.IsItemVisible(tree.Find(text), item);
    }
    /// Types into the open box.
    void Type(const std::string& name) {
        box.text = name;
        ctrl.Renaming().OnTyped(name);
    }
    /// Types a name into the open box and commits it.
    int Rename(const std::string& name) {
        Type(name);
        return ctrl.Renaming().Commit();
    }
    /// How often a voyage's lines were taken off the chart.
    long Removals(const std::string& vi) const {
        constexpr const char* kLines = "VOYPOSTBOOKLINETYPE";
        const auto calls = desk.host.ChartCallsOf(Interface::Bus::MapDeleteObjects.name);
        return std::count_if(calls.begin(), calls.end(), [&](const TestSupport::ChartCall& call) {
            return call.type == kLines && call.points.back() == vi;
        });
    }
    /// How often the whole chart was cleared.
    long Clearings() const {
        constexpr const char* kShips = "AISSHIPTYPE";
        const auto calls = desk.host.ChartCallsOf(Interface::Bus::MapDeleteObjectsByType.name);
        return std::count_if(calls.begin(), calls.end(),
                             [&](const TestSupport::ChartCall& call) { return call.type == kShips; });
    }
};

}  // namespace Tarvik::Seaplan
