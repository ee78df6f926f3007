// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace Bench {

/// Milliseconds from the client's request to the filled store of 10,000 voyages.
struct CatalogTimes {
    double median = 0;
    double worst = 0;
};

/// From a server over HTTP.
CatalogTimes LoadFromServer(std::uint16_t port, int runs);
/// From the server inside this process, on a data base file that OfficeServer has filled.
CatalogTimes LoadFromFile(const std::string& database, int runs);

}  // namespace Bench
