// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresKeys.h"

namespace Tarvik::Server {

namespace {

std::optional<DeletionState> FirstState(const PostgresRows& rows) {
    if (rows.Empty()) {
        return std::nullopt;
    }
    return static_cast<DeletionState>(rows.Integer32(0, 0));
}

std::string WithLock(const char* sql, RowLock lock, const char* share, const char* update) {
    if (lock == RowLock::None) {
        return sql;
    }
    return std::string(sql) + (lock == RowLock::Share ? share : update);
}

}  // namespace

std::string TakeId(PostgresConnection& connection) {
    return connection.Run("SELECT nextval('ids')").Text(0, 0);
}

std::optional<DeletionState> CategoryState(PostgresConnection& connection, const std::string& owner,
                                           const std::string& id, RowLock lock) {
    return FirstState(
        connection.Run(WithLock("SELECT cd FROM categories WHERE owner = $1 AND ci = $2 AND cd <> 2", lock,
                                " FOR SHARE", " FOR UPDATE"),
                       owner, id));
}

std::optional<DeletionState> VoyageState(PostgresConnection& connection, const std::string& owner,
                                         const std::string& id, RowLock lock) {
    return FirstState(connection.Run(
        WithLock("SELECT v.vd FROM voyages v JOIN categories c ON c.owner = v.owner AND c.ci = v.ci "
                 "WHERE v.owner = $1 AND v.vi = $2 AND v.vd <> 2 AND c.cd <> 2",
                 lock, " FOR SHARE OF v, c", " FOR UPDATE OF v FOR SHARE OF c"),
        owner, id));
}

bool BookKnown(PostgresConnection& connection, const std::string& owner, const std::string& id,
               RowLock lock) {
    const PostgresRows found =
        connection.Run("SELECT vi FROM position_books WHERE owner = $1 AND pbi = $2", owner, id);
    return !found.Empty() && VoyageState(connection, owner, found.Text(0, 0), lock).has_value();
}

}  // namespace Tarvik::Server
