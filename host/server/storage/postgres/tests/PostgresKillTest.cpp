// SPDX-License-Identifier: MIT
#include "host/server/storage/contract/tests/KilledWriter.h"
#include "host/server/storage/postgres/PostgresStorage.h"
#include "host/server/storage/postgres/tests/PostgresServer.h"
#include "host/server/storage/sqlite/tests/WriteScript.h"

#include <gtest/gtest.h>

#include <random>

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
    std::mt19937 random_{20260301};
};

TEST_F(PostgresKillTest, KilledWriterLeavesEveryConfirmedChangeAndNoHalfOne) {
    ASSERT_TRUE(WriteScript::Prepare(*Open())) << error_;
    WrittenData expected = WriteScript::Start();
    int number = 0;
    int halfWay = 0;
    constexpr int kRounds = 24;
    for (int round = 0; round < kRounds; ++round) {
        const int writes = 10 + static_cast<int>(random_() % 10);
        const WriterWords words = WriteAndKill([this] { return Open(); }, number, writes, random_);
        ASSERT_TRUE(words.killed) << "the writer ended by itself in round " << round;
        ASSERT_GE(words.begun, words.confirmed);
        ASSERT_LE(words.begun, words.confirmed + 1);
        halfWay += words.begun - words.confirmed;
        for (int i = 0; i < words.confirmed; ++i) WriteScript::Apply(expected, number++);
        WaitForItsTransactions();
        const auto storage = Open();
        ASSERT_NE(storage, nullptr) << error_;
        const WrittenData stored = WriteScript::Read(*storage);
        if (stored != expected && words.begun > words.confirmed) WriteScript::Apply(expected, number++);
        ASSERT_EQ(stored, expected) << "round " << round << ", write " << number;
    }
    EXPECT_GE(number, 200);
    EXPECT_GT(halfWay, 0) << "no round killed a writer within a write";
}

}  // namespace
}  // namespace Tarvik::Server
