// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "host/server/storage/sql/SqlStorage.h"
#include "host/server/storage/sqlite/SqliteSession.h"

namespace Tarvik::Server {

/// The storage in one SQLite file, with a write-ahead log beside it and every change synced to disk.
class SqliteStorage : public SqlStorage {
  public:
    /// Opens the file, making it when there is none and bringing an older one to the present version. Null,
    /// with an English text in `error` and the file unchanged, when it cannot be opened, is no such data
    /// base, or was made by a newer program.
    static std::unique_ptr<SqliteStorage> Open(const std::string& path, std::string& error,
                                               const SqliteOptions& options = {});

  private:
    using SqlStorage::SqlStorage;
};

}  // namespace Tarvik::Server
