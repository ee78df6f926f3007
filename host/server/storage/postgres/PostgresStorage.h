// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "host/server/storage/postgres/PostgresPool.h"
#include "host/server/storage/sql/SqlStorage.h"

namespace Tarvik::Server {

/// Limits of the use of a data base server.
struct PostgresOptions {
    int connections = 8;  ///< most at the same time, at least 1
    std::chrono::milliseconds patience =
        kSilencePatience;  ///< a data base that is silent for longer is given up
};

/// Runs each operation on a connection of its own. When the connection breaks while a change is being
/// committed, the operation fails with FaultReason::MaybeStored.
class PostgresSession : public SqlSession {
  public:
    /// Connects and brings the data base to the present version; throws SqlError.
    PostgresSession(const std::string& connectionText, const PostgresOptions& options);

    void GiveUp() override { pool_.GiveUp(); }

  protected:
    void Transact(SqlMode mode, const Transaction& work) override;

  private:
    PostgresPool pool_;
};

/// The storage in a PostgreSQL data base, which any number of processes share. Changes of one voyage are made
/// one after the other, whichever process makes them. When the connection breaks while a change is being
/// committed, the operation fails with FaultReason::MaybeStored.
class PostgresStorage : public SqlStorage {
  public:
    /// Connects and brings an empty or older data base to the present version. `connectionText` is
    /// `key=value` pairs or a `postgresql://` address. Null, with an English text without passwords in
    /// `error` and the data base unchanged, when it cannot be used or was made by a newer program.
    static std::unique_ptr<PostgresStorage> Open(const std::string& connectionText, std::string& error,
                                                 const PostgresOptions& options = {});

  private:
    using SqlStorage::SqlStorage;
};

}  // namespace Tarvik::Server
