// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteTransfer.h"

#include <utility>

#include "host/server/storage/contract/CopyIds.h"
#include "host/server/storage/sqlite/SqliteCatalogReader.h"
#include "host/server/storage/sqlite/SqliteOwnerWriter.h"
#include "host/server/storage/sqlite/SqliteRows.h"
#include "host/server/storage/sqlite/SqliteStatement.h"

namespace Tarvik::Server {

namespace {

std::optional<BookRecord> ReadBook(SqliteDatabase& database, const std::string& owner,
                                   const std::string& voyageId) {
    SqliteStatement find(database, "SELECT pbi, eta FROM position_books WHERE owner = ? AND vi = ?");
    if (!find.Bind(owner, voyageId).Step()) {
        return std::nullopt;
    }
    BookRecord book{find.Text(0), find.Text(1), {}};
    book.rows = ReadBookRows(database, owner, book.id);
    return book;
}

std::vector<std::string> ReadAisTimes(SqliteDatabase& database, const std::string& owner,
                                      const std::string& voyageId) {
    std::vector<std::string> times;
    SqliteStatement find(database, "SELECT time FROM ais_times WHERE owner = ? AND vi = ? ORDER BY place");
    find.Bind(owner, voyageId);
    while (find.Step()) {
        times.push_back(find.Text(0));
    }
    return times;
}

/// Remarks of known objects; those of destroyed ones are as unknown as these.
std::vector<RemarkCopy> ReadRemarks(SqliteDatabase& database, const std::string& owner,
                                    const CopyIds& known) {
    std::vector<RemarkCopy> remarks;
    SqliteStatement row(database,
                        "SELECT type, objectid, seq, subject, body, cdate, udate FROM remarks "
                        "WHERE owner = ? ORDER BY type, objectid, seq");
    row.Bind(owner);
    while (row.Step()) {
        RemarkCopy copy{{row.Integer32(0), row.Text(1)},
                        {row.Integer32(2), row.Text(3), row.Text(4), row.Integer(5), row.Integer(6)}};
        if (known.Knows(copy.object)) {
            remarks.push_back(std::move(copy));
        }
    }
    return remarks;
}

VoyageCopy ReadVoyage(SqliteDatabase& database, const std::string& owner, VoyageRecord voyage) {
    VoyageCopy copy;
    copy.calls = ReadPortCalls(database, owner, voyage.id);
    copy.book = ReadBook(database, owner, voyage.id);
    copy.aisTimes = ReadAisTimes(database, owner, voyage.id);
    copy.voyage = std::move(voyage);
    return copy;
}

bool HasRecords(SqliteDatabase& database, const std::string& owner) {
    SqliteStatement find(database, "SELECT 1 FROM categories WHERE owner = ? AND cd <> 2 LIMIT 1");
    return find.Bind(owner).Step();
}

/// Lets the counter go on behind the ids that are about to be added, if it has not reached them yet.
bool SkipIds(SqliteDatabase& database, const CopyManifest& manifest) {
    if (manifest.highestId == 0) {
        return true;
    }
    return SqliteStatement(database, "UPDATE next_id SET value = ? WHERE value <= ?")
               .Bind(manifest.highestId + 1, manifest.lowestId)
               .Run() == 1;
}

}  // namespace

Outcome<std::vector<std::string>> SqliteTransfer::ListOwners() {
    return session_.Read([](SqliteDatabase& database) -> Outcome<std::vector<std::string>> {
        std::vector<std::string> owners;
        SqliteStatement row(database, "SELECT DISTINCT owner FROM categories WHERE cd <> 2 ORDER BY owner");
        while (row.Step()) {
            owners.push_back(row.Text(0));
        }
        return owners;
    });
}

Outcome<OwnerCopy> SqliteTransfer::ReadOwner(const std::string& owner) {
    return session_.Read([&](SqliteDatabase& database) -> Outcome<OwnerCopy> {
        OwnerCopy copy{owner, {}, {}};
        CopyIds known;
        for (CategoryRecord& category : ReadCatalog(database, owner)) {
            known.PutCategory(category.id, category.id);
            copy.categories.push_back({category.id, category.name, category.state, {}});
            for (VoyageRecord& voyage : category.voyages) {
                known.PutVoyage(voyage.id, voyage.id);
                copy.categories.back().voyages.push_back(ReadVoyage(database, owner, std::move(voyage)));
            }
        }
        copy.remarks = ReadRemarks(database, owner, known);
        return copy;
    });
}

Outcome<AddReport> SqliteTransfer::AddOwners(const CopyManifest& manifest, const OwnerSource& source) {
    return session_.Write([&](SqliteDatabase& database) -> Outcome<AddReport> {
        for (const std::string& owner : manifest.owners) {
            if (!manifest.besideOthers && HasRecords(database, owner)) {
                return AddReport{false, owner};
            }
        }
        const AddReport report{SkipIds(database, manifest), {}};
        SqliteOwnerWriter writer(database, report.idsKept);
        for (;;) {
            const auto copy = source();
            if (!copy) {
                return copy.GetFault();
            }
            if (!copy.Value()) {
                break;
            }
            const Status written = writer.Write(*copy.Value());
            if (!written) {
                return written.GetFault();
            }
        }
        return report;
    });
}

}  // namespace Tarvik::Server
