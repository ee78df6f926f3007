// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/interface/PlanRecords.h>

#include "host/client/plan/PlanArguments.h"
#include "host/client/plan/PortLookup.h"
#include "host/client/services/HostServices.h"

namespace Tarvik::Client {

enum ExitCode : int { kExitDone = 0, kExitFailed = 1, kExitBadInput = 2 };

/// What came of a step of `plan`: its exit code and one line for the person; where that is 0, none or what is
/// to be known all the same, a line each.
struct PlanOutcome {
    int exitCode = kExitDone;
    std::string message;
};

/// Finds the typed ports and makes the request of the planning service. Bad input names the bad word and
/// candidates.
PlanOutcome MakePlanRequest(const PlanArguments& arguments, const PortLookup& lookup, const std::string& zone,
                            Interface::PlanRequest& request);

/// Calls the planning service on the bus. `result` stays the plug-in's. When it fails, `services` knows what
/// the server had to say about it; null when there are none.
PlanOutcome CallPlanService(const Interface::PlanRequest& request, const Interface::PlanResult*& result,
                            const HostServices* services = nullptr);

}  // namespace Tarvik::Client
