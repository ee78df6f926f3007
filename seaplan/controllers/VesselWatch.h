// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "seaplan/data/Outcome.h"
#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Seaplan {

class VoyCatalogController;

enum class RefreshStep { NoAnswer };
/// Number of RefreshVesselPositions.
inline constexpr CodeTable kRefreshPositionsCodes{
    Code{RefreshStep::NoAnswer, -1},  // no voyage has a vessel, or no position is known
};

enum class TraceStep { Id, Voyage, Vessel, PortCalls, NoTrack, NoNumbers, Fields, Number };
/// Numbers of RefreshTrace, and of HideAisTrack.
inline constexpr CodeTable kRefreshTraceCodes{
    Code{TraceStep::Id, -1},         // empty id
    Code{TraceStep::Voyage, -2},     // unknown voyage
    Code{TraceStep::Vessel, -3},     // it has no vessel
    Code{TraceStep::PortCalls, -4},  // fewer than two port calls
    Code{TraceStep::NoTrack, -5},    // no track
    Code{TraceStep::NoNumbers, -6},  // no numbers in it
    Code{TraceStep::Fields, -7},     // not four fields
    Code{TraceStep::Number, -8},     // a first vessel number could not be saved
};

/// Keeps each voyage's last known vessel position, by the tracking services of the bus. A position counts
/// when it is later than the one that is known and at another place.
class VesselWatch {
  public:
    /// Keeps its collaborators, which outlive it.
    VesselWatch(VoyCatalogController* catalog, VoyageStore* store) : catalog_(catalog), store_(store) {}

    /// Takes over newer positions of all voyages' vessels. A vessel number that was unknown is saved first;
    /// where that fails the voyage is left as it is. kRefreshPositionsCodes.
    Outcome<RefreshStep> RefreshPositions();
    /// Takes over the last position of the vessel's track between first departure and last arrival, if newer:
    /// kRefreshTraceCodes.
    Outcome<TraceStep> RefreshTrace(const std::string& vi);
    /// Has the vessel's track hidden; without a vessel there is none. kRefreshTraceCodes, of which -1 and -2.
    Outcome<TraceStep> HideTrack(const std::string& vi) const;

  private:
    Outcome<TraceStep> TakeTrack(VoyInfo& voyage, const std::vector<std::string>& fields);

    VoyCatalogController* catalog_;
    VoyageStore* store_;
};

/// The host's timer that keeps vessels and drawn voyages fresh, every 100 seconds while it runs. Without
/// timers of the host nothing starts. It ends with its owner.
class RefreshTimer {
  public:
    /// Does not start it; `work` runs at each tick.
    explicit RefreshTimer(std::function<void()> work) : work_(std::move(work)) {}
    ~RefreshTimer() { Stop(); }
    RefreshTimer(const RefreshTimer&) = delete;
    RefreshTimer& operator=(const RefreshTimer&) = delete;

    /// One timer at most; a second call changes nothing.
    void Start();
    /// No tick comes any more; without a running timer nothing changes.
    void Stop();

  private:
    std::function<void()> work_;
    unsigned id_ = 0;
};

}  // namespace Tarvik::Seaplan
