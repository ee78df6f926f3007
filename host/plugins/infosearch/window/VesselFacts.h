// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/skin/FactsWindow.h>

namespace Tarvik::InfoSearch {

/// What the plug-ins that are there know of a vessel: the fleet its particulars, AIS its last place. Asked
/// for by the fleet's id.
struct VesselFacts {
    QString name;  ///< the id where nobody knows the name
    std::vector<Skin::Fact> facts;

    static VesselFacts Of(const std::string& id);
};

}  // namespace Tarvik::InfoSearch
