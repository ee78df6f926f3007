// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "seaplan/data/Outcome.h"
#include "seaplan/data/VoyPositionBook.h"

namespace Tarvik::Seaplan {

class VoyPortCallModule;
struct VoyInfo;
class VoyageStore;

/// What fails while a schedule is calculated.
enum class CalculationStep { Input, Route, Times, Book, Distances, Legs, Drawing };
/// Numbers of CalculatePortCalls.
inline constexpr CodeTable kCalculatePortCallsCodes{
    Code{CalculationStep::Route, -1},      // no rows, or no route between them
    Code{CalculationStep::Times, -2},      // a steam time that is not finite
    Code{CalculationStep::Book, -3},       // the route makes no book
    Code{CalculationStep::Distances, -4},  // the book gives a leg no distance or time
    Code{CalculationStep::Drawing, -5},    // the route is not drawn
};
/// Numbers of ScheduleCurrentRoute.
inline constexpr CodeTable kScheduleCurrentRouteCodes{
    Code{CalculationStep::Input, -1},  // the pending route is not one of these ports
    Code{CalculationStep::Times, -2},  // as above
    Code{CalculationStep::Book, -3},
    Code{CalculationStep::Distances, -4},
};
/// Numbers of CalculateKeepingLegs.
inline constexpr CodeTable kCalculateKeepingLegsCodes{
    Code{CalculationStep::Input, -1},  // fewer than two rows on a side, or an unknown voyage
    Code{CalculationStep::Route, -2},  // as above
    Code{CalculationStep::Times, -3}, Code{CalculationStep::Book, -4},
    Code{CalculationStep::Legs, -5},  // the legs do not match their ports
};

enum class ForVoyageStep { Id, Voyage, Calculation };
/// Numbers of CalculateForVoyage.
inline constexpr CodeTable kCalculateForVoyageCodes{
    Code{ForVoyageStep::Id, -1},           // empty id
    Code{ForVoyageStep::Voyage, -2},       // unknown voyage
    Code{ForVoyageStep::Calculation, -3},  // the calculation of its kind failed
};

/// Why the last calculation or save came to nothing, as a person can mend it.
struct ScheduleFault {
    enum class Cause {
        None,          ///< nothing failed
        UnknownPort,   ///< `port`, in row `row`, is none that the dictionary knows
        NoRoute,       ///< the server knows no route between the ports
        Connection,    ///< the server did not answer
        Refused,       ///< the server did not take what it was sent
        Figures,       ///< speeds, weather or times make no schedule
        NotCalculated  ///< the route or book is not that of the rows' ports
    };
    Cause cause = Cause::None;
    std::size_t row = 0;  ///< counted from 0 among the rows that were handed in
    std::string port{};
};

/// Turns rows with ports into a schedule: route, times, book, distances. Rows are in knots, nautical miles
/// and hours; the ids of their ports stay in the results. After a failure `out` is empty and the pending
/// route is what it was.
class ScheduleCalculator {
  public:
    /// Keeps its collaborators, which outlive it.
    ScheduleCalculator(VoyPortCallModule* module, VoyageStore* store) : module_(module), store_(store) {}

    /// Rows that are not saved yet: the route stays pending, for no voyage until one is assigned, and is
    /// drawn.
    Outcome<CalculationStep> Calculate(const PortCallRows& rows, PortCallRows& out);
    /// The schedule of the rows over the pending route, whose way a click on the chart may have changed.
    Outcome<CalculationStep> FollowRoute(const PortCallRows& rows, PortCallRows& out);
    /// New rows for a saved voyage, straight into its record, with the waypoints of legs between the same
    /// ports kept; the route stays pending for the voyage.
    Outcome<CalculationStep> CalculateKeepingLegs(const std::string& vi, const PortCallRows& rows,
                                                  PortCallRows& out);
    /// One of the two by whether the voyage had port calls, which `hadPortCalls` tells by 1 and 0; a route of
    /// the first kind stays pending for the voyage.
    Outcome<ForVoyageStep> CalculateFor(const std::string& vi, const PortCallRows& rows, PortCallRows& out,
                                        int& hadPortCalls);

    /// Why the last calculation failed.
    const ScheduleFault& Fault() const { return fault_; }

  private:
    Outcome<CalculationStep> FindRoute(const PortCallRows& rows, PortCallRows& scheduled, BookPoints& book);
    Outcome<CalculationStep> RunNew(const PortCallRows& rows, PortCallRows& out);
    Outcome<CalculationStep> RunKept(VoyInfo& voyage, const PortCallRows& rows, PortCallRows& scheduled);
    Outcome<CalculationStep> RunOverRoute(const PortCallRows& rows, PortCallRows& scheduled);

    VoyPortCallModule* module_;
    VoyageStore* store_;
    ScheduleFault fault_;
};

}  // namespace Tarvik::Seaplan
