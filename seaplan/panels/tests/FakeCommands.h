// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/data/VoyageStore.h"
#include "seaplan/panels/services/ScheduleCommands.h"

namespace Tarvik::Seaplan {

/// A schedule service with legs of 240 nautical miles; it records every call that reaches the server or the
/// chart.
class FakeSchedule final : public ScheduleCommands {
  public:
    explicit FakeSchedule(VoyageStore& store) : store_(store) {}

    std::set<std::string> refused;
    std::vector<std::string> calls;
    std::map<std::string, PortCallRows> onServer;  ///< saved rows by voyage
    PortCallRows savedRows;                        ///< rows of the last SaveSchedule
    int timers = 0;

    int LoadSchedule(const std::string& vi, PortCallRows& rows, int drawMode) override {
        if (done("LoadSchedule", vi + " " + std::to_string(drawMode)) != 0 || !onServer.contains(vi)) {
            return -3;
        }
        VoyInfo& voyage = store_.voyages[vi];
        if (voyage.portCalls.empty()) {
            voyage.portCalls = onServer[vi];
        }
        rows = voyage.portCalls;
        return 0;
    }
    int SaveSchedule(const std::string& vi, const PortCallRows& rows, int drawMode) override {
        if (done("SaveSchedule", vi + " " + std::to_string(drawMode)) != 0) {
            return -1;
        }
        savedRows = rows;
        store_.voyages[vi].portCalls = rows;
        onServer[vi] = rows;
        return 0;
    }
    int DiscardPortCalls(const std::string& vi) override {
        store_.voyages[vi].portCalls.clear();
        return done("DiscardPortCalls", vi);
    }
    int GetModAis(const std::string& vi, int& count) const override {
        const VoyInfo* voyage = store_.FindVoyage(vi);
        if (voyage == nullptr) {
            return -1;
        }
        count = voyage->modais;
        return 0;
    }
    int ResolvePortIds(PortCallRows& rows) const override {
        for (VoyPortCall& row : rows) {
            row.ppi = "id-" + row.ppn;
        }
        return 0;
    }
    int CalculatePortCalls(const PortCallRows& rows, PortCallRows& out) override {
        if (done("Calculate", std::to_string(rows.size())) != 0) {
            return -1;
        }
        PortCallRows legs = rows;
        for (std::size_t i = 1; i < legs.size(); ++i) {
            legs[i].distance = 240;
        }
        return BuildSchedule(legs.front().eta, legs, out);
    }
    int CalculateForVoyage(const std::string& vi, const PortCallRows& rows, PortCallRows& out,
                           int& hadPortCalls) override {
        VoyInfo* voyage = store_.FindVoyage(vi);
        if (voyage == nullptr || CalculatePortCalls(rows, out) != 0) {
            return -1;
        }
        hadPortCalls = voyage->portCalls.empty() ? 0 : 1;
        pending_ = true;
        if (hadPortCalls == 1) {
            voyage->portCalls = out;
        }
        return 0;
    }
    int ScheduleCurrentRoute(const PortCallRows& rows, PortCallRows& out) override {
        if (done("ScheduleCurrentRoute", std::to_string(rows.size())) != 0) {
            return -1;
        }
        PortCallRows legs = rows;
        for (std::size_t i = 1; i < legs.size(); ++i) {
            legs[i].distance = 480;
        }
        return BuildSchedule(legs.front().eta, legs, out);
    }
    int MoveRowUp(const PortCallRows& rows, int index, PortCallRows& out) override {
        return Seaplan::MoveRowUp(rows, index, out);
    }
    int MoveRowDown(const PortCallRows& rows, int index, PortCallRows& out) override {
        return Seaplan::MoveRowDown(rows, index, out);
    }
    int DeleteRow(const PortCallRows& rows, int index, PortCallRows& out) override {
        return RemoveRowAt(rows, index, out);
    }
    void RouteChanged() override { done("RouteChanged", ""); }
    void ForgetPortList() override { pending_ = false; }
    bool HasPendingRoute() const override { return pending_; }
    int ClearChart() override { return done("ClearChart", ""); }
    int RemoveVoyageObjects(const std::string& vi) override { return done("RemoveVoyageObjects", vi); }
    int ShowVoyage(const std::string& vi) override { return done("ShowVoyage", vi); }
    int RefreshVesselPositions() override { return done("RefreshVesselPositions", ""); }
    void StartTimer() override { ++timers; }
    void StopTimer() override { timers = 0; }
    int RefreshTrace(const std::string& vi) override { return done("RefreshTrace", vi); }
    int HideAisTrack(const std::string& vi) override { return done("HideAisTrack", vi); }

    bool Called(const std::string& call) const {
        return std::find(calls.begin(), calls.end(), call) != calls.end();
    }

  private:
    int done(const std::string& operation, const std::string& argument) {
        calls.push_back(argument.empty() ? operation : operation + " " + argument);
        return refused.contains(operation) ? -1 : 0;
    }
    VoyageStore& store_;
    bool pending_ = false;
};

}  // namespace Tarvik::Seaplan
