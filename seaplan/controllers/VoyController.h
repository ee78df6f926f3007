// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "seaplan/controllers/VoyageFacades.h"
#include "seaplan/data/VoyPortCall.h"

namespace Tarvik::Seaplan {

struct PosBookData;
struct ScheduleFault;
class VoyCatalogController;
class VoyPortCallModule;
class VoyageStore;

/// A voyage's schedule, its presence on the chart and its figures: the facade of the classes in this folder
/// that do the work, where each operation is told. Results are 0 or the negative number that the table named
/// at the operation gives; the store changes only after the server agreed. Rows are in knots, nautical miles
/// and hours.
///
/// The panels' contract asks for all of these names on this one class; those that need nothing but a
/// voyage's record, its vessel or the rows at hand stand in its bases.
class VoyController : public VoyageRecordFacade, public VesselFacade, public RouteRowsFacade {
  public:
    /// Keeps its collaborators, which outlive it.
    VoyController(VoyPortCallModule* module, VoyCatalogController* catalog, VoyageStore* store);
    ~VoyController();
    /// The one of the plug-in; CompositionRoot makes it.
    static VoyController* Instance();

    // A voyage's record
    /// Draw modes: 1 draws the route and remembers the voyage, 0 the other form, -1 none: kLoadScheduleCodes.
    int LoadSchedule(const std::string& vi, PortCallRows& rows, int drawMode);
    /// Drops the working copy of an unsaved voyage and fetches what was saved, without drawing:
    /// kDiscardCodes.
    int DiscardPortCalls(const std::string& vi);

    // Calculating and saving
    /// Ids of the rows that have none, by name from the host's dictionary, empty for an unknown name. 0.
    int ResolvePortIds(PortCallRows& rows) const;
    /// Route, schedule, book and drawing of rows that are not saved yet: kCalculatePortCallsCodes.
    int CalculatePortCalls(const PortCallRows& rows, PortCallRows& out);
    /// Schedule of `rows` over the pending route; their ids must be set: kScheduleCurrentRouteCodes.
    int ScheduleCurrentRoute(const PortCallRows& rows, PortCallRows& out);
    /// `hadPortCalls`: 0 the voyage had no saved port calls, 1 it had and the result is already in the
    /// voyage: kCalculateForVoyageCodes.
    int CalculateForVoyage(const std::string& vi, const PortCallRows& rows, PortCallRows& out,
                           int& hadPortCalls);
    /// New rows for a saved voyage, straight into its record: kCalculateKeepingLegsCodes.
    int CalculateKeepingLegs(const std::string& vi, const PortCallRows& rows, PortCallRows& out);
    /// To the server, then into the record; drawn for mode 0 or 1: kSaveScheduleCodes.
    int SaveSchedule(const std::string& vi, const PortCallRows& rows, int drawMode);
    /// Whether SaveSchedule finds a route or a book of these rows' ports, in their order; else they are to be
    /// calculated first.
    bool HasRouteFor(const std::string& vi, const PortCallRows& rows);
    /// A voyage's position book by port, in km/h and UTC: kGetPosBookCodes.
    int GetPosBookData(const std::string& vi, PosBookData& out);
    /// The shaped book with its port calls to the server, then into the record, without drawing:
    /// kSavePosBookCodes.
    int SavePositionBook(const std::string& vi, const PosBookData& book);
    /// Why the last calculation or save failed.
    const ScheduleFault& LastFault() const;

    // Chart and vessels
    /// Takes off all that the plug-in drew. 0 or -1.
    int ClearChart();
    /// Takes one voyage's lines and ship off. 0; -1 empty id.
    int RemoveVoyageObjects(const std::string& vi);
    /// Draws a voyage in use with its ship: kShowVoyageCodes.
    int ShowVoyage(const std::string& vi);
    /// Every 100 seconds positions are refreshed and the voyages switched on are drawn; a second call changes
    /// nothing.
    void StartTimer();
    /// Stops what StartTimer began.
    void StopTimer();
    /// The timer draws voyages only while the tree's window is visible; not told otherwise, it counts as
    /// visible, for the panel stops the timer when it hides.
    void SetTreeVisible(std::function<bool()> visible);

    // Correction from AIS
    /// Puts the vessel's last position into the book; `applied` is 1 when it got a row, else 0:
    /// kApplyAisCodes.
    int ApplyAisPosition(const std::string& vi, int& applied);
    /// A corrected voyage as rows: up to its last position of the ship, and behind it: kSplitAisCodes.
    int SplitAisRows(const std::string& vi, PortCallRows& before, PortCallRows& after) const;
    /// Plans what lies behind the last row of `history` anew; `rows` are the voyage's new ports:
    /// kReplanCodes.
    int ReplanFromAis(const std::string& vi, const PortCallRows& history, const PortCallRows& plan,
                      PortCallRows& rows);

    /// The module with the pending route and the chart's layer.
    VoyPortCallModule& Module() { return *module_; }

  private:
    struct Parts;

    void OnTimer();

    VoyPortCallModule* module_;
    std::unique_ptr<Parts> parts_;
};

}  // namespace Tarvik::Seaplan
