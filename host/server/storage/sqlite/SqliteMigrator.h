// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "host/server/storage/sqlite/SqliteDatabase.h"

namespace Tarvik::Server {

/// What a file holds.
struct SqliteSchema {
    /// Step i leads from version i of the tables to version i + 1. A step that was released never changes.
    const std::vector<std::string_view>& steps;
    /// Tells these files from those of other schemas; 0 is what a file has that was never told.
    std::int64_t applicationId = 0;
    /// What is said of a file that holds something else.
    const char* foreign = "the file is a data base of another program";
};

/// The steps of a file of voyages, made from the numbered files in migrations/.
const std::vector<std::string_view>& Migrations();

/// Throws SqlError when the file is of a newer version than this program, or is no file of the schema.
void CheckVersion(SqliteDatabase& database, const SqliteSchema& schema);

/// Brings the tables to the present version, all steps in one transaction. Throws as CheckVersion does.
void Migrate(SqliteDatabase& database, const SqliteSchema& schema);

}  // namespace Tarvik::Server
