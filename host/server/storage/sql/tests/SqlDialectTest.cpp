// SPDX-License-Identifier: MIT
#include <array>

#include <gtest/gtest.h>

#include "host/server/storage/sql/SqlConnection.h"
#include "host/server/storage/sql/SqlDialect.h"

namespace Tarvik::Server {

namespace {

constexpr std::array<SqlPoint, 3> kPoints = {{
    {"next id", "SELECT 7"},
    {"hold", "FOR UPDATE OF %"},
    {"object", "f(%) = f(objectid) AND objectid = %"},
}};

TEST(SqlDialect, PointsGetTheWordsOfTheirDataBase) {
    EXPECT_EQ(WithPoints("SELECT $1", kPoints), "SELECT $1");
    EXPECT_EQ(WithPoints("{next id}", kPoints), "SELECT 7");
    EXPECT_EQ(WithPoints("SELECT 1 FROM t {hold:t} {hold:u}", kPoints),
              "SELECT 1 FROM t FOR UPDATE OF t FOR UPDATE OF u");
    EXPECT_EQ(WithPoints("WHERE {object:$3} AND seq = $4", kPoints),
              "WHERE f($3) = f(objectid) AND objectid = $3 AND seq = $4");
}

TEST(SqlDialect, UnknownAndEndlessPointsAreRefused) {
    EXPECT_THROW(WithPoints("SELECT 1 {share:t}", kPoints), SqlError);
    EXPECT_THROW(WithPoints("SELECT 1 {hold:t", kPoints), SqlError);
}

}  // namespace

}  // namespace Tarvik::Server
