// SPDX-License-Identifier: MIT
#include "host/server/storage/sql/SqlKeys.h"
#include "host/server/storage/sql/SqlRecords.h"
#include "host/server/storage/sql/SqlStorage.h"

namespace Tarvik::Server {

Outcome<std::vector<RemarkRecord>> SqlRemarks::LoadRemarks(const std::string& owner,
                                                           const RemarkObject& object) {
    return session_.Read([&](SqlConnection& connection) -> Outcome<std::vector<RemarkRecord>> {
        if (!ObjectKnown(connection, owner, object, RowLock::None)) {
            return FaultReason::UnknownObject;
        }
        std::vector<RemarkRecord> remarks;
        const auto row = connection.Query(
            "SELECT seq, subject, body, cdate, udate FROM remarks "
            "WHERE owner = $1 AND type = $2 AND {object:$3} ORDER BY seq",
            owner, object.type, object.id);
        while (row->Next()) {
            remarks.push_back(
                {row->Integer32(0), row->Text(1), row->Text(2), row->Integer(3), row->Integer(4)});
        }
        return remarks;
    });
}

Status SqlRemarks::AddRemark(const std::string& owner, const RemarkObject& object,
                             const RemarkRecord& remark) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        if (!ObjectKnown(connection, owner, object, RowLock::Share)) {
            return FaultReason::UnknownObject;
        }
        if (!InsertRemark(connection, owner, object, remark)) {
            return FaultReason::RemarkExists;
        }
        return Done{};
    });
}

Status SqlRemarks::ChangeRemark(const std::string& owner, const RemarkObject& object,
                                const RemarkRecord& remark) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        if (!ObjectKnown(connection, owner, object, RowLock::Share)) {
            return FaultReason::UnknownObject;
        }
        const int changed = connection.Run(
            "UPDATE remarks SET subject = $5, body = $6, udate = $7 "
            "WHERE owner = $1 AND type = $2 AND {object:$3} AND seq = $4",
            owner, object.type, object.id, remark.seq, remark.subject, remark.body, remark.updated);
        if (changed == 0) {
            return FaultReason::UnknownRemark;
        }
        return Done{};
    });
}

Status SqlRemarks::DeleteRemark(const std::string& owner, const RemarkObject& object, std::int32_t seq) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        if (!ObjectKnown(connection, owner, object, RowLock::Share)) {
            return FaultReason::UnknownObject;
        }
        const int erased =
            connection.Run("DELETE FROM remarks WHERE owner = $1 AND type = $2 AND {object:$3} AND seq = $4",
                           owner, object.type, object.id, seq);
        if (erased == 0) {
            return FaultReason::UnknownRemark;
        }
        return Done{};
    });
}

}  // namespace Tarvik::Server
