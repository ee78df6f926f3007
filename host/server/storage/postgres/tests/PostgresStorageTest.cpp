// SPDX-License-Identifier: MIT
#include <atomic>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "host/server/storage/postgres/tests/PostgresTest.h"

namespace Tarvik::Server {

namespace {

using Mode = PostgresConnection::Mode;

using PostgresStorageTest = PostgresTest;

TEST_F(PostgresStorageTest, RequestAfterABreakIsAnswered) {
    const auto storage = Open();
    ASSERT_NE(storage, nullptr) << error_;
    for (int round = 0; round < 3; ++round) {
        ASSERT_TRUE(storage->Catalog().CreateCategory("ann", "A"));
        BreakConnections();
        EXPECT_EQ(storage->Catalog().LoadCatalog("ann").Value().size(), static_cast<std::size_t>(round + 1));
    }
}

TEST_F(PostgresStorageTest, RequestThatABreakMeetsFailsWholeAndTheNextSucceeds) {
    const auto storage = Open();
    ASSERT_NE(storage, nullptr) << error_;
    const std::string voyage = MakeVoyage(*storage);
    ASSERT_TRUE(storage->Schedule().ReplacePortCalls("ann", voyage, {{0, "1", "First", "L", 1, 0, 0}}));
    PostgresConnection holder(connection_);
    holder.Begin(Mode::Write);
    holder.Execute("LOCK TABLE port_calls IN ACCESS EXCLUSIVE MODE");
    std::thread writer([&] {
        const Status met =
            storage->Schedule().ReplacePortCalls("ann", voyage, {{0, "2", "New", "L", 1, 0, 0}});
        EXPECT_EQ(met ? FaultReason::RowExists : met.GetFault().reason, FaultReason::StorageFailed);
    });
    // The writer is within its transaction once it waits for the table.
    const std::string waiting = "FROM pg_locks WHERE NOT granted AND relation = 'port_calls'::regclass";
    while (holder.Execute("SELECT count(*) " + waiting).Integer(0, 0) == 0) {
    }
    holder.Execute("SELECT pg_terminate_backend(pid, 60000) " + waiting);
    writer.join();
    holder.Rollback();
    EXPECT_EQ(storage->Schedule().LoadPortCalls("ann", voyage).Value().at(0).portName, "First");
    EXPECT_TRUE(storage->Schedule().ReplacePortCalls("ann", voyage, {}));
}

TEST_F(PostgresStorageTest, SavesOfOneVoyageAreNeverMixed) {
    const auto first = Open();
    const auto second = Open();
    ASSERT_NE(second, nullptr) << error_;
    const std::string voyage = MakeVoyage(*first);
    const auto write = [&](int number) {
        Storage& storage = number % 2 == 0 ? *first : *second;
        for (int round = 0; round < 20; ++round) {
            std::vector<PortCallRecord> calls;
            for (int i = 0; i <= number; ++i) {
                calls.push_back({i, "1", std::to_string(number), "L", 1, 0, 0});
            }
            EXPECT_TRUE(storage.Schedule().ReplacePortCalls("ann", voyage, calls));
            const auto read = storage.Schedule().LoadPortCalls("ann", voyage).Value();
            ASSERT_FALSE(read.empty());
            EXPECT_EQ(std::to_string(read.size() - 1), read.front().portName);
            EXPECT_EQ(read.front().portName, read.back().portName);
        }
    };
    Together(8, write);
}

TEST_F(PostgresStorageTest, EveryAdditionToOneVoyageIsThere) {
    const auto first = Open();
    const auto second = Open();
    ASSERT_NE(second, nullptr) << error_;
    const std::string voyage = MakeVoyage(*first);
    Together(8, [&](int number) {
        Storage& storage = number % 2 == 0 ? *first : *second;
        for (int i = 0; i < 10; ++i) {
            EXPECT_TRUE(storage.Schedule().AddAisTime("ann", voyage, std::to_string(10 * number + i)));
        }
    });
    EXPECT_EQ(first->Schedule().LoadAisTimes("ann", voyage).Value().size(), 80U);
}

TEST_F(PostgresStorageTest, OneOfManyMakesTheBook) {
    const auto storage = Open();
    ASSERT_NE(storage, nullptr) << error_;
    const std::string voyage = MakeVoyage(*storage);
    std::atomic<int> made = 0;
    Together(8, [&](int) {
        const auto book = storage->Schedule().CreateBook("ann", voyage, "2026-03-01 08:00:00");
        if (book) {
            ++made;
        } else {
            EXPECT_EQ(book.GetFault().reason, FaultReason::BookExists);
        }
    });
    EXPECT_EQ(made, 1);
}

TEST_F(PostgresStorageTest, CategoryInTheBinGetsNoNewVoyage) {
    const auto storage = Open();
    ASSERT_NE(storage, nullptr) << error_;
    for (int round = 0; round < 10; ++round) {
        const std::string category = storage->Catalog().CreateCategory("ann", "A").Value();
        Together(4, [&](int number) {
            if (number > 0) {
                static_cast<void>(storage->Catalog().CreateVoyage("ann", category, {}));
                return;
            }
            EXPECT_TRUE(storage->Catalog().MoveCategory("ann", category, DeletionState::InBin));
            const auto binned = storage->Catalog().LoadCatalog("ann").Value().back().voyages.size();
            EXPECT_EQ(storage->Catalog().LoadCatalog("ann").Value().back().voyages.size(), binned);
        });
    }
}

TEST_F(PostgresStorageTest, TextsOfAnyLengthAreStoredExactlyAndZeroBytesRefused) {
    const auto storage = Open();
    ASSERT_NE(storage, nullptr) << error_;
    const std::string voyage = MakeVoyage(*storage);
    const std::string name = "{\"a\\b\",NULL} 船 ''" + std::string(1024U * 1024U, 'n');
    ASSERT_TRUE(
        storage->Schedule().ReplacePortCalls("ann", voyage, {{0, "NULL", name, "", -0.0, 0.1, 1e-300}}));
    const auto calls = storage->Schedule().LoadPortCalls("ann", voyage).Value();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0], (PortCallRecord{0, "NULL", name, "", -0.0, 0.1, 1e-300}));
    std::string object = voyage;
    for (int i = 0; i < 2000; ++i) {
        object += std::to_string(i * 7919);
    }
    EXPECT_TRUE(storage->Remarks().AddRemark("ann", {kPortCallRemark, object}, {1, "s", "b", 1, 1}));
    EXPECT_EQ(storage->Remarks().LoadRemarks("ann", {kPortCallRemark, object}).Value().size(), 1U);
    const Status refused = storage->Catalog().RenameVoyage("ann", voyage, std::string("a\0b", 3));
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.GetFault().detail, "the data base keeps no text with a zero byte");
    EXPECT_EQ(storage->Catalog().LoadCatalog("ann").Value()[0].voyages[0].name, "V");
}

