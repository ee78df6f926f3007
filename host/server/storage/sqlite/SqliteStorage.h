// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "host/server/storage/contract/Storage.h"
#include "host/server/storage/sqlite/SqliteCatalog.h"
#include "host/server/storage/sqlite/SqliteRemarks.h"
#include "host/server/storage/sqlite/SqliteSchedule.h"
#include "host/server/storage/sqlite/SqliteSession.h"
#include "host/server/storage/sqlite/SqliteTransfer.h"

namespace Tarvik::Server {

/// The storage in one SQLite file, with a write-ahead log beside it and every change synced to disk.
class SqliteStorage : public Storage {
  public:
    /// Opens the file, making it when there is none and bringing an older one to the present version. Null,
    /// with an English text in `error` and the file unchanged, when it cannot be opened, is no such data
    /// base, or was made by a newer program.
    static std::unique_ptr<SqliteStorage> Open(const std::string& path, std::string& error,
                                               const SqliteOptions& options = {});

    CatalogStorage& Catalog() override { return catalog_; }
    ScheduleStorage& Schedule() override { return schedule_; }
    RemarkStorage& Remarks() override { return remarks_; }
    /// Takes owners out and puts them in, as export and import do.
    TransferStorage& Transfer() { return transfer_; }

  private:
    SqliteStorage(const std::string& path, const SqliteOptions& options);

    SqliteSession session_;
    SqliteCatalog catalog_;
    SqliteSchedule schedule_;
    SqliteRemarks remarks_;
    SqliteTransfer transfer_;
};

}  // namespace Tarvik::Server
