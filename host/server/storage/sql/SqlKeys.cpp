// SPDX-License-Identifier: MIT
#include "host/server/storage/sql/SqlKeys.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Tarvik::Server {

namespace {

/// One statement in the order of RowLock. Made once, since connections keep statements by their texts.
using ByLock = std::array<std::string, 3>;

ByLock WithLocks(const std::string& find, const char* share, const char* hold) {
    return {find, find + share, find + hold};
}

std::optional<DeletionState> StateBy(SqlConnection& connection, const std::string& find,
                                     const std::string& owner, const std::string& id) {
    const auto row = connection.Query(find, owner, id);
    if (!row->Next()) {
        return std::nullopt;
    }
    return static_cast<DeletionState>(row->Integer32(0));
}

/// Whether the text begins with the id of a known voyage and goes on with a port's name, which may begin with
/// digits.
bool PortCallKnown(SqlConnection& connection, const std::string& owner, const std::string& id, RowLock lock) {
    constexpr std::size_t kLongestId = 19;
    const std::size_t digits = std::min({id.find_first_not_of("0123456789"), id.size() - 1, kLongestId});
    for (std::size_t length = digits; length > 0; --length) {
        if (VoyageState(connection, owner, id.substr(0, length), lock)) {
            return true;
        }
    }
    return false;
}

}  // namespace

std::string TakeId(SqlConnection& connection) {
    const auto taken = connection.Query("{next id}");
    if (!taken->Next()) {
        throw SqlError("the data base has lost its id counter");
    }
    std::string id = std::to_string(taken->Integer(0));
    while (taken->Next()) {
    }
    return id;
}

std::optional<DeletionState> CategoryState(SqlConnection& connection, const std::string& owner,
                                           const std::string& id, RowLock lock) {
    static const ByLock kFind =
        WithLocks("SELECT c.cd FROM categories c WHERE c.owner = $1 AND c.ci = $2 AND c.cd <> 2",
                  " {share:c}", " {hold:c}");
    return StateBy(connection, kFind[static_cast<std::size_t>(lock)], owner, id);
}

std::optional<DeletionState> VoyageState(SqlConnection& connection, const std::string& owner,
                                         const std::string& id, RowLock lock) {
    static const ByLock kFind = WithLocks(
        "SELECT v.vd FROM voyages v JOIN categories c ON c.owner = v.owner AND c.ci = v.ci "
        "WHERE v.owner = $1 AND v.vi = $2 AND v.vd <> 2 AND c.cd <> 2",
        " {share:v} {share:c}", " {hold:v} {share:c}");
    return StateBy(connection, kFind[static_cast<std::size_t>(lock)], owner, id);
}

bool BookKnown(SqlConnection& connection, const std::string& owner, const std::string& id, RowLock lock) {
    const auto book =
        connection.Query("SELECT vi FROM position_books WHERE owner = $1 AND pbi = $2", owner, id);
    return book->Next() && VoyageState(connection, owner, book->Text(0), lock).has_value();
}

void HoldList(SqlConnection& connection, const std::string& owner) {
    connection.Run("INSERT INTO own_lists (owner) VALUES ($1) ON CONFLICT DO NOTHING", owner);
    connection.Query("SELECT 1 FROM own_lists l WHERE l.owner = $1 {hold:l}", owner)->Next();
}

bool ObjectKnown(SqlConnection& connection, const std::string& owner, const RemarkObject& object,
                 RowLock lock) {
    if (object.id.empty()) {
        return false;
    }
    switch (object.type) {
        case kCategoryRemark:
            return CategoryState(connection, owner, object.id, lock).has_value();
        case kVoyageRemark:
            return VoyageState(connection, owner, object.id, lock).has_value();
        case kPortCallRemark:
            return PortCallKnown(connection, owner, object.id, lock);
        default:
            return false;
    }
}

}  // namespace Tarvik::Server
