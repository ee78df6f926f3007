// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "seaplan/controllers/CategoryChanges.h"

namespace Tarvik::Seaplan {

/// Numbers of RenameVoyage, OpenRoute, CloseRoute, OpenAis and CloseAis.
inline constexpr CodeTable kChangeVoyageCodes{
    Code{ChangeStep::Input, -1},   // an empty id or name; nothing is sent
    Code{ChangeStep::Server, -2},  // the server refused
    Code{ChangeStep::Voyage, -3},  // it is done, but the store does not know the voyage
};
/// Numbers of DeleteVoyage, RecoverVoyage and DestroyVoyage.
inline constexpr CodeTable kVoyageStateCodes{
    Code{ChangeStep::Input, -1},     // an empty voyage id; nothing is sent
    Code{ChangeStep::Server, -2},    // the server refused
    Code{ChangeStep::Category, -3},  // it is done, but the store does not know the category
    Code{ChangeStep::Voyage, -4},    // nor the voyage in it
};
/// Numbers of ChangeVessel.
inline constexpr CodeTable kChangeVesselCodes{
    Code{ChangeStep::Input, -1},   // an empty voyage id, or neither id nor name of a vessel; nothing is sent
    Code{ChangeStep::Server, -2},  // the server refused
    Code{ChangeStep::Voyage, -3},  // it is done, but the store does not know the voyage
    Code{ChangeStep::Positions, -4},  // it is done, but positions were asked for and none is known
};
/// Whether ChangeVessel's number says that the vessel is saved and on show: it is told of positions for the
/// chart only.
constexpr bool IsVesselChanged(int number) {
    return number == 0 || number == kChangeVesselCodes.Of(ChangeStep::Positions);
}
/// Numbers of AddAisModTime.
inline constexpr CodeTable kAddAisTimeCodes{
    Code{ChangeStep::Input, -1},   // an empty id, or a text of another length than 19; nothing is sent
    Code{ChangeStep::Server, -2},  // the server refused
    Code{ChangeStep::Voyage, -3},  // it is done, but the store does not know the voyage
    Code{ChangeStep::Time, -4},    // it is kept and counted, but is no time
};
/// Numbers of GetAisModTimes.
inline constexpr CodeTable kGetAisTimesCodes{
    Code{ChangeStep::Input, -1},   // an empty id
    Code{ChangeStep::Voyage, -2},  // unknown voyage
    Code{ChangeStep::Server, -3},  // the server gives no list
};

/// The same for voyages: as names in a tree, with their vessel, their switches and their times of correction.
class VoyageChanges {
  public:
    /// Refreshes the vessels' positions after a change of vessel; negative when none is known.
    using PositionRefresh = std::function<int()>;

    /// Keeps its collaborators, which outlive it.
    VoyageChanges(VoyCatalogModule* module, VoyageStore* store) : module_(module), store_(store) {}
    /// Set once, before the first change of vessel.
    void SetPositionRefresh(PositionRefresh refresh) { refresh_ = std::move(refresh); }

    /// `vi` becomes the new voyage's id: kAddCodes.
    Outcome<ChangeStep> Add(const std::string& name, const std::string& ci, std::string& vi);
    /// On the server, then in the store: kChangeVoyageCodes.
    Outcome<ChangeStep> Rename(const std::string& vi, const std::string& name);
    /// To the bin, out of it, or away for good, in one category; the record stays in the store.
    Outcome<ChangeStep> SetState(const std::string& ci, const std::string& vi, DeletionState state);
    /// A number of 0 is not known yet; a position that brings the first one saves it by this operation too,
    /// so it may be called once more while it runs.
    Outcome<ChangeStep> SetVessel(const std::string& vi, const std::string& vsi, const std::string& vsn,
                                  int vsmsi);
    /// Route on the chart, on or off.
    Outcome<ChangeStep> SwitchRoute(const std::string& vi, bool on);
    /// Tracing of the vessel, on or off.
    Outcome<ChangeStep> SwitchAis(const std::string& vi, bool on);
    /// Notes a correction at a time of the plan, `kTimeFormat`.
    Outcome<ChangeStep> AddAisTime(const std::string& vi, const std::string& time);
    /// Times of correction; asked for once and then kept in the record.
    Outcome<ChangeStep> GetAisTimes(const std::string& vi, std::vector<std::string>& times);

  private:
    VoyCatalogModule* module_;
    VoyageStore* store_;
    PositionRefresh refresh_;
};

}  // namespace Tarvik::Seaplan
