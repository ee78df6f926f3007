// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresRemarks.h"

#include <algorithm>

#include "host/server/storage/postgres/PostgresKeys.h"

namespace Tarvik::Server {

namespace {

/// Whether the text begins with the id of a known voyage and goes on with a port's name, which may begin with
/// digits.
bool PortCallKnown(PostgresConnection& connection, const std::string& owner, const std::string& id,
                   RowLock lock) {
    constexpr std::size_t kLongestId = 19;
    const std::size_t digits = std::min({id.find_first_not_of("0123456789"), id.size() - 1, kLongestId});
    for (std::size_t length = digits; length > 0; --length) {
        if (VoyageState(connection, owner, id.substr(0, length), lock)) {
            return true;
        }
    }
    return false;
}

bool ObjectKnown(PostgresConnection& connection, const std::string& owner, const RemarkObject& object,
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

}  // namespace

Outcome<std::vector<RemarkRecord>> PostgresRemarks::LoadRemarks(const std::string& owner,
                                                                const RemarkObject& object) {
    return session_.Read([&](PostgresConnection& connection) -> Outcome<std::vector<RemarkRecord>> {
        if (!ObjectKnown(connection, owner, object, RowLock::None)) {
            return FaultReason::UnknownObject;
        }
        const PostgresRows rows = connection.Run(
            "SELECT seq, subject, body, cdate, udate FROM remarks WHERE owner = $1 AND type = $2 "
            "AND md5(objectid) = md5($3::text) AND objectid = $3 ORDER BY seq",
            owner, object.type, object.id);
        std::vector<RemarkRecord> remarks;
        remarks.reserve(static_cast<std::size_t>(rows.Count()));
        for (int row = 0; row < rows.Count(); ++row) {
            remarks.push_back({rows.Integer32(row, 0), rows.Text(row, 1), rows.Text(row, 2),
                               rows.Integer(row, 3), rows.Integer(row, 4)});
        }
        return remarks;
    });
}

Status PostgresRemarks::AddRemark(const std::string& owner, const RemarkObject& object,
                                  const RemarkRecord& remark) {
    return session_.Write([&](PostgresConnection& connection) -> Status {
        if (!ObjectKnown(connection, owner, object, RowLock::Share)) {
            return FaultReason::UnknownObject;
        }
        const PostgresRows inserted = connection.Run(
            "INSERT INTO remarks (owner, type, objectid, seq, subject, body, cdate, udate) "
            "VALUES ($1, $2, $3, $4, $5, $6, $7, $8) ON CONFLICT DO NOTHING",
            owner, object.type, object.id, remark.seq, remark.subject, remark.body, remark.created,
            remark.updated);
        if (inserted.Changes() == 0) {
            return FaultReason::RemarkExists;
        }
        return Done{};
    });
}

Status PostgresRemarks::ChangeRemark(const std::string& owner, const RemarkObject& object,
                                     const RemarkRecord& remark) {
    return session_.Write([&](PostgresConnection& connection) -> Status {
        if (!ObjectKnown(connection, owner, object, RowLock::Share)) {
            return FaultReason::UnknownObject;
        }
        const PostgresRows changed = connection.Run(
            "UPDATE remarks SET subject = $5, body = $6, udate = $7 WHERE owner = $1 AND type = $2 "
            "AND md5(objectid) = md5($3::text) AND objectid = $3 AND seq = $4",
            owner, object.type, object.id, remark.seq, remark.subject, remark.body, remark.updated);
        if (changed.Changes() == 0) {
            return FaultReason::UnknownRemark;
        }
        return Done{};
    });
}

Status PostgresRemarks::DeleteRemark(const std::string& owner, const RemarkObject& object, std::int32_t seq) {
    return session_.Write([&](PostgresConnection& connection) -> Status {
        if (!ObjectKnown(connection, owner, object, RowLock::Share)) {
            return FaultReason::UnknownObject;
        }
        const PostgresRows erased = connection.Run(
            "DELETE FROM remarks WHERE owner = $1 AND type = $2 AND md5(objectid) = md5($3::text) "
            "AND objectid = $3 AND seq = $4",
            owner, object.type, object.id, seq);
        if (erased.Changes() == 0) {
            return FaultReason::UnknownRemark;
        }
        return Done{};
    });
}

}  // namespace Tarvik::Server
