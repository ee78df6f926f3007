// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/storage/sqlite/SqliteDatabase.h"

namespace Tarvik::Server {

/// Brings an accounts file to the present version, all steps in one transaction. Throws SqliteError, with
/// nothing changed, when the file is of a newer program or is none of accounts.
void MigrateAccounts(SqliteDatabase& database);

}  // namespace Tarvik::Server
