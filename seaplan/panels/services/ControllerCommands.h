// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/services/ScheduleCommands.h"

namespace Tarvik::Seaplan {

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
