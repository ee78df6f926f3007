// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/controllers/ScheduleCalculation.h"

namespace Tarvik::Seaplan {

enum class ApplyStep { Id, Voyage, Vessel, Position, Zone, PortsAhead, Way, RestOfBook, Insertion };
/// Numbers of ApplyAisPosition.
inline constexpr CodeTable kApplyAisCodes{
    Code{ApplyStep::Id, -1},          // empty id
    Code{ApplyStep::Voyage, -2},      // unknown voyage
    Code{ApplyStep::Vessel, -3},      // it has no vessel
    Code{ApplyStep::Position, -4},    // no position of the vessel, or no time of it
    Code{ApplyStep::Zone, -5},        // no zone of the person
    Code{ApplyStep::PortsAhead, -6},  // the ports ahead cannot be worked out
    Code{ApplyStep::Way, -7},         // the server gives no way to the next
    Code{ApplyStep::RestOfBook, -8},  // the book does not reach the ports ahead
    Code{ApplyStep::Insertion, -9},   // the position does not fit the book
};

enum class SplitStep { Id, Voyage, Rows };
/// Numbers of SplitAisRows.
inline constexpr CodeTable kSplitAisCodes{
    Code{SplitStep::Id, -1},            // empty id
    Code{SplitStep::Voyage, -2},        // unknown voyage
    Code{SplitStep::Rows, kOwnNumber},  // -3 times, -4 rows, -5 no position: SplitCorrectedVoyage
};

enum class ReplanStep { Input, Ship, Way, Route, Book, Rebuild, Totals };
/// Numbers of ReplanFromAis. -2, port ids that cannot be had, is free: an unknown port has none and then no
/// way.
inline constexpr CodeTable kReplanCodes{
    Code{ReplanStep::Input, -1},            // an input is missing, or the voyage unknown
    Code{ReplanStep::Ship, kOwnNumber},     // -3 the history does not end with a position: ShipPositionOf
    Code{ReplanStep::Way, -6},              // the server gives no way to the first planned port
    Code{ReplanStep::Route, -7},            // no route between the planned ports
    Code{ReplanStep::Book, -8},             // that route makes no book
    Code{ReplanStep::Rebuild, kOwnNumber},  // -4 no row at the position, -5 too short a way: ReplanBook
    Code{ReplanStep::Totals, -9},           // the new book does not fit the new ports
};

/// Corrects a voyage's plan from its vessel's last real position. After a failure the voyage and the pending
/// route are as they were.
class VoyageCorrection {
  public:
    /// Keeps its collaborators, which outlive it.
    VoyageCorrection(VoyPortCallModule* module, VoyageStore* store, ScheduleCalculator& calculator)
        : module_(module), store_(store), calculator_(calculator) {}

    /// Puts the position into the book, with the server's way from there to the next port; from then on the
    /// voyage counts as corrected. `applied` is 0 when no port is ahead, or when the ship hardly moved and
    /// got no row; else 1.
    Outcome<ApplyStep> Apply(const std::string& vi, int& applied);
    /// A corrected voyage as rows of the table: up to its last position of the ship, and behind it.
    Outcome<SplitStep> Split(const std::string& vi, PortCallRows& before, PortCallRows& after) const;
    /// Plans what lies behind the last row of `history`, the ship's position, anew, into the voyage; `rows`
    /// are its new ports.
    Outcome<ReplanStep> Replan(const std::string& vi, const PortCallRows& history, const PortCallRows& plan,
                               PortCallRows& rows);

    /// The cause of a Replan of this plan that failed.
    ScheduleFault FaultOf(const Outcome<ReplanStep>& failed, PortCallRows plan) const;

  private:
    /// What a new plan makes of a voyage.
    struct Plan {
        VoyPositionBook book;
        PortCallRows ports;
    };

    Outcome<ApplyStep> CorrectAt(VoyInfo& voyage, int& applied);
    Outcome<ReplanStep> RouteAhead(const PortCallRows& plan, BookPoints& rows);
    Outcome<ReplanStep> PlanAnew(const VoyInfo& voyage, const PortCallRows& history, PortCallRows plan,
                                 Plan& out);

    VoyPortCallModule* module_;
    VoyageStore* store_;
    ScheduleCalculator& calculator_;
};

}  // namespace Tarvik::Seaplan
