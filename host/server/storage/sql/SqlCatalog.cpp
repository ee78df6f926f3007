// SPDX-License-Identifier: MIT
#include "host/server/storage/sql/SqlKeys.h"
#include "host/server/storage/sql/SqlRecords.h"
#include "host/server/storage/sql/SqlStorage.h"

namespace Tarvik::Server {

namespace {

/// Whether the step is one of use to bin, bin to use, bin to destroyed; `unknown` is told of what is in no
/// state.
Status CheckMove(std::optional<DeletionState> from, DeletionState to, FaultReason unknown) {
    if (!from) {
        return unknown;
    }
    if (to == DeletionState::InBin) {
        return *from == DeletionState::InUse ? Status(Done{}) : Status(FaultReason::NotInUse);
    }
    return *from == DeletionState::InBin ? Status(Done{}) : Status(FaultReason::NotInBin);
}

}  // namespace

Outcome<std::vector<CategoryRecord>> SqlCatalog::LoadCatalog(const std::string& owner) {
    return session_.Read([&](SqlConnection& connection) -> Outcome<std::vector<CategoryRecord>> {
        return ReadCatalog(connection, owner);
    });
}

Outcome<std::string> SqlCatalog::CreateCategory(const std::string& owner, const std::string& name) {
    return session_.Write([&](SqlConnection& connection) -> Outcome<std::string> {
        std::string id = TakeId(connection);
        InsertCategory(connection, owner, id, name, DeletionState::InUse);
        return id;
    });
}

Status SqlCatalog::RenameCategory(const std::string& owner, const std::string& id, const std::string& name) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        if (!CategoryState(connection, owner, id, RowLock::Hold)) {
            return FaultReason::UnknownCategory;
        }
        connection.Run("UPDATE categories SET cn = $3 WHERE owner = $1 AND ci = $2", owner, id, name);
        return Done{};
    });
}

Status SqlCatalog::MoveCategory(const std::string& owner, const std::string& id, DeletionState to) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        Status allowed =
            CheckMove(CategoryState(connection, owner, id, RowLock::Hold), to, FaultReason::UnknownCategory);
        if (!allowed) {
            return allowed;
        }
        connection.Run("UPDATE categories SET cd = $3 WHERE owner = $1 AND ci = $2", owner, id,
                       static_cast<int>(to));
        return Done{};
    });
}

Outcome<std::string> SqlCatalog::CreateVoyage(const std::string& owner, const std::string& categoryId,
                                              const VoyageRecord& voyage) {
    return session_.Write([&](SqlConnection& connection) -> Outcome<std::string> {
        const auto state = CategoryState(connection, owner, categoryId, RowLock::Share);
        if (!state) {
            return FaultReason::UnknownCategory;
        }
        if (*state != DeletionState::InUse) {
            return FaultReason::CategoryNotInUse;
        }
        std::string id = TakeId(connection);
        VoyageRecord made = voyage;
        made.state = DeletionState::InUse;
        InsertVoyage(connection, owner, id, categoryId, made);
        return id;
    });
}

template <class... Values>
Status SqlCatalog::UpdateVoyage(std::string_view sql, const std::string& owner, const std::string& id,
                                const Values&... values) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        if (!VoyageState(connection, owner, id, RowLock::Hold)) {
            return FaultReason::UnknownVoyage;
        }
        connection.Run(sql, owner, id, values...);
        return Done{};
    });
}

Status SqlCatalog::RenameVoyage(const std::string& owner, const std::string& id, const std::string& name) {
    return UpdateVoyage("UPDATE voyages SET vn = $3 WHERE owner = $1 AND vi = $2", owner, id, name);
}

Status SqlCatalog::MoveVoyage(const std::string& owner, const std::string& id, DeletionState to) {
    return session_.Write([&](SqlConnection& connection) -> Status {
        Status allowed =
            CheckMove(VoyageState(connection, owner, id, RowLock::Hold), to, FaultReason::UnknownVoyage);
        if (!allowed) {
            return allowed;
        }
        connection.Run("UPDATE voyages SET vd = $3 WHERE owner = $1 AND vi = $2", owner, id,
                       static_cast<int>(to));
        return Done{};
    });
}

Status SqlCatalog::ChangeVessel(const std::string& owner, const std::string& id, const VesselRecord& vessel) {
    return UpdateVoyage("UPDATE voyages SET vsi = $3, vsn = $4, vsmsi = $5 WHERE owner = $1 AND vi = $2",
                        owner, id, vessel.id, vessel.name, vessel.mmsi);
}

Status SqlCatalog::ShowRoute(const std::string& owner, const std::string& id, bool shown) {
    return UpdateVoyage("UPDATE voyages SET vr = $3 WHERE owner = $1 AND vi = $2", owner, id, shown);
}

Status SqlCatalog::TraceAis(const std::string& owner, const std::string& id, bool traced) {
    return UpdateVoyage("UPDATE voyages SET va = $3 WHERE owner = $1 AND vi = $2", owner, id, traced);
}

Status SqlCatalog::SetFigures(const std::string& owner, const std::string& id, const Figures& f) {
    return UpdateVoyage(
        "UPDATE voyages SET vfn = $3, vff = $4, vfa = $5, vdn = $6, vda = $7, vwn = $8, vwa = $9 "
        "WHERE owner = $1 AND vi = $2",
        owner, id, f[0], f[1], f[2], f[3], f[4], f[5], f[6]);
}

}  // namespace Tarvik::Server
