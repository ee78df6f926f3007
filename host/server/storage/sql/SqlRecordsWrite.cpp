// SPDX-License-Identifier: MIT
#include <array>

#include "host/server/storage/sql/SqlRecords.h"

namespace Tarvik::Server {

namespace {

using Column = SqlBatch::Column;

constexpr std::array<Column, 7> kCallColumns = {{{"lon", SqlType::Integer},
                                                 {"ppi", SqlType::Text},
                                                 {"ppn", SqlType::Text},
                                                 {"pp", SqlType::Text},
                                                 {"psp", SqlType::Real},
                                                 {"pw", SqlType::Real},
                                                 {"apt", SqlType::Real}}};

constexpr std::array<Column, 8> kBookColumns = {{{"lon", SqlType::Integer},
                                                 {"psn", SqlType::Text},
                                                 {"xc", SqlType::Real},
                                                 {"yc", SqlType::Real},
                                                 {"psr", SqlType::Text},
                                                 {"pli", SqlType::Integer},
                                                 {"psp", SqlType::Real},
                                                 {"pst", SqlType::Integer}}};

Status InsertBatch(SqlConnection& connection, const SqlBatch& batch) {
    if (batch.values.empty()) {
        return Done{};
    }
    const auto taken = connection.Insert(batch);
    if (taken) {
        return Fault{FaultReason::RowExists, std::to_string(*taken)};
    }
    return Done{};
}

}  // namespace

void InsertCategory(SqlConnection& connection, const std::string& owner, const std::string& id,
                    const std::string& name, DeletionState state) {
    connection.Run("INSERT INTO categories (owner, ci, cn, cd) VALUES ($1, $2, $3, $4)", owner, id, name,
                   static_cast<int>(state));
}

void InsertVoyage(SqlConnection& connection, const std::string& owner, const std::string& id,
                  const std::string& categoryId, const VoyageRecord& voyage) {
    const Figures& f = voyage.figures;
    connection.Run(
        "INSERT INTO voyages (owner, vi, ci, vn, vsi, vsn, vsmsi, vr, va, vd, "
        "vfn, vff, vfa, vdn, vda, vwn, vwa) "
        "VALUES ($1, $2, $3, $4, $5, $6, $7, $8, $9, $10, $11, $12, $13, $14, $15, $16, $17)",
        owner, id, categoryId, voyage.name, voyage.vessel.id, voyage.vessel.name, voyage.vessel.mmsi,
        voyage.routeShown, voyage.aisTraced, static_cast<int>(voyage.state), f[0], f[1], f[2], f[3], f[4],
        f[5], f[6]);
}

void InsertBook(SqlConnection& connection, const std::string& owner, const std::string& id,
                const std::string& voyageId, const std::string& date) {
    connection.Run("INSERT INTO position_books (owner, pbi, vi, eta) VALUES ($1, $2, $3, $4)", owner, id,
                   voyageId, date);
}

Status InsertPortCalls(SqlConnection& connection, const std::string& owner, const std::string& voyageId,
                       const std::vector<PortCallRecord>& calls) {
    SqlBatch batch{"port_calls", "vi", kCallColumns, owner, voyageId, {}};
    batch.values.reserve(calls.size() * kCallColumns.size());
    for (const PortCallRecord& call : calls) {
        batch.values.insert(batch.values.end(), {call.order, call.portId, call.portName, call.purpose,
                                                 call.speedKmh, call.weatherFactor, call.hoursInPort});
    }
    return InsertBatch(connection, batch);
}

Status InsertBookRows(SqlConnection& connection, const std::string& owner, const std::string& bookId,
                      const std::vector<BookRowRecord>& rows) {
    SqlBatch batch{"book_rows", "pbi", kBookColumns, owner, bookId, {}};
    batch.values.reserve(rows.size() * kBookColumns.size());
    for (const BookRowRecord& row : rows) {
        batch.values.insert(batch.values.end(), {row.order, row.name, row.longitude, row.latitude,
                                                 row.sailing, row.spacing, row.speedKmh, row.kind});
    }
    return InsertBatch(connection, batch);
}

bool InsertRemark(SqlConnection& connection, const std::string& owner, const RemarkObject& object,
                  const RemarkRecord& remark) {
    return connection.Run(
               "INSERT INTO remarks (owner, type, objectid, seq, subject, body, cdate, udate) "
               "VALUES ($1, $2, $3, $4, $5, $6, $7, $8) ON CONFLICT DO NOTHING",
               owner, object.type, object.id, remark.seq, remark.subject, remark.body, remark.created,
               remark.updated) == 1;
}

}  // namespace Tarvik::Server
