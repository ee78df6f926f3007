// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "host/server/storage/contract/TransferStorage.h"
#include "host/server/storage/postgres/PostgresSession.h"

namespace Tarvik::Server {

/// Takes owners out of a PostgreSQL data base and puts them in, beside the servers that are using it.
class PostgresTransfer : public TransferStorage {
  public:
    /// Connects and brings an empty or older data base to the present version. Null, with an English text
    /// without passwords in `error`, when it cannot be used.
    static std::unique_ptr<PostgresTransfer> Open(const std::string& connectionText, std::string& error);

    Outcome<std::vector<std::string>> ListOwners() override;
    Outcome<OwnerCopy> ReadOwner(const std::string& owner) override;
    Outcome<AddReport> AddOwners(const CopyManifest& manifest, const OwnerSource& source) override;

  private:
    explicit PostgresTransfer(const std::string& connectionText) : session_(connectionText, {1}) {}

    PostgresSession session_;
};

}  // namespace Tarvik::Server
