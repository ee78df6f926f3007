// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "host/server/storage/contract/CatalogStorage.h"
#include "host/server/storage/contract/Storage.h"

namespace Tarvik::Server {

/// One implementation of the storage under test, on data of its own that end with it.
class StorageBackend {
  public:
    virtual ~StorageBackend() = default;
    virtual Storage& Get() = 0;
    /// Lets go of the data and takes them up again, as a restart of the server does.
    virtual void Reopen() = 0;
};

using BackendMaker = std::unique_ptr<StorageBackend> (*)();

/// What every storage promises. An implementation instantiates this suite with a maker of its backend.
class StorageContract : public ::testing::TestWithParam<BackendMaker> {
  protected:
    StorageContract() : backend_(GetParam()()) {}

    CatalogStorage& Catalog() { return backend_->Get().Catalog(); }
    ScheduleStorage& Schedule() { return backend_->Get().Schedule(); }
    RemarkStorage& Remarks() { return backend_->Get().Remarks(); }
    FleetStorage& Fleet() { return backend_->Get().Fleet(); }
    PlaceStorage& Places() { return backend_->Get().Places(); }
    void Reopen() { backend_->Reopen(); }

    std::string MakeCategory(const std::string& owner = "ann", const std::string& name = "Atlantic") {
        return Catalog().CreateCategory(owner, name).Value();
    }
    std::string MakeVoyage(const std::string& categoryId, const std::string& owner = "ann") {
        VoyageRecord voyage;
        voyage.name = "Voyage - 0";
        return Catalog().CreateVoyage(owner, categoryId, voyage).Value();
    }
    std::string MakeVoyage() { return MakeVoyage(MakeCategory()); }

  private:
    std::unique_ptr<StorageBackend> backend_;
};

/// The reason of an outcome that must be a fault.
template <class T>
FaultReason ReasonOf(const Outcome<T>& outcome) {
    if (outcome.Succeeded()) {
        ADD_FAILURE() << "the operation succeeded";
        return FaultReason::StorageFailed;
    }
    return outcome.GetFault().reason;
}

}  // namespace Tarvik::Server
