// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/data/VoyInfo.h"
#include "seaplan/data/VoyPortCall.h"

namespace Tarvik::Util {
class Jsona;
}

/// Commands of port calls and consumption figures. Speeds are km/h on the wire and knots in memory.
namespace Tarvik::Seaplan {

/// Port calls in order of their sequence number; of two with one number the later stays. Steam times, times
/// and distances are left at their defaults. -4, with `rows` empty, for an element without sequence number.
int ReadPortCalls(const Util::Jsona& reply, PortCallRows& rows);
/// JSON array of texts: the voyage id, then one text a row.
std::string PortCallsText(const std::string& vi, const PortCallRows& rows);
std::string FiguresText(const std::string& vi, const BunkerFigures& figures);

/// What LoadPortCalls gives for a voyage that has none.
inline constexpr int kNoPortCalls = -3;
/// Command 10. 0; -1 empty id; -2 no exchange, or no list; kNoPortCalls; -4 an element without number.
int LoadPortCalls(const std::string& vi, PortCallRows& rows);
/// Command 11. Rows without port id get it by name first. 0; -1 empty id or fewer than two rows; -2; -3
/// refused.
int SavePortCalls(const std::string& vi, PortCallRows& rows);
/// Command 6. 0; -1 empty id; -2 no exchange; -3 refused.
int SaveFigures(const std::string& vi, const BunkerFigures& figures);

}  // namespace Tarvik::Seaplan
