// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteStorage.h"

namespace Tarvik::Server {

std::unique_ptr<SqliteStorage> SqliteStorage::Open(const std::string& path, std::string& error,
                                                   const SqliteOptions& options) {
    try {
        auto session = std::make_unique<SqliteSession>(path, SqliteSchema{Migrations()}, options);
        return std::unique_ptr<SqliteStorage>(new SqliteStorage(std::move(session)));
    } catch (const std::exception& failure) {
        error = failure.what();
        return nullptr;
    }
}

}  // namespace Tarvik::Server
