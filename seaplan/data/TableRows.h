// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <tarvik/util/CppSQLite3.h>

/// Rows of the host's table of points, as the sources of this room read them.
namespace Tarvik::Seaplan {

/// The text of a row's column, from 0; empty for null.
std::string ColumnText(const Util::CppSQLite3Query& row, int column);
/// Calls `visit` for each row of a query; false when the database cannot be read.
bool ForEachRow(const std::string& database, const char* sql,
                const std::function<void(const Util::CppSQLite3Query&)>& visit);

}  // namespace Tarvik::Seaplan
