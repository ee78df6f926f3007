// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteRemarks.h"

#include <algorithm>

#include "host/server/storage/sqlite/SqliteKeys.h"
#include "host/server/storage/sqlite/SqliteStatement.h"

namespace Tarvik::Server {

namespace {

/// Whether the text begins with the id of a known voyage and goes on with a port's name, which may begin with
/// digits.
bool PortCallKnown(SqliteDatabase& database, const std::string& owner, const std::string& id) {
    constexpr std::size_t kLongestId = 19;
    const std::size_t digits = std::min({id.find_first_not_of("0123456789"), id.size() - 1, kLongestId});
    for (std::size_t length = digits; length > 0; --length) {
        if (VoyageState(database, owner, id.substr(0, length))) {
            return true;
        }
    }
    return false;
}

bool ObjectKnown(SqliteDatabase& database, const std::string& owner, const RemarkObject& object) {
    if (object.id.empty()) {
        return false;
    }
    switch (object.type) {
        case kCategoryRemark:
            return CategoryState(database, owner, object.id).has_value();
        case kVoyageRemark:
            return VoyageState(database, owner, object.id).has_value();
        case kPortCallRemark:
            return PortCallKnown(database, owner, object.id);
        default:
            return false;
    }
}

}  // namespace

Outcome<std::vector<RemarkRecord>> SqliteRemarks::LoadRemarks(const std::string& owner,
                                                              const RemarkObject& object) {
    return session_.Read([&](SqliteDatabase& database) -> Outcome<std::vector<RemarkRecord>> {
        if (!ObjectKnown(database, owner, object)) {
            return FaultReason::UnknownObject;
        }
        std::vector<RemarkRecord> remarks;
        SqliteStatement row(database,
                            "SELECT seq, subject, body, cdate, udate FROM remarks "
                            "WHERE owner = ? AND type = ? AND objectid = ? ORDER BY seq");
        row.Bind(owner, object.type, object.id);
        while (row.Step()) {
            remarks.push_back({row.Integer32(0), row.Text(1), row.Text(2), row.Integer(3), row.Integer(4)});
        }
        return remarks;
    });
}

Status SqliteRemarks::AddRemark(const std::string& owner, const RemarkObject& object,
                                const RemarkRecord& remark) {
    return session_.Write([&](SqliteDatabase& database) -> Status {
        if (!ObjectKnown(database, owner, object)) {
            return FaultReason::UnknownObject;
        }
        SqliteStatement insert(
            database,
            "INSERT INTO remarks (owner, type, objectid, seq, subject, body, cdate, udate) "
            "VALUES (?, ?, ?, ?, ?, ?, ?, ?) ON CONFLICT DO NOTHING");
        insert.Bind(owner, object.type, object.id, remark.seq, remark.subject, remark.body, remark.created,
                    remark.updated);
        if (insert.Run() == 0) {
            return FaultReason::RemarkExists;
        }
        return Done{};
    });
}

Status SqliteRemarks::ChangeRemark(const std::string& owner, const RemarkObject& object,
                                   const RemarkRecord& remark) {
    return session_.Write([&](SqliteDatabase& database) -> Status {
        if (!ObjectKnown(database, owner, object)) {
            return FaultReason::UnknownObject;
        }
        SqliteStatement change(database,
                               "UPDATE remarks SET subject = ?, body = ?, udate = ? "
                               "WHERE owner = ? AND type = ? AND objectid = ? AND seq = ?");
        change.Bind(remark.subject, remark.body, remark.updated, owner, object.type, object.id, remark.seq);
        if (change.Run() == 0) {
            return FaultReason::UnknownRemark;
        }
        return Done{};
    });
}

Status SqliteRemarks::DeleteRemark(const std::string& owner, const RemarkObject& object, std::int32_t seq) {
    return session_.Write([&](SqliteDatabase& database) -> Status {
        if (!ObjectKnown(database, owner, object)) {
            return FaultReason::UnknownObject;
        }
        SqliteStatement erase(
            database, "DELETE FROM remarks WHERE owner = ? AND type = ? AND objectid = ? AND seq = ?");
        erase.Bind(owner, object.type, object.id, seq);
        if (erase.Run() == 0) {
            return FaultReason::UnknownRemark;
        }
        return Done{};
    });
}

}  // namespace Tarvik::Server
