// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "bench/server/ChildProcess.h"

namespace Bench {

/// An office's data base: "anna" with one category, a few voyages and a schedule, "owen" with 10,000 voyages.
/// The first voyage of anna has five port calls and a book of ten rows.
class OfficeServer {
  public:
    static constexpr const char* kSmallUser = "anna";
    static constexpr const char* kLargeUser = "owen";
    static constexpr const char* kPassword = "correct horse";
    static constexpr int kVoyages = 10000;

    /// Fills the data base in `folder`, then serves until SIGTERM. The log of requests goes nowhere.
    static void Serve(const std::string& folder, bool logRequests, const ChildProcess::Ready& ready);
    /// Fills a data base of this path.
    static void Fill(const std::string& database);

    /// The token of a login at the port.
    static std::string LogIn(std::uint16_t port, const std::string& user);
    /// Requests of the small user for small replies, as bytes on the wire: commands 3, 7, 10 and 12.
    static std::vector<std::string> SmallReads(const std::string& token);
};

}  // namespace Bench
