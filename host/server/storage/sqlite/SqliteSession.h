// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/storage/contract/Outcome.h"
#include "host/server/storage/sqlite/SqliteDatabase.h"
#include "host/server/storage/sqlite/SqliteTransaction.h"

#include <mutex>
#include <string>
#include <utility>

namespace Tarvik::Server {

/// Limits of a data base file.
struct SqliteOptions {
    int maxPages = 0;  ///< quota in pages of 4096 bytes; 0 for none
};

/// The one connection behind its lock: runs each operation as one transaction and turns what fails into a
/// fault.
class SqliteSession {
  public:
    /// Opens the file and brings it to the present version; throws SqliteError.
    SqliteSession(const std::string& path, const SqliteOptions& options);

    /// `work(database)` gives an Outcome; anything but success undoes what it did.
    template <class Work>
    auto Write(Work&& work) -> decltype(work(std::declval<SqliteDatabase&>())) {
        return Run(SqliteTransaction::Mode::Write, std::forward<Work>(work));
    }
    template <class Work>
    auto Read(Work&& work) -> decltype(work(std::declval<SqliteDatabase&>())) {
        return Run(SqliteTransaction::Mode::Read, std::forward<Work>(work));
    }

  private:
    template <class Work>
    auto Run(SqliteTransaction::Mode mode, Work&& work) -> decltype(work(std::declval<SqliteDatabase&>())) {
        try {
            const std::scoped_lock lock(mutex_);
            SqliteTransaction transaction(database_, mode);
            auto outcome = work(database_);
            if (outcome.Succeeded()) transaction.Commit();
            return outcome;
        } catch (const std::exception& error) {
            return Fault{FaultReason::StorageFailed, error.what()};
        }
    }

    std::mutex mutex_;
    SqliteDatabase database_;
};

}  // namespace Tarvik::Server
