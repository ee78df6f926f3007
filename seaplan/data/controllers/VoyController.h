// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/data/controllers/VoyPortCallModule.h"

#include <functional>
#include <string>
#include <vector>

namespace Tarvik::Seaplan {

class VoyCatalogController;

/// A voyage's schedule, its presence on the chart and its figures. Results: 0 or the negative number of the
/// failed step; the store changes only after the server agreed. Rows are in knots, nautical miles and hours.
class VoyController {
  public:
    VoyController(VoyPortCallModule* module, VoyCatalogController* catalog, VoyageStore* store);
    ~VoyController();
    VoyController(const VoyController&) = delete;
    VoyController& operator=(const VoyController&) = delete;
    static VoyController* Instance();

    /// Draw modes: 1 draws the route and remembers the voyage, 0 the other form, -1 none.
    int LoadSchedule(const std::string& vi, PortCallRows& rows, int drawMode);
    int GetFigures(const std::string& vi, BunkerFigures& figures) const;
    int SaveFigures(const std::string& vi, const BunkerFigures& figures);
    int ClearAisMod(const std::string& vi);
    int GetModAis(const std::string& vi, int& count) const;
    /// Drops the working copy of an unsaved voyage and fetches what was saved, without drawing.
    int DiscardPortCalls(const std::string& vi);
    void StartTimer();
    void StopTimer();
    /// The timer draws voyages only while the tree's window is visible; not told otherwise, it counts as
    /// visible, for the panel stops the timer when it hides.
    void SetTreeVisible(std::function<bool()> visible) { treeVisible_ = std::move(visible); }
    const std::string& CurrentVoyage() const { return currentVoyage_; }
    int ClearChart();
    int RemoveVoyageObjects(const std::string& vi);
    int ShowVoyage(const std::string& vi);

    int ResolvePortIds(PortCallRows& rows) const;
    int CalculatePortCalls(const PortCallRows& rows, PortCallRows& out);
    /// `hadPortCalls`: 0 the voyage had no saved port calls, 1 it had and the result is already in the
    /// voyage.
    int CalculateForVoyage(const std::string& vi, const PortCallRows& rows, PortCallRows& out,
                           int& hadPortCalls);
    int CalculateKeepingLegs(const std::string& vi, const PortCallRows& rows, PortCallRows& out);
    int SaveSchedule(const std::string& vi, const PortCallRows& rows, int drawMode);
    int MoveRowUp(const PortCallRows& rows, int index, PortCallRows& out);
    int MoveRowDown(const PortCallRows& rows, int index, PortCallRows& out);
    int DeleteRow(const PortCallRows& rows, int index, PortCallRows& out);
    /// The route is recalculated before the next save.
    void RouteChanged() { routeIsCurrent_ = -1; }
    int RouteIsCurrent() const { return routeIsCurrent_; }
    /// Forgets the list of the schedule last loaded and the pending route.
    void ForgetPortList();
    bool HasPendingRoute() const;
    int RefreshVesselPositions();
    VoyPortCallModule& Module() { return *module_; }

  private:
    void onTimer();
    int draw(const std::string& vi, int drawMode, int progressCode, int bookCode);
    int fetchSchedule(VoyInfo& voyage, PortCallRows& rows);
    int saveBookDate(VoyInfo& voyage);
    int saveBook(VoyInfo& voyage);
    int routeSchedule(const PortCallRows& rows, PortCallRows& scheduled, BookPoints& book);

    VoyPortCallModule* module_;
    VoyCatalogController* catalog_;
    VoyageStore* store_;
    std::vector<std::string> portNames_;
    int routeIsCurrent_ = -1;
    unsigned timerId_ = 0;
    std::string currentVoyage_;
    std::function<bool()> treeVisible_;
};

}  // namespace Tarvik::Seaplan
