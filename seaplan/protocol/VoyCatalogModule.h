// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Seaplan {

/// Server commands of categories and voyages. Results: 0 or the negative number of the failed step, by the
/// table named at the operation.
class VoyCatalogModule {
  public:
    explicit VoyCatalogModule(VoyageStore* store) : store_(store) {}
    static VoyCatalogModule* Instance();

    /// 0 when the client is connected; otherwise opens the host's login and gives -1.
    int EnsureConnected();
    /// The logged-in user's id. 0, or -1 (user empty) when nobody is logged in.
    int GetUser(std::string& user);
    /// Command 3: fills an empty store; a filled one asks nothing. 0; 1 the user has nothing yet; -1 empty
    /// user; -2 the exchange failed, or the reply is no list; then the store stays empty.
    int LoadAll(const std::string& user);

    /// Command 4. `ci` becomes the new category's id, and stays as it was after a failure: kCommandCodes.
    int CreateCategory(const std::string& name, std::string& ci);
    /// Command 4: kCommandCodes.
    int RenameCategory(const std::string& ci, const std::string& name);
    /// Command 4. `type` 1 recycle bin, 2 recover, 3 destroy: kCommandCodes.
    int ChangeCategoryState(const std::string& ci, int type);

    /// Command 5. `vi` becomes the new voyage's id, and stays as it was after a failure. An empty category id
    /// is sent: kCommandCodes.
    int CreateVoyage(const std::string& name, const std::string& ci, std::string& vi);
    /// Command 5: kCommandCodes.
    int RenameVoyage(const std::string& vi, const std::string& name);
    /// Command 5. `type` 2 recycle bin, 3 recover, 4 destroy: kCommandCodes.
    int ChangeVoyageState(const std::string& vi, int type);
    /// Command 5. Vessel id or name may be empty, but not both: kCommandCodes.
    int ChangeVessel(const std::string& vi, const std::string& vsi, const std::string& vsn, int vsmsi);
    /// Command 5, route on the chart. Mode word "open" or "close": kPreparedCommandCodes.
    int SetRouteDisplay(const std::string& vi, const std::string& mode);
    /// Command 5, tracing of the vessel. Mode word "open" or "close": kPreparedCommandCodes.
    int SetAisTracing(const std::string& vi, const std::string& mode);

    /// Command 13, a time of the plan: kPreparedCommandCodes.
    int AddAisModTime(const std::string& vi, const std::string& time);
    /// Command 12: times of correction in the user's zone, in order and each once. 0; -1 empty id; -2 the
    /// exchange failed, or the reply holds no list; -3 an empty reply. After a failure `times` is empty.
    int GetAisModTimes(const std::string& vi, std::vector<std::string>& times);

  private:
    VoyageStore* store_;
};

}  // namespace Tarvik::Seaplan
