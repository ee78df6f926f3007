// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "bench/server/ChildProcess.h"

namespace Bench {

/// Where an office's data are, and how its server speaks.
struct OfficePlace {
    std::string folder;
    bool logRequests = false;
    std::string database{};     ///< connection text of PostgreSQL; empty: files in the folder
    std::string certificate{};  ///< PEM files for TLS; empty for none
    std::string key{};
};

/// An office's data base: "anna" with one category, a few voyages and a schedule, "owen" with 10,000 voyages.
/// The first voyage of anna has five port calls and a book of ten rows.
class OfficeServer {
  public:
    static constexpr const char* kSmallUser = "anna";
    static constexpr const char* kLargeUser = "owen";
    static constexpr const char* kPassword = "correct horse";
    static constexpr int kVoyages = 10000;

    /// Fills the data base, then serves until SIGTERM. The log of requests goes nowhere.
    static void Serve(const OfficePlace& place, const ChildProcess::Ready& ready);

    /// The token of a login at the port, over TLS where a certificate is named.
    static std::string LogIn(std::uint16_t port, const std::string& user,
                             const std::string& certificate = {});
    /// Requests of the small user for small replies, as bytes on the wire: commands 3, 7, 10 and 12.
    static std::vector<std::string> SmallReads(const std::string& token);
    /// Requests of the large user that change the figures of one voyage each: command 6.
    static std::vector<std::string> SmallWrites(const std::string& token);
    /// The id of the large user's first voyage but one, behind which kVoyagesInARow follow.
    static std::int64_t FirstVoyage();
    static constexpr int kVoyagesInARow = 90;
};

}  // namespace Bench
