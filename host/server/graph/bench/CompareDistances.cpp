// SPDX-License-Identifier: MIT
// Compares routes with a table of published distances and measures the search:
//   seaplan-compare-distances network.bin distances.csv
// The table's columns are from_name,from_unlocode,to_name,to_unlocode,nm,via,source; quoted names may hold
// commas.
#include <algorithm>
#include <cmath>
#include <ctime>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "host/server/graph/RouteEngine.h"

namespace {

using namespace Tarvik::Server;

std::vector<std::string> Fields(const std::string& line) {
    std::vector<std::string> result(1);
    bool quoted = false;
    for (const char c : line) {
        if (c == '"') {
            quoted = !quoted;
        } else if (c == ',' && !quoted) {
            result.emplace_back();
        } else {
            result.back() += c;
        }
    }
    return result;
}

double Share(std::vector<double>& values, double part) {
    std::sort(values.begin(), values.end());
    return values.empty() ? 0.0
                          : values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

/// Milliseconds of processor time, so that what else the machine does stays out of the figures.
class Stopwatch {
  public:
    double Milliseconds() const {
        return 1000.0 * static_cast<double>(std::clock() - start_) / CLOCKS_PER_SEC;
    }

  private:
    std::clock_t start_ = std::clock();
};

struct Comparison {
    std::string text;
    double error;
};

/// The published entry nearest to ours counts where a pair has several (by different passages).
std::vector<Comparison> Compare(const RouteEngine& engine, const SeaNetwork& network, const std::string& path,
                                std::vector<double>& planTimes) {
    std::map<std::string, std::string> ids;
    for (const NetworkPort& port : network.data().ports) {
        ids[port.unlocode] = port.id;
    }
    std::map<std::string, Comparison> best;
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        const std::vector<std::string> f = Fields(line);
        if (f.size() < 5 || !ids.contains(f[1]) || !ids.contains(f[3])) {
            continue;
        }
        const Stopwatch watch;
        const RouteResult result = engine.Plan({{ids[f[1]], {}, {}}, {ids[f[3]], {}, {}}});
        planTimes.push_back(watch.Milliseconds());
        const double published = std::stod(f[4]);
        const double ours = result.error != 0 ? 0.0 : result.stops[1].distanceKm / kKmPerNm;
        const double error = ours / published - 1.0;
        const std::string key = f[1] + " " + f[3];
        const Comparison here{fmt::format("{:6.1f} % {:7.0f} {:7.0f} {} - {} via {}", error * 100.0,
                                          published, ours, f[0], f[2], f.size() > 5 ? f[5] : ""),
                              published > 1000.0 ? error : error + 1000.0};
        const auto size = [](const Comparison& c) {
            return std::abs(c.error > 900.0 ? c.error - 1000.0 : c.error);
        };
        const auto [it, isNew] = best.try_emplace(key, here);
        if (!isNew && size(here) < size(it->second)) {
            it->second = here;
        }
    }
    std::vector<Comparison> all;
    all.reserve(best.size());
    for (auto& [key, value] : best) {
        all.push_back(value);
    }
    return all;
}

/// Whole requests, alternatives included, over random pairs of ports.
void MeasureRequests(const RouteEngine& engine, const SeaNetwork& network) {
    constexpr int kPairs = 1000;
    std::vector<double> times;
    std::uint32_t seed = 12345;
    const auto next = [&] { return (seed = seed * 1664525U + 1013904223U) >> 8; };
    const auto& ports = network.data().ports;
    std::string slowest;
    for (int i = 0; i < kPairs; ++i) {
        const NetworkPort& a = ports[next() % ports.size()];
        const NetworkPort& b = ports[next() % ports.size()];
        const Stopwatch watch;
        const RouteResult result = engine.Plan({{a.id, {}, {}}, {b.id, {}, {}}});
        const double ms = watch.Milliseconds();
        if (times.empty() || ms > *std::max_element(times.begin(), times.end())) {
            slowest = a.name + " - " + b.name;
        }
        times.push_back(ms);
        if (result.error != kRouteOk) {
            fmt::print("{} - {}: {}\n", a.name, b.name, result.message);
        }
    }
    fmt::print("{} random pairs: median {:.2f} ms, 99th percentile {:.2f} ms, longest {:.2f} ms ({})\n",
               kPairs, Share(times, 0.5), Share(times, 0.99), Share(times, 1.0), slowest);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        return 1;
    }
    std::string error;
    const Stopwatch watch;
    const auto network = SeaNetwork::Load(argv[1], error);
    if (!network) {
        fmt::print(stderr, "{}\n", error);
        return 1;
    }
    fmt::print("loaded in {:.0f} ms: {} nodes, {} edges\n", watch.Milliseconds(),
               network->data().nodes.size(), network->data().edges.size());
    std::vector<double> times;
    const RouteEngine engine(network);
    MeasureRequests(engine, *network);
    std::vector<Comparison> all = Compare(engine, *network, argv[2], times);
    fmt::print("plan with alternatives: median {:.1f} ms, 99th percentile {:.1f} ms\n", Share(times, 0.5),
               Share(times, 0.99));
    std::vector<double> distant;
    std::size_t within = 0;
    for (const Comparison& c : all) {
        if (c.error > 900.0) {
            continue;
        }
        distant.push_back(std::abs(c.error));
        within += std::abs(c.error) <= 0.05 ? 1U : 0U;
    }
    fmt::print("{} pairs above 1000 NM: median {:.2f} %, 90th percentile {:.2f} %, within 5 %: {:.1f} %\n",
               distant.size(), Share(distant, 0.5) * 100.0, Share(distant, 0.9) * 100.0,
               100.0 * static_cast<double>(within) / static_cast<double>(distant.size()));
    std::sort(all.begin(), all.end(), [](const auto& a, const auto& b) {
        const auto size = [](double e) { return std::abs(e > 900.0 ? e - 1000.0 : e); };
        return size(a.error) > size(b.error);
    });
    for (std::size_t i = 0; i < all.size() && i < 60; ++i) {
        fmt::print("{}\n", all[i].text);
    }
}
