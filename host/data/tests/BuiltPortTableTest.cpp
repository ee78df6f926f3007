// SPDX-License-Identifier: MIT
// The table of ports and route points as it is shipped.
#include <cstdlib>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

namespace Tarvik::Data {

namespace {

using Row = std::vector<std::string>;

std::vector<Row> Query(const char* sql) {
    std::vector<Row> rows;
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open_v2(SHARE_FOLDER "/trvdb.db", &database, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
    const auto take = [](void* target, int columns, char** values, char**) {
        Row& row = static_cast<std::vector<Row>*>(target)->emplace_back();
        for (int i = 0; i < columns; ++i) {
            row.emplace_back(values[i] ? values[i] : "(null)");
        }
        return 0;
    };
    EXPECT_EQ(sqlite3_exec(database, sql, take, &rows, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
    sqlite3_close(database);
    return rows;
}

TEST(BuiltPortTable, HoldsTheGreatPortsUnderTheirUsualNames) {
    const std::map<std::string, std::string> expected = {
        {"NLRTM", "Rotterdam"}, {"SGSIN", "Singapore"}, {"CNSHA", "Shanghai"}, {"USLAX", "Los Angeles"},
        {"USNYC", "New York"},  {"DEHAM", "Hamburg"},   {"BEANR", "Antwerp"},  {"KRPUS", "Busan"},
        {"JPTYO", "Tokyo"},     {"JPYOK", "Yokohama"},  {"BRSSZ", "Santos"},   {"AUSYD", "Sydney"},
        {"ZACPT", "Cape Town"}, {"USHOU", "Houston"},   {"AEDXB", "Dubai"},    {"AEJEA", "Jebel Ali"},
        {"INBOM", "Mumbai"},    {"HKHKG", "Hong Kong"}, {"CNNGB", "Ningbo"}};
    std::map<std::string, std::string> names;
    for (const Row& row : Query("select unlocode,name from t_point where isport='1'")) {
        names[row[0]] = row[1];
    }
    for (const auto& [code, name] : expected) {
        EXPECT_EQ(names[code], name) << code;
    }
}

TEST(BuiltPortTable, HoldsThePortsOfTheCalculatorsStoredRoute) {
    using ::testing::ElementsAre;
    EXPECT_THAT(Query("select id,name from t_point where isport='1' and cast(x as real)<>0 and "
                      "id in ('40358','41117','40430') order by id"),
                ElementsAre(ElementsAre("40358", "Tianjin"), ElementsAre("40430", "Hamburg"),
                            ElementsAre("41117", "Rotterdam")));
}

TEST(BuiltPortTable, PortIdsHaveFiveDigitsFromFortyThousandAndRoutePointIdsLieBelow) {
    for (const Row& row : Query("select id,isport from t_point")) {
        const int id = std::atoi(row[0].c_str());
        EXPECT_EQ(std::to_string(id), row[0]);
        EXPECT_EQ(id >= 40000 && id <= 99999, row[1] == "1") << row[0];
        EXPECT_TRUE(row[1] == "0" || row[1] == "1");
    }
}

TEST(BuiltPortTable, HoldsTheGreatCanalsAndStraits) {
    std::set<std::string> names;
    for (const Row& row : Query("select name from t_point where isport='0'")) {
        names.insert(row[0]);
    }
    EXPECT_GE(names.size(), 60u);
    for (const char* name :
         {"Suez Canal", "Panama Canal", "Kiel Canal", "Strait of Gibraltar", "Dover Strait", "Bosporus",
          "Bab-el-Mandeb", "Strait of Hormuz", "Singapore Strait", "Sunda Strait", "Cape of Good Hope",
          "Cape Horn", "Strait of Magellan", "Torres Strait", "Bering Strait"}) {
        EXPECT_EQ(names.count(name), 1u) << name;
    }
}

TEST(BuiltPortTable, NamesAreUniqueAndNothingIsEmpty) {
    std::set<std::string> names;
    std::set<std::string> ids;
    for (const Row& row : Query("select id,name,namecn,x,y from t_point")) {
        EXPECT_TRUE(ids.insert(row[0]).second) << row[0];
        EXPECT_TRUE(names.insert(row[1]).second) << row[1];
        for (const std::string& field : row) {
            EXPECT_FALSE(field.empty() || field == "(null)") << row[0];
        }
        EXPECT_LE(std::abs(std::atof(row[3].c_str())), 180.0) << row[1];
        EXPECT_LE(std::abs(std::atof(row[4].c_str())), 90.0) << row[1];
    }
}

TEST(BuiltPortTable, ASecondEntryOfAPortRefersToAnExistingOne) {
    const auto pairs = Query("select id,origid from t_point where isport='1' and origid!='0'");
    EXPECT_GE(pairs.size(), 1u);
    for (const Row& row : pairs) {
        EXPECT_NE(row[0], row[1]);
        const auto original = Query(("select origid from t_point where id='" + row[1] + "'").c_str());
        ASSERT_EQ(original.size(), 1u) << row[1];
        EXPECT_EQ(original[0][0], "0");
    }
}

TEST(BuiltPortTable, ChineseNamesStandBesideTheGreatPorts) {
    const auto rows =
        Query("select namecn from t_point where name in ('Shanghai','Rotterdam','Suez Canal') order by id");
    ASSERT_EQ(rows.size(), 3u);
    for (const Row& row : rows) {
        EXPECT_GT(static_cast<unsigned char>(row[0][0]), 0x7FU) << row[0];
    }
}

}  // namespace
}  // namespace Tarvik::Data
