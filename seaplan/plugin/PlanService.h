// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/interface/PlanRecords.h>

#include "seaplan/calculation/Units.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/VoyPortCall.h"
#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Seaplan {

class VoyCatalogController;
class VoyController;

using Interface::PlanCode;
using Interface::PlanPort;
using Interface::PlanRequest;
using Interface::PlanResult;

/// Plans a voyage for clients without a window, by the controllers that the panels use. Panels notice nothing
/// of it: their calculated route stays, and a store that was not loaded is left so.
class PlanService {
  public:
    PlanService(VoyCatalogController* catalog, VoyController* voyages, VoyageStore* store,
                PortDirectory* ports)
        : catalog_(catalog), voyages_(voyages), store_(store), ports_(ports) {}

    const PlanResult& Plan(const PlanRequest& request);

  private:
    PlanCode Run(const PlanRequest& request);
    PlanCode Connect();
    PlanCode Prepare(const PlanRequest& request, PortCallRows& rows);
    PlanCode CheckNames(const PlanRequest& request);
    bool IsTaken(const std::string& name) const;
    PlanCode Calculate(const PortCallRows& rows);
    PlanCode FillResult(const UnitSet& units);
    PlanCode Save(const PlanRequest& request);
    int FindCategory(const std::string& name, bool& made);
    std::string TakeBack(bool newCategory);
    PlanCode Fail(PlanCode code, const std::string& step);

    VoyCatalogController* catalog_;
    VoyController* voyages_;
    VoyageStore* store_;
    PortDirectory* ports_;
    PortCallRows rows_;  ///< of the plan in work
    PlanResult result_;
};

}  // namespace Tarvik::Seaplan
