// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <tarvik/bus/SiblingContract.h>
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/SiblingRecords.h>

namespace Tarvik::Seaplan {

/// The fleet plug-in with what a test gave it.
class FleetPlugin final : public Core::TObject {
  public:
    FleetPlugin() {
        all_.Set<&FleetPlugin::OnAll>(this);
        add_.Set<&FleetPlugin::OnAdd>(this);
        info_.Set<&FleetPlugin::OnInfo>(this);
        Bind(Interface::Bus::AllVessels.name, all_);
        Bind(Interface::Bus::ShowAddVessel.name, add_);
        Bind(Interface::Bus::ShowVesselInfo.name, info_);
    }
    ~FleetPlugin() override {
        auto* kernel = Core::TrvKernel::Instance();
        for (const auto& [name, event] : bound_) {
            kernel->UnBindTrvService(name, event);
            kernel->DeleteTrvService(name, this);
        }
    }

    std::vector<Interface::FleetEntry> fleet = {
        {"1", "NORTHERN LIGHT", 211}, {"2", "Nora", 212}, {"3", "ANNA NORD", 213}};
    std::function<void()> asked = [] {};  ///< called when the fleet is asked for
    std::vector<std::string> offered;
    std::vector<std::string> shownIds;
    bool hasWindow = true;
    int window = 0;

  private:
    void Bind(const char* name, Core::TEvent& event) {
        Core::TrvKernel::Instance()->CreateTrvService(name, this, "", "", nullptr);
        Core::TrvKernel::Instance()->BindTrvService(name, &event);
        bound_.emplace_back(name, &event);
    }
    void* OnAll(void*) {
        asked();
        return &fleet;
    }
    void* OnAdd(void* input) {
        offered.push_back(static_cast<const Interface::FleetEntry*>(input)->name);
        handle_ = hasWindow ? &window : nullptr;
        return &handle_;
    }
    void* OnInfo(void* input) {
        shownIds.push_back(*static_cast<const std::string*>(input));
        return nullptr;
    }

    Core::TEvent all_;
    Core::TEvent add_;
    Core::TEvent info_;
    std::vector<std::pair<const char*, Core::TEvent*>> bound_;
    void* handle_ = nullptr;
};

}  // namespace Tarvik::Seaplan
