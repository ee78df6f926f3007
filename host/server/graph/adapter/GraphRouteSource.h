// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "host/server/api/RouteSource.h"
#include "host/server/graph/RouteEngine.h"

namespace Tarvik::Server {

/// Answers the two route commands from a sea network. Any number of threads may ask it.
class GraphRouteSource : public RouteSource {
  public:
    /// Reads the network file. Null, with one line in `error` that names the file and says what to do, when
    /// it is missing, foreign, cut or damaged.
    static std::unique_ptr<GraphRouteSource> Open(const std::string& networkFile, std::string& error);

    /// `network` must not be null. `standing` holds for every request.
    explicit GraphRouteSource(std::shared_ptr<const SeaNetwork> network, RouteLimits standing = {});

    /// An array with one object for every stop, or a status object with `eid` not 0 and `emsg`.
    std::string Plan(std::string_view requestJson) override;
    /// {"eid":0,"pointset":"x,y|x,y"}, beginning at the position asked for, or a status object as above.
    std::string Nearest(std::string_view requestJson) override;
    std::string PlanWith(std::string_view requestJson, const std::vector<PlaceRecord>& own) override;
    std::string NearestWith(std::string_view requestJson, const std::vector<PlaceRecord>& own) override;
    bool KnowsPort(const std::string& id) override { return engine_.Knows(id); }

  private:
    RouteEngine engine_;
};

}  // namespace Tarvik::Server
