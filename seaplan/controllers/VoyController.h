// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "seaplan/controllers/VoyPortCallModule.h"

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

    /// Ids by name from the host's dictionary, empty for an unknown name. 0.
    int ResolvePortIds(PortCallRows& rows) const;
    /// Route, schedule, book and drawing of rows that are not saved yet; the route stays pending. -1 route;
    /// -2 times; -3 book; -4 distances from the book; -5 drawing. After a failure `out` is empty and the
    /// pending route is what it was.
    int CalculatePortCalls(const PortCallRows& rows, PortCallRows& out);
    /// Schedule of `rows` over the pending route, whose stops a click on the chart may have changed; their
    /// ids must be set. -1 the route is not one of these ports; then as CalculatePortCalls, -2 to -4. On
    /// failure `out` is empty.
    int ScheduleCurrentRoute(const PortCallRows& rows, PortCallRows& out);
    /// `hadPortCalls`: 0 the voyage had no saved port calls, 1 it had and the result is already in the
    /// voyage. -1 empty id; -2 unknown; -3 the calculation failed.
    int CalculateForVoyage(const std::string& vi, const PortCallRows& rows, PortCallRows& out,
                           int& hadPortCalls);
    /// New rows for a saved voyage, straight into its record, with the waypoints of legs between the same
    /// ports kept. -1 fewer than two rows on a side or an unknown voyage; -2 route; -3 times; -4 book; -5 the
    /// legs do not match.
    int CalculateKeepingLegs(const std::string& vi, const PortCallRows& rows, PortCallRows& out);
    /// Port calls, book date and book rows to the server, then into the record; drawn for mode 0 or 1. -1
    /// unknown voyage or fewer than two rows; -2 port calls; -3 date; -4 to -6 book; -7 times; -8 to -10
    /// chart. What was saved before a failure stays.
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
    /// Takes newer last positions of all voyages' vessels over. -1 no vessels or no records.
    int RefreshVesselPositions();
    /// Takes the last position of the vessel's track between first departure and last arrival over, if newer.
    /// -1 empty id; -2 unknown; -3 no vessel; -4 fewer than two port calls; -5 no track; -6 no numbers in it;
    /// -7 not four fields; -8 a first vessel number could not be saved.
    int RefreshTrace(const std::string& vi);
    /// Has the vessel's track hidden; without a vessel there is none. -1 empty id; -2 unknown.
    int HideAisTrack(const std::string& vi);

    /// Puts the vessel's last position into the position book, with the server's way from there to the next
    /// port; from then on the voyage counts as corrected. `applied` is 0 when nothing was done, since no port
    /// is ahead, or when the ship hardly moved and got no row; else 1. -1 empty id; -2 unknown; -3 no vessel;
    /// -4 no position or no time of it; -5 no zone; -6 the ports ahead; -7 the server's way; -8 the rest of
    /// the book; -9 the position does not fit the book. On failure the voyage is as it was.
    int ApplyAisPosition(const std::string& vi, int& applied);
    /// A corrected voyage as rows of the table: up to its last position of the ship, and behind it. -1 empty
    /// id; -2 unknown; -3 the book's times; -4 the rows; -5 no position, or nothing before it.
    int SplitAisRows(const std::string& vi, PortCallRows& before, PortCallRows& after) const;
    /// Plans what lies behind the last row of `history`, the ship's position, anew, into the voyage; `rows`
    /// are its new ports. -1 an input is missing or the voyage unknown; -2 port ids; -3 the history does not
    /// end with a position; -4 no row of the book at it; -5 fewer than two points of the server's way; -6 the
    /// way cannot be had; -7 the route between the planned ports; -8 its book; -9 the totals. On failure the
    /// voyage and the pending route are as they were.
    int ReplanFromAis(const std::string& vi, const PortCallRows& history, const PortCallRows& plan,
                      PortCallRows& rows);
    VoyPortCallModule& Module() { return *module_; }

  private:
    void OnTimer();
    int TakeTrack(VoyInfo& voyage, const std::vector<std::string>& fields);
    int Draw(const std::string& vi, int drawMode, int progressCode, int bookCode);
    int FetchSchedule(VoyInfo& voyage, PortCallRows& rows);
    int SaveBookDate(VoyInfo& voyage);
    int SaveBook(VoyInfo& voyage);
    int CalculateNew(const PortCallRows& rows, PortCallRows& out);
    int ScheduleBook(PortCallRows& scheduled, BookPoints points);
    int CalculateKept(VoyInfo& voyage, const PortCallRows& rows, PortCallRows& scheduled);
    int CorrectAt(VoyInfo& voyage, int& applied);
    int RouteAhead(const PortCallRows& plan, BookPoints& rows);
    int Replan(const VoyInfo& voyage, const PortCallRows& history, PortCallRows plan, VoyPositionBook& book,
               PortCallRows& ports);
    int RouteSchedule(const PortCallRows& rows, PortCallRows& scheduled, BookPoints& book);

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
