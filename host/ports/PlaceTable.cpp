// SPDX-License-Identifier: MIT
#include "host/ports/PlaceTable.h"

#include <set>
#include <sstream>

#include <tarvik/util/CppSQLite3.h>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Ports {

namespace {

std::string Field(const Util::CppSQLite3Query& row, int column) {
    const char* text = row.fieldValue(column);
    return text ? text : "";
}

std::set<std::string> ColumnsOf(Util::CppSQLite3DB& database) {
    std::set<std::string> columns;
    for (auto row = database.execQuery("pragma table_info(t_point)"); !row.eof(); row.nextRow()) {
        columns.insert(Field(row, 1));
    }
    return columns;
}

/// "Pusan;Pusan Port" in its parts.
std::vector<std::string> Parts(const std::string& text) {
    std::vector<std::string> parts;
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, ';');) {
        parts.push_back(part);
    }
    return parts;
}

}  // namespace

bool ReadPlaces(const std::string& databaseFile, std::vector<Place>& places, std::string& error) {
    places.clear();
    try {
        Util::CppSQLite3DB database;
        database.open(databaseFile);
        const std::set<std::string> columns = ColumnsOf(database);
        const auto column = [&columns](const char* name) {
            return columns.contains(name) ? std::string(name) : "''";
        };
        const std::string sql = "select id,name," + column("namecn") + "," + column("unlocode") +
                                ",x,y,isport," + column("aliases") +
                                " from t_point order by name,length(id),id";
        for (auto row = database.execQuery(sql.c_str()); !row.eof(); row.nextRow()) {
            places.push_back({Field(row, 0), Field(row, 1), Field(row, 2), Field(row, 3),
                              Server::ParsePosition(Field(row, 4) + "," + Field(row, 5)),
                              Field(row, 6) == "1", Parts(Field(row, 7))});
        }
    } catch (const Util::CppSQLite3Exception& failed) {
        error = failed.what();
        places.clear();
        return false;
    }
    return true;
}

}  // namespace Tarvik::Ports
