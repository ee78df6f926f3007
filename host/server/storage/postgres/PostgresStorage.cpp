// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresStorage.h"

namespace Tarvik::Server {

PostgresStorage::PostgresStorage(const std::string& connectionText, const PostgresOptions& options)
    : session_(connectionText, options), catalog_(session_), schedule_(session_), remarks_(session_) {}

std::unique_ptr<PostgresStorage> PostgresStorage::Open(const std::string& connectionText, std::string& error,
                                                       const PostgresOptions& options) {
    try {
        return std::unique_ptr<PostgresStorage>(new PostgresStorage(connectionText, options));
    } catch (const std::exception& failure) {
        error = failure.what();
        return nullptr;
    }
}

}  // namespace Tarvik::Server
