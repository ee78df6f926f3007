// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "seaplan/data/Outcome.h"

namespace Tarvik::Seaplan {

class VoyCatalogModule;
class VoyController;
class VoyageStore;

enum class SessionStep { Connection, User, Server };
/// Numbers of Connect.
inline constexpr CodeTable kConnectCodes{
    Code{SessionStep::Connection, -1},  // not connected
    Code{SessionStep::User, -2},        // nobody is logged in
};
/// Numbers of Load.
inline constexpr CodeTable kLoadCodes{
    Code{SessionStep::User, -1},    // no user, or not the one of Connect; nothing is sent
    Code{SessionStep::Server, -2},  // the server gives no data
};

/// Categories, voyages as names, vessels and flags: runs the server's command and brings the store up to date
/// when the server has said yes. Results are 0 or the negative number that the table named at the operation
/// gives; after a failure the store is as it was, but where a table says that it is done.
class VoyCatalogController {
  public:
    /// Keeps its collaborators, which outlive it.
    VoyCatalogController(VoyCatalogModule* module, VoyageStore* store);
    ~VoyCatalogController();
    /// The one of the plug-in; CompositionRoot makes it.
    static VoyCatalogController* Instance();
    /// Set once by the composition root: positions are refreshed through it after a change of vessel.
    void SetVoyController(VoyController* controller);

    /// `user` becomes the logged-in user's id: kConnectCodes.
    int Connect(std::string& user);
    /// Fills an empty store with the data of the user that Connect gave; a user without data is a success:
    /// kLoadCodes.
    int Load(const std::string& user);

    // Names
    /// UniqueName.
    void MakeUniqueName(const std::string& base, const std::map<std::string, int>& names,
                        std::string& out) const;
    /// FillNameMaps.
    void GetNameMaps(std::map<std::string, int>& categoryNames,
                     std::map<std::string, int>& voyageNames) const;
    /// Names of the categories in use, by id.
    void ListCategories(std::vector<std::string>& names) const;

    // Categories
    /// A new category in use; `ci` becomes its id: kAddCodes.
    int AddCategory(const std::string& name, std::string& ci);
    /// On the server, then here: kChangeCategoryCodes.
    int RenameCategory(const std::string& ci, const std::string& name);
    /// To the recycle bin: kChangeCategoryCodes.
    int DeleteCategory(const std::string& ci);
    /// Out of the bin: kChangeCategoryCodes.
    int RecoverCategory(const std::string& ci);
    /// Away for good: kChangeCategoryCodes.
    int DestroyCategory(const std::string& ci);

    // Voyages
    /// A new voyage in use in category `ci`; `vi` becomes its id: kAddCodes.
    int AddVoyage(const std::string& name, const std::string& ci, std::string& vi);
    /// On the server, then here: kChangeVoyageCodes.
    int RenameVoyage(const std::string& vi, const std::string& name);
    /// To the recycle bin: kVoyageStateCodes.
    int DeleteVoyage(const std::string& ci, const std::string& vi);
    /// Out of the bin: kVoyageStateCodes.
    int RecoverVoyage(const std::string& ci, const std::string& vi);
    /// Away for good: kVoyageStateCodes.
    int DestroyVoyage(const std::string& ci, const std::string& vi);
    /// DeletionState of a voyage; one in no category counts as in the bin. 0; -1 empty id.
    int GetVoyageState(const std::string& vi, int& state) const;

    // Vessels and flags
    /// VoyageChanges::SetVessel: kChangeVesselCodes.
    int ChangeVessel(const std::string& vi, const std::string& vsi, const std::string& vsn, int vsmsi);
    /// The voyage's route is shown on the chart from now on; this sets the switch, it does not draw:
    /// kChangeVoyageCodes.
    int OpenRoute(const std::string& vi);
    /// Switches the route off, without taking it off the chart: kChangeVoyageCodes.
    int CloseRoute(const std::string& vi);
    /// The voyage's vessel is traced from now on: kChangeVoyageCodes.
    int OpenAis(const std::string& vi);
    /// Its vessel is traced no more: kChangeVoyageCodes.
    int CloseAis(const std::string& vi);
    /// Notes a correction at a time of the plan, `kTimeFormat`: kAddAisTimeCodes.
    int AddAisModTime(const std::string& vi, const std::string& time);
    /// Times of correction, asked for once: kGetAisTimesCodes.
    int GetAisModTimes(const std::string& vi, std::vector<std::string>& times);

  private:
    struct Parts;

    VoyCatalogModule* module_;
    VoyageStore* store_;
    std::unique_ptr<Parts> parts_;
    std::string user_;
};

}  // namespace Tarvik::Seaplan
