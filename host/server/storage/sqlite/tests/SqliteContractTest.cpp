// SPDX-License-Identifier: MIT
#include <stdexcept>

#include "host/server/storage/contract/tests/StorageContract.h"
#include "host/server/storage/sqlite/SqliteStorage.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Tarvik::Server {

namespace {

class SqliteBackend : public StorageBackend {
  public:
    SqliteBackend() { Reopen(); }
    Storage& Get() override { return *storage_; }
    void Reopen() override {
        storage_.reset();
        std::string error;
        storage_ = SqliteStorage::Open(folder_.File("voyages.db"), error);
        if (storage_ == nullptr) {
            throw std::runtime_error(error);
        }
    }

  private:
    TempFolder folder_;
    std::unique_ptr<SqliteStorage> storage_;
};

std::unique_ptr<StorageBackend> MakeSqlite() {
    return std::make_unique<SqliteBackend>();
}

INSTANTIATE_TEST_SUITE_P(Sqlite, StorageContract, ::testing::Values(&MakeSqlite));

}  // namespace
}  // namespace Tarvik::Server
