// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteTransaction.h"

#include <sqlite3.h>

namespace Tarvik::Server {

SqliteTransaction::SqliteTransaction(SqliteDatabase& database, Mode mode) : database_(database) {
    database_.Execute(mode == Mode::Write ? "BEGIN IMMEDIATE" : "BEGIN DEFERRED");
}

SqliteTransaction::~SqliteTransaction() {
    // A full disk may have undone the transaction already.
    if (database_.InTransaction()) sqlite3_exec(database_.Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void SqliteTransaction::Commit() {
    database_.Execute("COMMIT");
}

}  // namespace Tarvik::Server
