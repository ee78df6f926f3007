// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/Migrator.h"

#include <string>

#include "host/server/storage/sqlite/Migrations.h"
#include "host/server/storage/sqlite/SqliteTransaction.h"

namespace Tarvik::Server {

namespace {

std::int64_t VersionOf(SqliteDatabase& database) {
    return database.QueryInteger("PRAGMA user_version");
}

}  // namespace

void CheckVersion(SqliteDatabase& database) {
    const std::int64_t version = VersionOf(database);
    const auto newest = static_cast<std::int64_t>(Migrations().size());
    if (version > newest) {
        throw SqliteError("the data base has version " + std::to_string(version) +
                          ", made by a newer program; " + "this one reads versions up to " +
                          std::to_string(newest));
    }
    const bool foreign = version == 0 && database.QueryInteger("SELECT count(*) FROM sqlite_master") > 0;
    if (version < 0 || foreign) {
        throw SqliteError("the file is a data base of another program");
    }
}

void Migrate(SqliteDatabase& database) {
    SqliteTransaction transaction(database, SqliteTransaction::Mode::Write);
    // Read again under the lock: another process may have been faster.
    CheckVersion(database);
    const auto& steps = Migrations();
    for (auto step = static_cast<std::size_t>(VersionOf(database)); step < steps.size(); ++step) {
        database.Execute(steps[step]);
        database.Execute("PRAGMA user_version=" + std::to_string(step + 1));
    }
    transaction.Commit();
}

}  // namespace Tarvik::Server
