// SPDX-License-Identifier: MIT
#include "host/server/storage/sql/SqlKeys.h"
#include "host/server/storage/sql/SqlRecords.h"
#include "host/server/storage/sql/SqlStorage.h"

namespace Tarvik::Server {

std::vector<PlaceRecord> ReadPlaces(SqlConnection& connection, const std::string& owner) {
    std::vector<PlaceRecord> places;
    const auto row = connection.Query(
        "SELECT ppi, ppn, xc, yc FROM own_places WHERE owner = $1 ORDER BY CAST(ppi AS BIGINT)", owner);
    while (row->Next()) {
        places.push_back({row->Text(0), row->Text(1), row->Real(2), row->Real(3)});
    }
    return places;
}

Status InsertPlace(SqlConnection& connection, const std::string& owner, const std::string& id,
                   const PlaceRecord& place) {
    HoldList(connection, owner);
    const auto counted = connection.Query("SELECT count(*) FROM own_places WHERE owner = $1", owner);
    if (counted->Next() && counted->Integer(0) >= static_cast<std::int64_t>(kMostPlaces)) {
        return FaultReason::ListFull;
    }
    connection.Run("INSERT INTO own_places (owner, ppi, ppn, xc, yc) VALUES ($1, $2, $3, $4, $5)", owner, id,
                   place.name, place.longitude, place.latitude);
    return Done{};
}

Outcome<std::vector<PlaceRecord>> SqlPlaces::LoadPlaces(const std::string& owner) {
    return session_.Read([&](SqlConnection& connection) -> Outcome<std::vector<PlaceRecord>> {
        return ReadPlaces(connection, owner);
    });
}

Outcome<std::string> SqlPlaces::AddPlace(const std::string& owner, const PlaceRecord& place) {
    return session_.Write([&](SqlConnection& connection) -> Outcome<std::string> {
        std::string id = TakeId(connection);
        const Status added = InsertPlace(connection, owner, id, place);
        if (!added) {
            return added.GetFault();
        }
        return id;
    });
}

Status SqlPlaces::SetPlace(const std::string& owner, const PlaceRecord& place) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        const int changed =
            connection.Run("UPDATE own_places SET ppn = $3, xc = $4, yc = $5 WHERE owner = $1 AND ppi = $2",
                           owner, place.id, place.name, place.longitude, place.latitude);
        if (changed == 0) {
            return FaultReason::UnknownPlace;
        }
        return Done{};
    });
}

Status SqlPlaces::RemovePlace(const std::string& owner, const std::string& id) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        if (connection.Run("DELETE FROM own_places WHERE owner = $1 AND ppi = $2", owner, id) == 0) {
            return FaultReason::UnknownPlace;
        }
        return Done{};
    });
}

}  // namespace Tarvik::Server
