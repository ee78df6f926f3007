// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/storage/sqlite/SqliteDatabase.h"

namespace Tarvik::Server {

/// Throws SqliteError when the file is of a newer version than this program, or is none of this program's
/// files.
void CheckVersion(SqliteDatabase& database);

/// Brings the tables to the present version, all steps in one transaction.
void Migrate(SqliteDatabase& database);

}  // namespace Tarvik::Server
