// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "seaplan/data/OtherPortNames.h"
#include "seaplan/data/PortDirectory.h"
#include "testsupport/DataFolder.h"
#include "testsupport/PortDictionary.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

namespace {

PortDirectory Ports() {
    return {{"Rouen", "ROTTERDAM", "Rostock", "HAMBURG", "ROTTERDAM"},
            {{"鹿特丹", "ROTTERDAM"}, {"鹿儿岛", "KAGOSHIMA"}, {"汉堡", "HAMBURG"}},
            {{"1-2", ""}, {"2-1", ""}}};
}

void Change(const TestSupport::DataFolder& folder, const char* sql) {
    sqlite3* table = nullptr;
    ASSERT_EQ(sqlite3_open(folder.PointsFile().string().c_str(), &table), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(table, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(table);
    sqlite3_close(table);
}

}  // namespace

TEST(PortDirectory, MatchesBeginWithTheTypedTextInAnyCase) {
    EXPECT_THAT(Ports().Match("ro", 10), ElementsAre("Rostock", "ROTTERDAM", "Rouen"));
    EXPECT_THAT(Ports().Match("RO", 2), ElementsAre("Rostock", "ROTTERDAM"));
    EXPECT_THAT(Ports().Match("xyz", 10), IsEmpty());
    EXPECT_THAT(Ports().Match("", 10), IsEmpty());
    EXPECT_THAT(Ports().Match("otter", 10), IsEmpty());
}

TEST(PortDirectory, LocalNamesMatchAndGiveThePortsName) {
    EXPECT_THAT(Ports().Match("鹿", 10), ElementsAre("KAGOSHIMA", "ROTTERDAM"));
    EXPECT_EQ(Ports().NameOf("鹿特丹"), "ROTTERDAM");
    EXPECT_EQ(Ports().NameOf("上海"), "");
}

TEST(PortDirectory, TheCaseOfATypedNameDoesNotMatter) {
    EXPECT_EQ(Ports().NameOf("rotterdam"), "ROTTERDAM");
    EXPECT_EQ(Ports().NameOf("ROUEN"), "Rouen");
    EXPECT_EQ(Ports().NameOf("Atlantis"), "Atlantis");
    EXPECT_TRUE(Ports().Knows("Rouen"));
    EXPECT_FALSE(Ports().Knows("Atlantis"));
    EXPECT_TRUE(PortDirectory({}, {}, {}).Knows("Atlantis"));
}

TEST(PortDirectory, ACodeOrAnOtherNameGivesItsPort) {
    const PortDirectory ports({"Busan", "Naha, Okinawa", "Pusan"},
                              {{"PUSAN", "Busan"}, {"KRPUS", "Busan"}, {"NAHA", "Naha, Okinawa"}}, {});
    EXPECT_EQ(ports.NameOf("krpus"), "Busan");
    EXPECT_EQ(ports.NameOf("Naha"), "Naha, Okinawa");
    EXPECT_EQ(ports.NameOf("pusan"), "Pusan") << "a port's own name comes first";
    EXPECT_EQ(ports.NameOf("Nah"), "Nah");
}

TEST(OtherPortNames, ComeFromCodesOtherNamesAndPartsInThisOrder) {
    const TestSupport::DataFolder folder;
    folder.WriteSamplePoints();
    Change(folder,
           "delete from t_point; alter table t_point add column unlocode text;"
           "alter table t_point add column aliases text;"
           "insert into t_point(id,name,isport,origid,unlocode,aliases) values"
           "('40001','Busan','1','0','KRPUS','Pusan; Fusan'),"
           "('40002','Busan New Port','1','40001','KRPUS','Fusan'),"
           "('40003','Naha, Okinawa','1','0','JPNAH',''),"
           "('40004','Rio Grande, Argentina','1','0','ARRGA',''),"
           "('40005','Rio Grande, Brazil','1','0','BRRIG','Rio Grande'),"
           "('40006','San Juan, Peru','1','0','',''),"
           "('40007','San Juan, Puerto Rico','1','0','',''),"
           "('40008','Hakata/Fukuoka','1','0','',null),"
           "('105','Suez, Canal','0','0','','The ditch')");
    const auto names = ReadOtherPortNames(folder.PointsFile().string());
    EXPECT_THAT(names, UnorderedElementsAre(
                           Pair("KRPUS", "Busan"), Pair("PUSAN", "Busan"), Pair("JPNAH", "Naha, Okinawa"),
                           Pair("NAHA", "Naha, Okinawa"), Pair("ARRGA", "Rio Grande, Argentina"),
                           Pair("BRRIG", "Rio Grande, Brazil"), Pair("RIO GRANDE", "Rio Grande, Brazil"),
                           Pair("HAKATA", "Hakata/Fukuoka"), Pair("FUKUOKA", "Hakata/Fukuoka")));
}

TEST(OtherPortNames, ATableWithoutThemOrNoneGivesNothing) {
    const TestSupport::DataFolder folder;
    EXPECT_THAT(ReadOtherPortNames(folder.PointsFile().string()), IsEmpty());
    folder.WriteSamplePoints();
    Change(folder, "update t_point set name='Bergen'");
    EXPECT_THAT(ReadOtherPortNames(folder.PointsFile().string()), IsEmpty());
}

TEST(PortDirectory, TakesPlacesFromTheTableAndNamesFromTheHost) {
    const TestSupport::DataFolder folder;
    folder.WriteSamplePoints();
    const TestSupport::PortDictionary host(
        {{"Aberdeen", "40001"}, {"Bergen", "40002"}, {"Elsewhere", "49999"}});
    PortDirectory read;
    read.ReadNames();
    EXPECT_TRUE(read.Knows("Bergen"));
    EXPECT_FALSE(read.Knows("Elsewhere")) << "the table has no place for it";
    EXPECT_FALSE(read.Knows(""));
    EXPECT_THAT(read.Match("a", 10), ElementsAre("Aberdeen"));
    EXPECT_TRUE(read.IsSamePlace("40003", "40004"));
}

TEST(PortDirectory, EachPartOfTheTableIsReadOnce) {
    PortDirectory read;
    {
        const TestSupport::DataFolder folder;
        EXPECT_EQ(read.RoutePoints(), nullptr) << "there is no table yet";
        EXPECT_EQ(read.PortPositions(), nullptr);
        EXPECT_FALSE(read.IsSamePlace("40003", "40004"));
        folder.WriteSamplePoints();
        EXPECT_EQ(read.FindReadRoutePoint("118"), nullptr) << "nobody has asked for route points";
        ASSERT_NE(read.RoutePoints(), nullptr);
        ASSERT_NE(read.PortPositions(), nullptr);
        EXPECT_TRUE(read.IsSamePlace("40003", "40004"));
    }
    // The folder is gone with its table.
    ASSERT_NE(read.RoutePoints(), nullptr);
    EXPECT_EQ(read.RoutePoints()->at("118").name, "Mid Cape");
    ASSERT_NE(read.FindReadRoutePoint("118"), nullptr);
    EXPECT_EQ(read.FindReadRoutePoint("40001"), nullptr) << "a port is no route point";
    ASSERT_NE(read.PortPositions(), nullptr);
    EXPECT_EQ(read.PortPositions()->at("40002").position, "1.0,0.0");
    EXPECT_TRUE(read.IsSamePlace("40004", "40003"));
}

TEST(PortDirectory, IdsAndNamesAreTheHosts) {
    const TestSupport::PortDictionary host(TestSupport::PortDictionary::Ports{{"Bergen", "40002"}});
    EXPECT_EQ(PortIdOf("Bergen"), "40002");
    EXPECT_EQ(PortNameOf("40002"), "Bergen");
    EXPECT_EQ(PortIdOf("Atlantis"), "");
    EXPECT_EQ(PortNameOf("1"), "");
}

TEST(PortDirectory, LinkedIdsAreOnePlace) {
    EXPECT_TRUE(Ports().IsSamePlace("1", "2"));
    EXPECT_FALSE(Ports().IsSamePlace("1", "3"));
}

}  // namespace Tarvik::Seaplan
