// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "host/server/storage/postgres/PostgresConnection.h"

namespace Tarvik::Server {

/// The steps that lead from an empty schema to the present tables, made from the numbered files in
/// migrations/; step i leads from version i to version i + 1. A step that was released never changes.
const std::vector<std::string_view>& PostgresMigrations();

/// Brings the tables of the connection's schema to the present version, within its writing transaction.
/// Processes that start at the same time do so one after the other. Throws SqlError, with nothing changed,
/// when the data base is of a newer version than this program or holds another program's tables.
void MigratePostgres(PostgresConnection& connection);

}  // namespace Tarvik::Server
