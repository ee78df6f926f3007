// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/server/storage/contract/tests/KilledWriter.h"
#include "host/server/storage/postgres/PostgresStorage.h"
#include "host/server/storage/postgres/tests/PostgresServer.h"

namespace Tarvik::Server {

namespace {

class PostgresKillTest : public ::testing::Test {
  protected:
    std::unique_ptr<PostgresStorage> Open() { return PostgresStorage::Open(connection_, error_); }
    /// Returns when no transaction of the killed process is on its way any more: the data base server goes on
    /// with what it was told before the process died.
    void WaitForItsTransactions() {
        PostgresConnection connection(connection_);
        connection.Begin(PostgresConnection::Mode::Write);
        connection.Execute("LOCK TABLE categories, port_calls, book_rows IN ACCESS EXCLUSIVE MODE");
        connection.Commit();
    }

    std::string connection_ = PostgresServer::Instance(PostgresServer::Disk::Awaited).MakeDatabase();
    std::string error_;
};

TEST_F(PostgresKillTest, KilledWriterLeavesEveryConfirmedChangeAndNoHalfOne) {
    ExpectKilledWritersLeaveNoHalfChange([this] { return Open(); }, [this] { WaitForItsTransactions(); });
}

TEST_F(PostgresKillTest, KilledGroupsLoseNothingConfirmed) {
    ExpectKilledGroupsLoseNothingConfirmed([this] { return Open(); }, [this] { WaitForItsTransactions(); });
}

}  // namespace
}  // namespace Tarvik::Server
