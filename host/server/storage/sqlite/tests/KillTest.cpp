// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/server/storage/contract/tests/KilledWriter.h"
#include "host/server/storage/sqlite/SqliteDatabase.h"
#include "host/server/storage/sqlite/SqliteStorage.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Tarvik::Server {

namespace {

TEST(KillTest, KilledWriterLeavesEveryConfirmedChangeAndNoHalfOne) {
    const TempFolder folder;
    const std::string path = folder.File("voyages.db");
    std::string error;
    ExpectKilledWritersLeaveNoHalfChange([&] { return SqliteStorage::Open(path, error); }, [] {});
    SqliteDatabase database(path);
    EXPECT_EQ(
        database.QueryInteger("SELECT count(*) FROM pragma_integrity_check WHERE integrity_check = 'ok'"), 1)
        << error;
}

TEST(KillTest, KilledGroupsLoseNothingConfirmed) {
    const TempFolder folder;
    std::string error;
    ExpectKilledGroupsLoseNothingConfirmed(
        [&] { return SqliteStorage::Open(folder.File("voyages.db"), error); }, [] {});
}

}  // namespace
}  // namespace Tarvik::Server
