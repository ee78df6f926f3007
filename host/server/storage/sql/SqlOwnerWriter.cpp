// SPDX-License-Identifier: MIT
#include "host/server/storage/sql/SqlOwnerWriter.h"

#include "host/server/storage/sql/SqlKeys.h"
#include "host/server/storage/sql/SqlRecords.h"

namespace Tarvik::Server {

Status SqlOwnerWriter::Write(const OwnerCopy& copy) {
    owner_ = copy.owner;
    ids_ = CopyIds();
    for (const FleetRecord& vessel : copy.fleet) {
        const std::string vesselId = NewId(vessel.id);
        ids_.PutVessel(vessel.id, vesselId);
        Status written = InsertVessel(connection_, owner_, vesselId, vessel);
        if (!written) {
            return written;
        }
    }
    for (const CategoryCopy& category : copy.categories) {
        const std::string categoryId = NewId(category.id);
        ids_.PutCategory(category.id, categoryId);
        InsertCategory(connection_, owner_, categoryId, category.name, category.state);
        for (const VoyageCopy& voyage : category.voyages) {
            Status written = WriteVoyage(voyage, categoryId);
            if (!written) {
                return written;
            }
        }
    }
    for (const RemarkCopy& copied : copy.remarks) {
        if (!InsertRemark(connection_, owner_, ids_.Renamed(copied.object), copied.remark)) {
            return FaultReason::RemarkExists;
        }
    }
    return Done{};
}

std::string SqlOwnerWriter::NewId(const std::string& before) {
    return keepIds_ ? before : TakeId(connection_);
}

Status SqlOwnerWriter::WriteVoyage(const VoyageCopy& copy, const std::string& categoryId) {
    const std::string voyageId = NewId(copy.voyage.id);
    ids_.PutVoyage(copy.voyage.id, voyageId);
    VoyageRecord voyage = copy.voyage;
    voyage.vessel.id = ids_.RenamedVessel(voyage.vessel.id);
    InsertVoyage(connection_, owner_, voyageId, categoryId, voyage);
    return WriteSchedule(copy, voyageId);
}

Status SqlOwnerWriter::WriteSchedule(const VoyageCopy& copy, const std::string& voyageId) {
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
    InsertBook(connection_, owner_, bookId, voyageId, copy.book->date);
    return InsertBookRows(connection_, owner_, bookId, copy.book->rows);
}

}  // namespace Tarvik::Server
