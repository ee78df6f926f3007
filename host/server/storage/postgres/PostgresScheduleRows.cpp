// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresScheduleRows.h"

#include <algorithm>
#include <set>

namespace Tarvik::Server {

namespace {

/// In the order of the keys: who inserts keys in one order cannot wait in a circle.
template <class Record>
std::vector<Record> Sorted(std::vector<Record> records) {
    std::stable_sort(records.begin(), records.end(),
                     [](const Record& left, const Record& right) { return left.order < right.order; });
    return records;
}

/// `inserted` gives the numbers that were free. A number that the request holds twice is taken by its first.
template <class Record>
Status CheckInserted(const PostgresRows& inserted, const std::vector<Record>& asked) {
    if (static_cast<std::size_t>(inserted.Count()) == asked.size()) {
        return Done{};
    }
    std::set<std::int32_t> free;
    for (int row = 0; row < inserted.Count(); ++row) {
        free.insert(inserted.Integer32(row, 0));
    }
    for (const Record& record : asked) {
        if (free.erase(record.order) == 0) {
            return Fault{FaultReason::RowExists, std::to_string(record.order)};
        }
    }
    return Done{};
}

}  // namespace

std::vector<PortCallRecord> ReadPortCalls(PostgresConnection& connection, const std::string& owner,
                                          const std::string& voyageId) {
    const PostgresRows rows = connection.Run(
        "SELECT lon, ppi, ppn, pp, psp, pw, apt FROM port_calls WHERE owner = $1 AND vi = $2 ORDER BY lon",
        owner, voyageId);
    std::vector<PortCallRecord> calls;
    calls.reserve(static_cast<std::size_t>(rows.Count()));
    for (int row = 0; row < rows.Count(); ++row) {
        calls.push_back({rows.Integer32(row, 0), rows.Text(row, 1), rows.Text(row, 2), rows.Text(row, 3),
                         rows.Real(row, 4), rows.Real(row, 5), rows.Real(row, 6)});
    }
    return calls;
}

std::vector<BookRowRecord> ReadBookRows(PostgresConnection& connection, const std::string& owner,
                                        const std::string& bookId) {
    const PostgresRows rows = connection.Run(
        "SELECT lon, psn, xc, yc, psr, pli, psp, pst FROM book_rows WHERE owner = $1 AND pbi = $2 "
        "ORDER BY lon",
        owner, bookId);
    std::vector<BookRowRecord> book;
    book.reserve(static_cast<std::size_t>(rows.Count()));
    for (int row = 0; row < rows.Count(); ++row) {
        book.push_back({rows.Integer32(row, 0), rows.Text(row, 1), rows.Real(row, 2), rows.Real(row, 3),
                        rows.Text(row, 4), rows.Integer32(row, 5), rows.Real(row, 6),
                        rows.Integer32(row, 7)});
    }
    return book;
}

Status InsertPortCalls(PostgresConnection& connection, const std::string& owner, const std::string& voyageId,
                       const std::vector<PortCallRecord>& calls) {
    if (calls.empty()) {
        return Done{};
    }
    using Call = PortCallRecord;
    const std::vector<Call> sorted = Sorted(calls);
    const PostgresRows inserted = connection.Run(
        "INSERT INTO port_calls (owner, vi, lon, ppi, ppn, pp, psp, pw, apt) "
        "SELECT $1, $2, r.* FROM unnest($3::integer[], $4::text[], $5::text[], $6::text[], "
        "$7::double precision[], $8::double precision[], $9::double precision[]) AS r "
        "ON CONFLICT DO NOTHING RETURNING lon",
        owner, voyageId, PostgresArray(sorted, &Call::order), PostgresArray(sorted, &Call::portId),
        PostgresArray(sorted, &Call::portName), PostgresArray(sorted, &Call::purpose),
        PostgresArray(sorted, &Call::speedKmh), PostgresArray(sorted, &Call::weatherFactor),
        PostgresArray(sorted, &Call::hoursInPort));
    return CheckInserted(inserted, calls);
}

Status InsertBookRows(PostgresConnection& connection, const std::string& owner, const std::string& bookId,
                      const std::vector<BookRowRecord>& rows) {
    if (rows.empty()) {
        return Done{};
    }
    using Row = BookRowRecord;
    const std::vector<Row> sorted = Sorted(rows);
    const PostgresRows inserted = connection.Run(
        "INSERT INTO book_rows (owner, pbi, lon, psn, xc, yc, psr, pli, psp, pst) "
        "SELECT $1, $2, r.* FROM unnest($3::integer[], $4::text[], $5::double precision[], "
        "$6::double precision[], $7::text[], $8::integer[], $9::double precision[], $10::integer[]) AS r "
        "ON CONFLICT DO NOTHING RETURNING lon",
        owner, bookId, PostgresArray(sorted, &Row::order), PostgresArray(sorted, &Row::name),
        PostgresArray(sorted, &Row::longitude), PostgresArray(sorted, &Row::latitude),
        PostgresArray(sorted, &Row::sailing), PostgresArray(sorted, &Row::spacing),
        PostgresArray(sorted, &Row::speedKmh), PostgresArray(sorted, &Row::kind));
    return CheckInserted(inserted, rows);
}

}  // namespace Tarvik::Server
