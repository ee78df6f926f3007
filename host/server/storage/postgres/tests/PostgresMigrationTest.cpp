// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/server/storage/postgres/PostgresConnection.h"
#include "host/server/storage/postgres/tests/PostgresTest.h"

namespace Tarvik::Server {

namespace {

using ::testing::HasSubstr;

using PostgresMigrationTest = PostgresTest;

TEST_F(PostgresMigrationTest, EmptyDataBaseIsBroughtToTheNewestVersion) {
    ASSERT_NE(Open(), nullptr) << error_;
    EXPECT_EQ(Query("SELECT version FROM schema_version"), std::to_string(PostgresMigrations().size()));
}

TEST_F(PostgresMigrationTest, OlderDataBaseIsBroughtToTheNewestVersionWithItsData) {
    Execute("CREATE TABLE schema_version (only_row BOOLEAN PRIMARY KEY DEFAULT TRUE, version INTEGER)");
    Execute("INSERT INTO schema_version (version) VALUES (1)");
    Execute(std::string(PostgresMigrations()[0]));
    Execute("INSERT INTO categories (owner, ci, cn) VALUES ('ann', nextval('ids')::text, 'Old')");
    const auto storage = Open();
    ASSERT_NE(storage, nullptr) << error_;
    EXPECT_EQ(storage->Catalog().LoadCatalog("ann").Value().at(0).name, "Old");
    EXPECT_TRUE(storage->Remarks().AddRemark("ann", {kCategoryRemark, "1000001"}, {1, "s", "b", 1, 1}));
    EXPECT_EQ(storage->Catalog().CreateCategory("ann", "New").Value(), "1000002");
    EXPECT_EQ(Query("SELECT version FROM schema_version"), std::to_string(PostgresMigrations().size()));
}

TEST_F(PostgresMigrationTest, NewerDataBaseIsRefusedAndUnchanged) {
    Execute("CREATE TABLE schema_version (version INTEGER); INSERT INTO schema_version VALUES (999)");
    const std::string before = Tables();
    EXPECT_EQ(Open(), nullptr);
    EXPECT_EQ(error_,
              "the data base has version 999, made by a newer program; this one reads versions up to " +
                  std::to_string(PostgresMigrations().size()));
    EXPECT_EQ(Tables(), before);
}

TEST_F(PostgresMigrationTest, DataBaseOfAnotherProgramIsRefusedAndUnchanged) {
    Execute("CREATE TABLE stamps (x INTEGER)");
    EXPECT_EQ(Open(), nullptr);
    EXPECT_EQ(error_, "the data base holds tables of another program");
    EXPECT_EQ(Tables(), "stamps");
}

TEST_F(PostgresMigrationTest, FailedMigrationLeavesNothingBehind) {
    Execute("CREATE VIEW remarks AS SELECT 1 AS one");
    EXPECT_EQ(Open(), nullptr);
    EXPECT_THAT(error_, HasSubstr("remarks"));
    EXPECT_EQ(Tables(), "");
}

TEST_F(PostgresMigrationTest, ProcessesThatStartTogetherMigrateOnce) {
    std::vector<std::string> errors(8);
    Together(8, [&](int number) {
        EXPECT_NE(PostgresStorage::Open(connection_, errors[static_cast<std::size_t>(number)]), nullptr);
    });
    EXPECT_THAT(errors, ::testing::Each(""));
    EXPECT_EQ(Query("SELECT count(*) FROM schema_version"), "1");
}

TEST_F(PostgresMigrationTest, DataBaseInAnotherEncodingIsRefused) {
    const std::string latin = PostgresServer::Instance().MakeDatabase("ENCODING 'LATIN1'");
    EXPECT_EQ(PostgresStorage::Open(latin, error_), nullptr);
    EXPECT_EQ(error_, "the data base does not keep its texts in UTF-8");
}

}  // namespace
}  // namespace Tarvik::Server
