// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace Tarvik::Client {

/// Makes a data base by the given statements.
inline void MakeDatabase(const std::string& file, const std::string& sql) {
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(database);
    sqlite3_close(database);
}

/// A port table of three ports and one route point.
inline void MakePortDatabase(const std::string& file) {
    MakeDatabase(file,
                 "create table t_point(id text,name text,namecn text,x text,y text,isport text,origid "
                 "text,unlocode text);"
                 "insert into t_point values('40010','Rotterdam','鹿特丹','4.5','51.9','1','0','NLRTM');"
                 "insert into t_point values('40011','Singapore','新加坡','103.8','1.26','1','0','SGSIN');"
                 "insert into t_point values('40012','San Juan','','-66.1','18.4','1','0','');"
                 "insert into t_point values('120','Gibraltar','','-5.6','35.9','0','0','');");
}

}  // namespace Tarvik::Client
