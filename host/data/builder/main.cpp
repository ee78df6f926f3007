// SPDX-License-Identifier: MIT
// seaplan-build-data: makes trvdb.db, network.bin and land.bin from the fetched and the hand-made sources.
#include <cstdio>
#include <fstream>
#include <iterator>
#include <set>

#include <fmt/format.h>

#include "host/data/builder/Land.h"
#include "host/data/builder/NetworkBuilder.h"
#include "host/data/builder/Sources.h"
#include "host/geo/LandFile.h"
#include "host/server/graph/SeaNetworkFile.h"

namespace {

using Tarvik::Data::Polygon;

int Fail(const std::string& message) {
    fmt::print(stderr, "seaplan-build-data: {}\n", message);
    return 1;
}

std::optional<std::vector<Polygon>> ReadLand(const std::string& modules, const char* scale,
                                             std::string& error) {
    const std::string path = fmt::format("{}/world-atlas/land-{}.json", modules, scale);
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        error = "cannot open " + path;
        return std::nullopt;
    }
    return Tarvik::Data::ReadTopoLand(
        {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()}, error);
}

/// The client offers only ports that the network reaches.
void KeepReached(Tarvik::Data::Sources& sources, const Tarvik::Server::NetworkData& network) {
    std::set<std::string> reached;
    for (const Tarvik::Server::NetworkPort& port : network.ports) {
        reached.insert(port.id);
    }
    std::erase_if(sources.ports,
                  [&](const Tarvik::Data::PortSource& port) { return !reached.contains(port.id); });
}

int Build(const std::string& folder, const std::string& modules, const std::string& output) {
    std::string error;
    auto sources = Tarvik::Data::ReadSources(folder, modules + "/sea-ports/lib/ports.json", error);
    if (!sources) {
        return Fail(error);
    }
    Tarvik::Data::LandFile chart;
    std::vector<Polygon> finest;
    const char* scales[] = {"110m", "50m", "10m"};
    for (std::size_t i = 0; i < chart.levels.size(); ++i) {
        auto land = ReadLand(modules, scales[i], error);
        if (!land) {
            return Fail(error);
        }
        chart.levels[i] = Tarvik::Data::CutIntoCells(*land);
        chart.coasts[i] = Tarvik::Data::CutIntoCoasts(*land);
        finest = std::move(*land);
    }
    error = chart.Save(output + "/land.bin");
    if (!error.empty()) {
        return Fail(error);
    }
    Tarvik::Data::NetworkBuilder builder(*sources, finest);
    const Tarvik::Server::NetworkData network = builder.Build();
    for (const std::string& remark : builder.Remarks()) {
        fmt::print("{}\n", remark);
    }
    KeepReached(*sources, network);
    error = Tarvik::Data::WritePointDatabase(output + "/trvdb.db", *sources);
    if (error.empty()) {
        error = Tarvik::Server::SeaNetworkFile::Write(output + "/network.bin", network);
    }
    if (!error.empty()) {
        return Fail(error);
    }
    fmt::print("{} nodes, {} edges, {} ports, {} route points\n", network.nodes.size(), network.edges.size(),
               network.ports.size(), network.routePoints.size());
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        return Fail("usage: seaplan-build-data SOURCE_FOLDER NODE_MODULES OUTPUT_FOLDER");
    }
    return Build(argv[1], argv[2], argv[3]);
}
