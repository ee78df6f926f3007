// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/interface/SiblingRecords.h>

#include "seaplan/data/VoyInfo.h"

namespace Tarvik::Seaplan {

/// The card that the tracking plug-in shows for a voyage's vessel. `position` is the place of its icon,
/// "x,y", or empty when it has none; `now` is the present time in the plan's reading. Cursor fields keep
/// their defaults.
Interface::VesselCard VesselCardOf(const VoyInfo& voyage, const std::string& position,
                                   const Util::_datetime_t& now);

}  // namespace Tarvik::Seaplan
