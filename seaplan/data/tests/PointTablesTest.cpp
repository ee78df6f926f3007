// SPDX-License-Identifier: MIT
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <tarvik/util/FileUtl.h>

#include "seaplan/data/PointTables.h"
#include "seaplan/data/VoyPositionBook.h"

namespace Tarvik::Seaplan {

namespace {

using ::testing::Pair;
using ::testing::UnorderedElementsAre;

class PointTables : public ::testing::Test {
  protected:
    void SetUp() override {
        folder_ = ::testing::TempDir() + "point_tables_" + Name();
        std::filesystem::create_directories(folder_);
        database_ = folder_ + "/points.db";
        std::filesystem::remove(database_);
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    void Fill(const char* sql) {
        sqlite3* db = nullptr;
        ASSERT_EQ(sqlite3_open(database_.c_str(), &db), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(db, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
        sqlite3_close(db);
    }
    void FillPoints() {
        Fill(
            "create table t_point(id text,name text,namecn text,x text,y text,isport text,origid text);"
            "insert into t_point values('40389','Dalian','local','121.65','38.92','1','0');"
            "insert into t_point values('40390','Dalian Bay',null,'121.9','38.95','1','40389');"
            "insert into t_point values('131','Cape',null,'122.75','37.4','0','0');"
            "insert into t_point values('132',null,null,null,'1','0','5');");
    }
    static std::string Name() { return ::testing::UnitTest::GetInstance()->current_test_info()->name(); }

    std::string folder_;
    std::string database_;
};

TEST_F(PointTables, RoutePointsAreThePointsThatAreNoPorts) {
    FillPoints();
    PointMap map;
    ASSERT_EQ(LoadRoutePoints(database_, map), 0);
    ASSERT_EQ(map.size(), 2);
    EXPECT_EQ(map["131"].id, "131");
    EXPECT_EQ(map["131"].name, "Cape");
    EXPECT_EQ(map["131"].position, "122.75,37.4");
    EXPECT_EQ(map["132"].position, ",1");
}

TEST_F(PointTables, PortPositionsAreThePorts) {
    FillPoints();
    PointMap map;
    ASSERT_EQ(LoadPortPositions(database_, map), 0);
    ASSERT_EQ(map.size(), 2);
    EXPECT_EQ(map["40389"].position, "121.65,38.92");
}

TEST_F(PointTables, FilledMapIsNotReadAgain) {
    PointMap map{{"9", {}}};
    EXPECT_EQ(LoadPortPositions(folder_ + "/missing.db", map), 0);
    EXPECT_EQ(LoadRoutePoints(folder_ + "/missing.db", map), 0);
    EXPECT_EQ(map.size(), 1);
}

TEST_F(PointTables, PortsOfOnePlaceAreLinkedBothWays) {
    FillPoints();
    std::map<std::string, std::string> links;
    ASSERT_EQ(LoadSamePortLinks(database_, links), 0);
    EXPECT_THAT(links, UnorderedElementsAre(Pair("40390-40389", ""), Pair("40389-40390", "")));
}

TEST_F(PointTables, PortWithoutLocalNameAddsNothing) {
    FillPoints();
    std::map<std::string, std::string> found;
    ASSERT_EQ(LoadPortNamesByLocal(database_, found), 0);
    EXPECT_THAT(found, UnorderedElementsAre(Pair("local", "Dalian")));
}

TEST_F(PointTables, UnreadableDataBaseFailsAndLeavesTheMapsEmpty) {
    Fill("create table other(id text);");
    for (const auto& database : {database_, folder_ + "/missing.db"}) {
        PointMap map;
        std::map<std::string, std::string> texts;
        EXPECT_EQ(LoadPortPositions(database, map), -1);
        EXPECT_EQ(LoadRoutePoints(database, map), -1);
        EXPECT_TRUE(map.empty());
        EXPECT_EQ(LoadSamePortLinks(database, texts), -1);
        EXPECT_EQ(LoadPortNamesByLocal(database, texts), -1);
        EXPECT_TRUE(texts.empty());
    }
}

TEST_F(PointTables, DataBaseLiesBelowTheHostsFolder) {
    Util::FileUtl::SetCurrentAppDirectory("/somewhere");
    EXPECT_EQ(PointDatabasePath(), "/somewhere/businessdata/trvdb.db");
}

TEST(PointKind, FollowsFromTheId) {
    EXPECT_EQ(PointKindOfId(""), ShortIdRoutePoint);
    EXPECT_EQ(PointKindOfId("999"), ShortIdRoutePoint);
    EXPECT_EQ(PointKindOfId("3999"), LongIdRoutePoint);
    EXPECT_EQ(PointKindOfId("4000"), PortPoint);
    EXPECT_EQ(PointKindOfId("90000"), PortPoint);
    EXPECT_EQ(PointKindOfId("x4000"), LongIdRoutePoint);
    EXPECT_EQ(PointKindOfId("3128"), LongIdRoutePoint);
    EXPECT_EQ(PointKindOfId("131"), ShortIdRoutePoint);
    EXPECT_EQ(PointKindOfId("40389"), PortPoint);
}

}  // namespace
}  // namespace Tarvik::Seaplan
