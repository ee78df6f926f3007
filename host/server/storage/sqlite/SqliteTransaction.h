// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/storage/sqlite/SqliteDatabase.h"

namespace Tarvik::Server {

/// A transaction that is undone at the end of its scope unless it was committed.
class SqliteTransaction {
  public:
    enum class Mode { Read, Write };

    /// A writing transaction takes the write lock at once, so that it cannot fail for it half-way.
    SqliteTransaction(SqliteDatabase& database, Mode mode);
    ~SqliteTransaction();
    SqliteTransaction(const SqliteTransaction&) = delete;
    SqliteTransaction& operator=(const SqliteTransaction&) = delete;

    void Commit();

  private:
    SqliteDatabase& database_;
};

}  // namespace Tarvik::Server
