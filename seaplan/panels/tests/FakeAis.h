// SPDX-License-Identifier: MIT
#pragma once

#include <set>
#include <string>
#include <vector>

#include "seaplan/data/VoyageStore.h"
#include "seaplan/panels/services/AisCommands.h"

namespace Tarvik::Seaplan {

/// Corrections as the test gives them.
class FakeAis final : public AisCommands {
  public:
    explicit FakeAis(VoyageStore& store) : store_(store) {}

    std::set<std::string> refused;
    std::vector<std::string> calls;
    PortCallRows before;
    PortCallRows after;
    int applied = 0;

    int ApplyAisPosition(const std::string& vi, int& count) override {
        count = applied;
        return Done("ApplyAisPosition", vi);
    }
    int SplitAisRows(const std::string& vi, PortCallRows& history, PortCallRows& plan) override {
        if (Done("SplitAisRows", vi) != 0) {
            return -5;
        }
        history = before;
        plan = after;
        return 0;
    }
    int ReplanFromAis(const std::string& vi, const PortCallRows& history, const PortCallRows& plan) override {
        return Done("ReplanFromAis",
                    vi + " " + std::to_string(history.size()) + " " + std::to_string(plan.size()));
    }
    int ClearAisMod(const std::string& vi) override {
        store_.voyages[vi].modais = 0;
        return Done("ClearAisMod", vi);
    }
    int AddAisModTime(const std::string& vi, const std::string& time) override {
        return Done("AddAisModTime", vi + " " + time);
    }

  private:
    int Done(const std::string& operation, const std::string& argument) {
        calls.push_back(operation + " " + argument);
        return refused.contains(operation) ? -1 : 0;
    }
    VoyageStore& store_;
};

}  // namespace Tarvik::Seaplan
