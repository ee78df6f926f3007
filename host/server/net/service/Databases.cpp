// SPDX-License-Identifier: MIT
#include <filesystem>

#include "host/server/accounts/SqlAccounts.h"
#include "host/server/net/service/Resources.h"
#include "host/server/storage/postgres/PostgresConnection.h"
#include "host/server/storage/postgres/PostgresStorage.h"
#include "host/server/storage/sqlite/SqliteStorage.h"

namespace Tarvik::Server {

namespace {

/// Every thread that reads or changes may have a connection.
PostgresOptions VoyageOptions(const Settings& settings) {
    PostgresOptions options;
    options.connections = settings.workers + WritersOf(settings);
    return options;
}

/// Of users and sessions the most is known without the data base, so that some wait for a connection.
PostgresOptions AccountOptions(const Settings& settings) {
    PostgresOptions options;
    options.connections = 2 * settings.workers + 1;
    return options;
}

/// The opened one as what it implements; null with the reason behind `what` in `error`.
template <class Interface, class Opened>
std::unique_ptr<Interface> Checked(std::unique_ptr<Opened> opened, const std::string& what,
                                   const std::string& reason, std::string& error) {
    if (opened == nullptr) {
        error = what + " cannot be used: " + reason;
    }
    return opened;
}

}  // namespace

bool PrepareDataFolder(const Settings& settings, std::string& error) {
    namespace fs = std::filesystem;
    if (!settings.database.empty()) {
        return true;
    }
    std::error_code failed;
    const bool made = fs::create_directories(settings.data, failed);
    if (made) {
        fs::permissions(settings.data, fs::perms::owner_all, failed);
    }
    if (failed) {
        error = "the data folder " + settings.data + " cannot be made: " + failed.message();
    }
    return !failed;
}

std::unique_ptr<AccountStorage> OpenAccounts(const Settings& settings, std::string& error) {
    std::string reason;
    if (!settings.database.empty()) {
        auto accounts = OpenPostgresAccounts(settings.database, reason, AccountOptions(settings));
        return Checked<AccountStorage>(std::move(accounts), "the data base " + DescribeData(settings), reason,
                                       error);
    }
    const std::string path = settings.data + "/accounts.db";
    auto accounts = OpenSqliteAccounts(path, reason);
    return Checked<AccountStorage>(std::move(accounts), "the accounts " + path, reason, error);
}

std::unique_ptr<SqlStorage> OpenVoyages(const Settings& settings, std::string& error) {
    std::string reason;
    if (!settings.database.empty()) {
        auto storage = PostgresStorage::Open(settings.database, reason, VoyageOptions(settings));
        return Checked<SqlStorage>(std::move(storage), "the data base " + DescribeData(settings), reason,
                                   error);
    }
    const std::string path = settings.data + "/voyages.db";
    auto storage = SqliteStorage::Open(path, reason);
    return Checked<SqlStorage>(std::move(storage), "the voyages " + path, reason, error);
}

std::string DescribeData(const Settings& settings) {
    return settings.database.empty() ? settings.data : DescribeConnection(settings.database);
}

}  // namespace Tarvik::Server
