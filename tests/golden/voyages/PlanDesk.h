// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/client/services/HostServices.h"
#include "host/client/services/PortDictionary.h"
#include "host/server/app/EmbeddedServer.h"
#include "seaplan/data/RouteStop.h"
#include "seaplan/data/VoyageStore.h"
#include "seaplan/plugin/CompositionRoot.h"
#include "tests/golden/voyages/ChartLog.h"
#include "tests/golden/voyages/Voyages.h"
#include "testsupport/DataFolder.h"
#include "testsupport/ManualClock.h"

namespace Tarvik::Golden {

/// What a planned voyage left behind, by the names of its files.
struct VoyageRecord {
    std::string route;
    std::string book;
    std::string schedule;
    std::string chart;
    Seaplan::PortCallRows rows;
    Seaplan::BookPoints points;
    Seaplan::RouteStops stops;
};

/// The plug-in's objects between the client's services, the server in this process over the shipped sea
/// network, and a chart that writes down what it is asked. No window; the clock stands.
class PlanDesk {
  public:
    PlanDesk();
    ~PlanDesk();
    PlanDesk(const PlanDesk&) = delete;
    PlanDesk& operator=(const PlanDesk&) = delete;

    /// Plans, chooses, saves and draws. The name of the step that failed, empty when none did.
    std::string Run(const Voyage& voyage, VoyageRecord& record);
    /// Clicks every alternative that the route of the last Run offers, each on the route as it was. One line
    /// for each that does not lead through the alternative and past the point it stands for.
    std::vector<std::string> TryAlternatives(const Seaplan::RouteStops& stops);

  private:
    /// An alternative of a route point on the way to a stop.
    struct Offer {
        std::size_t stop;
        std::string RoutePoint;
        std::string alternative;
    };
    std::string TryAlternative(const Offer& offer, const Seaplan::RouteStops& stops);
    std::string Prepare(const Voyage& voyage, Seaplan::PortCallRows& rows);
    std::string Choose(const Voyage& voyage, Seaplan::PortCallRows& rows);
    std::string Save(const Voyage& voyage, const Seaplan::PortCallRows& rows, VoyageRecord& record);
    std::string LoadAgain(Seaplan::PortCallRows& rows);

    TestSupport::DataFolder folder_;
    TestSupport::ManualClock clock_;
    std::unique_ptr<Client::ServerLink> link_;
    std::unique_ptr<Client::PortDictionary> dictionary_;
    std::unique_ptr<Client::HostServices> services_;
    ChartLog chart_;
    Seaplan::VoyageStore store_;
    Seaplan::CompositionRoot root_{&store_};
    std::string vi_;
};

}  // namespace Tarvik::Golden
