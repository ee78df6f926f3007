// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "host/server/storage/postgres/PostgresSession.h"
#include "host/server/storage/sql/SqlStorage.h"

namespace Tarvik::Server {

/// The storage in a PostgreSQL data base, which any number of processes share. Changes of one voyage are made
/// one after the other, whichever process makes them. When the connection breaks while a change is being
/// committed, the operation fails although the change may be stored.
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
