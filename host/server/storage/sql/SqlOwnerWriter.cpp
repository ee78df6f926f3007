// SPDX-License-Identifier: MIT
#include "host/server/storage/sql/SqlOwnerWriter.h"

#include "host/server/storage/sql/SqlKeys.h"
#include "host/server/storage/sql/SqlRecords.h"

namespace Tarvik::Server {

Status SqlOwnerWriter::Write(const OwnerCopy& copy) {
    owner_ = copy.owner;
    ids_ = CopyIds();
    Status lists = WriteLists(copy);
    if (!lists) {
        return lists;
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

Status SqlOwnerWriter::WriteLists(const OwnerCopy& copy) {
    for (const FleetRecord& vessel : copy.fleet) {
        const std::string id = NewId(vessel.id);
        ids_.PutVessel(vessel.id, id);
        Status written = InsertVessel(connection_, owner_, id, vessel);
        if (!written) {
            return written;
        }
    }
    for (const PlaceRecord& place : copy.places) {
        const std::string id = NewId(place.id);
        ids_.PutPlace(place.id, id);
        Status written = InsertPlace(connection_, owner_, id, place);
        if (!written) {
            return written;
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
    std::vector<PortCallRecord> calls = copy.calls;
    for (PortCallRecord& call : calls) {
        call.portId = ids_.RenamedPlace(call.portId);
    }
    Status written = InsertPortCalls(connection_, owner_, voyageId, calls);
    if (!written || !copy.book) {
        return written;
    }
    const std::string bookId = NewId(copy.book->id);
    InsertBook(connection_, owner_, bookId, voyageId, copy.book->date);
    return InsertBookRows(connection_, owner_, bookId, copy.book->rows);
}

}  // namespace Tarvik::Server
