// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <tarvik/interface/SiblingRecords.h>
#include <tarvik/skin/ListWindow.h>

namespace Tarvik::Fleet {

/// The list of the user's vessels, with what can be done to it.
class FleetWindow : public Skin::ListWindow {
  public:
    /// What a person asks for; vessels are told by their ids.
    struct Reports {
        std::function<void()> add;
        std::function<void(const std::string& id)> change;
        std::function<void(const std::string& id)> remove;
        std::function<void()> import;
    };

    FleetWindow(QWidget* mainWindow, const Reports& reports);

    /// Shows these vessels; the selection stays on the vessel that it was on, else it is the last one.
    void ShowVessels(const std::vector<Interface::FleetVessel>& vessels);
};

}  // namespace Tarvik::Fleet
