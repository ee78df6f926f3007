// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresCatalog.h"

#include "host/server/storage/contract/Moves.h"
#include "host/server/storage/postgres/PostgresCatalogReader.h"
#include "host/server/storage/postgres/PostgresKeys.h"

namespace Tarvik::Server {

Outcome<std::vector<CategoryRecord>> PostgresCatalog::LoadCatalog(const std::string& owner) {
    return session_.Read([&](PostgresConnection& connection) -> Outcome<std::vector<CategoryRecord>> {
        return ReadCatalog(connection, owner);
    });
}

Outcome<std::string> PostgresCatalog::CreateCategory(const std::string& owner, const std::string& name) {
    return session_.Write([&](PostgresConnection& connection) -> Outcome<std::string> {
        std::string id = TakeId(connection);
        connection.Run("INSERT INTO categories (owner, ci, cn) VALUES ($1, $2, $3)", owner, id, name);
        return id;
    });
}

Status PostgresCatalog::RenameCategory(const std::string& owner, const std::string& id,
                                       const std::string& name) {
    return session_.Write([&](PostgresConnection& connection) -> Status {
        if (!CategoryState(connection, owner, id, RowLock::Update)) {
            return FaultReason::UnknownCategory;
        }
        connection.Run("UPDATE categories SET cn = $3 WHERE owner = $1 AND ci = $2", owner, id, name);
        return Done{};
    });
}

Status PostgresCatalog::MoveCategory(const std::string& owner, const std::string& id, DeletionState to) {
    return session_.Write([&](PostgresConnection& connection) -> Status {
        Status allowed = CheckMove(CategoryState(connection, owner, id, RowLock::Update), to,
                                   FaultReason::UnknownCategory);
        if (!allowed) {
            return allowed;
        }
        connection.Run("UPDATE categories SET cd = $3 WHERE owner = $1 AND ci = $2", owner, id,
                       static_cast<int>(to));
        return Done{};
    });
}

Outcome<std::string> PostgresCatalog::CreateVoyage(const std::string& owner, const std::string& categoryId,
                                                   const VoyageRecord& voyage) {
    return session_.Write([&](PostgresConnection& connection) -> Outcome<std::string> {
        const auto state = CategoryState(connection, owner, categoryId, RowLock::Share);
        if (!state) {
            return FaultReason::UnknownCategory;
        }
        if (*state != DeletionState::InUse) {
            return FaultReason::CategoryNotInUse;
        }
        std::string id = TakeId(connection);
        const Figures& f = voyage.figures;
        connection.Run(
            "INSERT INTO voyages (owner, vi, ci, vn, vsi, vsn, vsmsi, vr, va, "
            "vfn, vff, vfa, vdn, vda, vwn, vwa) "
            "VALUES ($1, $2, $3, $4, $5, $6, $7, $8, $9, $10, $11, $12, $13, $14, $15, $16)",
            owner, id, categoryId, voyage.name, voyage.vessel.id, voyage.vessel.name, voyage.vessel.mmsi,
            voyage.routeShown, voyage.aisTraced, f[0], f[1], f[2], f[3], f[4], f[5], f[6]);
        return id;
    });
}

template <class... Values>
Status PostgresCatalog::UpdateVoyage(std::string_view sql, const std::string& owner, const std::string& id,
                                     const Values&... values) {
    return session_.Write([&](PostgresConnection& connection) -> Status {
        if (!VoyageState(connection, owner, id, RowLock::Update)) {
            return FaultReason::UnknownVoyage;
        }
        connection.Run(sql, owner, id, values...);
        return Done{};
    });
}

Status PostgresCatalog::RenameVoyage(const std::string& owner, const std::string& id,
                                     const std::string& name) {
    return UpdateVoyage("UPDATE voyages SET vn = $3 WHERE owner = $1 AND vi = $2", owner, id, name);
}

Status PostgresCatalog::MoveVoyage(const std::string& owner, const std::string& id, DeletionState to) {
    return session_.Write([&](PostgresConnection& connection) -> Status {
        Status allowed =
            CheckMove(VoyageState(connection, owner, id, RowLock::Update), to, FaultReason::UnknownVoyage);
        if (!allowed) {
            return allowed;
        }
        connection.Run("UPDATE voyages SET vd = $3 WHERE owner = $1 AND vi = $2", owner, id,
                       static_cast<int>(to));
        return Done{};
    });
}

Status PostgresCatalog::ChangeVessel(const std::string& owner, const std::string& id,
                                     const VesselRecord& vessel) {
    return UpdateVoyage("UPDATE voyages SET vsi = $3, vsn = $4, vsmsi = $5 WHERE owner = $1 AND vi = $2",
                        owner, id, vessel.id, vessel.name, vessel.mmsi);
}

Status PostgresCatalog::ShowRoute(const std::string& owner, const std::string& id, bool shown) {
    return UpdateVoyage("UPDATE voyages SET vr = $3 WHERE owner = $1 AND vi = $2", owner, id, shown);
}

Status PostgresCatalog::TraceAis(const std::string& owner, const std::string& id, bool traced) {
    return UpdateVoyage("UPDATE voyages SET va = $3 WHERE owner = $1 AND vi = $2", owner, id, traced);
}

Status PostgresCatalog::SetFigures(const std::string& owner, const std::string& id, const Figures& f) {
    return UpdateVoyage(
        "UPDATE voyages SET vfn = $3, vff = $4, vfa = $5, vdn = $6, vda = $7, vwn = $8, vwa = $9 "
        "WHERE owner = $1 AND vi = $2",
        owner, id, f[0], f[1], f[2], f[3], f[4], f[5], f[6]);
}

}  // namespace Tarvik::Server
