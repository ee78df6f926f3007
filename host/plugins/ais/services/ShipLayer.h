// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <tarvik/bus/PlacesContract.h>

#include "host/plugins/ais/store/Traffic.h"

namespace Tarvik::Ais {

/// The ships of the feed on the chart, by heading and with their names.
class ShipLayer {
  public:
    static constexpr const char* kType = "AISFEEDTYPE";
    /// Seconds after which a ship that is not heard any more leaves the chart.
    static constexpr std::int64_t kLongestSilence = 1800;

    explicit ShipLayer(const Traffic& traffic) : traffic_(traffic) {}
    ~ShipLayer() { Show(false, 0); }
    ShipLayer(const ShipLayer&) = delete;
    ShipLayer& operator=(const ShipLayer&) = delete;

    bool IsShown() const { return shown_; }
    /// Shows or hides them at present time `now`.
    void Show(bool shown, std::int64_t now);
    /// Draws them as they are at present time `now`, when they are shown.
    void Draw(std::int64_t now);

  private:
    const Traffic& traffic_;
    bool shown_ = false;
};

/// A vessel as it is drawn: by its heading, else by its course when it moves; the tip has its name and how it
/// moves.
Interface::TrvMapShip ShipOf(const Vessel& vessel);
/// The vessel's name, else its number.
std::string TitleOf(const Vessel& vessel);

}  // namespace Tarvik::Ais
