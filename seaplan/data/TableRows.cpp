// SPDX-License-Identifier: MIT
#include "seaplan/data/TableRows.h"

namespace Tarvik::Seaplan {

std::string ColumnText(const Util::CppSQLite3Query& row, int column) {
    const char* value = row.fieldValue(column);
    return value != nullptr ? value : "";
}

bool ForEachRow(const std::string& database, const char* sql,
                const std::function<void(const Util::CppSQLite3Query&)>& visit) {
    try {
        Util::CppSQLite3DB db;
        db.open(database);
        auto query = db.execQuery(sql);
        while (!query.eof()) {
            visit(query);
            query.nextRow();
        }
        query.finalize();
        db.close();
        return true;
    } catch (const Util::CppSQLite3Exception&) {
        return false;
    }
}

}  // namespace Tarvik::Seaplan
