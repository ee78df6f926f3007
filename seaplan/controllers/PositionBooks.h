// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/controllers/ScheduleCalculation.h"
#include "seaplan/controllers/ScheduleLoading.h"
#include "seaplan/data/PosBookData.h"

namespace Tarvik::Seaplan {

enum class GetBookStep { Id, Voyage, Load, Panel };
/// Numbers of GetPosBookData.
inline constexpr CodeTable kGetPosBookCodes{
    Code{GetBookStep::Id, -1},      // empty id
    Code{GetBookStep::Voyage, -2},  // unknown voyage
    Code{GetBookStep::Load, -3},    // it has no schedule with a book of its own
    Code{GetBookStep::Panel, -4},   // the book cannot be shown by port
};

enum class SaveBookStep { Id, Voyage, Panel, Totals, PortCalls, Date, Rows };
/// Numbers of SavePositionBook.
inline constexpr CodeTable kSavePosBookCodes{
    Code{SaveBookStep::Id, -1},         // empty id
    Code{SaveBookStep::Voyage, -2},     // unknown voyage
    Code{SaveBookStep::Panel, -3},      // fewer than two ports; nothing is sent
    Code{SaveBookStep::Totals, -4},     // the book makes no schedule; nothing is sent
    Code{SaveBookStep::PortCalls, -5},  // the server takes no port calls
    Code{SaveBookStep::Date, -6},       // nor the book's date
    Code{SaveBookStep::Rows, -7},       // nor its rows
};

/// The cause of a save of a book that failed.
ScheduleFault FaultOf(const Outcome<SaveBookStep>& failed);

/// A voyage's position book as a panel shapes it, and back.
class PositionBooks {
  public:
    PositionBooks(VoyPortCallModule* module, VoyageStore* store, ScheduleLoader& loader)
        : module_(module), store_(store), loader_(loader) {}

    /// The book by port, in km/h and UTC; loaded first where the record has none. `out` is as it was after a
    /// failure.
    Outcome<GetBookStep> Get(const std::string& vi, PosBookData& out);
    /// Port calls, the book's date where the start has changed, and its rows, in this order, go to the
    /// server; then the record takes them, and stays as it was after a failure. The ports' distances and
    /// speeds are those of the book, so that the speed of each waypoint stays as it was typed. A port keeps
    /// the id that the record has where the dictionary does not know its name.
    Outcome<SaveBookStep> Save(const std::string& vi, const PosBookData& book);

  private:
    Outcome<SaveBookStep> Send(VoyInfo& changed, const Util::_datetime_t& startBefore);

    VoyPortCallModule* module_;
    VoyageStore* store_;
    ScheduleLoader& loader_;
};

}  // namespace Tarvik::Seaplan
