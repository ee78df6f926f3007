// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/services/CatalogCommands.h"
#include "seaplan/panels/services/ScheduleCommands.h"

namespace Tarvik::Seaplan {

/// CatalogCommands by the real controller.
class CatalogControllerCommands final : public CatalogCommands {
  public:
    explicit CatalogControllerCommands(VoyCatalogController* controller) : c_(controller) {}
    int Connect(std::string& user) override { return c_->Connect(user); }
    int Load(const std::string& user) override { return c_->Load(user); }
    std::string MakeUniqueName(const std::string& base,
                               const std::map<std::string, int>& names) const override {
        std::string out;
        c_->MakeUniqueName(base, names, out);
        return out;
    }
    void GetNameMaps(std::map<std::string, int>& categories,
                     std::map<std::string, int>& voyages) const override {
        c_->GetNameMaps(categories, voyages);
    }
    int AddCategory(const std::string& name, std::string& ci) override { return c_->AddCategory(name, ci); }
    int AddVoyage(const std::string& name, const std::string& ci, std::string& vi) override {
        return c_->AddVoyage(name, ci, vi);
    }
    int RenameCategory(const std::string& ci, const std::string& name) override {
        return c_->RenameCategory(ci, name);
    }
    int DeleteCategory(const std::string& ci) override { return c_->DeleteCategory(ci); }
    int RecoverCategory(const std::string& ci) override { return c_->RecoverCategory(ci); }
    int DestroyCategory(const std::string& ci) override { return c_->DestroyCategory(ci); }
    int RenameVoyage(const std::string& vi, const std::string& name) override {
        return c_->RenameVoyage(vi, name);
    }
    int DeleteVoyage(const std::string& ci, const std::string& vi) override {
        return c_->DeleteVoyage(ci, vi);
    }
    int RecoverVoyage(const std::string& ci, const std::string& vi) override {
        return c_->RecoverVoyage(ci, vi);
    }
    int DestroyVoyage(const std::string& ci, const std::string& vi) override {
        return c_->DestroyVoyage(ci, vi);
    }
    int ChangeVessel(const std::string& vi, const std::string& vsi, const std::string& vsn,
                     int vsmsi) override {
        return c_->ChangeVessel(vi, vsi, vsn, vsmsi);
    }
    int OpenRoute(const std::string& vi) override { return c_->OpenRoute(vi); }
    int CloseRoute(const std::string& vi) override { return c_->CloseRoute(vi); }
    int OpenAis(const std::string& vi) override { return c_->OpenAis(vi); }
    int CloseAis(const std::string& vi) override { return c_->CloseAis(vi); }
    int GetVoyageState(const std::string& vi, int& state) const override {
        return c_->GetVoyageState(vi, state);
    }

  private:
    VoyCatalogController* c_;
};

/// ScheduleCommands by the real controller.
class ScheduleControllerCommands final : public ScheduleCommands {
  public:
    explicit ScheduleControllerCommands(VoyController* controller) : c_(controller) {}
    int LoadSchedule(const std::string& vi, PortCallRows& rows, int drawMode) override {
        return c_->LoadSchedule(vi, rows, drawMode);
    }
    int SaveSchedule(const std::string& vi, const PortCallRows& rows, int drawMode) override {
        return c_->SaveSchedule(vi, rows, drawMode);
    }
    int DiscardPortCalls(const std::string& vi) override { return c_->DiscardPortCalls(vi); }
    int GetModAis(const std::string& vi, int& count) const override { return c_->GetModAis(vi, count); }
    int ResolvePortIds(PortCallRows& rows) const override { return c_->ResolvePortIds(rows); }
    int CalculatePortCalls(const PortCallRows& rows, PortCallRows& out) override {
        return c_->CalculatePortCalls(rows, out);
    }
    int CalculateForVoyage(const std::string& vi, const PortCallRows& rows, PortCallRows& out,
                           int& hadPortCalls) override {
        return c_->CalculateForVoyage(vi, rows, out, hadPortCalls);
    }
    int ScheduleCurrentRoute(const PortCallRows& rows, PortCallRows& out) override {
        return c_->ScheduleCurrentRoute(rows, out);
    }
    int MoveRowUp(const PortCallRows& rows, int index, PortCallRows& out) override {
        return c_->MoveRowUp(rows, index, out);
    }
    int MoveRowDown(const PortCallRows& rows, int index, PortCallRows& out) override {
        return c_->MoveRowDown(rows, index, out);
    }
    int DeleteRow(const PortCallRows& rows, int index, PortCallRows& out) override {
        return c_->DeleteRow(rows, index, out);
    }
    void RouteChanged() override { c_->Module().Pending().NoteRowsChanged(); }
    void ForgetPortList() override { c_->Module().Pending().Forget(); }
    bool HasPendingRoute() const override { return c_->Module().Pending().IsThere(); }
    int ClearChart() override { return c_->ClearChart(); }
    int RemoveVoyageObjects(const std::string& vi) override { return c_->RemoveVoyageObjects(vi); }
    int ShowVoyage(const std::string& vi) override { return c_->ShowVoyage(vi); }
    int RefreshVesselPositions() override { return c_->RefreshVesselPositions(); }
    void StartTimer() override { c_->StartTimer(); }
    void StopTimer() override { c_->StopTimer(); }
    int RefreshTrace(const std::string& vi) override { return c_->RefreshTrace(vi); }
    int HideAisTrack(const std::string& vi) override { return c_->HideAisTrack(vi); }

  private:
    VoyController* c_;
};

}  // namespace Tarvik::Seaplan
