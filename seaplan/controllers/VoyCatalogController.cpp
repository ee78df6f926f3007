// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyCatalogController.h"

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/controllers/VoyController.h"
#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

int VoyCatalogController::Connect(std::string& user) {
    if (module_->EnsureConnected() < 0) {
        return -1;
    }
    if (module_->GetUser(user) < 0) {
        return -2;
    }
    user_ = user;
    return 0;
}

int VoyCatalogController::Load(const std::string& user) {
    if (user.empty() || user != user_) {
        return -1;
    }
    return module_->LoadAll(user) < 0 ? -2 : 0;
}

void VoyCatalogController::MakeUniqueName(const std::string& base, const std::map<std::string, int>& names,
                                          std::string& out) const {
    int i = 0;
    do {
        out = base + Util::StringUtl::Format(" - %d", i++);
    } while (names.count(out) > 0);
}

void VoyCatalogController::GetNameMaps(std::map<std::string, int>& categoryNames,
                                       std::map<std::string, int>& voyageNames) const {
    if (!categoryNames.empty()) {
        return;
    }
    for (const auto& [ci, category] : store_->categories) {
        if (const auto state = store_->categoryStates.find(ci); state != store_->categoryStates.end()) {
            categoryNames[category.cn] = state->second;
        }
    }
    if (!voyageNames.empty()) {
        return;
    }
    for (const auto& [vi, voyage] : store_->voyages) {
        int state = 0;
        if (GetVoyageState(vi, state) == 0) {
            voyageNames[voyage.vn] = state;
        }
    }
}

void VoyCatalogController::ListCategories(std::vector<std::string>& names) const {
    names.clear();
    for (const auto& [ci, category] : store_->categories) {
        const auto state = store_->categoryStates.find(ci);
        if (state != store_->categoryStates.end() && state->second == InUse) {
            names.push_back(category.cn);
        }
    }
}

int VoyCatalogController::AddCategory(const std::string& name, std::string& ci) {
    if (module_->CreateCategory(name, ci) < 0) {
        return -1;
    }
    if (store_->categories.count(ci) > 0) {
        return -2;
    }
    VoyCategory category;
    category.ci = ci;
    category.cn = name;
    store_->categories[ci] = category;
    store_->categoryStates[ci] = InUse;
    return 0;
}

int VoyCatalogController::AddVoyage(const std::string& name, const std::string& ci, std::string& vi) {
    if (module_->CreateVoyage(name, ci, vi) < 0) {
        return -1;
    }
    if (store_->FindVoyage(vi) != nullptr) {
        return -2;
    }
    VoyInfo voyage;
    voyage.vi = vi;
    voyage.vn = name;
    store_->voyages[vi] = voyage;
    store_->categoryVoyages[ci][vi] = InUse;
    return 0;
}

int VoyCatalogController::RenameCategory(const std::string& ci, const std::string& name) {
    if (ci.empty() || name.empty()) {
        return -1;
    }
    if (module_->RenameCategory(ci, name) < 0) {
        return -2;
    }
    const auto found = store_->categories.find(ci);
    if (found == store_->categories.end()) {
        return -3;
    }
    found->second.cn = name;
    return 0;
}

int VoyCatalogController::ChangeCategory(const std::string& ci, int type, int state) {
    if (ci.empty()) {
        return -1;
    }
    if (module_->ChangeCategoryState(ci, type) < 0) {
        return -2;
    }
    const auto found = store_->categoryStates.find(ci);
    if (found == store_->categoryStates.end()) {
        return -3;
    }
    found->second = state;
    return 0;
}

int VoyCatalogController::DeleteCategory(const std::string& ci) {
    return ChangeCategory(ci, 1, InRecycleBin);
}

int VoyCatalogController::RecoverCategory(const std::string& ci) {
    return ChangeCategory(ci, 2, InUse);
}

int VoyCatalogController::DestroyCategory(const std::string& ci) {
    return ChangeCategory(ci, 3, Destroyed);
}

