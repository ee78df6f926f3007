// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "host/plugins/ais/store/Vessels.h"

namespace Tarvik::Ais {

/// Tracks of vessels as lines on the chart, one a vessel, by the vessel's id.
class TrackLayer {
  public:
    static constexpr const char* kLayer = "AIS";
    static constexpr const char* kType = "AISTRACKTYPE";

    /// A track that is on the chart.
    struct Shown {
        std::uint32_t mmsi = 0;
        std::int64_t begin = 0;
        std::int64_t end = 0;
        std::int64_t newest = 0;  ///< time of its last fix
    };

    /// Draws a track in place of the vessel's one before; fewer than two fixes draw nothing.
    void Draw(const std::string& id, const Shown& shown, const std::vector<Fix>& track);
    /// Takes a track off the chart; one that is not there changes nothing.
    void Hide(const std::string& id);
    /// Takes all off.
    void Clear();
    const std::map<std::string, Shown>& All() const { return shown_; }

  private:
    std::map<std::string, Shown> shown_;
};

}  // namespace Tarvik::Ais
