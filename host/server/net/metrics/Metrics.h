// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <utility>

namespace Tarvik::Server {

/// Counts what the server does and prints it in the text format of Prometheus. Label values must be few: they
/// are never taken from a request as they stand. Safe to call from any thread.
class Metrics {
  public:
    /// Upper bounds of the histogram's buckets in seconds; the last one, without bound, is not listed.
    static constexpr std::array<double, 12> kBounds = {0.001, 0.0025, 0.005, 0.01, 0.025, 0.05,
                                                       0.1,   0.25,   0.5,   1,    2.5,   10};

    /// A request was answered after `seconds`.
    void CountRequest(const std::string& command, const std::string& result, double seconds);
    void CountRefusedConnection();
    /// Told after each connection that was opened or ended how many are open.
    void SetConnections(std::size_t open);

    std::string Print() const;

  private:
    struct Histogram {
        std::array<std::uint64_t, kBounds.size() + 1> counts{};
        double sum = 0;
    };

    std::string PrintRequests() const;
    std::string PrintTimes() const;

    mutable std::mutex mutex_;
    std::map<std::pair<std::string, std::string>, std::uint64_t> requests_;
    std::map<std::string, Histogram> times_;
    std::uint64_t refusedConnections_ = 0;
    std::uint64_t openedConnections_ = 0;
    std::size_t connections_ = 0;
};

}  // namespace Tarvik::Server
