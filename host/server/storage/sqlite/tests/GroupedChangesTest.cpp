// SPDX-License-Identifier: MIT
// Changes that wait for the file share one sync, and nothing else.
#include <atomic>
#include <set>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/server/storage/sqlite/SqliteDatabase.h"
#include "host/server/storage/sqlite/SqliteStorage.h"
#include "host/server/storage/sqlite/tests/FaultyVfs.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Tarvik::Server {

namespace {

using ::testing::HasSubstr;

constexpr int kChanges = 8;

class GroupedChangesTest : public ::testing::Test {
  protected:
    void Open(const SqliteOptions& options = {}) {
        storage_ = SqliteStorage::Open(folder_.File("voyages.db"), error_, options);
        ASSERT_NE(storage_, nullptr) << error_;
        category_ = storage_->Catalog().CreateCategory("ann", "first").Value();
    }
    /// Starts all changes while another process has the file, so that they wait together, then lets them go.
    void RunTogether(const std::vector<std::function<void()>>& changes) {
        SqliteDatabase other(folder_.File("voyages.db"));
        other.Execute("BEGIN IMMEDIATE");
        std::vector<std::thread> threads;
        threads.reserve(changes.size());
        for (const auto& change : changes) {
            threads.emplace_back(change);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        other.Execute("ROLLBACK");
        for (std::thread& thread : threads) {
            thread.join();
        }
    }
    std::function<void()> Creation(int number) {
        return [this, number] {
            EXPECT_TRUE(storage_->Catalog().CreateCategory("ann", std::to_string(number)));
            ++answered_;
        };
    }
    std::multiset<std::string> Names() {
        std::multiset<std::string> names;
        const auto catalog = storage_->Catalog().LoadCatalog("ann");
        for (const CategoryRecord& category : catalog.Value()) {
            names.insert(category.name);
        }
        return names;
    }

    FaultyVfs vfs_;
    TempFolder folder_;
    std::string error_;
    std::unique_ptr<SqliteStorage> storage_;
    std::string category_;
    std::atomic<int> answered_ = 0;
};

TEST_F(GroupedChangesTest, ShareOneSyncAndAreAnsweredBehindIt) {
    Open();
    int syncs = 0;
    std::vector<int> answeredAtSync;
    vfs_.TellSyncs([&] {
        ++syncs;
        // An answer that did not wait has its chance here.
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        answeredAtSync.push_back(answered_);
    });
    std::vector<std::function<void()>> changes;
    for (int i = 0; i < kChanges; ++i) {
        changes.push_back(Creation(i));
    }
    RunTogether(changes);
    vfs_.TellSyncs({});
    EXPECT_EQ(syncs, 1);
    EXPECT_EQ(answeredAtSync, std::vector<int>{0});
    EXPECT_EQ(Names().size(), 1U + kChanges);
}

TEST_F(GroupedChangesTest, RefusedOneIsUndoneAndTheOthersAreKept) {
    Open();
    VoyageRecord record;
    record.name = "V";
    const std::string voyage = storage_->Catalog().CreateVoyage("ann", category_, record).Value();
    ASSERT_TRUE(storage_->Schedule().ReplacePortCalls("ann", voyage, {{0, "1", "First", "L", 1, 0, 0}}));
    std::vector<std::function<void()>> changes = {[&] {
        // Refused when the old calls are gone already.
        const Status twice = storage_->Schedule().ReplacePortCalls(
            "ann", voyage, {{0, "1", "A", "L", 1, 0, 0}, {0, "1", "B", "L", 1, 0, 0}});
        ASSERT_FALSE(twice);
        EXPECT_EQ(twice.GetFault().reason, FaultReason::RowExists);
    }};
    for (int i = 0; i < kChanges; ++i) {
        changes.insert(changes.begin() + i / 2, Creation(i));
    }
    RunTogether(changes);
    EXPECT_EQ(Names().size(), 1U + kChanges);
    const auto calls = storage_->Schedule().LoadPortCalls("ann", voyage).Value();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].portName, "First");
}

