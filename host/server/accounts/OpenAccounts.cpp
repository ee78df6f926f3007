// SPDX-License-Identifier: MIT
#include "host/server/accounts/SqlAccounts.h"
#include "host/server/storage/sqlite/SqliteStorage.h"

namespace Tarvik::Server {

namespace {

/// Tells an accounts file from every other data base ("SPac").
constexpr std::int64_t kApplicationId = 0x53506163;

const std::vector<std::string_view>& Steps() {
    static const std::vector<std::string_view> all = {R"sql(
CREATE TABLE users (
    name TEXT PRIMARY KEY,
    password TEXT NOT NULL,
    disabled INTEGER NOT NULL DEFAULT 0 CHECK (disabled IN (0, 1))
) STRICT, WITHOUT ROWID;
CREATE TABLE sessions (
    token TEXT PRIMARY KEY,
    name TEXT NOT NULL REFERENCES users (name),
    expires INTEGER NOT NULL
) STRICT, WITHOUT ROWID;
CREATE INDEX sessions_by_name ON sessions (name);
CREATE INDEX sessions_by_expiry ON sessions (expires);
)sql"};
    return all;
}

/// Accounts over the session that `open` makes.
template <class Open>
std::unique_ptr<AccountStorage> Opened(std::string& error, Open&& open) {
    try {
        return std::make_unique<SqlAccounts>(open());
    } catch (const std::exception& failure) {
        error = failure.what();
        return nullptr;
    }
}

}  // namespace

std::unique_ptr<AccountStorage> OpenSqliteAccounts(const std::string& path, std::string& error) {
    return Opened(error, [&path] {
        const SqliteSchema schema{Steps(), kApplicationId, "the file is a data base of another kind"};
        return std::make_unique<SqliteSession>(path, schema);
    });
}

std::unique_ptr<AccountStorage> OpenPostgresAccounts(const std::string& connectionText, std::string& error,
                                                     const PostgresOptions& options) {
    return Opened(error, [&] { return std::make_unique<PostgresSession>(connectionText, options); });
}

}  // namespace Tarvik::Server
