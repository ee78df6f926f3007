// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/data/VoyPortCall.h"

namespace Tarvik::Seaplan {

/// What the panels ask of a voyage's schedule and of its place on the chart. Rows are in knots, nautical
/// miles and hours. Results: 0 or the negative number of the failed step.
class ScheduleCommands {
  public:
    virtual ~ScheduleCommands() = default;
    /// Draw modes: 1 draws the route and remembers the voyage, 0 the other form, -1 none.
    virtual int LoadSchedule(const std::string& vi, PortCallRows& rows, int drawMode) = 0;
    virtual int SaveSchedule(const std::string& vi, const PortCallRows& rows, int drawMode) = 0;
    virtual int DiscardPortCalls(const std::string& vi) = 0;
    virtual int GetModAis(const std::string& vi, int& count) const = 0;
    virtual int ResolvePortIds(PortCallRows& rows) const = 0;
    virtual int CalculatePortCalls(const PortCallRows& rows, PortCallRows& out) = 0;
    /// `hadPortCalls` 1: the voyage had saved port calls, and the result is already in the voyage.
    virtual int CalculateForVoyage(const std::string& vi, const PortCallRows& rows, PortCallRows& out,
                                   int& hadPortCalls) = 0;
    /// Schedule of the rows over the pending route, which a click on the chart has changed. Negative when the
    /// route is not one of these ports.
    virtual int ScheduleCurrentRoute(const PortCallRows& rows, PortCallRows& out) = 0;
    virtual int MoveRowUp(const PortCallRows& rows, int index, PortCallRows& out) = 0;
    virtual int MoveRowDown(const PortCallRows& rows, int index, PortCallRows& out) = 0;
    virtual int DeleteRow(const PortCallRows& rows, int index, PortCallRows& out) = 0;
    virtual void RouteChanged() = 0;
    virtual void ForgetPortList() = 0;
    virtual bool HasPendingRoute() const = 0;
    virtual int ClearChart() = 0;
    virtual int RemoveVoyageObjects(const std::string& vi) = 0;
    virtual int ShowVoyage(const std::string& vi) = 0;
    virtual int RefreshVesselPositions() = 0;
    virtual void StartTimer() = 0;
    virtual void StopTimer() = 0;
    /// Fetches the end of the vessel's track over the voyage. Negative without a track.
    virtual int RefreshTrace(const std::string& vi) = 0;
    /// Asks for the track of a vessel to be hidden; a voyage without a vessel has none.
    virtual int HideAisTrack(const std::string& vi) = 0;
};

}  // namespace Tarvik::Seaplan
