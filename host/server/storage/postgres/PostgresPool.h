// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "host/server/storage/postgres/PostgresConnection.h"

namespace Tarvik::Server {

/// The connections of one process to one data base. Safe to call from any thread.
class PostgresPool {
  public:
    /// At most `most` connections, at least one; who needs another waits for one.
    /// A data base that is silent for `patience` is given up.
    PostgresPool(std::string connectionText, int most, std::chrono::milliseconds patience);

    /// A connection in a transaction of this mode. One that broke while it was idle is replaced, together
    /// with all idle ones, since what broke it has mostly broken them too. Throws SqlError when no
    /// connection can be made.
    std::unique_ptr<PostgresConnection> Take(SqlMode mode);
    /// Takes a connection back, wherever it stands: undoes what was not committed and ends it when it is
    /// broken.
    void GiveBack(std::unique_ptr<PostgresConnection> connection) noexcept;
    /// Breaks every connection; nobody gets one any more.
    void GiveUp();

  private:
    std::unique_ptr<PostgresConnection> TakeIdle();
    std::unique_ptr<PostgresConnection> Begin(SqlMode mode);
    std::unique_ptr<PostgresConnection> BeginIdle(SqlMode mode);
    void DropIdle() noexcept;

    std::string connectionText_;
    PostgresWatch watch_;
    std::mutex mutex_;
    bool givenUp_ = false;
    std::condition_variable freed_;
    int free_;  ///< connections that may still be taken
    std::vector<std::unique_ptr<PostgresConnection>> idle_;
};

/// A connection in a transaction for a scope; what was not committed at its end is undone.
class PostgresLease {
  public:
    PostgresLease(PostgresPool& pool, SqlMode mode) : pool_(pool), connection_(pool.Take(mode)) {}
    ~PostgresLease() { pool_.GiveBack(std::move(connection_)); }
    PostgresLease(const PostgresLease&) = delete;
    PostgresLease& operator=(const PostgresLease&) = delete;
    PostgresConnection& operator*() { return *connection_; }

  private:
    PostgresPool& pool_;
    std::unique_ptr<PostgresConnection> connection_;
};

}  // namespace Tarvik::Server
