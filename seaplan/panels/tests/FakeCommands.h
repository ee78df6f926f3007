// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/data/VoyageStore.h"
#include "seaplan/panels/services/CatalogCommands.h"
#include "seaplan/panels/services/ScheduleCommands.h"

namespace Tarvik::Seaplan {

/// A catalog whose server agrees to everything but what the test refuses; it keeps the store as the real one
/// does.
class FakeCatalog final : public CatalogCommands {
  public:
    explicit FakeCatalog(VoyageStore& store) : store_(store) {}

    std::set<std::string> refused;   ///< operations that fail
    std::vector<std::string> calls;  ///< "Operation argument" in order
    VoyageStore onServer;            ///< what Load brings into an empty store

    int Connect(std::string& user) override {
        user = "1000001";
        return done("Connect", "");
    }
    int Load(const std::string&) override {
        if (done("Load", "") != 0) {
            return -1;
        }
        if (store_.categories.empty()) {
            store_.categories = onServer.categories;
            store_.voyages = onServer.voyages;
            store_.categoryStates = onServer.categoryStates;
            store_.categoryVoyages = onServer.categoryVoyages;
        }
        return 0;
    }
    std::string MakeUniqueName(const std::string& base,
                               const std::map<std::string, int>& names) const override {
        for (int n = 0;; ++n) {
            const std::string name = base + " - " + std::to_string(n);
            if (!names.contains(name)) {
                return name;
            }
        }
    }
    void GetNameMaps(std::map<std::string, int>& categories,
                     std::map<std::string, int>& voyages) const override {
        if (!categories.empty()) {
            return;
        }
        for (const auto& [ci, category] : store_.categories) {
            categories[category.cn] = store_.categoryStates.at(ci);
        }
        for (const auto& [ci, states] : store_.categoryVoyages) {
            for (const auto& [vi, state] : states) {
                voyages[store_.voyages.at(vi).vn] = state;
            }
        }
    }
    int AddCategory(const std::string& name, std::string& ci) override {
        if (done("AddCategory", name) != 0) {
            return -1;
        }
        ci = "c" + std::to_string(++next_);
        store_.categories[ci] = {ci, name, 0};
        store_.categoryStates[ci] = InUse;
        return 0;
    }
    int AddVoyage(const std::string& name, const std::string& ci, std::string& vi) override {
        if (done("AddVoyage", name) != 0) {
            return -1;
        }
        vi = "v" + std::to_string(++next_);
        store_.voyages[vi].vi = vi;
        store_.voyages[vi].vn = name;
        store_.categoryVoyages[ci][vi] = InUse;
        return 0;
    }
    int RenameCategory(const std::string& ci, const std::string& name) override {
        if (done("RenameCategory", name) != 0) {
            return -1;
        }
        store_.categories[ci].cn = name;
        return 0;
    }
    int DeleteCategory(const std::string& ci) override {
        return setCategory("DeleteCategory", ci, InRecycleBin);
    }
    int RecoverCategory(const std::string& ci) override { return setCategory("RecoverCategory", ci, InUse); }
    int DestroyCategory(const std::string& ci) override {
        return setCategory("DestroyCategory", ci, Destroyed);
    }
    int RenameVoyage(const std::string& vi, const std::string& name) override {
        if (done("RenameVoyage", name) != 0) {
            return -1;
        }
        store_.voyages[vi].vn = name;
        return 0;
    }
    int DeleteVoyage(const std::string& ci, const std::string& vi) override {
        return setVoyage("DeleteVoyage", ci, vi, InRecycleBin);
    }
    int RecoverVoyage(const std::string& ci, const std::string& vi) override {
        return setVoyage("RecoverVoyage", ci, vi, InUse);
    }
    int DestroyVoyage(const std::string& ci, const std::string& vi) override {
        return setVoyage("DestroyVoyage", ci, vi, Destroyed);
    }
    int ChangeVessel(const std::string&, const std::string&, const std::string& vsn, int) override {
        return done("ChangeVessel", vsn);
    }
    int OpenRoute(const std::string& vi) override { return setFlag("OpenRoute", vi, &VoyInfo::vr, 1); }
    int CloseRoute(const std::string& vi) override { return setFlag("CloseRoute", vi, &VoyInfo::vr, 0); }
    int OpenAis(const std::string& vi) override { return setFlag("OpenAis", vi, &VoyInfo::va, 1); }
    int CloseAis(const std::string& vi) override { return setFlag("CloseAis", vi, &VoyInfo::va, 0); }
    int GetVoyageState(const std::string& vi, int& state) const override {
        for (const auto& [ci, states] : store_.categoryVoyages) {
            if (states.contains(vi)) {
                state = states.at(vi);
                return 0;
            }
        }
        state = 1;
        return 0;
    }

  private:
    int done(const std::string& operation, const std::string& argument) {
        calls.push_back(argument.empty() ? operation : operation + " " + argument);
        return refused.contains(operation) ? -1 : 0;
    }
    int setCategory(const std::string& operation, const std::string& ci, int state) {
        if (done(operation, ci) != 0) {
            return -1;
        }
        store_.categoryStates[ci] = state;
        return 0;
    }
    int setVoyage(const std::string& operation, const std::string& ci, const std::string& vi, int state) {
        if (done(operation, vi) != 0) {
            return -1;
        }
        store_.categoryVoyages[ci][vi] = state;
        return 0;
    }
    int setFlag(const std::string& operation, const std::string& vi, int VoyInfo::*flag, int value) {
        if (done(operation, vi) != 0) {
            return -1;
        }
        store_.voyages[vi].*flag = value;
        return 0;
    }

    VoyageStore& store_;
    int next_ = 0;
};

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