TEST_F(PostgresStorageTest, MoreThreadsThanConnectionsWaitForOne) {
    const auto storage = PostgresStorage::Open(connection_, error_, {1});
    ASSERT_NE(storage, nullptr) << error_;
    Together(6, [&](int) {
        for (int i = 0; i < 5; ++i) {
            EXPECT_TRUE(storage->Catalog().CreateCategory("ann", "A"));
        }
    });
    EXPECT_EQ(storage->Catalog().LoadCatalog("ann").Value().size(), 30U);
    EXPECT_EQ(Query("SELECT count(*) FROM pg_stat_activity WHERE datname = current_database() "
                    "AND pid <> pg_backend_pid()"),
              "1");
}

TEST_F(PostgresStorageTest, ChangesAreSyncedEvenWhereTheDataBaseIsSetOtherwise) {
    Execute(
        "DO $$ BEGIN EXECUTE format('ALTER DATABASE %I SET synchronous_commit = off', "
        "current_database()); END $$");
    EXPECT_EQ(Query("SHOW synchronous_commit"), "on");
}

TEST_F(PostgresStorageTest, UnreachableServerIsToldWithoutThePassword) {
    const std::string secret = "q3e7w9";
    const std::string folder = PostgresServer::Instance().SocketFolder();
    for (const std::string& text :
         {fmt::format("host={}/none user=seaplan password={}", folder, secret),
          fmt::format("host={0} user=nobody_{1} dbname=none password={1}", folder, secret),
          fmt::format("postgresql://seaplan:{0}@%2Fnone/{0}", secret)}) {
        EXPECT_EQ(PostgresStorage::Open(text, error_), nullptr);
        EXPECT_FALSE(error_.empty());
        EXPECT_EQ(error_.find(secret), std::string::npos) << error_;
        EXPECT_EQ(error_.find('\n'), std::string::npos) << error_;
    }
}

}  // namespace
}  // namespace Tarvik::Server
