// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "host/server/api/RouteSource.h"
#include "host/server/graph/RouteTypes.h"

namespace Tarvik::Seaplan {

/// Answers the two route commands for the ports of the test world, in the words of the server. A leg is as
/// long as the test says, to a few metres, whatever ports it joins: it goes out to the west and back.
class DeskRoutes final : public Server::RouteSource {
  public:
    /// Length in nautical miles of every leg that is not set.
    static constexpr double kUsualMiles = 240;

    /// Both ways between two ports, by name.
    void SetLeg(const std::string& from, const std::string& to, double miles);
    /// The way between two ports passes route point 118; by 105, which can be chosen instead, it has another
    /// length.
    void SetPassage(const std::string& from, const std::string& to, double milesBy105);
    /// From now on no way is found.
    void Close(bool closed) { closed_ = closed; }

    std::string Plan(std::string_view requestJson) override;
    std::string Nearest(std::string_view requestJson) override;
    bool KnowsPort(const std::string& id) override;

  private:
    using Ends = std::pair<std::string, std::string>;

    Server::PlannedStop Way(const std::string& from, const Server::RouteRequestPoint& stop) const;
    double MilesOf(const Ends& ends) const;

    std::map<Ends, double> miles_;
    std::map<Ends, double> passages_;
    bool closed_ = false;
};

}  // namespace Tarvik::Seaplan
