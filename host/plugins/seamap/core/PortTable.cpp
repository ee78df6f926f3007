// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/PortTable.h"

#include <tarvik/util/CppSQLite3.h>
#include <tarvik/util/FileUtl.h>

#include "host/plugins/seamap/core/GeoPoint.h"

namespace Tarvik::Seamap {

namespace {

std::string Field(const Util::CppSQLite3Query& row, int column) {
    const char* text = row.fieldValue(column);
    return text ? text : "";
}

}  // namespace

const Interface::TrvMapPort* PortTable::Find(const std::string& id) {
    if (!loaded_) {
        Load();
    }
    const auto found = ports_.find(id);
    return found == ports_.end() ? nullptr : &found->second;
}

std::string PortTable::DefaultPath() {
    return Util::FileUtl::GetCurrentAppDirectory() + "/businessdata/trvdb.db";
}

void PortTable::Load() {
    try {
        Util::CppSQLite3DB database;
        database.open(path_);
        auto rows = database.execQuery("select id,name,x,y from t_point");
        for (; !rows.eof(); rows.nextRow()) {
            const std::string id = Field(rows, 0);
            // A row without a readable position is no place that could be shown.
            const auto place = ParsePosition(Field(rows, 2) + "," + Field(rows, 3));
            if (place) {
                ports_.try_emplace(id, Interface::TrvMapPort{id, Field(rows, 1), place->lon, place->lat});
            }
        }
        rows.finalize();
        database.close();
        loaded_ = true;
    } catch (const Util::CppSQLite3Exception&) {
        ports_.clear();
    }
}

}  // namespace Tarvik::Seamap
