// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyCatalogController.h"

#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/controllers/VoyageChanges.h"
#include "seaplan/data/VoyageStore.h"
#include "seaplan/protocol/VoyCatalogModule.h"

namespace Tarvik::Seaplan {

struct VoyCatalogController::Parts {
    CategoryChanges categories;
    VoyageChanges voyages;
};

namespace {

Outcome<SessionStep> FindUser(VoyCatalogModule& module, std::string& user) {
    if (module.EnsureConnected() < 0) {
        return SessionStep::Connection;
    }
    return module.GetUser(user) < 0 ? SessionStep::User : Outcome<SessionStep>();
}

}  // namespace

VoyCatalogController::VoyCatalogController(VoyCatalogModule* module, VoyageStore* store)
    : module_(module),
      store_(store),
      parts_(new Parts{CategoryChanges(module, store), VoyageChanges(module, store)}) {}

VoyCatalogController::~VoyCatalogController() = default;

void VoyCatalogController::SetVoyController(VoyController* controller) {
    parts_->voyages.SetPositionRefresh([controller] { return controller->RefreshVesselPositions(); });
}

int VoyCatalogController::Connect(std::string& user) {
    const auto connected = FindUser(*module_, user);
    if (!connected.Failed()) {
        user_ = user;
    }
    return kConnectCodes.Of(connected);
}

int VoyCatalogController::Load(const std::string& user) {
    if (user.empty() || user != user_) {
        return kLoadCodes.Of(SessionStep::User);
    }
    return module_->LoadAll(user) < 0 ? kLoadCodes.Of(SessionStep::Server) : 0;
}

void VoyCatalogController::MakeUniqueName(const std::string& base, const std::map<std::string, int>& names,
                                          std::string& out) const {
    out = UniqueName(base, names);
}

void VoyCatalogController::GetNameMaps(std::map<std::string, int>& categoryNames,
                                       std::map<std::string, int>& voyageNames) const {
    FillNameMaps(*store_, categoryNames, voyageNames);
}

void VoyCatalogController::ListCategories(std::vector<std::string>& names) const {
    names = CategoriesInUse(*store_);
}

int VoyCatalogController::AddCategory(const std::string& name, std::string& ci) {
    return kAddCodes.Of(parts_->categories.Add(name, ci));
}

int VoyCatalogController::RenameCategory(const std::string& ci, const std::string& name) {
    return kChangeCategoryCodes.Of(parts_->categories.Rename(ci, name));
}

int VoyCatalogController::DeleteCategory(const std::string& ci) {
    return kChangeCategoryCodes.Of(parts_->categories.SetState(ci, InRecycleBin));
}

int VoyCatalogController::RecoverCategory(const std::string& ci) {
    return kChangeCategoryCodes.Of(parts_->categories.SetState(ci, InUse));
}

int VoyCatalogController::DestroyCategory(const std::string& ci) {
    return kChangeCategoryCodes.Of(parts_->categories.SetState(ci, Destroyed));
}

int VoyCatalogController::AddVoyage(const std::string& name, const std::string& ci, std::string& vi) {
    return kAddCodes.Of(parts_->voyages.Add(name, ci, vi));
}

int VoyCatalogController::RenameVoyage(const std::string& vi, const std::string& name) {
    return kChangeVoyageCodes.Of(parts_->voyages.Rename(vi, name));
}

int VoyCatalogController::DeleteVoyage(const std::string& ci, const std::string& vi) {
    return kVoyageStateCodes.Of(parts_->voyages.SetState(ci, vi, InRecycleBin));
}

int VoyCatalogController::RecoverVoyage(const std::string& ci, const std::string& vi) {
    return kVoyageStateCodes.Of(parts_->voyages.SetState(ci, vi, InUse));
}

int VoyCatalogController::DestroyVoyage(const std::string& ci, const std::string& vi) {
    return kVoyageStateCodes.Of(parts_->voyages.SetState(ci, vi, Destroyed));
}

int VoyCatalogController::GetVoyageState(const std::string& vi, int& state) const {
    if (vi.empty()) {
        return -1;
    }
    state = StateOfVoyage(*store_, vi);
    return 0;
}

int VoyCatalogController::ChangeVessel(const std::string& vi, const std::string& vsi, const std::string& vsn,
                                       int vsmsi) {
    return kChangeVesselCodes.Of(parts_->voyages.SetVessel(vi, vsi, vsn, vsmsi));
}

int VoyCatalogController::OpenRoute(const std::string& vi) {
    return kChangeVoyageCodes.Of(parts_->voyages.SwitchRoute(vi, true));
}

int VoyCatalogController::CloseRoute(const std::string& vi) {
    return kChangeVoyageCodes.Of(parts_->voyages.SwitchRoute(vi, false));
}

int VoyCatalogController::OpenAis(const std::string& vi) {
    return kChangeVoyageCodes.Of(parts_->voyages.SwitchAis(vi, true));
}

int VoyCatalogController::CloseAis(const std::string& vi) {
    return kChangeVoyageCodes.Of(parts_->voyages.SwitchAis(vi, false));
}

int VoyCatalogController::AddAisModTime(const std::string& vi, const std::string& time) {
    return kAddAisTimeCodes.Of(parts_->voyages.AddAisTime(vi, time));
}

int VoyCatalogController::GetAisModTimes(const std::string& vi, std::vector<std::string>& times) {
    return kGetAisTimesCodes.Of(parts_->voyages.GetAisTimes(vi, times));
}

}  // namespace Tarvik::Seaplan
