// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "host/plugins/seamap/core/ChartNames.h"
#include "host/ports/search/PortIndex.h"

namespace Tarvik::Seamap {

/// A place that a typed text leads to.
struct Destination {
    GeoPoint position;
    std::string text;                 ///< what is shown for it in a list
    const ChartName* port = nullptr;  ///< the finder's; null for a bare position
};

/// A position in a form that people copy, and that ReadTypedPosition reads back.
struct PositionForms {
    std::string minutes;  ///< "51° 54.5' N 004° 29.0' E"
    std::string seconds;  ///< "51°54'30\"N 004°29'00\"E"
    std::string decimal;  ///< "51.90833, 4.48333", the latitude first

    static PositionForms Of(GeoPoint place);
};

/// Finds ports of the chart by what is typed, and the one nearest to a place.
class PortFinder {
  public:
    /// Keeps the ports among the names.
    explicit PortFinder(const std::vector<ChartName>& names);

    /// What a text may mean, at most `limit` places: a position in every usual form, else ports by name,
    /// Chinese name, alias or UN/LOCODE, the likeliest first. Empty for a text that is neither.
    std::vector<Destination> Find(const std::string& typed, std::size_t limit) const;
    /// The port nearest to a place, null without ports.
    const ChartName* Nearest(GeoPoint place) const;

  private:
    const Ports::PortIndex& Index() const;
    const ChartName* PortOf(const Ports::Port& found) const;

    std::vector<ChartName> ports_;
    mutable std::unique_ptr<Ports::PortIndex> index_;  ///< made at the first question
};

}  // namespace Tarvik::Seamap
