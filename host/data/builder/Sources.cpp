// SPDX-License-Identifier: MIT
#include "host/data/builder/Sources.h"

#include <map>
#include <stdexcept>

#include "host/geo/CsvTable.h"

namespace Tarvik::Data {

namespace {

std::vector<RoutePointSource> ReadRoutePoints(const CsvTable& table) {
    std::vector<RoutePointSource> points;
    for (std::size_t i = 0; i < table.size(); ++i) {
        RoutePointSource p;
        p.id = table.At(i, "id");
        p.name = table.At(i, "name");
        p.namecn = table.At(i, "namecn");
        p.at = ToPoint(table.At(i, "lon"), table.At(i, "lat"));
        p.shut = table.At(i, "shut") == "1";
        const std::string cost = table.At(i, "cost");
        p.cost = cost.empty() ? 0.0F : std::stof(cost);
        p.gate = ToLine(table.At(i, "gate"));
        if (p.id.empty() || p.gate.size() < 2) {
            throw std::runtime_error(p.name + " lacks an id or a gate");
        }
        p.groups = SplitText(table.At(i, "groups"), ';');
        points.push_back(std::move(p));
    }
    return points;
}

std::vector<PassageSource> ReadPassages(const CsvTable& table,
                                        const std::vector<RoutePointSource>& routePoints) {
    std::map<std::string, GeoPoint> named;
    for (const RoutePointSource& p : routePoints) {
        named[p.name] = p.at;
    }
    std::vector<PassageSource> passages;
    for (std::size_t i = 0; i < table.size(); ++i) {
        PassageSource passage{table.At(i, "name"), {}};
        for (const std::string& text : SplitText(table.At(i, "points"), ';')) {
            if (text.starts_with('@')) {
                const std::string name = text.substr(1);
                if (!named.contains(name)) {
                    throw std::runtime_error("there is no route point " + name);
                }
                passage.vertices.push_back({named[name], name});
            } else {
                passage.vertices.push_back({ToPoint(text), {}});
            }
        }
        passages.push_back(std::move(passage));
    }
    return passages;
}

std::vector<AreaSource> ReadAreas(const CsvTable& table) {
    std::vector<AreaSource> areas;
    for (std::size_t i = 0; i < table.size(); ++i) {
        AreaSource area{table.At(i, "name"), ToLine(table.At(i, "ring"))};
        if (area.ring.size() < 3) {
            throw std::runtime_error(area.name + " has less than three corners");
        }
        areas.push_back(std::move(area));
    }
    return areas;
}

}  // namespace

std::optional<Sources> ReadSources(const std::string& folder, const std::string& portsJson,
                                   std::string& error) {
    std::string file;
    try {
        Sources sources;
        file = "route_points.csv";
        sources.routePoints = ReadRoutePoints(CsvTable(ReadFile(folder + "/route_points.csv")));
        file = "passages.csv";
        sources.passages = ReadPassages(CsvTable(ReadFile(folder + "/passages.csv")), sources.routePoints);
        file = "areas.csv";
        sources.areas = ReadAreas(CsvTable(ReadFile(folder + "/areas.csv")));
        file = "ports";
        sources.ports = ReadPorts(folder, portsJson);
        return sources;
    } catch (const std::exception& e) {
        error = file + ": " + e.what();
        return std::nullopt;
    }
}

}  // namespace Tarvik::Data
