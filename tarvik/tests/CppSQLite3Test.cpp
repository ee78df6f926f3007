// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <tarvik/util/CppSQLite3.h>

#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Util {

namespace {

class CppSQLite3Test : public testing::Test {
  protected:
    void SetUp() override {
        sqlite3* database = nullptr;
        ASSERT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
        const char* sql =
            "CREATE TABLE ports(id TEXT, name TEXT, x REAL); INSERT INTO ports VALUES('1','Hamburg',9.5),"
            "('2',NULL,1);";
        ASSERT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close(database);
    }

    TestSupport::TemporaryFolder folder;
    const std::string path = folder.File("ports.db");
};

TEST_F(CppSQLite3Test, WalksTheRows) {
    CppSQLite3DB database;
    database.open(path);
    CppSQLite3Query query = database.execQuery("SELECT id, name, x FROM ports ORDER BY id");
    ASSERT_FALSE(query.eof());
    EXPECT_STREQ(query.fieldValue(0), "1");
    EXPECT_STREQ(query.fieldValue(1), "Hamburg");
    EXPECT_STREQ(query.fieldValue(2), "9.5");
    EXPECT_EQ(query.fieldValue(3), nullptr);
    EXPECT_EQ(query.fieldValue(-1), nullptr);
    query.nextRow();
    ASSERT_FALSE(query.eof());
    EXPECT_EQ(query.fieldValue(1), nullptr);
    query.nextRow();
    EXPECT_TRUE(query.eof());
    EXPECT_EQ(query.fieldValue(0), nullptr);
}

TEST_F(CppSQLite3Test, QueryMovesAndOutlivesTheClosedDataBase) {
    CppSQLite3DB database;
    database.open(path);
    CppSQLite3Query first = database.execQuery("SELECT name FROM ports ORDER BY id");
    CppSQLite3Query second(std::move(first));
    CppSQLite3Query third;
    EXPECT_TRUE(third.eof());
    third = std::move(second);
    database.close();
    ASSERT_FALSE(third.eof());
    EXPECT_STREQ(third.fieldValue(0), "Hamburg");
    third.finalize();
    EXPECT_TRUE(third.eof());
    EXPECT_THROW(third.nextRow(), CppSQLite3Exception);
}

TEST_F(CppSQLite3Test, EmptyResultIsAtItsEnd) {
    CppSQLite3DB database;
    database.open(path);
    EXPECT_TRUE(database.execQuery("SELECT id FROM ports WHERE id='9'").eof());
}

TEST_F(CppSQLite3Test, IsReadOnly) {
    CppSQLite3DB database;
    database.open(path);
    EXPECT_THROW(database.execQuery("DELETE FROM ports"), CppSQLite3Exception);
}

TEST_F(CppSQLite3Test, FailuresThrowWithAMessage) {
    CppSQLite3DB database;
    EXPECT_THROW(database.execQuery("SELECT 1"), CppSQLite3Exception);
    const std::string missing = folder.File("missing.db");
    EXPECT_THROW(database.open(missing), CppSQLite3Exception);
    EXPECT_FALSE(std::filesystem::exists(missing));
    const std::string broken = folder.File("broken.db");
    std::ofstream(broken) << std::string(2000, 'x');
    EXPECT_THROW(database.open(broken), CppSQLite3Exception);
    database.open(path);
    try {
        database.execQuery("SELECT nonsense FROM nowhere");
        FAIL() << "nothing was thrown";
    } catch (const CppSQLite3Exception& error) {
        EXPECT_NE(std::string(error.what()).find("nowhere"), std::string::npos);
    }
}

}  // namespace
}  // namespace Tarvik::Util
