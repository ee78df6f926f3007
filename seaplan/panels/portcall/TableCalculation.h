// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "seaplan/controllers/VoyageChart.h"
#include "seaplan/data/Outcome.h"
#include "seaplan/data/VoyPortCall.h"
#include "seaplan/panels/portcall/TableSaving.h"

namespace Tarvik::Seaplan {

struct PortCallNote;
class VoyageFilling;

/// What fails when the table is calculated; but for Save nothing is lost, and the sheet's cause tells the
/// first two.
enum class TableStep {
    Rows,   ///< fewer than two ports
    Route,  ///< they make no schedule
    Show,   ///< the schedule cannot be shown
    Fill,   ///< the voyage's new rows cannot be shown
    Save    ///< the voyage has its new rows, which the server did not take
};

enum class AnewStep {
    Rows,   ///< fewer than two ports
    Route,  ///< no route, or no server that was there to find it
    Left,   ///< the person keeps the legs
    Show    ///< the rows have changed meanwhile, or the schedule cannot be shown
};
/// Decides over the rows on show and those of a new route, row for row.
using TakesRoute = std::function<bool(const PortCallRows&, const PortCallRows&)>;

enum class FollowStep { Rows, Route, Show, Closed };
/// Numbers of PanelCommands::OnRouteChosen.
inline constexpr CodeTable kFollowRouteCodes{
    Code{FollowStep::Rows, -1},    // no rows
    Code{FollowStep::Route, -2},   // a route of other ports
    Code{FollowStep::Show, -3},    // the rows do not fit
    Code{FollowStep::Closed, -4},  // no table is open
};

enum class SaveRowsStep {
    Rows,         ///< fewer than two rows
    Calculation,  ///< they cannot be calculated, and nothing was sent
    Server        ///< not saved
};

/// The schedule of the rows on show: calculated, followed along the route on the chart, saved.
class TableCalculation {
  public:
    TableCalculation(PortCallDesk& desk, VoyageFilling& filling)
        : desk_(desk), filling_(filling), saving_(desk) {}

    /// Route and schedule of the rows; those of a voyage that had port calls are saved, too.
    Outcome<TableStep> Calculate();
    /// Asks the server for the whole route afresh, whatever legs are kept, and draws it with its
    /// alternatives. `takes` hears of the legs as they are and as they would be, and decides. Taken, it is
    /// the pending route of the voyage, for the next save; left or failed, all is as before.
    Outcome<AnewStep> CalculateAnew(const TakesRoute& takes);
    /// Distances and times of the pending route, which was changed on the chart.
    Outcome<FollowStep> FollowRoute();
    /// Saves the rows, calculated first where they have no distances, or the voyage no book or route of
    /// theirs.
    Outcome<SaveRowsStep> Save(DrawMode mode);

  private:
    bool Prepare(PortCallRows& rows) const;
    int Schedule(const PortCallRows& rows, PortCallRows& result, int& hadPortCalls);
    PortCallNote NoteOfRoute() const;
    bool FindAnew(const PortCallRows& rows, PortCallRows& fresh);
    Outcome<AnewStep> TakeAnew(const PortCallRows& rows, const TakesRoute& takes);
    void ShowFormerRoute();
    bool ShowCalculated(const PortCallRows& rows, PortCallRows result);
    Outcome<TableStep> ShowAndSave();

    PortCallDesk& desk_;
    VoyageFilling& filling_;
    TableSaving saving_;
};

}  // namespace Tarvik::Seaplan
