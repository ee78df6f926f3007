// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "host/server/storage/contract/Outcome.h"
#include "host/server/storage/sqlite/SqliteDatabase.h"
#include "host/server/storage/sqlite/SqliteTransaction.h"

namespace Tarvik::Server {

/// Limits of a data base file.
struct SqliteOptions {
    int maxPages = 0;  ///< quota in pages of 4096 bytes; 0 for none
};

/// The connections to one file: one that writes, behind a lock, and as many that read as operations read at
/// the same time. Runs each operation as one transaction and turns what fails into a fault.
class SqliteSession {
  public:
    /// Opens the file and brings it to the present version; throws SqliteError. An empty path or ":memory:"
    /// is a data base of this session alone, which ends with it.
    SqliteSession(const std::string& path, const SqliteOptions& options);

    /// `work(database)` gives an Outcome; anything but success undoes what it did.
    template <class Work>
    auto Write(Work&& work) -> decltype(work(std::declval<SqliteDatabase&>())) {
        return Guarded([&] {
            const std::scoped_lock lock(writing_);
            return Transact(writer_, SqliteTransaction::Mode::Write, work);
        });
    }
    /// A reader waits for no writer and sees what was stored when it began.
    template <class Work>
    auto Read(Work&& work) -> decltype(work(std::declval<SqliteDatabase&>())) {
        return Guarded([&] {
            if (shared_) {
                Reader reader(*this);
                return Transact(reader.Get(), SqliteTransaction::Mode::Read, work);
            }
            const std::scoped_lock lock(writing_);
            return Transact(writer_, SqliteTransaction::Mode::Read, work);
        });
    }

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

    template <class Work>
    static auto Transact(SqliteDatabase& database, SqliteTransaction::Mode mode, Work& work) {
        SqliteTransaction transaction(database, mode);
        auto outcome = work(database);
        if (outcome.Succeeded()) {
            transaction.Commit();
        }
        return outcome;
    }
    template <class Operation>
    static auto Guarded(Operation&& operation) -> decltype(operation()) {
        try {
            return operation();
        } catch (const std::exception& error) {
            return Fault{FaultReason::StorageFailed, error.what()};
        }
    }
    std::unique_ptr<SqliteDatabase> TakeReader();
    void GiveBack(std::unique_ptr<SqliteDatabase> reader) noexcept;

    std::string path_;
    bool shared_;  ///< whether other connections see the same data
    std::mutex writing_;
    SqliteDatabase writer_;
    std::mutex pooling_;
    std::vector<std::unique_ptr<SqliteDatabase>> idle_;
};

}  // namespace Tarvik::Server
