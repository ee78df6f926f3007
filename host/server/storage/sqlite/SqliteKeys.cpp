// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteKeys.h"

#include "host/server/storage/sqlite/SqliteStatement.h"

namespace Tarvik::Server {

namespace {

std::optional<DeletionState> StateBy(SqliteStatement& statement, std::string_view owner,
                                     std::string_view id) {
    statement.Bind(owner, id);
    if (!statement.Step()) {
        return std::nullopt;
    }
    return static_cast<DeletionState>(statement.Integer32(0));
}

}  // namespace

std::string TakeId(SqliteDatabase& database) {
    SqliteStatement take(database, "UPDATE next_id SET value = value + 1 RETURNING value - 1");
    if (!take.Step()) {
        throw SqliteError("the data base has lost its id counter");
    }
    std::string id = std::to_string(take.Integer(0));
    take.Run();
    return id;
}

std::optional<DeletionState> CategoryState(SqliteDatabase& database, std::string_view owner,
                                           std::string_view id) {
    SqliteStatement find(database, "SELECT cd FROM categories WHERE owner = ? AND ci = ? AND cd <> 2");
    return StateBy(find, owner, id);
}

std::optional<DeletionState> VoyageState(SqliteDatabase& database, std::string_view owner,
                                         std::string_view id) {
    SqliteStatement find(database,
                         "SELECT v.vd FROM voyages v JOIN categories c ON c.owner = v.owner AND c.ci = v.ci "
                         "WHERE v.owner = ? AND v.vi = ? AND v.vd <> 2 AND c.cd <> 2");
    return StateBy(find, owner, id);
}

bool BookKnown(SqliteDatabase& database, std::string_view owner, std::string_view id) {
    SqliteStatement find(database, "SELECT vi FROM position_books WHERE owner = ? AND pbi = ?");
    find.Bind(owner, id);
    return find.Step() && VoyageState(database, owner, find.Text(0)).has_value();
}

}  // namespace Tarvik::Server
