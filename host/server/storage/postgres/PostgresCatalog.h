// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/storage/contract/CatalogStorage.h"
#include "host/server/storage/postgres/PostgresSession.h"

namespace Tarvik::Server {

/// Categories and voyages in a PostgreSQL data base.
class PostgresCatalog : public CatalogStorage {
  public:
    explicit PostgresCatalog(PostgresSession& session) : session_(session) {}

    Outcome<std::vector<CategoryRecord>> LoadCatalog(const std::string& owner) override;
    Outcome<std::string> CreateCategory(const std::string& owner, const std::string& name) override;
    Status RenameCategory(const std::string& owner, const std::string& id, const std::string& name) override;
    Status MoveCategory(const std::string& owner, const std::string& id, DeletionState to) override;
    Outcome<std::string> CreateVoyage(const std::string& owner, const std::string& categoryId,
                                      const VoyageRecord& voyage) override;
    Status RenameVoyage(const std::string& owner, const std::string& id, const std::string& name) override;
    Status MoveVoyage(const std::string& owner, const std::string& id, DeletionState to) override;
    Status ChangeVessel(const std::string& owner, const std::string& id, const VesselRecord& vessel) override;
    Status ShowRoute(const std::string& owner, const std::string& id, bool shown) override;
    Status TraceAis(const std::string& owner, const std::string& id, bool traced) override;
    Status SetFigures(const std::string& owner, const std::string& id, const Figures& figures) override;

  private:
    /// Runs an update whose first two places are owner and voyage id.
    template <class... Values>
    Status UpdateVoyage(std::string_view sql, const std::string& owner, const std::string& id,
                        const Values&... values);

    PostgresSession& session_;
};

}  // namespace Tarvik::Server
