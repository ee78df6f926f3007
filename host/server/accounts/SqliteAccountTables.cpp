// SPDX-License-Identifier: MIT
#include "host/server/accounts/SqliteAccountTables.h"

#include <array>
#include <string>

#include "host/server/storage/sqlite/SqliteTransaction.h"

namespace Tarvik::Server {

namespace {

/// Tells an accounts file from every other data base ("SPac").
constexpr std::int64_t kApplicationId = 0x53506163;

/// Step i leads from version i to version i + 1. A step that was released never changes.
constexpr std::array<const char*, 1> kSteps = {R"sql(
CREATE TABLE users (
    name TEXT PRIMARY KEY,
    password TEXT NOT NULL,
    disabled INTEGER NOT NULL DEFAULT 0 CHECK (disabled IN (0, 1))
) STRICT, WITHOUT ROWID;
CREATE TABLE sessions (
    token TEXT PRIMARY KEY,
    name TEXT NOT NULL REFERENCES users (name),
    expires INTEGER NOT NULL
) STRICT, WITHOUT ROWID;
CREATE INDEX sessions_by_name ON sessions (name);
CREATE INDEX sessions_by_expiry ON sessions (expires);
)sql"};

std::int64_t CheckedVersion(SqliteDatabase& database) {
    const std::int64_t version = database.QueryInteger("PRAGMA user_version");
    const std::int64_t kind = database.QueryInteger("PRAGMA application_id");
    const bool fresh =
        kind == 0 && version == 0 && database.QueryInteger("SELECT count(*) FROM sqlite_master") == 0;
    if (!fresh && (kind != kApplicationId || version < 1)) {
        throw SqliteError("the file is a data base of another kind");
    }
    if (version > static_cast<std::int64_t>(kSteps.size())) {
        throw SqliteError("the data base has version " + std::to_string(version) +
                          ", made by a newer program; this one reads versions up to " +
                          std::to_string(kSteps.size()));
    }
    return version;
}

}  // namespace

void MigrateAccounts(SqliteDatabase& database) {
    CheckedVersion(database);
    database.Execute("PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; PRAGMA foreign_keys=ON");
    SqliteTransaction transaction(database, SqliteTransaction::Mode::Write);
    // Read again under the lock: another process may have been faster.
    for (auto step = static_cast<std::size_t>(CheckedVersion(database)); step < kSteps.size(); ++step) {
        database.Execute(kSteps[step]);
        database.Execute("PRAGMA user_version=" + std::to_string(step + 1));
    }
    database.Execute("PRAGMA application_id=" + std::to_string(kApplicationId));
    transaction.Commit();
}

}  // namespace Tarvik::Server
