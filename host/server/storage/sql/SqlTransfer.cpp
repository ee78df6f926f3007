// SPDX-License-Identifier: MIT
#include <utility>

#include "host/server/storage/contract/TransferStorage.h"
#include "host/server/storage/sql/SqlOwnerWriter.h"
#include "host/server/storage/sql/SqlRecords.h"
#include "host/server/storage/sql/SqlStorage.h"

namespace Tarvik::Server {

namespace {

/// Remarks of known objects; those of destroyed ones are as unknown as these.
std::vector<RemarkCopy> ReadRemarks(SqlConnection& connection, const std::string& owner,
                                    const CopyIds& known) {
    std::vector<RemarkCopy> remarks;
    const auto row = connection.Query(
        "SELECT type, objectid, seq, subject, body, cdate, udate FROM remarks "
        "WHERE owner = $1 ORDER BY type, objectid, seq",
        owner);
    while (row->Next()) {
        RemarkCopy copy{{row->Integer32(0), row->Text(1)},
                        {row->Integer32(2), row->Text(3), row->Text(4), row->Integer(5), row->Integer(6)}};
        if (known.Knows(copy.object)) {
            remarks.push_back(std::move(copy));
        }
    }
    return remarks;
}

VoyageCopy ReadVoyage(SqlConnection& connection, const std::string& owner, VoyageRecord voyage) {
    VoyageCopy copy;
    copy.calls = ReadPortCalls(connection, owner, voyage.id);
    copy.book = ReadBook(connection, owner, voyage.id);
    copy.aisTimes = ReadAisTimes(connection, owner, voyage.id);
    copy.voyage = std::move(voyage);
    return copy;
}

bool HasRecords(SqlConnection& connection, const std::string& owner) {
    return connection
        .Query(
            "SELECT 1 FROM categories WHERE owner = $1 AND cd <> 2 "
            "UNION ALL SELECT 1 FROM fleet WHERE owner = $1 "
            "UNION ALL SELECT 1 FROM own_places WHERE owner = $1 LIMIT 1",
            owner)
        ->Next();
}

/// Whether the records can keep their ids; then nobody else is given these.
bool KeepIds(SqlConnection& connection, const CopyManifest& manifest) {
    return manifest.highestId == 0 ||
           (manifest.highestId <= kMostKeptId && connection.SkipIds(manifest.lowestId, manifest.highestId));
}

}  // namespace

Outcome<std::vector<std::string>> SqlTransfer::ListOwners() {
    return session_.Read([](SqlConnection& connection) -> Outcome<std::vector<std::string>> {
        std::vector<std::string> owners;
        const auto row = connection.Query(
            "SELECT owner FROM categories WHERE cd <> 2 UNION SELECT owner FROM fleet "
            "UNION SELECT owner FROM own_places ORDER BY owner");
        while (row->Next()) {
            owners.push_back(row->Text(0));
        }
        return owners;
    });
}

Outcome<OwnerCopy> SqlTransfer::ReadOwner(const std::string& owner) {
    return session_.Read([&](SqlConnection& connection) -> Outcome<OwnerCopy> {
        OwnerCopy copy{owner, {}, {}, {}, {}};
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
        copy.fleet = ReadFleet(connection, owner);
        copy.places = ReadPlaces(connection, owner);
        return copy;
    });
}

Outcome<AddReport> SqlTransfer::AddOwners(const CopyManifest& manifest, const OwnerSource& source) {
    return session_.WriteOnce([&](SqlConnection& connection) -> Outcome<AddReport> {
        for (const std::string& owner : manifest.owners) {
            if (!manifest.besideOthers && HasRecords(connection, owner)) {
                return AddReport{false, owner};
            }
        }
        const AddReport report{KeepIds(connection, manifest), {}};
        SqlOwnerWriter writer(connection, report.idsKept);
        while (true) {
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
