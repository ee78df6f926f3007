// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteStorage.h"

namespace Tarvik::Server {

SqliteStorage::SqliteStorage(const std::string& path, const SqliteOptions& options)
    : session_(path, options),
      catalog_(session_),
      schedule_(session_),
      remarks_(session_),
      transfer_(session_) {}

std::unique_ptr<SqliteStorage> SqliteStorage::Open(const std::string& path, std::string& error,
                                                   const SqliteOptions& options) {
    try {
        return std::unique_ptr<SqliteStorage>(new SqliteStorage(path, options));
    } catch (const std::exception& failure) {
        error = failure.what();
        return nullptr;
    }
}

}  // namespace Tarvik::Server
