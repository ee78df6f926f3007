// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteRows.h"

#include "host/server/storage/sqlite/SqliteStatement.h"

namespace Tarvik::Server {

namespace {

Status RowTaken(std::int32_t order) {
    return Fault{FaultReason::RowExists, std::to_string(order)};
}

}  // namespace

std::vector<PortCallRecord> ReadPortCalls(SqliteDatabase& database, const std::string& owner,
                                          const std::string& voyageId) {
    std::vector<PortCallRecord> calls;
    SqliteStatement row(database,
                        "SELECT lon, ppi, ppn, pp, psp, pw, apt FROM port_calls "
                        "WHERE owner = ? AND vi = ? ORDER BY lon");
    row.Bind(owner, voyageId);
    while (row.Step()) {
        calls.push_back(
            {row.Integer32(0), row.Text(1), row.Text(2), row.Text(3), row.Real(4), row.Real(5), row.Real(6)});
    }
    return calls;
}

std::vector<BookRowRecord> ReadBookRows(SqliteDatabase& database, const std::string& owner,
                                        const std::string& bookId) {
    std::vector<BookRowRecord> rows;
    SqliteStatement row(database,
                        "SELECT lon, psn, xc, yc, psr, pli, psp, pst FROM book_rows "
                        "WHERE owner = ? AND pbi = ? ORDER BY lon");
    row.Bind(owner, bookId);
    while (row.Step()) {
        rows.push_back({row.Integer32(0), row.Text(1), row.Real(2), row.Real(3), row.Text(4),
                        row.Integer32(5), row.Real(6), row.Integer32(7)});
    }
    return rows;
}

Status InsertPortCalls(SqliteDatabase& database, const std::string& owner, const std::string& voyageId,
                       const std::vector<PortCallRecord>& calls) {
    SqliteStatement insert(database,
                           "INSERT INTO port_calls (owner, vi, lon, ppi, ppn, pp, psp, pw, apt) "
                           "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?) ON CONFLICT DO NOTHING");
    for (const PortCallRecord& call : calls) {
        insert.Bind(owner, voyageId, call.order, call.portId, call.portName, call.purpose, call.speedKmh,
                    call.weatherFactor, call.hoursInPort);
        if (insert.Run() == 0) {
            return RowTaken(call.order);
        }
    }
    return Done{};
}

Status InsertBookRows(SqliteDatabase& database, const std::string& owner, const std::string& bookId,
                      const std::vector<BookRowRecord>& rows) {
    SqliteStatement insert(database,
                           "INSERT INTO book_rows (owner, pbi, lon, psn, xc, yc, psr, pli, psp, pst) "
                           "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?) ON CONFLICT DO NOTHING");
    for (const BookRowRecord& row : rows) {
        insert.Bind(owner, bookId, row.order, row.name, row.longitude, row.latitude, row.sailing, row.spacing,
                    row.speedKmh, row.kind);
        if (insert.Run() == 0) {
            return RowTaken(row.order);
        }
    }
    return Done{};
}

}  // namespace Tarvik::Server
