// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "host/server/storage/sql/SqlStorage.h"
#include "host/server/storage/sqlite/SqliteChanges.h"
#include "host/server/storage/sqlite/SqliteMigrator.h"

namespace Tarvik::Server {

/// Limits of a data base file.
struct SqliteOptions {
    int maxPages = 0;                                    ///< quota in pages of 4096 bytes; 0 for none
    std::chrono::milliseconds patience = kLockPatience;  ///< for who writes here or elsewhere
};

/// The connections to one file: one that writes, for all changes that wait at once, and as many that read as
/// operations read at the same time. A write-ahead log stands beside the file, and every change is synced to
/// disk. Other processes may have the file open too.
class SqliteSession : public SqlSession {
  public:
    /// Opens the file, making it for its owner only when there is none, and brings it to the present version;
    /// throws SqlError. An empty path or ":memory:" is a data base of this session alone, which ends with it.
    SqliteSession(const std::string& path, const SqliteSchema& schema, const SqliteOptions& options = {});

    void GiveUp() override { changes_.GiveUp(); }

  protected:
    void Transact(SqlMode mode, const Transaction& work) override;

  private:
    /// Borrows a reading connection for its scope.
    class Reader {
      public:
        explicit Reader(SqliteSession& session) : session_(session), database_(session.TakeReader()) {}
        ~Reader() { session_.GiveBack(std::move(database_)); }
        Reader(const Reader&) = delete;
        Reader& operator=(const Reader&) = delete;
        SqliteDatabase& Get() { return *database_; }

      private:
        SqliteSession& session_;
        std::unique_ptr<SqliteDatabase> database_;
    };

    std::unique_ptr<SqliteDatabase> TakeReader();
    void GiveBack(std::unique_ptr<SqliteDatabase> reader) noexcept;

    std::string path_;
    bool shared_;  ///< whether other connections see the same data
    SqliteDatabase writer_;
    SqliteChanges changes_;
    std::mutex pooling_;
    std::vector<std::unique_ptr<SqliteDatabase>> idle_;
};

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
