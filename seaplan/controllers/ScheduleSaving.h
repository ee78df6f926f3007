// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/controllers/ScheduleCalculation.h"
#include "seaplan/controllers/VoyageChart.h"
#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Seaplan {

enum class SaveStep {
    Input,
    PortCalls,
    Date,
    Book,
    NoRows,
    BookRows,
    Times,
    Remove,
    Progress,
    BookLine,
    UnknownPort,
    OtherPorts
};
/// Numbers of SaveSchedule.
inline constexpr CodeTable kSaveScheduleCodes{
    Code{SaveStep::Input, -1},         // unknown voyage or fewer than two rows; nothing is sent
    Code{SaveStep::PortCalls, -2},     // the server takes no port calls
    Code{SaveStep::Date, -3},          // nor the book's date, or makes no book
    Code{SaveStep::Book, -4},          // the pending route makes no book; nothing is sent
    Code{SaveStep::NoRows, -5},        // there is neither a route nor a book; nothing is sent
    Code{SaveStep::BookRows, -6},      // the server takes no book rows
    Code{SaveStep::Times, -7},         // the rows and their book make no schedule; nothing is sent
    Code{SaveStep::Remove, -8},        // it is saved; the voyage's old objects stay on the chart
    Code{SaveStep::Progress, -9},      // it is saved, but not drawn with its ship
    Code{SaveStep::BookLine, -10},     // nor as a line
    Code{SaveStep::UnknownPort, -11},  // a row of a port without known id; nothing is sent
    Code{SaveStep::OtherPorts,
         -12},  // the route or book is not of these ports, in this order; nothing is sent
};

/// Whether a SaveSchedule with this result is saved: a failure to draw comes after it.
bool IsScheduleSaved(int code);

/// The cause of a save of these rows that failed.
ScheduleFault FaultOf(const Outcome<SaveStep>& failed, const PortCallRows& rows);

/// Writes a schedule to the server and then into its voyage's record.
class ScheduleSaver {
  public:
    /// Keeps its collaborators, which outlive it.
    ScheduleSaver(VoyPortCallModule* module, VoyageStore* store, VoyageChart& chart)
        : module_(module), store_(store), chart_(chart) {}

    /// Whether the voyage's pending route, or where there is none its book, runs between the rows' ports, in
    /// their order: a save asks for it. Rows without id are told by name.
    bool HasRouteFor(const std::string& vi, PortCallRows rows);
    /// Port calls, the book's date and its rows, in this order; then drawing. The book is made of the pending
    /// route that belongs to the voyage, otherwise it is the voyage's own. All that can be known is looked at
    /// before the first request: what is sent can be opened again. A port without purpose gets one. What was
    /// saved before a failure stays, and so does a pending route until its rows are saved.
    Outcome<SaveStep> Save(const std::string& vi, const PortCallRows& rows, DrawMode mode);

  private:
    /// What a save is made of, worked out before anything is sent.
    struct Parts {
        PortCallRows rows;   ///< as they are sent
        PortCallRows timed;  ///< as they are kept
        BookPoints points;
        bool calculated = false;  ///< the points are those of the pending route
    };

    Outcome<SaveStep> Prepare(const VoyInfo& voyage, Parts& parts);
    Outcome<SaveStep> Send(VoyInfo& voyage, Parts& parts);
    Outcome<SaveStep> SaveDate(VoyInfo& voyage);
    Outcome<SaveStep> Redraw(const VoyInfo& voyage, DrawMode mode);

    VoyPortCallModule* module_;
    VoyageStore* store_;
    VoyageChart& chart_;
};

}  // namespace Tarvik::Seaplan
