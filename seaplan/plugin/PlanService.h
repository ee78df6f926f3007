// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/bus/BusName.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/chart/LineSplit.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/VoyPortCall.h"
#include "seaplan/data/VoyPositionBook.h"
#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Seaplan {

class VoyCatalogController;
class VoyController;

/// One port of a voyage to plan.
struct PlanPort {
    std::string name;     ///< as the port dictionary has it
    std::string purpose;  ///< purpose code; empty becomes "L" on the first port and "D" elsewhere
    float speed = 10.0F;  ///< knots, above 0.01, on the leg that ends here
    float weather = 0;    ///< fraction from 0 to 0.9999999 by which the speed is reduced
    float portTime = 0;   ///< hours, 0 or more
};

/// Argument of the planning service.
struct PlanRequest {
    std::vector<PlanPort> ports;
    Util::_datetime_t start;  ///< arrival at the first port, in the plan's reading
    bool save = false;        ///< stores the voyage on the server
    std::string category;     ///< where it is stored; made when there is none of this name in use
    std::string voyage;  ///< its name, which must not be taken; names are kept as the tree keeps typed ones
};

/// Why a plan came to nothing.
enum PlanCode : int {
    PlanDone = 0,
    PlanNotConnected = -1,
    PlanNotLoaded = -2,
    PlanUnknownPort = -3,
    PlanTooFewPorts = -4,
    PlanNameMissing = -5,
    PlanNameTaken = -6,
    PlanNotCalculated = -7,
    PlanNoCategory = -8,
    PlanNoVoyage = -9,
    PlanNotSaved = -10
};

/// Answer of the planning service; on failure the schedule is empty.
struct PlanResult {
    int code = PlanDone;
    std::string step;  ///< English words for what failed, empty on success
    PortCallRows rows;
    BookPoints book;  ///< with times
    ScheduleTotals totals;
    ScheduleSummary summary;
    std::vector<PointTexts> linePieces;  ///< the route as lines that do not cross the date line
    std::string ci;                      ///< category and voyage that were stored to, empty without saving
    std::string vi;
};

/// The planning service of the bus. The answer stays the plug-in's and is valid until the next call.
inline constexpr Interface::Service<const PlanRequest, const PlanResult> kPlanVoyage{"TRV_S_VOY_PLAN"};

/// Plans a voyage for clients without a window, by the controllers that the panels use. Panels notice nothing
/// of it: their calculated route stays, and a store that was not loaded is left so.
class PlanService {
  public:
    PlanService(VoyCatalogController* catalog, VoyController* voyages, VoyageStore* store,
                PortDirectory* ports)
        : catalog_(catalog), voyages_(voyages), store_(store), ports_(ports) {}

    const PlanResult& Plan(const PlanRequest& request);

  private:
    int Run(const PlanRequest& request);
    int Connect();
    int Prepare(const PlanRequest& request, PortCallRows& rows);
    int CheckNames(const PlanRequest& request);
    int Calculate(const PortCallRows& rows);
    int FillResult();
    int Save(const PlanRequest& request);
    int FindCategory(const std::string& name, bool& made);
    void TakeBack(bool newCategory);
    int Fail(int code, const std::string& step);

    VoyCatalogController* catalog_;
    VoyController* voyages_;
    VoyageStore* store_;
    PortDirectory* ports_;
    PlanResult result_;
};

}  // namespace Tarvik::Seaplan
