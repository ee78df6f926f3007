// SPDX-License-Identifier: MIT
#include "host/client/services/PortTable.h"

#include <tarvik/util/CppSQLite3.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Client {

namespace {

std::string Field(const Util::CppSQLite3Query& row, int column) {
    const char* text = row.fieldValue(column);
    return text ? text : "";
}

bool HasUnlocodes(Util::CppSQLite3DB& database) {
    for (auto row = database.execQuery("pragma table_info(t_point)"); !row.eof(); row.nextRow()) {
        if (Field(row, 1) == "unlocode") {
            return true;
        }
    }
    return false;
}

}  // namespace

bool ReadPorts(const std::string& databaseFile, std::vector<Port>& ports, std::string& error) {
    ports.clear();
    try {
        Util::CppSQLite3DB database;
        database.open(databaseFile);
        const std::string code = HasUnlocodes(database) ? "unlocode" : "''";
        const std::string sql =
            "select id,name,namecn,x,y," + code + " from t_point where isport='1' order by name,id";
        for (auto row = database.execQuery(sql.c_str()); !row.eof(); row.nextRow()) {
            ports.push_back({Field(row, 0), Field(row, 1), Field(row, 2), Field(row, 5),
                             Util::StringUtl::ToDouble(Field(row, 3)),
                             Util::StringUtl::ToDouble(Field(row, 4))});
        }
    } catch (const Util::CppSQLite3Exception& failed) {
        error = "The port table " + databaseFile + " cannot be read (" + failed.what() +
                "). Delete it and build or install the client again.";
        ports.clear();
        return false;
    }
    if (ports.empty()) {
        error = "The port table " + databaseFile + " holds no ports. Build or install the client again.";
    }
    return !ports.empty();
}

}  // namespace Tarvik::Client
