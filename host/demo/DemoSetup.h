// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace Tarvik::Demo {

/// The words of `plan` that make each sample voyage, a line each, parted by tabs: CATEGORY/VOYAGE, departure
/// (UTC), knots, ports. `now` is in seconds after 1970.
std::string PlanLines(std::int64_t now);

/// Sends a command of the voyage server (number and text) and gives the reply's text.
using Exchange = std::function<std::string(std::uint16_t command, const std::string& text)>;

/// Behind the plans: makes the fleet, gives the voyages their vessels, follows those that are under way and
/// puts the one for the recycle bin there. Gives the ships of the AIS feed, which sail the voyages' own
/// position books, as ais-feed reads them. Throws std::runtime_error when a voyage is missing or the server
/// refuses.
std::string Finish(const Exchange& exchange, const std::string& user, std::int64_t now);

}  // namespace Tarvik::Demo
