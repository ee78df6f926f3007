// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Seaplan {

/// Server commands of categories and voyages. Results: 0 or the negative number of the failed step.
class VoyCatalogModule {
  public:
    explicit VoyCatalogModule(VoyageStore* store) : store_(store) {}
    static VoyCatalogModule* Instance();

    int EnsureConnected();
    int GetUser(std::string& user);
    /// Fills an empty store. 0; 1 the user has nothing yet; -1 empty user; -2 exchange failed.
    int LoadAll(const std::string& user);
    int CreateCategory(const std::string& name, std::string& ci);
    int RenameCategory(const std::string& ci, const std::string& name);
    /// `type` 1 recycle bin, 2 recover, 3 destroy.
    int ChangeCategoryState(const std::string& ci, int type);
    int CreateVoyage(const std::string& name, const std::string& ci, std::string& vi);
    int RenameVoyage(const std::string& vi, const std::string& name);
    /// `type` 2 recycle bin, 3 recover, 4 destroy.
    int ChangeVoyageState(const std::string& vi, int type);
    int ChangeVessel(const std::string& vi, const std::string& vsi, const std::string& vsn, int vsmsi);
    /// Mode word "open" or "close".
    int SetRouteDisplay(const std::string& vi, const std::string& mode);
    int SetAisTracing(const std::string& vi, const std::string& mode);
    int AddAisModTime(const std::string& vi, const std::string& time);
    int GetAisModTimes(const std::string& vi, std::vector<std::string>& times);

  private:
    VoyageStore* store_;
};

}  // namespace Tarvik::Seaplan
