// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/storage/contract/TransferStorage.h"
#include "host/server/storage/sqlite/SqliteSession.h"

namespace Tarvik::Server {

/// Takes owners out of an SQLite file and puts them in.
class SqliteTransfer : public TransferStorage {
  public:
    explicit SqliteTransfer(SqliteSession& session) : session_(session) {}

    Outcome<std::vector<std::string>> ListOwners() override;
    Outcome<OwnerCopy> ReadOwner(const std::string& owner) override;
    Outcome<AddReport> AddOwners(const CopyManifest& manifest, const OwnerSource& source) override;

  private:
    SqliteSession& session_;
};

}  // namespace Tarvik::Server
