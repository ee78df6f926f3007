// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteSession.h"

#include "host/server/storage/sqlite/Migrator.h"

namespace Tarvik::Server {

SqliteSession::SqliteSession(const std::string& path, const SqliteOptions& options) : database_(path) {
    if (database_.ReadOnly()) throw SqliteError("the data base is read-only: " + path);
    if (options.maxPages > 0)
        database_.QueryInteger("PRAGMA max_page_count=" + std::to_string(options.maxPages));
    CheckVersion(database_);
    database_.Execute("PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; PRAGMA foreign_keys=ON");
    Migrate(database_);
}

}  // namespace Tarvik::Server
