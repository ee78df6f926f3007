// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteTransaction.h"

#include <sqlite3.h>

#include "host/server/storage/sqlite/SqliteStatement.h"

namespace Tarvik::Server {

SqliteTransaction::SqliteTransaction(SqliteDatabase& database, Mode mode) : database_(database) {
    // Prepared and kept like every other statement, so that a small read does not parse these texts anew.
    SqliteStatement(database_, mode == Mode::Write ? "BEGIN IMMEDIATE" : "BEGIN DEFERRED").Run();
}

SqliteTransaction::~SqliteTransaction() {
    // A full disk may have undone the transaction already.
    if (database_.InTransaction()) {
        sqlite3_exec(database_.Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

void SqliteTransaction::Commit() {
    SqliteStatement(database_, "COMMIT").Run();
}

}  // namespace Tarvik::Server
