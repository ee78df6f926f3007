// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/services/AisCommands.h"

namespace Tarvik::Seaplan {

/// AisCommands by the real controllers.
class AisControllerCommands final : public AisCommands {
  public:
    AisControllerCommands(VoyController* voyages, VoyCatalogController* catalog)
        : voyages_(voyages), catalog_(catalog) {}
    int ApplyAisPosition(const std::string& vi, int& applied) override {
        return voyages_->ApplyAisPosition(vi, applied);
    }
    int SplitAisRows(const std::string& vi, PortCallRows& before, PortCallRows& after) override {
        return voyages_->SplitAisRows(vi, before, after);
    }
    int ReplanFromAis(const std::string& vi, const PortCallRows& history, const PortCallRows& plan) override {
        PortCallRows ports;  // the panel reads them from the voyage
        return voyages_->ReplanFromAis(vi, history, plan, ports);
    }
    int ClearAisMod(const std::string& vi) override { return voyages_->ClearAisMod(vi); }
    int AddAisModTime(const std::string& vi, const std::string& time) override {
        return catalog_->AddAisModTime(vi, time);
    }

  private:
    VoyController* voyages_;
    VoyCatalogController* catalog_;
};

}  // namespace Tarvik::Seaplan
