// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/bus/BusName.h>

/// What the voyage plug-in offers to the client and to its siblings. Its answers stay its own.
namespace Tarvik::Interface {

struct VoyCalResult;  // ChartRecords.h
struct PlanRequest;   // PlanRecords.h
struct PlanResult;    // PlanRecords.h

namespace Bus {

/// Opens the choice of a vessel for the voyage with this id. Null on success, else "-1" empty id, "-2" the
/// voyages could not be loaded, "-3" the choice did not open; valid for ever.
inline constexpr Service<const std::string, const char> AddVessel{"TRV_S_VOY_ADDVSL"};
/// Adds a port, by its name, to the port distance table; an empty name is ignored.
inline constexpr Service<const std::string, None> AddPortName{"TRV_S_VOY_ADDPORTNAME"};
/// Whether the port distance table is in sight, so that a port that is pointed at belongs into it. Valid
/// until the next call.
inline constexpr Service<None, const bool> TakesPortNames{"TRV_S_VOY_TAKESPORTNAMES"};
/// Draws the route through ports whose ids the text holds, joined by ",". Valid until the next call. The
/// calculator knows the route of one stored reply (40358,41117,40430); of other ports `valid` is 0.
inline constexpr Service<const std::string, const VoyCalResult> CalculateVoyage{"TRV_S_CAL_VOYAGE"};
/// Plans a voyage for a client without a window. Valid until the next call.
inline constexpr Service<const PlanRequest, const PlanResult> PlanVoyage{"TRV_S_VOY_PLAN"};

}  // namespace Bus
}  // namespace Tarvik::Interface
