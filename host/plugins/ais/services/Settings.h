// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace Tarvik::Ais {

/// What a person chose for AIS; kept in one JSON file.
struct Settings {
    std::vector<std::string> inputs;  ///< InputAddress texts, as they were typed
    bool showShips = true;            ///< ships of the feed on the chart

    /// What the file says; the usual values for whatever it lacks or says wrongly, and for a file that is
    /// none.
    static Settings Read(const std::string& file);
    /// Replaces the file in one step. False when it cannot be written.
    bool Write(const std::string& file) const;
    bool operator==(const Settings&) const = default;
};

}  // namespace Tarvik::Ais
