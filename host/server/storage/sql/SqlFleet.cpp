// SPDX-License-Identifier: MIT
#include "host/server/storage/sql/SqlKeys.h"
#include "host/server/storage/sql/SqlRecords.h"
#include "host/server/storage/sql/SqlStorage.h"

namespace Tarvik::Server {

std::vector<FleetRecord> ReadFleet(SqlConnection& connection, const std::string& owner) {
    std::vector<FleetRecord> fleet;
    const auto row = connection.Query(
        "SELECT vsi, vsn, vsmsi, vsimo, vscs, vst, vsl, vsp FROM fleet WHERE owner = $1 "
        "ORDER BY CAST(vsi AS BIGINT)",
        owner);
    while (row->Next()) {
        fleet.push_back({row->Text(0), row->Text(1), row->Integer32(2), row->Integer32(3), row->Text(4),
                         row->Text(5), row->Real(6), row->Real(7)});
    }
    return fleet;
}

Status InsertVessel(SqlConnection& connection, const std::string& owner, const std::string& id,
                    const FleetRecord& vessel) {
    HoldList(connection, owner);
    const auto counted = connection.Query("SELECT count(*) FROM fleet WHERE owner = $1", owner);
    if (counted->Next() && counted->Integer(0) >= static_cast<std::int64_t>(kMostVessels)) {
        return FaultReason::ListFull;
    }
    connection.Run(
        "INSERT INTO fleet (owner, vsi, vsn, vsmsi, vsimo, vscs, vst, vsl, vsp) "
        "VALUES ($1, $2, $3, $4, $5, $6, $7, $8, $9)",
        owner, id, vessel.name, vessel.mmsi, vessel.imo, vessel.callSign, vessel.type, vessel.lengthMetres,
        vessel.speedKmh);
    return Done{};
}

Outcome<std::vector<FleetRecord>> SqlFleet::LoadFleet(const std::string& owner) {
    return session_.Read([&](SqlConnection& connection) -> Outcome<std::vector<FleetRecord>> {
        return ReadFleet(connection, owner);
    });
}

Outcome<std::string> SqlFleet::AddVessel(const std::string& owner, const FleetRecord& vessel) {
    return session_.Write([&](SqlConnection& connection) -> Outcome<std::string> {
        std::string id = TakeId(connection);
        const Status added = InsertVessel(connection, owner, id, vessel);
        if (!added) {
            return added.GetFault();
        }
        return id;
    });
}

Status SqlFleet::SetVessel(const std::string& owner, const FleetRecord& vessel) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        const int changed = connection.Run(
            "UPDATE fleet SET vsn = $3, vsmsi = $4, vsimo = $5, vscs = $6, vst = $7, vsl = $8, vsp = $9 "
            "WHERE owner = $1 AND vsi = $2",
            owner, vessel.id, vessel.name, vessel.mmsi, vessel.imo, vessel.callSign, vessel.type,
            vessel.lengthMetres, vessel.speedKmh);
        if (changed == 0) {
            return FaultReason::UnknownVessel;
        }
        return Done{};
    });
}

Status SqlFleet::RemoveVessel(const std::string& owner, const std::string& id) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        if (connection.Run("DELETE FROM fleet WHERE owner = $1 AND vsi = $2", owner, id) == 0) {
            return FaultReason::UnknownVessel;
        }
        return Done{};
    });
}

}  // namespace Tarvik::Server
