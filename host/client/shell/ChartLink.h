// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/bus/BindingList.h>

#include "host/client/session/ClientSession.h"

class QWidget;

namespace Tarvik::Client {

/// The chart plug-in as the main window uses it. What a person shows or hides on the chart is kept in the
/// preferences.
class ChartLink {
  public:
    /// `session` outlives this.
    explicit ChartLink(ClientSession& session);

    /// The chart's window with the look and the parts of the preferences; null without a chart.
    QWidget* Open() const;
    /// Tells the chart a command of its contract; false when there is no chart or it did not understand.
    bool Command(const std::string& command) const;

  private:
    ClientSession& session_;
    Interface::BindingList bindings_;
};

}  // namespace Tarvik::Client
