// SPDX-License-Identifier: MIT
#include "testsupport/DataFolder.h"

#include <memory>
#include <stdexcept>

#include <sqlite3.h>

#include <tarvik/util/FileUtl.h>

namespace Tarvik::TestSupport {

namespace {

constexpr const char* kCreate =
    "pragma synchronous=off;begin;create table t_point(id text,name text,namecn text,x text,y text,isport "
    "text,origid text);";

std::string Quoted(const std::string& text) {
    const std::unique_ptr<char, void (*)(void*)> made(sqlite3_mprintf("%Q", text.c_str()), sqlite3_free);
    return made.get();
}

std::string InsertText(const PointTableRow& row) {
    return "insert into t_point values(" + Quoted(row.id) + "," + Quoted(row.name) + ",null," +
           Quoted(row.x) + "," + Quoted(row.y) + "," + Quoted(row.isPort ? "1" : "0") + "," +
           Quoted(row.origid) + ");";
}

}  // namespace

DataFolder::DataFolder() {
    Util::FileUtl::SetCurrentAppDirectory(path_.string());
}

DataFolder::~DataFolder() {
    Util::FileUtl::SetCurrentAppDirectory("");
}

void DataFolder::WritePoints(const std::vector<PointTableRow>& rows) const {
    std::filesystem::create_directories(PointsFile().parent_path());
    std::filesystem::remove(PointsFile());
    std::string sql = kCreate;
    for (const PointTableRow& row : rows) {
        sql += InsertText(row);
    }
    sql += "commit;";
    sqlite3* opened = nullptr;
    const int openCode = sqlite3_open(PointsFile().c_str(), &opened);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> db(opened, sqlite3_close);
    if (openCode != SQLITE_OK || sqlite3_exec(opened, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw std::runtime_error("the table of points cannot be written");
    }
}

void DataFolder::WriteSamplePoints() const {
    WritePoints({{"40001", "A", "0.0", "0.0"},
                 {"40002", "B", "1.0", "0.0"},
                 {"40003", "C", "3.0", "0.0"},
                 {"40004", "C2", "3.0", "0.0", true, "40003"},
                 {"105", "South Cape", "0.5", "-1.0", false},
                 {"116", "North Cape", "0.5", "1.0", false},
                 {"118", "Mid Cape", "0.5", "0.0", false}});
}

}  // namespace Tarvik::TestSupport
