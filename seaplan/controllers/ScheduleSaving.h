// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/controllers/VoyageChart.h"
#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Seaplan {

enum class SaveStep { Input, PortCalls, Date, Book, NoRows, BookRows, Times, Remove, Progress, BookLine };
/// Numbers of SaveSchedule.
inline constexpr CodeTable kSaveScheduleCodes{
    Code{SaveStep::Input, -1},      // unknown voyage or fewer than two rows; nothing is sent
    Code{SaveStep::PortCalls, -2},  // the server takes no port calls
    Code{SaveStep::Date, -3},       // nor the book's date, or makes no book
    Code{SaveStep::Book, -4},       // the pending route makes no book
    Code{SaveStep::NoRows, -5},     // there is neither a route nor a book
    Code{SaveStep::BookRows, -6},   // the server takes no book rows
    Code{SaveStep::Times, -7},      // the rows cannot be recomputed
    Code{SaveStep::Remove, -8},     // it is saved; the voyage's old objects stay on the chart
    Code{SaveStep::Progress, -9},   // it is saved, but not drawn with its ship
    Code{SaveStep::BookLine, -10},  // nor as a line
};

/// Writes a schedule to the server and then into its voyage's record.
class ScheduleSaver {
  public:
    ScheduleSaver(VoyPortCallModule* module, VoyageStore* store, VoyageChart& chart)
        : module_(module), store_(store), chart_(chart) {}

    /// Port calls, the book's date and its rows, in this order; then times and drawing. The book is made of
    /// the pending route that belongs to the voyage, otherwise it is the voyage's own. What was saved before
    /// a failure stays, and so does a pending route until its rows are saved.
    Outcome<SaveStep> Save(const std::string& vi, const PortCallRows& rows, DrawMode mode);

  private:
    Outcome<SaveStep> SaveDate(VoyInfo& voyage);
    Outcome<SaveStep> SaveBook(VoyInfo& voyage);
    Outcome<SaveStep> Redraw(const VoyInfo& voyage, DrawMode mode);

    VoyPortCallModule* module_;
    VoyageStore* store_;
    VoyageChart& chart_;
};

}  // namespace Tarvik::Seaplan