TEST_F(GroupedChangesTest, OneThatFillsTheDiskFailsAndTheOthersAreKept) {
    Open({40});
    VoyageRecord record;
    record.name = "V";
    const std::string voyage = storage_->Catalog().CreateVoyage("ann", category_, record).Value();
    std::vector<PortCallRecord> many;
    many.reserve(1000);
    for (int i = 0; i < 1000; ++i) {
        many.push_back({i, "1", std::string(1000, 'n'), "D", 1, 0, 0});
    }
    std::vector<std::function<void()>> changes = {[&] {
        const Status status = storage_->Schedule().ReplacePortCalls("ann", voyage, many);
        ASSERT_FALSE(status);
        EXPECT_THAT(status.GetFault().detail, HasSubstr("full"));
    }};
    for (int i = 0; i < kChanges; ++i) {
        changes.insert(changes.begin() + i / 2, Creation(i));
    }
    RunTogether(changes);
    EXPECT_EQ(Names().size(), 1U + kChanges);
    EXPECT_TRUE(storage_->Schedule().LoadPortCalls("ann", voyage).Value().empty());
}

TEST_F(GroupedChangesTest, NoneIsASuccessThatDidNotReachTheDisk) {
    Open();
    vfs_.FailSyncs(true);
    std::atomic<int> succeeded = 0;
    const std::vector<std::function<void()>> changes(kChanges, [&] {
        succeeded += storage_->Catalog().CreateCategory("ann", "lost").Succeeded() ? 1 : 0;
    });
    RunTogether(changes);
    EXPECT_EQ(succeeded, 0);
    vfs_.FailSyncs(false);
    EXPECT_EQ(Names(), std::multiset<std::string>{"first"});
    EXPECT_TRUE(storage_->Catalog().CreateCategory("ann", "kept"));
}

TEST_F(GroupedChangesTest, ALossOfPowerLosesNothingConfirmed) {
    Open();
    constexpr int kEach = 25;
    std::vector<std::thread> threads;
    threads.reserve(kChanges);
    for (int t = 0; t < kChanges; ++t) {
        threads.emplace_back([&, t] {
            for (int i = 0; i < kEach; ++i) {
                Creation(t * kEach + i)();
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    const TempFolder after;
    vfs_.CutPower(folder_.File("."), after.File("."));
    const std::multiset<std::string> before = Names();
    EXPECT_EQ(before.size(), 1U + kChanges * kEach);
    storage_ = SqliteStorage::Open(after.File("voyages.db"), error_);
    ASSERT_NE(storage_, nullptr) << error_;
    EXPECT_EQ(Names(), before);
}

TEST_F(GroupedChangesTest, WaitForALockHasOneLimitWhereverItIsSpent) {
    EXPECT_EQ(SqliteOptions().patience, std::chrono::seconds(10));
    constexpr std::chrono::milliseconds kPatience{300};
    Open({0, kPatience});
    SqliteDatabase other(folder_.File("voyages.db"));
    other.Execute("BEGIN IMMEDIATE");
    const auto begin = std::chrono::steady_clock::now();
    std::vector<std::thread> threads;
    for (int i = 0; i < kChanges; ++i) {
        threads.emplace_back([&] {
            const auto made = storage_->Catalog().CreateCategory("ann", "A");
            ASSERT_FALSE(made);
            EXPECT_THAT(made.GetFault().detail, HasSubstr("locked"));
            EXPECT_GE(std::chrono::steady_clock::now() - begin, kPatience);
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    // One after the other they would have waited for longer.
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 6 * kPatience);
    other.Execute("ROLLBACK");
    EXPECT_TRUE(storage_->Catalog().CreateCategory("ann", "A"));
}

TEST_F(GroupedChangesTest, GivingUpEndsAllThatWait) {
    Open();
    SqliteDatabase other(folder_.File("voyages.db"));
    other.Execute("BEGIN IMMEDIATE");
    std::vector<std::thread> threads;
    threads.reserve(kChanges);
    for (int t = 0; t < kChanges; ++t) {
        threads.emplace_back([&] { EXPECT_FALSE(storage_->Catalog().CreateCategory("ann", "late")); });
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    const auto begin = std::chrono::steady_clock::now();
    storage_->GiveUp();
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
    other.Execute("ROLLBACK");
    EXPECT_EQ(Names(), std::multiset<std::string>{"first"});
}

}  // namespace
}  // namespace Tarvik::Server
