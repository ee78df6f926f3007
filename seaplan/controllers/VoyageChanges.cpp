// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyageChanges.h"

#include <algorithm>

#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

namespace {

/// The server's word for a change of state.
int TypeOf(DeletionState state) {
    constexpr int kToBin = 2;
    constexpr int kRecover = 3;
    constexpr int kDestroy = 4;
    if (state == InRecycleBin) {
        return kToBin;
    }
    return state == InUse ? kRecover : kDestroy;
}

const char* WordOf(bool on) {
    return on ? "open" : "close";
}

}  // namespace

Outcome<ChangeStep> VoyageChanges::Add(const std::string& name, const std::string& ci, std::string& vi) {
    if (module_->CreateVoyage(name, ci, vi) < 0) {
        return ChangeStep::Server;
    }
    if (store_->FindVoyage(vi) != nullptr) {
        return ChangeStep::KnownId;
    }
    VoyInfo voyage;
    voyage.vi = vi;
    voyage.vn = name;
    store_->voyages[vi] = voyage;
    store_->categoryVoyages[ci][vi] = InUse;
    return {};
}

Outcome<ChangeStep> VoyageChanges::Rename(const std::string& vi, const std::string& name) {
    if (vi.empty() || name.empty()) {
        return ChangeStep::Input;
    }
    if (module_->RenameVoyage(vi, name) < 0) {
        return ChangeStep::Server;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return ChangeStep::Voyage;
    }
    voyage->vn = name;
    return {};
}

Outcome<ChangeStep> VoyageChanges::SetState(const std::string& ci, const std::string& vi,
                                            DeletionState state) {
    if (vi.empty()) {
        return ChangeStep::Input;
    }
    if (module_->ChangeVoyageState(vi, TypeOf(state)) < 0) {
        return ChangeStep::Server;
    }
    const auto category = store_->categoryVoyages.find(ci);
    if (category == store_->categoryVoyages.end()) {
        return ChangeStep::Category;
    }
    const auto found = category->second.find(vi);
    if (found == category->second.end()) {
        return ChangeStep::Voyage;
    }
    found->second = state;
    return {};
}

Outcome<ChangeStep> VoyageChanges::SetVessel(const std::string& vi, const std::string& vsi,
                                             const std::string& vsn, int vsmsi) {
    if (vi.empty() || (vsi.empty() && vsn.empty())) {
        return ChangeStep::Input;
    }
    if (module_->ChangeVessel(vi, vsi, vsn, vsmsi) < 0) {
        return ChangeStep::Server;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return ChangeStep::Voyage;
    }
    voyage->vsi = vsi;
    voyage->vsn = vsn;
    voyage->vsmsi = vsmsi;
    const bool nothingToAsk = std::none_of(store_->voyages.begin(), store_->voyages.end(),
                                           [](const auto& entry) { return !entry.second.vsi.empty(); });
    if (nothingToAsk) {
        return {};
    }
    return !refresh_ || refresh_() < 0 ? ChangeStep::Positions : Outcome<ChangeStep>();
}

Outcome<ChangeStep> VoyageChanges::SwitchRoute(const std::string& vi, bool on) {
    if (vi.empty()) {
        return ChangeStep::Input;
    }
    if (module_->SetRouteDisplay(vi, WordOf(on)) < 0) {
        return ChangeStep::Server;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return ChangeStep::Voyage;
    }
    voyage->vr = on ? 1 : 0;
    return {};
}

Outcome<ChangeStep> VoyageChanges::SwitchAis(const std::string& vi, bool on) {
    if (vi.empty()) {
        return ChangeStep::Input;
    }
    if (module_->SetAisTracing(vi, WordOf(on)) < 0) {
        return ChangeStep::Server;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return ChangeStep::Voyage;
    }
    voyage->va = on ? 1 : 0;
    return {};
}

Outcome<ChangeStep> VoyageChanges::AddAisTime(const std::string& vi, const std::string& time) {
    if (vi.empty() || time.size() != kTimeTextLength) {
        return ChangeStep::Input;
    }
    if (module_->AddAisModTime(vi, time) < 0) {
        return ChangeStep::Server;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return ChangeStep::Voyage;
    }
    voyage->aisModTimes.push_back(time);
    ++voyage->modais;
    const auto parsed = Util::DateTimeUtl::Parse(time);
    if (!parsed) {
        return ChangeStep::Time;
    }
    voyage->lastAisModTime = GmtTimerOfPlanTime(*parsed);
    return {};
}

Outcome<ChangeStep> VoyageChanges::GetAisTimes(const std::string& vi, std::vector<std::string>& times) {
    if (vi.empty()) {
        return ChangeStep::Input;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return ChangeStep::Voyage;
    }
    if (voyage->aisModTimes.empty()) {
        std::vector<std::string> read;
        if (module_->GetAisModTimes(vi, read) < 0) {
            return ChangeStep::Server;
        }
        voyage->aisModTimes = read;
    }
    times = voyage->aisModTimes;
    return {};
}

}  // namespace Tarvik::Seaplan
