// SPDX-License-Identifier: MIT
#include "host/server/net/metrics/Metrics.h"

#include <algorithm>

#include <fmt/format.h>

namespace Tarvik::Server {

namespace {

std::string Head(const char* name, const char* kind, const char* meaning) {
    return fmt::format("# HELP {0} {2}\n# TYPE {0} {1}\n", name, kind, meaning);
}

}  // namespace

void Metrics::CountRequest(const std::string& command, const std::string& result, double seconds) {
    const auto bucket = std::lower_bound(kBounds.begin(), kBounds.end(), seconds) - kBounds.begin();
    const std::scoped_lock lock(mutex_);
    ++requests_[{command, result}];
    Histogram& times = times_[command];
    ++times.counts[static_cast<std::size_t>(bucket)];
    times.sum += seconds;
}

void Metrics::CountRefusedConnection() {
    const std::scoped_lock lock(mutex_);
    ++refusedConnections_;
}

void Metrics::SetConnections(std::size_t open) {
    const std::scoped_lock lock(mutex_);
    if (open > connections_) {
        ++openedConnections_;
    }
    connections_ = open;
}

std::string Metrics::Print() const {
    const std::scoped_lock lock(mutex_);
    return PrintRequests() + PrintTimes() + Head("seaplan_connections", "gauge", "Open connections.") +
           fmt::format("seaplan_connections {}\n", connections_) +
           Head("seaplan_connections_opened_total", "counter", "Connections that were taken.") +
           fmt::format("seaplan_connections_opened_total {}\n", openedConnections_) +
           Head("seaplan_connections_refused_total", "counter",
                "Connections closed because there were too many.") +
           fmt::format("seaplan_connections_refused_total {}\n", refusedConnections_);
}

std::string Metrics::PrintRequests() const {
    std::string text = Head("seaplan_requests_total", "counter", "Requests by command and result.");
    for (const auto& [labels, count] : requests_) {
        text += fmt::format("seaplan_requests_total{{command=\"{}\",result=\"{}\"}} {}\n", labels.first,
                            labels.second, count);
    }
    return text;
}

std::string Metrics::PrintTimes() const {
    std::string text =
        Head("seaplan_request_seconds", "histogram", "Time from the whole request to its reply.");
    for (const auto& [command, times] : times_) {
        std::uint64_t total = 0;
        for (std::size_t i = 0; i < times.counts.size(); ++i) {
            total += times.counts[i];
            const std::string bound = i < kBounds.size() ? fmt::format("{}", kBounds[i]) : "+Inf";
            text += fmt::format("seaplan_request_seconds_bucket{{command=\"{}\",le=\"{}\"}} {}\n", command,
                                bound, total);
        }
        text += fmt::format("seaplan_request_seconds_sum{{command=\"{}\"}} {}\n", command, times.sum);
        text += fmt::format("seaplan_request_seconds_count{{command=\"{}\"}} {}\n", command, total);
    }
    return text;
}

}  // namespace Tarvik::Server
