// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/controllers/voycal/VoyCalRecords.h"

/// Reading the calculator's route reply.
namespace Tarvik::Seaplan {

/// Fills the ports, which have their ids already, from a reply. `points` are the route points by id. False,
/// with the ports as they were, for a text that does not parse, an error object, another number or order of
/// ports, or a group of an unknown route point.
bool ReadVoyCalReply(const std::string& reply, const VoyCalPoints& points, std::vector<VoyCalPort>& ports);
/// Corners of a "x,y|x,y" text, its length and where it first meets the date line. A longitude of 180 or -180
/// becomes 179.99 or -179.99, however it is written; a corner equal to the one before is left out, a corner
/// without comma as well.
void ReadVoyCalRoute(const std::string& pointset, VoyCalRoute& route);
/// "head=range;id|id.range;id" or "head" alone. False for an unknown head; unknown alternatives are left out.
bool ReadVoyCalGroup(const std::string& text, const VoyCalPoints& points, VoyCalGroup& group);
/// Whether any route of the ports meets the date line.
bool MeetsDateLine(const std::vector<VoyCalPort>& ports);

/// The route reply on which the stand-alone calculator runs: three stops, 40358 by 41117 to 40430, with
/// thirteen and four legs and five groups of alternatives. It never asks a server.
const char* SampleReply();

}  // namespace Tarvik::Seaplan
