// SPDX-License-Identifier: MIT
#include "host/server/storage/sql/SqlKeys.h"
#include "host/server/storage/sql/SqlRecords.h"
#include "host/server/storage/sql/SqlStorage.h"

namespace Tarvik::Server {

Outcome<std::vector<PortCallRecord>> SqlSchedule::LoadPortCalls(const std::string& owner,
                                                                const std::string& voyageId) {
    return session_.Read([&](SqlConnection& connection) -> Outcome<std::vector<PortCallRecord>> {
        if (!VoyageState(connection, owner, voyageId, RowLock::None)) {
            return FaultReason::UnknownVoyage;
        }
        return ReadPortCalls(connection, owner, voyageId);
    });
}

Status SqlSchedule::ReplacePortCalls(const std::string& owner, const std::string& voyageId,
                                     const std::vector<PortCallRecord>& calls) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        if (!VoyageState(connection, owner, voyageId, RowLock::Hold)) {
            return FaultReason::UnknownVoyage;
        }
        connection.Run("DELETE FROM port_calls WHERE owner = $1 AND vi = $2", owner, voyageId);
        return InsertPortCalls(connection, owner, voyageId, calls);
    });
}

Outcome<std::optional<BookRecord>> SqlSchedule::LoadBook(const std::string& owner,
                                                         const std::string& voyageId) {
    return session_.Read([&](SqlConnection& connection) -> Outcome<std::optional<BookRecord>> {
        if (!VoyageState(connection, owner, voyageId, RowLock::None)) {
            return FaultReason::UnknownVoyage;
        }
        return ReadBook(connection, owner, voyageId);
    });
}

Outcome<std::string> SqlSchedule::CreateBook(const std::string& owner, const std::string& voyageId,
                                             const std::string& date) {
    return session_.Write([&](SqlConnection& connection) -> Outcome<std::string> {
        if (!VoyageState(connection, owner, voyageId, RowLock::Hold)) {
            return FaultReason::UnknownVoyage;
        }
        if (connection.Query("SELECT 1 FROM position_books WHERE owner = $1 AND vi = $2", owner, voyageId)
                ->Next()) {
            return FaultReason::BookExists;
        }
        std::string id = TakeId(connection);
        InsertBook(connection, owner, id, voyageId, date);
        return id;
    });
}

Status SqlSchedule::SetBookDate(const std::string& owner, const std::string& bookId,
                                const std::string& date) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        if (!BookKnown(connection, owner, bookId, RowLock::Hold)) {
            return FaultReason::UnknownBook;
        }
        connection.Run("UPDATE position_books SET eta = $3 WHERE owner = $1 AND pbi = $2", owner, bookId,
                       date);
        return Done{};
    });
}

Status SqlSchedule::ReplaceBookRows(const std::string& owner, const std::string& bookId,
                                    const std::string& writer, const std::vector<BookRowRecord>& rows) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        if (!BookKnown(connection, owner, bookId, RowLock::Hold)) {
            return FaultReason::UnknownBook;
        }
        connection.Run("DELETE FROM book_rows WHERE owner = $1 AND pbi = $2", owner, bookId);
        connection.Run("UPDATE position_books SET writer = $3 WHERE owner = $1 AND pbi = $2", owner, bookId,
                       writer);
        return InsertBookRows(connection, owner, bookId, rows);
    });
}

Status SqlSchedule::AppendBookRows(const std::string& owner, const std::string& bookId,
                                   const std::string& writer, const std::vector<BookRowRecord>& rows) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        if (!BookKnown(connection, owner, bookId, RowLock::Hold)) {
            return FaultReason::UnknownBook;
        }
        const auto mine = connection.Query(
            "SELECT 1 FROM position_books WHERE owner = $1 AND pbi = $2 AND writer IN ('', $3)", owner,
            bookId, writer);
        if (!mine->Next()) {
            return FaultReason::BookTakenOver;
        }
        const auto counted =
            connection.Query("SELECT count(*) FROM book_rows WHERE owner = $1 AND pbi = $2", owner, bookId);
        const auto count = static_cast<std::size_t>(counted->Next() ? counted->Integer(0) : 0);
        if (count == 0) {
            return FaultReason::NothingToAppendTo;
        }
        if (count + rows.size() > kMostRows) {
            return FaultReason::TooManyRows;
        }
        return InsertBookRows(connection, owner, bookId, rows);
    });
}

Outcome<std::vector<std::string>> SqlSchedule::LoadAisTimes(const std::string& owner,
                                                            const std::string& voyageId) {
    return session_.Read([&](SqlConnection& connection) -> Outcome<std::vector<std::string>> {
        if (!VoyageState(connection, owner, voyageId, RowLock::None)) {
            return FaultReason::UnknownVoyage;
        }
        return ReadAisTimes(connection, owner, voyageId);
    });
}

Status SqlSchedule::AddAisTime(const std::string& owner, const std::string& voyageId,
                               const std::string& time) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        if (!VoyageState(connection, owner, voyageId, RowLock::Hold)) {
            return FaultReason::UnknownVoyage;
        }
        connection.Run(
            "INSERT INTO ais_times (owner, vi, place, time) SELECT $1, $2, "
            "(SELECT coalesce(max(place), 0) + 1 FROM ais_times WHERE owner = $1 AND vi = $2), $3 "
            "WHERE TRUE ON CONFLICT (owner, vi, time) DO NOTHING",
            owner, voyageId, time);
        return Done{};
    });
}

}  // namespace Tarvik::Server
