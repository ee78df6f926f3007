// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteOwnerWriter.h"

#include "host/server/storage/sqlite/SqliteKeys.h"
#include "host/server/storage/sqlite/SqliteRows.h"
#include "host/server/storage/sqlite/SqliteStatement.h"

namespace Tarvik::Server {

Status SqliteOwnerWriter::Write(const OwnerCopy& copy) {
    owner_ = copy.owner;
    ids_ = CopyIds();
    for (const CategoryCopy& category : copy.categories) {
        const std::string categoryId = NewId(category.id);
        ids_.PutCategory(category.id, categoryId);
        WriteCategory(category, categoryId);
        for (const VoyageCopy& voyage : category.voyages) {
            const std::string voyageId = NewId(voyage.voyage.id);
            ids_.PutVoyage(voyage.voyage.id, voyageId);
            WriteVoyage(voyage.voyage, categoryId, voyageId);
            Status written = WriteSchedule(voyage, voyageId);
            if (!written) {
                return written;
            }
        }
    }
    for (const RemarkCopy& remark : copy.remarks) {
        WriteRemark(remark);
    }
    return Done{};
}

std::string SqliteOwnerWriter::NewId(const std::string& before) {
    return keepIds_ ? before : TakeId(database_);
}

void SqliteOwnerWriter::WriteCategory(const CategoryCopy& category, const std::string& id) {
    SqliteStatement(database_, "INSERT INTO categories (owner, ci, cn, cd) VALUES (?, ?, ?, ?)")
        .Bind(owner_, id, category.name, static_cast<int>(category.state))
        .Run();
}

void SqliteOwnerWriter::WriteVoyage(const VoyageRecord& voyage, const std::string& categoryId,
                                    const std::string& id) {
    const Figures& f = voyage.figures;
    SqliteStatement(database_,
                    "INSERT INTO voyages (owner, vi, ci, vn, vsi, vsn, vsmsi, vr, va, vd, "
                    "vfn, vff, vfa, vdn, vda, vwn, vwa) VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)")
        .Bind(owner_, id, categoryId, voyage.name, voyage.vessel.id, voyage.vessel.name, voyage.vessel.mmsi,
              voyage.routeShown, voyage.aisTraced, static_cast<int>(voyage.state), f[0], f[1], f[2], f[3],
              f[4], f[5], f[6])
        .Run();
}

Status SqliteOwnerWriter::WriteSchedule(const VoyageCopy& copy, const std::string& voyageId) {
    int place = 0;
    for (const std::string& time : copy.aisTimes) {
        SqliteStatement(database_, "INSERT INTO ais_times (owner, vi, place, time) VALUES (?, ?, ?, ?)")
            .Bind(owner_, voyageId, ++place, time)
            .Run();
    }
    Status calls = InsertPortCalls(database_, owner_, voyageId, copy.calls);
    if (!calls || !copy.book) {
        return calls;
    }
    const std::string bookId = NewId(copy.book->id);
    SqliteStatement(database_, "INSERT INTO position_books (owner, pbi, vi, eta) VALUES (?, ?, ?, ?)")
        .Bind(owner_, bookId, voyageId, copy.book->date)
        .Run();
    return InsertBookRows(database_, owner_, bookId, copy.book->rows);
}

void SqliteOwnerWriter::WriteRemark(const RemarkCopy& copy) {
    const RemarkObject object = ids_.Renamed(copy.object);
    SqliteStatement(database_,
                    "INSERT INTO remarks (owner, type, objectid, seq, subject, body, cdate, udate) "
                    "VALUES (?, ?, ?, ?, ?, ?, ?, ?)")
        .Bind(owner_, object.type, object.id, copy.remark.seq, copy.remark.subject, copy.remark.body,
              copy.remark.created, copy.remark.updated)
        .Run();
}

}  // namespace Tarvik::Server