int VoyCatalogController::RenameVoyage(const std::string& vi, const std::string& name) {
    if (vi.empty() || name.empty()) {
        return -1;
    }
    if (module_->RenameVoyage(vi, name) < 0) {
        return -2;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -3;
    }
    voyage->vn = name;
    return 0;
}

int VoyCatalogController::ChangeVoyage(const std::string& ci, const std::string& vi, int type, int state) {
    if (vi.empty()) {
        return -1;
    }
    if (module_->ChangeVoyageState(vi, type) < 0) {
        return -2;
    }
    const auto category = store_->categoryVoyages.find(ci);
    if (category == store_->categoryVoyages.end()) {
        return -3;
    }
    const auto found = category->second.find(vi);
    if (found == category->second.end()) {
        return -4;
    }
    found->second = state;
    return 0;
}

int VoyCatalogController::DeleteVoyage(const std::string& ci, const std::string& vi) {
    return ChangeVoyage(ci, vi, 2, InRecycleBin);
}

int VoyCatalogController::RecoverVoyage(const std::string& ci, const std::string& vi) {
    return ChangeVoyage(ci, vi, 3, InUse);
}

int VoyCatalogController::DestroyVoyage(const std::string& ci, const std::string& vi) {
    return ChangeVoyage(ci, vi, 4, Destroyed);
}

int VoyCatalogController::ChangeVessel(const std::string& vi, const std::string& vsi, const std::string& vsn,
                                       int vsmsi) {
    if (vi.empty() || (vsi.empty() && vsn.empty())) {
        return -1;
    }
    if (module_->ChangeVessel(vi, vsi, vsn, vsmsi) < 0) {
        return -2;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -3;
    }
    voyage->vsi = vsi;
    voyage->vsn = vsn;
    voyage->vsmsi = vsmsi;
    return voyController_ == nullptr || voyController_->RefreshVesselPositions() < 0 ? -4 : 0;
}

int VoyCatalogController::ChangeFlag(const std::string& vi, bool route, bool on) {
    if (vi.empty()) {
        return -1;
    }
    const char* mode = on ? "open" : "close";
    if ((route ? module_->SetRouteDisplay(vi, mode) : module_->SetAisTracing(vi, mode)) < 0) {
        return -2;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -3;
    }
    (route ? voyage->vr : voyage->va) = on ? 1 : 0;
    return 0;
}

int VoyCatalogController::OpenRoute(const std::string& vi) {
    return ChangeFlag(vi, true, true);
}

int VoyCatalogController::CloseRoute(const std::string& vi) {
    return ChangeFlag(vi, true, false);
}

int VoyCatalogController::OpenAis(const std::string& vi) {
    return ChangeFlag(vi, false, true);
}

int VoyCatalogController::CloseAis(const std::string& vi) {
    return ChangeFlag(vi, false, false);
}

int VoyCatalogController::GetVoyageState(const std::string& vi, int& state) const {
    if (vi.empty()) {
        return -1;
    }
    state = InRecycleBin;
    for (const auto& [ci, voyages] : store_->categoryVoyages) {
        if (const auto found = voyages.find(vi); found != voyages.end()) {
            state = found->second;
            return 0;
        }
    }
    return 0;
}

int VoyCatalogController::AddAisModTime(const std::string& vi, const std::string& time) {
    if (vi.empty() || time.size() != kTimeTextLength) {
        return -1;
    }
    if (module_->AddAisModTime(vi, time) < 0) {
        return -2;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -3;
    }
    voyage->aisModTimes.push_back(time);
    ++voyage->modais;
    const auto parsed = Util::DateTimeUtl::Parse(time);
    if (!parsed) {
        return -4;
    }
    voyage->lastAisModTime = GmtTimerOfPlanTime(*parsed);
    return 0;
}

int VoyCatalogController::GetAisModTimes(const std::string& vi, std::vector<std::string>& times) {
    if (vi.empty()) {
        return -1;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -2;
    }
    if (voyage->aisModTimes.empty()) {
        std::vector<std::string> read;
        if (module_->GetAisModTimes(vi, read) < 0) {
            return -3;
        }
        voyage->aisModTimes = read;
    }
    times = voyage->aisModTimes;
    return 0;
}

}  // namespace Tarvik::Seaplan
