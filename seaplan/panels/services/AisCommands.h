// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/data/VoyPortCall.h"

namespace Tarvik::Seaplan {

/// What the panels ask of the correction of a voyage from its vessel's AIS positions. Rows are in knots,
/// nautical miles and hours. Results: 0 or the negative number of the failed step.
class AisCommands {
  public:
    virtual ~AisCommands() = default;
    /// Puts the last position into the plan; `applied` is the number of rows that were made of it.
    virtual int ApplyAisPosition(const std::string& vi, int& applied) = 0;
    /// Rows up to the last position row, and those behind it.
    virtual int SplitAisRows(const std::string& vi, PortCallRows& before, PortCallRows& after) = 0;
    /// Plans the rest of the voyage anew from the position, into the voyage.
    virtual int ReplanFromAis(const std::string& vi, const PortCallRows& history,
                              const PortCallRows& plan) = 0;
    /// From now on the voyage counts as not corrected.
    virtual int ClearAisMod(const std::string& vi) = 0;
    /// Records the time of a correction, in the user's zone.
    virtual int AddAisModTime(const std::string& vi, const std::string& time) = 0;
};

}  // namespace Tarvik::Seaplan
