// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteMigrator.h"

#include <string>

namespace Tarvik::Server {

namespace {

std::int64_t VersionOf(SqliteDatabase& database) {
    return database.QueryInteger("PRAGMA user_version");
}

}  // namespace

void CheckVersion(SqliteDatabase& database, const SqliteSchema& schema) {
    const std::int64_t version = VersionOf(database);
    const std::int64_t kind = database.QueryInteger("PRAGMA application_id");
    const bool fresh =
        version == 0 && kind == 0 && database.QueryInteger("SELECT count(*) FROM sqlite_master") == 0;
    if (!fresh && (version < 1 || kind != schema.applicationId)) {
        throw SqlError(schema.foreign);
    }
    const auto newest = static_cast<std::int64_t>(schema.steps.size());
    if (version > newest) {
        throw SqlError("the data base has version " + std::to_string(version) +
                       ", made by a newer program; this one reads versions up to " + std::to_string(newest));
    }
}

void Migrate(SqliteDatabase& database, const SqliteSchema& schema) {
    SqliteTransaction transaction(database, SqlMode::Write);
    // Read again under the lock: another process may have been faster.
    CheckVersion(database, schema);
    for (auto step = static_cast<std::size_t>(VersionOf(database)); step < schema.steps.size(); ++step) {
        database.Execute(schema.steps[step]);
        database.Execute("PRAGMA user_version=" + std::to_string(step + 1));
        database.Execute("PRAGMA application_id=" + std::to_string(schema.applicationId));
    }
    transaction.Commit();
}

}  // namespace Tarvik::Server
