// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresSchedule.h"

#include "host/server/storage/postgres/PostgresKeys.h"
#include "host/server/storage/postgres/PostgresScheduleRows.h"

namespace Tarvik::Server {

Outcome<std::vector<PortCallRecord>> PostgresSchedule::LoadPortCalls(const std::string& owner,
                                                                     const std::string& voyageId) {
    return session_.Read([&](PostgresConnection& connection) -> Outcome<std::vector<PortCallRecord>> {
        if (!VoyageState(connection, owner, voyageId, RowLock::None)) {
            return FaultReason::UnknownVoyage;
        }
        return ReadPortCalls(connection, owner, voyageId);
    });
}

Status PostgresSchedule::ReplacePortCalls(const std::string& owner, const std::string& voyageId,
                                          const std::vector<PortCallRecord>& calls) {
    return session_.Write([&](PostgresConnection& connection) -> Status {
        if (!VoyageState(connection, owner, voyageId, RowLock::Update)) {
            return FaultReason::UnknownVoyage;
        }
        connection.Run("DELETE FROM port_calls WHERE owner = $1 AND vi = $2", owner, voyageId);
        return InsertPortCalls(connection, owner, voyageId, calls);
    });
}

Outcome<std::optional<BookRecord>> PostgresSchedule::LoadBook(const std::string& owner,
                                                              const std::string& voyageId) {
    return session_.Read([&](PostgresConnection& connection) -> Outcome<std::optional<BookRecord>> {
        if (!VoyageState(connection, owner, voyageId, RowLock::None)) {
            return FaultReason::UnknownVoyage;
        }
        const PostgresRows found = connection.Run(
            "SELECT pbi, eta FROM position_books WHERE owner = $1 AND vi = $2", owner, voyageId);
        if (found.Empty()) {
            return std::optional<BookRecord>();
        }
        BookRecord book{found.Text(0, 0), found.Text(0, 1), {}};
        book.rows = ReadBookRows(connection, owner, book.id);
        return std::optional(std::move(book));
    });
}

Outcome<std::string> PostgresSchedule::CreateBook(const std::string& owner, const std::string& voyageId,
                                                  const std::string& date) {
    return session_.Write([&](PostgresConnection& connection) -> Outcome<std::string> {
        if (!VoyageState(connection, owner, voyageId, RowLock::Update)) {
            return FaultReason::UnknownVoyage;
        }
        const PostgresRows found = connection.Run(
            "SELECT pbi, eta FROM position_books WHERE owner = $1 AND vi = $2", owner, voyageId);
        if (!found.Empty()) {
            return FaultReason::BookExists;
        }
        std::string id = TakeId(connection);
        connection.Run("INSERT INTO position_books (owner, pbi, vi, eta) VALUES ($1, $2, $3, $4)", owner, id,
                       voyageId, date);
        return id;
    });
}

Status PostgresSchedule::SetBookDate(const std::string& owner, const std::string& bookId,
                                     const std::string& date) {
    return session_.Write([&](PostgresConnection& connection) -> Status {
        if (!BookKnown(connection, owner, bookId, RowLock::Update)) {
            return FaultReason::UnknownBook;
        }
        connection.Run("UPDATE position_books SET eta = $3 WHERE owner = $1 AND pbi = $2", owner, bookId,
                       date);
        return Done{};
    });
}

Status PostgresSchedule::ReplaceBookRows(const std::string& owner, const std::string& bookId,
                                         const std::vector<BookRowRecord>& rows) {
    return session_.Write([&](PostgresConnection& connection) -> Status {
        if (!BookKnown(connection, owner, bookId, RowLock::Update)) {
            return FaultReason::UnknownBook;
        }
        connection.Run("DELETE FROM book_rows WHERE owner = $1 AND pbi = $2", owner, bookId);
        return InsertBookRows(connection, owner, bookId, rows);
    });
}

Status PostgresSchedule::AppendBookRows(const std::string& owner, const std::string& bookId,
                                        const std::vector<BookRowRecord>& rows) {
    return session_.Write([&](PostgresConnection& connection) -> Status {
        if (!BookKnown(connection, owner, bookId, RowLock::Update)) {
            return FaultReason::UnknownBook;
        }
        const PostgresRows any =
            connection.Run("SELECT 1 FROM book_rows WHERE owner = $1 AND pbi = $2 LIMIT 1", owner, bookId);
        if (any.Empty()) {
            return FaultReason::NothingToAppendTo;
        }
        return InsertBookRows(connection, owner, bookId, rows);
    });
}

Outcome<std::vector<std::string>> PostgresSchedule::LoadAisTimes(const std::string& owner,
                                                                 const std::string& voyageId) {
    return session_.Read([&](PostgresConnection& connection) -> Outcome<std::vector<std::string>> {
        if (!VoyageState(connection, owner, voyageId, RowLock::None)) {
            return FaultReason::UnknownVoyage;
        }
        const PostgresRows rows = connection.Run(
            "SELECT time FROM ais_times WHERE owner = $1 AND vi = $2 ORDER BY place", owner, voyageId);
        std::vector<std::string> times;
        times.reserve(static_cast<std::size_t>(rows.Count()));
        for (int row = 0; row < rows.Count(); ++row) {
            times.push_back(rows.Text(row, 0));
        }
        return times;
    });
}

Status PostgresSchedule::AddAisTime(const std::string& owner, const std::string& voyageId,
                                    const std::string& time) {
    return session_.Write([&](PostgresConnection& connection) -> Status {
        if (!VoyageState(connection, owner, voyageId, RowLock::Update)) {
            return FaultReason::UnknownVoyage;
        }
        connection.Run(
            "INSERT INTO ais_times (owner, vi, place, time) SELECT $1, $2, "
            "(SELECT coalesce(max(place), 0) + 1 FROM ais_times WHERE owner = $1 AND vi = $2), $3 "
            "ON CONFLICT (owner, vi, time) DO NOTHING",
            owner, voyageId, time);
        return Done{};
    });
}

}  // namespace Tarvik::Server
