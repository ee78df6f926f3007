// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "host/client/services/PortDictionary.h"
#include "host/client/tests/PortDatabase.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

class PortTableTest : public testing::Test {
  protected:
    TestSupport::TemporaryFolder folder_;
    std::vector<Port> ports_;
    std::string error_;
};

TEST_F(PortTableTest, ReadsPortsAloneWithTheirFields) {
    MakePortDatabase(folder_.File("t.db"));
    ASSERT_TRUE(ReadPorts(folder_.File("t.db"), ports_, error_)) << error_;
    ASSERT_EQ(ports_.size(), 3U);
    EXPECT_EQ(ports_[0].name, "Rotterdam");
    EXPECT_EQ(ports_[0].nameCn, "鹿特丹");
    EXPECT_EQ(ports_[0].unlocode, "NLRTM");
    EXPECT_DOUBLE_EQ(ports_[0].x, 4.5);
    EXPECT_DOUBLE_EQ(ports_[0].y, 51.9);
}

TEST_F(PortTableTest, ReadsATableWithoutLocationCodes) {
    MakeDatabase(folder_.File("t.db"),
                 "create table t_point(id,name,namecn,x,y,isport,origid);"
                 "insert into t_point values('40001','A','','1','2','1','0');");
    ASSERT_TRUE(ReadPorts(folder_.File("t.db"), ports_, error_)) << error_;
    EXPECT_EQ(ports_[0].unlocode, "");
}

TEST_F(PortTableTest, AMissingFileATableWithoutPortsAndAForeignOneAreNamed) {
    EXPECT_FALSE(ReadPorts(folder_.File("none.db"), ports_, error_));
    EXPECT_THAT(error_, testing::HasSubstr("none.db"));
    MakeDatabase(folder_.File("empty.db"), "create table t_point(id,name,namecn,x,y,isport,origid);");
    EXPECT_FALSE(ReadPorts(folder_.File("empty.db"), ports_, error_));
    EXPECT_THAT(error_, testing::HasSubstr("holds no ports"));
    MakeDatabase(folder_.File("foreign.db"), "create table other(a);");
    EXPECT_FALSE(ReadPorts(folder_.File("foreign.db"), ports_, error_));
}

TEST_F(PortTableTest, TheDictionaryAnswersThroughTheSdk) {
    MakePortDatabase(folder_.File("t.db"));
    ASSERT_TRUE(ReadPorts(folder_.File("t.db"), ports_, error_));
    const PortDictionary dictionary(ports_);
    Interface::ValueDictionary::Set(&dictionary);
    EXPECT_EQ(Interface::GetNameByValue("/points", "Singapore", 1033), "40011");
    EXPECT_EQ(Interface::GetValueByName("/points", "40011", 1033), "Singapore");
    EXPECT_EQ(Interface::GetNameByValue("/points", "Gibraltar", 1033), "");
    EXPECT_EQ(Interface::GetNameByValue("/ports", "Singapore", 1033), "");
    EXPECT_EQ(Interface::GetValueByName("/points", "1", 1033), "");
    Interface::ValueDictionary::Set(nullptr);
}

TEST(PortDictionary, OfTwoPortsOfOneNameTheFirstAnswersAndBothHaveNames) {
    const PortDictionary dictionary({{"1", "A", "", "", 0, 0}, {"2", "A", "", "", 0, 0}});
    EXPECT_EQ(dictionary.KeyOfValue("/points", "A", 1033), "1");
    EXPECT_EQ(dictionary.ValueOfKey("/points", "2", 1033), "A");
}

}  // namespace
}  // namespace Tarvik::Client
