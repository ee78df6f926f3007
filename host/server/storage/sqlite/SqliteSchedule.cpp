// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteSchedule.h"

#include "host/server/storage/sqlite/SqliteKeys.h"
#include "host/server/storage/sqlite/SqliteRows.h"
#include "host/server/storage/sqlite/SqliteStatement.h"

namespace Tarvik::Server {

Outcome<std::vector<PortCallRecord>> SqliteSchedule::LoadPortCalls(const std::string& owner,
                                                                   const std::string& voyageId) {
    return session_.Read([&](SqliteDatabase& database) -> Outcome<std::vector<PortCallRecord>> {
        if (!VoyageState(database, owner, voyageId)) {
            return FaultReason::UnknownVoyage;
        }
        return ReadPortCalls(database, owner, voyageId);
    });
}

Status SqliteSchedule::ReplacePortCalls(const std::string& owner, const std::string& voyageId,
                                        const std::vector<PortCallRecord>& calls) {
    return session_.Write([&](SqliteDatabase& database) -> Status {
        if (!VoyageState(database, owner, voyageId)) {
            return FaultReason::UnknownVoyage;
        }
        SqliteStatement(database, "DELETE FROM port_calls WHERE owner = ? AND vi = ?")
            .Bind(owner, voyageId)
            .Run();
        return InsertPortCalls(database, owner, voyageId, calls);
    });
}

Outcome<std::optional<BookRecord>> SqliteSchedule::LoadBook(const std::string& owner,
                                                            const std::string& voyageId) {
    return session_.Read([&](SqliteDatabase& database) -> Outcome<std::optional<BookRecord>> {
        if (!VoyageState(database, owner, voyageId)) {
            return FaultReason::UnknownVoyage;
        }
        SqliteStatement find(database, "SELECT pbi, eta FROM position_books WHERE owner = ? AND vi = ?");
        find.Bind(owner, voyageId);
        if (!find.Step()) {
            return std::optional<BookRecord>();
        }
        BookRecord book{find.Text(0), find.Text(1), {}};
        book.rows = ReadBookRows(database, owner, book.id);
        return std::optional(std::move(book));
    });
}

Outcome<std::string> SqliteSchedule::CreateBook(const std::string& owner, const std::string& voyageId,
                                                const std::string& date) {
    return session_.Write([&](SqliteDatabase& database) -> Outcome<std::string> {
        if (!VoyageState(database, owner, voyageId)) {
            return FaultReason::UnknownVoyage;
        }
        SqliteStatement find(database, "SELECT 1 FROM position_books WHERE owner = ? AND vi = ?");
        if (find.Bind(owner, voyageId).Step()) {
            return FaultReason::BookExists;
        }
        std::string id = TakeId(database);
        SqliteStatement(database, "INSERT INTO position_books (owner, pbi, vi, eta) VALUES (?, ?, ?, ?)")
            .Bind(owner, id, voyageId, date)
            .Run();
        return id;
    });
}

Status SqliteSchedule::SetBookDate(const std::string& owner, const std::string& bookId,
                                   const std::string& date) {
    return session_.Write([&](SqliteDatabase& database) -> Status {
        if (!BookKnown(database, owner, bookId)) {
            return FaultReason::UnknownBook;
        }
        SqliteStatement(database, "UPDATE position_books SET eta = ? WHERE owner = ? AND pbi = ?")
            .Bind(date, owner, bookId)
            .Run();
        return Done{};
    });
}

Status SqliteSchedule::ReplaceBookRows(const std::string& owner, const std::string& bookId,
                                       const std::vector<BookRowRecord>& rows) {
    return session_.Write([&](SqliteDatabase& database) -> Status {
        if (!BookKnown(database, owner, bookId)) {
            return FaultReason::UnknownBook;
        }
        SqliteStatement(database, "DELETE FROM book_rows WHERE owner = ? AND pbi = ?")
            .Bind(owner, bookId)
            .Run();
        return InsertBookRows(database, owner, bookId, rows);
    });
}

Status SqliteSchedule::AppendBookRows(const std::string& owner, const std::string& bookId,
                                      const std::vector<BookRowRecord>& rows) {
    return session_.Write([&](SqliteDatabase& database) -> Status {
        if (!BookKnown(database, owner, bookId)) {
            return FaultReason::UnknownBook;
        }
        SqliteStatement find(database, "SELECT 1 FROM book_rows WHERE owner = ? AND pbi = ? LIMIT 1");
        if (!find.Bind(owner, bookId).Step()) {
            return FaultReason::NothingToAppendTo;
        }
        return InsertBookRows(database, owner, bookId, rows);
    });
}

Outcome<std::vector<std::string>> SqliteSchedule::LoadAisTimes(const std::string& owner,
                                                               const std::string& voyageId) {
    return session_.Read([&](SqliteDatabase& database) -> Outcome<std::vector<std::string>> {
        if (!VoyageState(database, owner, voyageId)) {
            return FaultReason::UnknownVoyage;
        }
        std::vector<std::string> times;
        SqliteStatement find(database,
                             "SELECT time FROM ais_times WHERE owner = ? AND vi = ? ORDER BY place");
        find.Bind(owner, voyageId);
        while (find.Step()) {
            times.push_back(find.Text(0));
        }
        return times;
    });
}

Status SqliteSchedule::AddAisTime(const std::string& owner, const std::string& voyageId,
                                  const std::string& time) {
    return session_.Write([&](SqliteDatabase& database) -> Status {
        if (!VoyageState(database, owner, voyageId)) {
            return FaultReason::UnknownVoyage;
        }
        SqliteStatement(
            database,
            "INSERT INTO ais_times (owner, vi, place, time) SELECT ?1, ?2, "
            "(SELECT coalesce(max(place), 0) + 1 FROM ais_times WHERE owner = ?1 AND vi = ?2), ?3 "
            "WHERE NOT EXISTS (SELECT 1 FROM ais_times WHERE owner = ?1 AND vi = ?2 AND time = ?3)")
            .Bind(owner, voyageId, time)
            .Run();
        return Done{};
    });
}

}  // namespace Tarvik::Server
