// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteCatalog.h"

#include "host/server/storage/contract/Moves.h"
#include "host/server/storage/sqlite/SqliteCatalogReader.h"
#include "host/server/storage/sqlite/SqliteKeys.h"
#include "host/server/storage/sqlite/SqliteStatement.h"

namespace Tarvik::Server {

Outcome<std::vector<CategoryRecord>> SqliteCatalog::LoadCatalog(const std::string& owner) {
    return session_.Read([&](SqliteDatabase& database) -> Outcome<std::vector<CategoryRecord>> {
        return ReadCatalog(database, owner);
    });
}

Outcome<std::string> SqliteCatalog::CreateCategory(const std::string& owner, const std::string& name) {
    return session_.Write([&](SqliteDatabase& database) -> Outcome<std::string> {
        std::string id = TakeId(database);
        SqliteStatement(database, "INSERT INTO categories (owner, ci, cn) VALUES (?, ?, ?)")
            .Bind(owner, id, name)
            .Run();
        return id;
    });
}

Status SqliteCatalog::RenameCategory(const std::string& owner, const std::string& id,
                                     const std::string& name) {
    return session_.Write([&](SqliteDatabase& database) -> Status {
        if (!CategoryState(database, owner, id)) {
            return FaultReason::UnknownCategory;
        }
        SqliteStatement(database, "UPDATE categories SET cn = ? WHERE owner = ? AND ci = ?")
            .Bind(name, owner, id)
            .Run();
        return Done{};
    });
}

Status SqliteCatalog::MoveCategory(const std::string& owner, const std::string& id, DeletionState to) {
    return session_.Write([&](SqliteDatabase& database) -> Status {
        Status allowed = CheckMove(CategoryState(database, owner, id), to, FaultReason::UnknownCategory);
        if (!allowed) {
            return allowed;
        }
        SqliteStatement(database, "UPDATE categories SET cd = ? WHERE owner = ? AND ci = ?")
            .Bind(static_cast<int>(to), owner, id)
            .Run();
        return Done{};
    });
}

Outcome<std::string> SqliteCatalog::CreateVoyage(const std::string& owner, const std::string& categoryId,
                                                 const VoyageRecord& voyage) {
    return session_.Write([&](SqliteDatabase& database) -> Outcome<std::string> {
        const auto state = CategoryState(database, owner, categoryId);
        if (!state) {
            return FaultReason::UnknownCategory;
        }
        if (*state != DeletionState::InUse) {
            return FaultReason::CategoryNotInUse;
        }
        std::string id = TakeId(database);
        const Figures& f = voyage.figures;
        SqliteStatement(database,
                        "INSERT INTO voyages (owner, vi, ci, vn, vsi, vsn, vsmsi, vr, va, "
                        "vfn, vff, vfa, vdn, vda, vwn, vwa) VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)")
            .Bind(owner, id, categoryId, voyage.name, voyage.vessel.id, voyage.vessel.name,
                  voyage.vessel.mmsi, voyage.routeShown, voyage.aisTraced, f[0], f[1], f[2], f[3], f[4], f[5],
                  f[6])
            .Run();
        return id;
    });
}

template <class... Values>
Status SqliteCatalog::UpdateVoyage(std::string_view sql, const std::string& owner, const std::string& id,
                                   const Values&... values) {
    return session_.Write([&](SqliteDatabase& database) -> Status {
        if (!VoyageState(database, owner, id)) {
            return FaultReason::UnknownVoyage;
        }
        SqliteStatement(database, sql).Bind(values..., owner, id).Run();
        return Done{};
    });
}

Status SqliteCatalog::RenameVoyage(const std::string& owner, const std::string& id, const std::string& name) {
    return UpdateVoyage("UPDATE voyages SET vn = ? WHERE owner = ? AND vi = ?", owner, id, name);
}

Status SqliteCatalog::MoveVoyage(const std::string& owner, const std::string& id, DeletionState to) {
    return session_.Write([&](SqliteDatabase& database) -> Status {
        Status allowed = CheckMove(VoyageState(database, owner, id), to, FaultReason::UnknownVoyage);
        if (!allowed) {
            return allowed;
        }
        SqliteStatement(database, "UPDATE voyages SET vd = ? WHERE owner = ? AND vi = ?")
            .Bind(static_cast<int>(to), owner, id)
            .Run();
        return Done{};
    });
}

Status SqliteCatalog::ChangeVessel(const std::string& owner, const std::string& id,
                                   const VesselRecord& vessel) {
    return UpdateVoyage("UPDATE voyages SET vsi = ?, vsn = ?, vsmsi = ? WHERE owner = ? AND vi = ?", owner,
                        id, vessel.id, vessel.name, vessel.mmsi);
}

Status SqliteCatalog::ShowRoute(const std::string& owner, const std::string& id, bool shown) {
    return UpdateVoyage("UPDATE voyages SET vr = ? WHERE owner = ? AND vi = ?", owner, id, shown);
}

Status SqliteCatalog::TraceAis(const std::string& owner, const std::string& id, bool traced) {
    return UpdateVoyage("UPDATE voyages SET va = ? WHERE owner = ? AND vi = ?", owner, id, traced);
}

Status SqliteCatalog::SetFigures(const std::string& owner, const std::string& id, const Figures& f) {
    return UpdateVoyage(
        "UPDATE voyages SET vfn = ?, vff = ?, vfa = ?, vdn = ?, vda = ?, vwn = ?, vwa = ? "
        "WHERE owner = ? AND vi = ?",
        owner, id, f[0], f[1], f[2], f[3], f[4], f[5], f[6]);
}

}  // namespace Tarvik::Server
