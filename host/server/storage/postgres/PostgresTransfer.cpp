// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresTransfer.h"

#include <utility>

#include "host/server/storage/contract/CopyIds.h"
#include "host/server/storage/postgres/PostgresCatalogReader.h"
#include "host/server/storage/postgres/PostgresOwnerWriter.h"
#include "host/server/storage/postgres/PostgresScheduleRows.h"

namespace Tarvik::Server {

namespace {

std::vector<std::string> FirstColumn(const PostgresRows& found) {
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(found.Count()));
    for (int row = 0; row < found.Count(); ++row) {
        texts.push_back(found.Text(row, 0));
    }
    return texts;
}

std::optional<BookRecord> ReadBook(PostgresConnection& connection, const std::string& owner,
                                   const std::string& voyageId) {
    const PostgresRows found =
        connection.Run("SELECT pbi, eta FROM position_books WHERE owner = $1 AND vi = $2", owner, voyageId);
    if (found.Empty()) {
        return std::nullopt;
    }
    BookRecord book{found.Text(0, 0), found.Text(0, 1), {}};
    book.rows = ReadBookRows(connection, owner, book.id);
    return book;
}

std::vector<std::string> ReadAisTimes(PostgresConnection& connection, const std::string& owner,
                                      const std::string& voyageId) {
    const PostgresRows found = connection.Run(
        "SELECT time FROM ais_times WHERE owner = $1 AND vi = $2 ORDER BY place", owner, voyageId);
    return FirstColumn(found);
}

/// Remarks of known objects; those of destroyed ones are as unknown as these.
std::vector<RemarkCopy> ReadRemarks(PostgresConnection& connection, const std::string& owner,
                                    const CopyIds& known) {
    const PostgresRows found = connection.Run(
        "SELECT type, objectid, seq, subject, body, cdate, udate FROM remarks "
        "WHERE owner = $1 ORDER BY type, objectid, seq",
        owner);
    std::vector<RemarkCopy> remarks;
    for (int row = 0; row < found.Count(); ++row) {
        RemarkCopy copy{{found.Integer32(row, 0), found.Text(row, 1)},
                        {found.Integer32(row, 2), found.Text(row, 3), found.Text(row, 4),
                         found.Integer(row, 5), found.Integer(row, 6)}};
        if (known.Knows(copy.object)) {
            remarks.push_back(std::move(copy));
        }
    }
    return remarks;
}

VoyageCopy ReadVoyage(PostgresConnection& connection, const std::string& owner, VoyageRecord voyage) {
    VoyageCopy copy;
    copy.calls = ReadPortCalls(connection, owner, voyage.id);
    copy.book = ReadBook(connection, owner, voyage.id);
    copy.aisTimes = ReadAisTimes(connection, owner, voyage.id);
    copy.voyage = std::move(voyage);
    return copy;
}

bool HasRecords(PostgresConnection& connection, const std::string& owner) {
    return !connection.Run("SELECT 1 FROM categories WHERE owner = $1 AND cd <> 2 LIMIT 1", owner).Empty();
}

std::int64_t NextId(PostgresConnection& connection) {
    return connection.Run("SELECT CASE WHEN is_called THEN last_value + 1 ELSE last_value END FROM ids")
        .Integer(0, 0);
}

/// Lets the sequence go on behind the ids that are about to be added, if it has not reached them yet. From
/// the look to the end of the transaction nobody else takes an id.
bool SkipIds(PostgresConnection& connection, const CopyManifest& manifest) {
    if (manifest.highestId == 0) {
        return true;
    }
    if (NextId(connection) > manifest.lowestId) {
        return false;
    }
    connection.Execute("ALTER SEQUENCE ids NO CYCLE");
    if (NextId(connection) > manifest.lowestId) {
        return false;
    }
    connection.Execute("ALTER SEQUENCE ids RESTART WITH " + std::to_string(manifest.highestId + 1));
    return true;
}

}  // namespace

std::unique_ptr<PostgresTransfer> PostgresTransfer::Open(const std::string& connectionText,
                                                         std::string& error) {
    try {
        return std::unique_ptr<PostgresTransfer>(new PostgresTransfer(connectionText));
    } catch (const std::exception& failure) {
        error = failure.what();
        return nullptr;
    }
}

Outcome<std::vector<std::string>> PostgresTransfer::ListOwners() {
    return session_.Read([](PostgresConnection& connection) -> Outcome<std::vector<std::string>> {
        const PostgresRows found =
            connection.Run("SELECT DISTINCT owner FROM categories WHERE cd <> 2 ORDER BY owner");
        return FirstColumn(found);
    });
}

Outcome<OwnerCopy> PostgresTransfer::ReadOwner(const std::string& owner) {
    return session_.Read([&](PostgresConnection& connection) -> Outcome<OwnerCopy> {
        OwnerCopy copy{owner, {}, {}};
        CopyIds known;
        for (CategoryRecord& category : ReadCatalog(connection, owner)) {
            known.PutCategory(category.id, category.id);
            copy.categories.push_back({category.id, category.name, category.state, {}});
            for (VoyageRecord& voyage : category.voyages) {
                known.PutVoyage(voyage.id, voyage.id);
                copy.categories.back().voyages.push_back(ReadVoyage(connection, owner, std::move(voyage)));
            }
        }
        copy.remarks = ReadRemarks(connection, owner, known);
        return copy;
    });
}

Outcome<AddReport> PostgresTransfer::AddOwners(const CopyManifest& manifest, const OwnerSource& source) {
    return session_.Write([&](PostgresConnection& connection) -> Outcome<AddReport> {
        for (const std::string& owner : manifest.owners) {
            if (!manifest.besideOthers && HasRecords(connection, owner)) {
                return AddReport{false, owner};
            }
        }
        const AddReport report{SkipIds(connection, manifest), {}};
        PostgresOwnerWriter writer(connection, report.idsKept);
        for (;;) {
            const auto copy = source();
            if (!copy) {
                return copy.GetFault();
            }
            if (!copy.Value()) {
                return report;
            }
            const Status written = writer.Write(*copy.Value());
            if (!written) {
                return written.GetFault();
            }
        }
    });
}

}  // namespace Tarvik::Server
