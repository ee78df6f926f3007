// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresStorage.h"

namespace Tarvik::Server {

std::unique_ptr<PostgresStorage> PostgresStorage::Open(const std::string& connectionText, std::string& error,
                                                       const PostgresOptions& options) {
    try {
        auto session = std::make_unique<PostgresSession>(connectionText, options);
        return std::unique_ptr<PostgresStorage>(new PostgresStorage(std::move(session)));
    } catch (const std::exception& failure) {
        error = failure.what();
        return nullptr;
    }
}

}  // namespace Tarvik::Server
