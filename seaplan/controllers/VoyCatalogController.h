// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "seaplan/protocol/VoyCatalogModule.h"

namespace Tarvik::Seaplan {

class VoyController;

/// Categories, voyages as names, vessels and flags: runs the server's command and brings the store up to date
/// when the server has said yes. Results: 0 or the negative number of the failed step.
class VoyCatalogController {
  public:
    VoyCatalogController(VoyCatalogModule* module, VoyageStore* store) : module_(module), store_(store) {}
    static VoyCatalogController* Instance();
    /// Set once by the composition root: positions are refreshed through it after a change of vessel.
    void SetVoyController(VoyController* controller) { voyController_ = controller; }

    int Connect(std::string& user);
    int Load(const std::string& user);
    void MakeUniqueName(const std::string& base, const std::map<std::string, int>& names,
                        std::string& out) const;
    void GetNameMaps(std::map<std::string, int>& categoryNames,
                     std::map<std::string, int>& voyageNames) const;
    void ListCategories(std::vector<std::string>& names) const;
    int AddCategory(const std::string& name, std::string& ci);
    int AddVoyage(const std::string& name, const std::string& ci, std::string& vi);
    int RenameCategory(const std::string& ci, const std::string& name);
    int DeleteCategory(const std::string& ci);
    int RecoverCategory(const std::string& ci);
    int DestroyCategory(const std::string& ci);
    int RenameVoyage(const std::string& vi, const std::string& name);
    int DeleteVoyage(const std::string& ci, const std::string& vi);
    int RecoverVoyage(const std::string& ci, const std::string& vi);
    int DestroyVoyage(const std::string& ci, const std::string& vi);
    int ChangeVessel(const std::string& vi, const std::string& vsi, const std::string& vsn, int vsmsi);
    int OpenRoute(const std::string& vi);
    int CloseRoute(const std::string& vi);
    int OpenAis(const std::string& vi);
    int CloseAis(const std::string& vi);
    int GetVoyageState(const std::string& vi, int& state) const;
    int AddAisModTime(const std::string& vi, const std::string& time);
    int GetAisModTimes(const std::string& vi, std::vector<std::string>& times);

  private:
    int ChangeCategory(const std::string& ci, int type, int state);
    int ChangeVoyage(const std::string& ci, const std::string& vi, int type, int state);
    int ChangeFlag(const std::string& vi, bool route, bool on);

    VoyCatalogModule* module_;
    VoyageStore* store_;
    VoyController* voyController_ = nullptr;
    std::string user_;
};

}  // namespace Tarvik::Seaplan
