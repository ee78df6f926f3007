// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "host/server/storage/contract/CatalogStorage.h"
#include "host/server/storage/postgres/PostgresStorage.h"
#include "host/server/storage/postgres/tests/PostgresServer.h"

namespace Tarvik::Server {

/// Runs `work(number)` on so many threads at the same time.
inline void Together(int count, const std::function<void(int)>& work) {
    std::vector<std::thread> threads;
    threads.reserve(static_cast<std::size_t>(count));
    for (int number = 0; number < count; ++number) {
        threads.emplace_back(work, number);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

/// A data base of the test's own, still empty.
class PostgresTest : public ::testing::Test {
  protected:
    std::unique_ptr<PostgresStorage> Open() { return PostgresStorage::Open(connection_, error_); }
    void Execute(const std::string& sql) {
        PostgresConnection connection(connection_);
        connection.Begin(PostgresConnection::Mode::Write);
        connection.Execute(sql);
        connection.Commit();
    }
    std::string Query(const std::string& sql) {
        PostgresConnection connection(connection_);
        connection.Begin(PostgresConnection::Mode::Read);
        return connection.Execute(sql).Text(0, 0);
    }
    std::string Tables() {
        return Query(
            "SELECT coalesce(string_agg(relname, ' ' ORDER BY relname), '') FROM pg_class "
            "WHERE relnamespace = 'public'::regnamespace AND relkind IN ('r', 'S')");
    }
    /// A voyage of ann.
    static std::string MakeVoyage(Storage& storage) {
        VoyageRecord record;
        record.name = "V";
        return storage.Catalog()
            .CreateVoyage("ann", storage.Catalog().CreateCategory("ann", "A").Value(), record)
            .Value();
    }
    /// Breaks every connection to the data base but the asking one.
    void BreakConnections() {
        Query(
            "SELECT count(pg_terminate_backend(pid, 60000)) FROM pg_stat_activity "
            "WHERE datname = current_database() AND pid <> pg_backend_pid()");
    }

    std::string connection_ = PostgresServer::Instance().MakeDatabase();
    std::string error_;
};

}  // namespace Tarvik::Server
