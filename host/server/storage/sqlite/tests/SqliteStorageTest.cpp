// SPDX-License-Identifier: MIT
#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/server/storage/sqlite/SqliteDatabase.h"
#include "host/server/storage/sqlite/SqliteMigrator.h"
#include "host/server/storage/sqlite/SqliteStorage.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Tarvik::Server {

namespace {

using ::testing::HasSubstr;

class SqliteStorageTest : public ::testing::Test {
  protected:
    std::unique_ptr<SqliteStorage> Open(const SqliteOptions& options = {}) {
        return SqliteStorage::Open(path_, error_, options);
    }
    std::string Bytes() const {
        std::ifstream file(path_, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    TempFolder folder_;
    std::string path_ = folder_.File("voyages.db");
    std::string error_;
};

TEST_F(SqliteStorageTest, NewFileHasTheNewestVersionAndSyncsEveryChange) {
    ASSERT_NE(Open(), nullptr) << error_;
    SqliteDatabase database(path_);
    EXPECT_EQ(database.QueryInteger("PRAGMA user_version"), static_cast<std::int64_t>(Migrations().size()));
    EXPECT_EQ(database.QueryInteger("SELECT 'wal' = (SELECT journal_mode FROM pragma_journal_mode)"), 1);
}

TEST_F(SqliteStorageTest, FilesAreForTheirOwnerOnly) {
    constexpr auto kOwner = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
    const mode_t before = ::umask(0);
    for (int round = 0; round < 2; ++round) {
        const auto storage = Open();
        ASSERT_NE(storage, nullptr) << error_;
        ASSERT_TRUE(storage->Catalog().CreateCategory("ann", "A"));
        EXPECT_EQ(std::filesystem::status(path_).permissions(), kOwner);
        EXPECT_EQ(std::filesystem::status(path_ + "-wal").permissions(), kOwner);
        // As an earlier program left it.
        std::filesystem::permissions(path_, std::filesystem::perms::all);
    }
    ::umask(before);
}

TEST_F(SqliteStorageTest, CheckFindsAFileThatTakesNoChanges) {
    const auto storage = Open();
    ASSERT_NE(storage, nullptr) << error_;
    EXPECT_TRUE(storage->Check());
    SqliteDatabase(path_).Execute("ALTER TABLE next_id RENAME TO gone");
    EXPECT_FALSE(storage->Check());
}

TEST_F(SqliteStorageTest, OlderFileIsBroughtToTheNewestVersionWithItsData) {
    {
        SqliteDatabase database(path_);
        database.Execute(Migrations()[0]);
        database.Execute("PRAGMA user_version = 1");
        database.Execute("INSERT INTO categories (owner, ci, cn) VALUES ('ann', '1000001', 'Old')");
        database.Execute("UPDATE next_id SET value = 1000002");
    }
    auto storage = Open();
    ASSERT_NE(storage, nullptr) << error_;
    EXPECT_EQ(storage->Catalog().LoadCatalog("ann").Value().at(0).name, "Old");
    EXPECT_TRUE(storage->Remarks().AddRemark("ann", {kCategoryRemark, "1000001"}, {1, "", "", 1, 1}));
    EXPECT_EQ(storage->Catalog().CreateCategory("ann", "New").Value(), "1000002");
}

TEST_F(SqliteStorageTest, NewerFileIsRefusedAndUnchanged) {
    {
        SqliteDatabase database(path_);
        database.Execute("CREATE TABLE future (x); PRAGMA user_version = 999");
    }
    const std::string before = Bytes();
    EXPECT_EQ(Open(), nullptr);
    EXPECT_THAT(error_, HasSubstr("version 999"));
    EXPECT_THAT(error_, HasSubstr("newer program"));
    EXPECT_EQ(Bytes(), before);
}

TEST_F(SqliteStorageTest, DataBaseOfAnotherProgramIsRefusedAndUnchanged) {
    {
        SqliteDatabase database(path_);
        database.Execute("CREATE TABLE stamps (x)");
    }
    const std::string before = Bytes();
    EXPECT_EQ(Open(), nullptr);
    EXPECT_THAT(error_, HasSubstr("another program"));
    EXPECT_EQ(Bytes(), before);
}

TEST_F(SqliteStorageTest, FileThatIsNoDataBaseIsRefusedAndUnchanged) {
    const std::string garbage(8192, 'x');
    std::ofstream(path_, std::ios::binary) << garbage;
    EXPECT_EQ(Open(), nullptr);
    EXPECT_THAT(error_, HasSubstr("not a database"));
    EXPECT_EQ(Bytes(), garbage);
}

TEST_F(SqliteStorageTest, FolderThatCannotHoldAFileIsRefused) {
    for (const std::string& path : {folder_.File("none/voyages.db"), std::string("/proc/voyages.db")}) {
        error_.clear();
        EXPECT_EQ(SqliteStorage::Open(path, error_), nullptr);
        EXPECT_THAT(error_, HasSubstr("cannot open")) << path;
    }
}

TEST_F(SqliteStorageTest, FailedMigrationLeavesTheFileEmpty) {
    EXPECT_EQ(Open({3}), nullptr);
    EXPECT_THAT(error_, HasSubstr("full"));
    SqliteDatabase database(path_);
    EXPECT_EQ(database.QueryInteger("PRAGMA user_version"), 0);
    EXPECT_EQ(database.QueryInteger("SELECT count(*) FROM sqlite_master"), 0);
}

TEST_F(SqliteStorageTest, FullFileFailsTheChangeWholeAndStillReads) {
    auto storage = Open({40});
    ASSERT_NE(storage, nullptr) << error_;
    const std::string category = storage->Catalog().CreateCategory("ann", "A").Value();
    VoyageRecord record;
    record.name = "V";
    const std::string voyage = storage->Catalog().CreateVoyage("ann", category, record).Value();
    ASSERT_TRUE(storage->Schedule().ReplacePortCalls("ann", voyage, {{0, "1", "First", "L", 1, 0, 0}}));
    std::vector<PortCallRecord> many;
    many.reserve(1000);
    for (int i = 0; i < 1000; ++i) {
        many.push_back({i, "1", std::string(1000, 'n'), "D", 1, 0, 0});
    }
    const Status status = storage->Schedule().ReplacePortCalls("ann", voyage, many);
    ASSERT_FALSE(status);
    EXPECT_EQ(status.GetFault().Kind(), FaultKind::Failed);
    EXPECT_THAT(status.GetFault().detail, HasSubstr("full"));
    const auto calls = storage->Schedule().LoadPortCalls("ann", voyage).Value();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].portName, "First");
    EXPECT_TRUE(storage->Catalog().RenameCategory("ann", category, "B"));
}

TEST_F(SqliteStorageTest, TwoProcessesOnOneFileGiveOutDifferentIds) {
    auto first = Open();
    auto second = Open();
    ASSERT_NE(second, nullptr) << error_;
    EXPECT_EQ(first->Catalog().CreateCategory("ann", "A").Value(), "1000001");
    EXPECT_EQ(second->Catalog().CreateCategory("bob", "B").Value(), "1000002");
    EXPECT_EQ(first->Catalog().LoadCatalog("bob").Value().size(), 1U);
}

TEST_F(SqliteStorageTest, ThreadsMayShareTheStorage) {
    auto storage = Open();
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&storage, owner = "user" + std::to_string(t)] {
            for (int i = 0; i < 25; ++i) {
                EXPECT_TRUE(storage->Catalog().CreateCategory(owner, "C"));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (int t = 0; t < 4; ++t) {
        EXPECT_EQ(storage->Catalog().LoadCatalog("user" + std::to_string(t)).Value().size(), 25U);
    }
    EXPECT_EQ(storage->Catalog().CreateCategory("ann", "A").Value(), "1000101");
}

TEST_F(SqliteStorageTest, ReadersSeeOnlyWholeChangesAndWaitForNoWriter) {
    auto storage = Open();
    const std::string category = storage->Catalog().CreateCategory("ann", "A").Value();
    VoyageRecord record;
    record.name = "V";
    const std::string voyage = storage->Catalog().CreateVoyage("ann", category, record).Value();
    const auto write = [&](int round) {
        std::vector<PortCallRecord> all;
        for (int i = 0; i <= round % 20; ++i) {
            all.push_back({i, "1", std::to_string(round), "L", 1, 0, 0});
        }
        EXPECT_TRUE(storage->Schedule().ReplacePortCalls("ann", voyage, all));
    };
    write(0);
    std::atomic<bool> writing = true;
    std::thread writer([&] {
        for (int round = 1; round <= 100; ++round) {
            write(round);
        }
        writing = false;
    });
    std::vector<std::thread> readers;
    readers.reserve(3);
    for (int r = 0; r < 3; ++r) {
        readers.emplace_back([&] {
            do {
                const auto calls = storage->Schedule().LoadPortCalls("ann", voyage);
                ASSERT_TRUE(calls);
                const int round = std::stoi(calls.Value().at(0).portName);
                EXPECT_EQ(calls.Value().size(), static_cast<std::size_t>(round % 20 + 1));
                EXPECT_EQ(calls.Value().back().portName, calls.Value().front().portName);
            } while (writing);
        });
    }
    writer.join();
    for (std::thread& reader : readers) {
        reader.join();
    }
}

TEST_F(SqliteStorageTest, DataBaseInMemoryIsReadAndWrittenLikeAFile) {
    auto storage = SqliteStorage::Open(":memory:", error_);
    ASSERT_NE(storage, nullptr) << error_;
    EXPECT_EQ(storage->Catalog().CreateCategory("ann", "A").Value(), "1000001");
    EXPECT_EQ(storage->Catalog().LoadCatalog("ann").Value().at(0).name, "A");
    EXPECT_TRUE(SqliteStorage::Open(":memory:", error_)->Catalog().LoadCatalog("ann").Value().empty());
}

}  // namespace
}  // namespace Tarvik::Server
