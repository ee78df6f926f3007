// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/bus/BusName.h>

/// What sibling plug-ins offer: AIS, the fleet, the search for information. Each has its constants here,
/// whether a plug-in of that kind is installed or not; without one the answer is null.
namespace Tarvik::Interface {

// SiblingRecords.h
struct FleetEntry;
struct FleetVessel;
struct MatchPortQuery;
struct VesselCard;
struct VesselPosition;
struct VesselTraceRequest;

/// Handle of a window in the window system; only views and the client know what it is.
using WindowHandle = void*;
/// What such a handle points to.
struct OpaqueWindow;

namespace Bus {

/// Last positions of vessels, each asked for as its id, "|" and its MMSI in decimal. The answer is the AIS
/// plug-in's, valid until the next call.
inline constexpr Service<const std::vector<std::string>, const std::vector<VesselPosition>> VesselPositions{
    "TRV_S_VOYAGE_VSLPOS"};
/// A vessel's track as text, null without one. The AIS plug-in's, valid until the next call.
inline constexpr Service<const VesselTraceRequest, const std::string> VesselTrace{"TRV_S_VOYAGE_TRACE"};
/// Takes the track of a vessel, id, "|" and MMSI, off the chart.
inline constexpr Service<const std::string, None> HideAisTrack{"TRV_S_VOYAGE_HIDEAISTRACK"};
/// Shows a vessel's card at the cursor's place.
inline constexpr Service<const VesselCard, None> ShowVesselCard{"TRV_S_VOYAGE_SHOWVSL"};
/// The vessels of the user's fleet. The fleet plug-in's, valid until the next call.
inline constexpr Service<None, const std::vector<FleetEntry>> AllVessels{"TRV_S_SHIPROLL_GETALL"};
/// All that the fleet keeps of the vessel with this id; null when it has none. The fleet plug-in's, valid
/// until the next call.
inline constexpr Service<const std::string, const FleetVessel> VesselDetails{"TRV_S_SHIPROLL_GETVESSEL"};
/// Makes the window in which a vessel is added to the fleet, not shown yet. A pointer to its handle, which
/// stays the fleet plug-in's, as the window does.
inline constexpr Service<const FleetEntry, const WindowHandle> ShowAddVessel{"TRV_S_SHIPPROLL_SHOWADDVSLDLG"};
/// Shows what is known of the vessel with this id.
inline constexpr Service<const std::string, None> ShowVesselInfo{"TRV_S_INFOSEARCHSHOWVSL"};
/// Fills the window of ports that match a text, not shown yet. The window itself, which stays the search
/// plug-in's; null when it has none. It tells the editor of the query what is chosen
/// (tarvik/skin/WindowMessages.h).
inline constexpr Service<const MatchPortQuery, OpaqueWindow> MatchPorts{"TRV_S_INFOSEARCH_SHOWMATCHPORTDLG"};

}  // namespace Bus
}  // namespace Tarvik::Interface
