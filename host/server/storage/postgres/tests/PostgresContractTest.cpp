// SPDX-License-Identifier: MIT
#include <stdexcept>

#include "host/server/storage/contract/tests/StorageContract.h"
#include "host/server/storage/postgres/PostgresStorage.h"
#include "host/server/storage/postgres/tests/PostgresServer.h"

namespace Tarvik::Server {

namespace {

class PostgresBackend : public StorageBackend {
  public:
    PostgresBackend() { Reopen(); }
    Storage& Get() override { return *storage_; }
    void Reopen() override {
        storage_.reset();
        std::string error;
        storage_ = PostgresStorage::Open(connection_, error);
        if (storage_ == nullptr) {
            throw std::runtime_error(error);
        }
    }

  private:
    std::string connection_ = PostgresServer::Instance().MakeDatabase();
    std::unique_ptr<PostgresStorage> storage_;
};

std::unique_ptr<StorageBackend> MakePostgres() {
    return std::make_unique<PostgresBackend>();
}

INSTANTIATE_TEST_SUITE_P(Postgres, StorageContract, ::testing::Values(&MakePostgres));

}  // namespace
}  // namespace Tarvik::Server
