// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/server/storage/contract/Records.h"

namespace Tarvik::Server {

/// What answers the two route commands. Both take the request text and give the reply text, which is a status
/// object with `eid` not 0 and a reason when the request cannot be answered.
class RouteSource {
  public:
    virtual ~RouteSource() = default;

    /// The sea route along a list of points.
    virtual std::string Plan(std::string_view requestJson) = 0;
    /// The points from the route point nearest to a position to a port.
    virtual std::string Nearest(std::string_view requestJson) = 0;
    ///@{
    /// The same where stops may also be these ports of the user's own. A source without a network of its own
    /// knows none of them.
    virtual std::string PlanWith(std::string_view requestJson, const std::vector<PlaceRecord>& own) {
        static_cast<void>(own);
        return Plan(requestJson);
    }
    virtual std::string NearestWith(std::string_view requestJson, const std::vector<PlaceRecord>& own) {
        static_cast<void>(own);
        return Nearest(requestJson);
    }
    ///@}
    /// Whether there is a port of this id. A source without ports of its own cannot tell, and says yes.
    virtual bool KnowsPort(const std::string& id) {
        static_cast<void>(id);
        return true;
    }
};

}  // namespace Tarvik::Server
