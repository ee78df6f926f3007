// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresConnection.h"
#include "host/server/storage/postgres/PostgresStorage.h"

namespace Tarvik::Server {

PostgresSession::PostgresSession(const std::string& connectionText, const PostgresOptions& options)
    : pool_(connectionText, options.connections, options.patience) {
    PostgresLease lease(pool_, SqlMode::Write);
    MigratePostgres(*lease);
    (*lease).Commit();
}

void PostgresSession::Transact(SqlMode mode, const Transaction& work) {
    PostgresLease lease(pool_, mode);
    if (work(*lease)) {
        (*lease).Commit();
    }
}

}  // namespace Tarvik::Server
