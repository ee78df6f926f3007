// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Tarvik::Seaplan {

class TableModel;

/// The lines of a table that are copied as a spreadsheet takes them: a line of heads, each with the unit on
/// show, and a line for each, with a tab between two cells. Empty without such a line.
QString RowsAsText(const TableModel& table);

}  // namespace Tarvik::Seaplan
