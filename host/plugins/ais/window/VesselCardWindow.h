// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/skin/FactsWindow.h>

#include "host/plugins/ais/services/CardFacts.h"

namespace Tarvik::Ais {

/// The card of one vessel: name, number, place, course, speed, time, ports.
class VesselCardWindow : public Skin::FactsWindow {
  public:
    explicit VesselCardWindow(QWidget* mainWindow);

    /// Shows the facts beside the cursor, within the screen. What is not known has no row.
    void Show(const CardFacts& facts);
    /// Tells these facts of the same vessel where the card stands now; what did not change stays as it is.
    void Renew(const CardFacts& facts);
    /// What it told when it was shown.
    const CardFacts& Told() const { return told_; }

  private:
    CardFacts told_;
};

}  // namespace Tarvik::Ais
