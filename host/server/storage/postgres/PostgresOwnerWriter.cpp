// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresOwnerWriter.h"

#include "host/server/storage/postgres/PostgresKeys.h"
#include "host/server/storage/postgres/PostgresScheduleRows.h"

namespace Tarvik::Server {

Status PostgresOwnerWriter::Write(const OwnerCopy& copy) {
    owner_ = copy.owner;
    ids_ = CopyIds();
    for (const CategoryCopy& category : copy.categories) {
        const std::string categoryId = NewId(category.id);
        ids_.PutCategory(category.id, categoryId);
        connection_.Run("INSERT INTO categories (owner, ci, cn, cd) VALUES ($1, $2, $3, $4)", owner_,
                        categoryId, category.name, static_cast<int>(category.state));
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

std::string PostgresOwnerWriter::NewId(const std::string& before) {
    return keepIds_ ? before : TakeId(connection_);
}

void PostgresOwnerWriter::WriteVoyage(const VoyageRecord& voyage, const std::string& categoryId,
                                      const std::string& id) {
    const Figures& f = voyage.figures;
    connection_.Run(
        "INSERT INTO voyages (owner, vi, ci, vn, vsi, vsn, vsmsi, vr, va, vd, "
        "vfn, vff, vfa, vdn, vda, vwn, vwa) "
        "VALUES ($1, $2, $3, $4, $5, $6, $7, $8, $9, $10, $11, $12, $13, $14, $15, $16, $17)",
        owner_, id, categoryId, voyage.name, voyage.vessel.id, voyage.vessel.name, voyage.vessel.mmsi,
        voyage.routeShown, voyage.aisTraced, static_cast<int>(voyage.state), f[0], f[1], f[2], f[3], f[4],
        f[5], f[6]);
}

Status PostgresOwnerWriter::WriteSchedule(const VoyageCopy& copy, const std::string& voyageId) {
    int place = 0;
    for (const std::string& time : copy.aisTimes) {
        connection_.Run("INSERT INTO ais_times (owner, vi, place, time) VALUES ($1, $2, $3, $4)", owner_,
                        voyageId, ++place, time);
    }
    Status calls = InsertPortCalls(connection_, owner_, voyageId, copy.calls);
    if (!calls || !copy.book) {
        return calls;
    }
    const std::string bookId = NewId(copy.book->id);
    connection_.Run("INSERT INTO position_books (owner, pbi, vi, eta) VALUES ($1, $2, $3, $4)", owner_,
                    bookId, voyageId, copy.book->date);
    return InsertBookRows(connection_, owner_, bookId, copy.book->rows);
}

void PostgresOwnerWriter::WriteRemark(const RemarkCopy& copy) {
    const RemarkObject object = ids_.Renamed(copy.object);
    connection_.Run(
        "INSERT INTO remarks (owner, type, objectid, seq, subject, body, cdate, udate) "
        "VALUES ($1, $2, $3, $4, $5, $6, $7, $8)",
        owner_, object.type, object.id, copy.remark.seq, copy.remark.subject, copy.remark.body,
        copy.remark.created, copy.remark.updated);
}

}  // namespace Tarvik::Server
