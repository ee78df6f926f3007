// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "host/plugins/seamap/core/PortTable.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Seamap {

namespace {

class PortTableTest : public ::testing::Test {
  protected:
    void Fill() const {
        sqlite3* database = nullptr;
        ASSERT_EQ(sqlite3_open(path_.c_str(), &database), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(database,
                               "create table t_point(id,name,x,y,isport,origid);"
                               "insert into t_point values('1','Rotterdam','4.05','51.98','1','0');"
                               "insert into t_point values(2,'Suez Canal',32.4,30.5,'0','0');"
                               "insert into t_point values('3',null,'abc','1','1','0');",
                               nullptr, nullptr, nullptr),
                  SQLITE_OK);
        sqlite3_close(database);
    }
    TestSupport::TemporaryFolder folder_;
    const std::string path_ = folder_.File("ports.db");
};

TEST_F(PortTableTest, FindsPortsAndRoutePointsById) {
    Fill();
    PortTable ports(path_);
    const auto* rotterdam = ports.Find("1");
    ASSERT_NE(rotterdam, nullptr);
    EXPECT_EQ(rotterdam->text, "1");
    EXPECT_EQ(rotterdam->name, "Rotterdam");
    EXPECT_DOUBLE_EQ(rotterdam->x, 4.05);
    EXPECT_DOUBLE_EQ(rotterdam->y, 51.98);
    const auto* suez = ports.Find("2");
    ASSERT_NE(suez, nullptr);
    EXPECT_DOUBLE_EQ(suez->y, 30.5);
    EXPECT_EQ(ports.Find("1"), rotterdam) << "an earlier answer stays valid";
}

TEST_F(PortTableTest, UnknownOrUnreadablePlacesAreNone) {
    Fill();
    PortTable ports(path_);
    EXPECT_EQ(ports.Find("4"), nullptr);
    EXPECT_EQ(ports.Find(""), nullptr);
    EXPECT_EQ(ports.Find("3"), nullptr);
}

TEST_F(PortTableTest, AMissingDataBaseIsTriedAgain) {
    PortTable ports(path_);
    EXPECT_EQ(ports.Find("1"), nullptr);
    Fill();
    EXPECT_NE(ports.Find("1"), nullptr);
}

}  // namespace
}  // namespace Tarvik::Seamap
