// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

namespace Tarvik::Seaplan {

/// What the panels ask of the catalog: categories, voyages as names, vessels and flags. Results: 0 or the
/// negative number of the failed step. The store follows only when the server has agreed.
class CatalogCommands {
  public:
    virtual ~CatalogCommands() = default;
    /// Connects and loads the user's records. -1 no connection, -2 the load failed.
    virtual int Connect(std::string& user) = 0;
    virtual int Load(const std::string& user) = 0;
    virtual std::string MakeUniqueName(const std::string& base,
                                       const std::map<std::string, int>& names) const = 0;
    virtual void GetNameMaps(std::map<std::string, int>& categories,
                             std::map<std::string, int>& voyages) const = 0;
    virtual int AddCategory(const std::string& name, std::string& ci) = 0;
    virtual int AddVoyage(const std::string& name, const std::string& ci, std::string& vi) = 0;
    virtual int RenameCategory(const std::string& ci, const std::string& name) = 0;
    virtual int DeleteCategory(const std::string& ci) = 0;
    virtual int RecoverCategory(const std::string& ci) = 0;
    virtual int DestroyCategory(const std::string& ci) = 0;
    virtual int RenameVoyage(const std::string& vi, const std::string& name) = 0;
    virtual int DeleteVoyage(const std::string& ci, const std::string& vi) = 0;
    virtual int RecoverVoyage(const std::string& ci, const std::string& vi) = 0;
    virtual int DestroyVoyage(const std::string& ci, const std::string& vi) = 0;
    virtual int ChangeVessel(const std::string& vi, const std::string& vsi, const std::string& vsn,
                             int vsmsi) = 0;
    virtual int OpenRoute(const std::string& vi) = 0;
    virtual int CloseRoute(const std::string& vi) = 0;
    virtual int OpenAis(const std::string& vi) = 0;
    virtual int CloseAis(const std::string& vi) = 0;
    virtual int GetVoyageState(const std::string& vi, int& state) const = 0;
};

}  // namespace Tarvik::Seaplan
