// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/server/storage/contract/Outcome.h"
#include "host/server/storage/contract/Records.h"

namespace Tarvik::Server {

/// Categories and voyages, each owned by one user.
///
/// A destroyed category or voyage, and every voyage of a destroyed category, is unknown to all operations.
class CatalogStorage {
  public:
    virtual ~CatalogStorage() = default;

    /// Everything of the owner that is not destroyed, in the order of creation.
    virtual Outcome<std::vector<CategoryRecord>> LoadCatalog(const std::string& owner) = 0;

    /// Gives the id of the new category.
    virtual Outcome<std::string> CreateCategory(const std::string& owner, const std::string& name) = 0;
    virtual Status RenameCategory(const std::string& owner, const std::string& id,
                                  const std::string& name) = 0;
    /// In use to bin, bin to in use, bin to destroyed; any other step is refused.
    virtual Status MoveCategory(const std::string& owner, const std::string& id, DeletionState to) = 0;

    /// Gives the id of the new voyage; its own id, state and derived fields are ignored. The category must be
    /// in use.
    virtual Outcome<std::string> CreateVoyage(const std::string& owner, const std::string& categoryId,
                                              const VoyageRecord& voyage) = 0;
    virtual Status RenameVoyage(const std::string& owner, const std::string& id, const std::string& name) = 0;
    /// The same steps as for a category.
    virtual Status MoveVoyage(const std::string& owner, const std::string& id, DeletionState to) = 0;
    virtual Status ChangeVessel(const std::string& owner, const std::string& id,
                                const VesselRecord& vessel) = 0;
    virtual Status ShowRoute(const std::string& owner, const std::string& id, bool shown) = 0;
    virtual Status TraceAis(const std::string& owner, const std::string& id, bool traced) = 0;
    virtual Status SetFigures(const std::string& owner, const std::string& id, const Figures& figures) = 0;
};

}  // namespace Tarvik::Server
