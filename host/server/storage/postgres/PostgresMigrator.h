// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/storage/postgres/PostgresConnection.h"

namespace Tarvik::Server {

/// Brings the tables of the connection's schema to the present version, within its writing transaction.
/// Processes that start at the same time do so one after the other. Throws PostgresError, with nothing
/// changed, when the data base is of a newer version than this program or holds another program's tables.
void MigratePostgres(PostgresConnection& connection);

}  // namespace Tarvik::Server
