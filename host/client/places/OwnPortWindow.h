// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <tarvik/skin/ListWindow.h>

#include "host/ports/PlaceTable.h"

namespace Tarvik::Client {

/// The list of the user's own ports, with what can be done to it.
class OwnPortWindow : public Skin::ListWindow {
  public:
    /// What a person asks for; ports are told by their ids.
    struct Reports {
        std::function<void()> add;
        std::function<void(const std::string& id)> change;
        std::function<void(const std::string& id)> remove;
    };

    OwnPortWindow(QWidget* mainWindow, const Reports& reports);

    /// Shows these ports; the selection stays on the port that it was on, else it is the last one.
    void ShowPorts(const std::vector<Ports::Place>& ports);
};

}  // namespace Tarvik::Client
