// SPDX-License-Identifier: MIT
#include "host/data/builder/Sources.h"

#include <charconv>
#include <cmath>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <stdexcept>

#include <nlohmann/json.hpp>

#include "host/data/builder/CsvTable.h"
#include "host/geo/Sphere.h"

namespace Tarvik::Data {

namespace {

constexpr int kFirstPortId = 40001;
constexpr double kSamePortNm = 30.0;

std::string ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot open " + path);
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

double ToNumber(const std::string& text) {
    double value = 0.0;
    const auto [end, code] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (code != std::errc() || end != text.data() + text.size()) {
        throw std::runtime_error("\"" + text + "\" is no number");
    }
    return value;
}

GeoPoint ToPoint(const std::string& x, const std::string& y) {
    const GeoPoint p = Server::RoundPoint({ToNumber(x), ToNumber(y)});
    if (std::abs(p.x) > 360.0 || std::abs(p.y) > 90.0) {
        throw std::runtime_error(x + " " + y + " is no position");
    }
    return p;
}

/// "lon lat"
GeoPoint ToPoint(const std::string& text) {
    const std::vector<std::string> parts = SplitText(text, ' ');
    if (parts.size() != 2) {
        throw std::runtime_error("\"" + text + "\" is no position");
    }
    return ToPoint(parts[0], parts[1]);
}

std::vector<RoutePointSource> ReadRoutePoints(const CsvTable& table) {
    std::vector<RoutePointSource> points;
    for (std::size_t i = 0; i < table.size(); ++i) {
        RoutePointSource p;
        p.id = table.At(i, "id");
        p.name = table.At(i, "name");
        p.namecn = table.At(i, "namecn");
        p.at = ToPoint(table.At(i, "lon"), table.At(i, "lat"));
        p.shut = table.At(i, "shut") == "1";
        for (const std::string& end : SplitText(table.At(i, "gate"), ';')) {
            p.gate.push_back(ToPoint(end));
        }
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

using PortMap = std::map<std::string, PortSource>;

/// "Mumbai (ex Bombay)" is Mumbai.
std::string PresentName(const std::string& name) {
    return name.substr(0, name.find(" (ex "));
}

PortMap ReadPortsJson(const std::string& text, std::map<std::string, std::string>& countries) {
    PortMap ports;
    const nlohmann::json all = nlohmann::json::parse(text);
    for (const auto& [code, port] : all.items()) {
        countries[code] = port.value("country", "");
        PortSource source{{}, code, PresentName(port.at("name")), {}, {NAN, NAN}, "0"};
        if (port.contains("coordinates")) {
            const double x = port["coordinates"].at(0);
            const double y = port["coordinates"].at(1);
            source.at = Server::RoundPoint({x, y});
        }
        ports.emplace(code, std::move(source));
    }
    return ports;
}

/// Ports added by the corrections, and the codes of ports that got their name there.
struct Corrections {
    std::vector<PortSource> added;
    std::set<std::string> named;
};

Corrections Correct(const CsvTable& table, PortMap& ports) {
    Corrections result;
    for (std::size_t i = 0; i < table.size(); ++i) {
        const std::string code = table.At(i, "unlocode");
        const std::string name = table.At(i, "name");
        const std::string x = table.At(i, "lon");
        const GeoPoint at = x.empty() ? GeoPoint{NAN, NAN} : ToPoint(x, table.At(i, "lat"));
        if (!name.empty()) {
            result.named.insert(code);
        }
        const auto it = ports.find(code);
        if (it == ports.end()) {
            if (x.empty() || name.empty()) {
                throw std::runtime_error(code + " lacks a name or a position");
            }
            result.added.push_back({{}, code, name, {}, at, "0"});
            continue;
        }
        if (!x.empty()) {
            it->second.at = at;
        }
        if (!name.empty()) {
            it->second.name = name;
        }
    }
    return result;
}

/// Ports are looked up by name, so a name stands for one port: those that did not get theirs by hand get
/// their country or code added.
void MakeNamesUnique(std::vector<PortSource>& ports, const std::set<std::string>& named,
                     const std::map<std::string, std::string>& countries) {
    std::map<std::string, int> count;
    std::set<std::string> used;
    for (const PortSource& port : ports) {
        ++count[port.name];
        if (named.contains(port.unlocode) && !used.insert(port.name).second) {
            throw std::runtime_error("two ports are named " + port.name);
        }
    }
    for (PortSource& port : ports) {
        if (named.contains(port.unlocode)) {
            continue;
        }
        if (count[port.name] > 1 && countries.contains(port.unlocode)) {
            port.name += ", " + countries.at(port.unlocode);
        }
        if (!used.insert(port.name).second) {
            port.name += " (" + port.unlocode + ")";
            used.insert(port.name);
        }
    }
}

/// Some ports stand in the list under two codes: the later one refers to the earlier.
void LinkDoubles(std::vector<PortSource>& ports) {
    for (std::size_t i = 0; i < ports.size(); ++i) {
        for (std::size_t k = 0; k < i && ports[i].origid == "0"; ++k) {
            const bool same = ports[k].unlocode.substr(0, 2) == ports[i].unlocode.substr(0, 2) &&
                              ports[k].name == ports[i].name && ports[k].origid == "0" &&
                              Server::ArcNm(ports[k].at, ports[i].at) < kSamePortNm;
            if (same) {
                ports[i].origid = ports[k].id;
            }
        }
    }
}

std::vector<PortSource> ReadPorts(const std::string& folder, const std::string& portsJson) {
    std::map<std::string, std::string> countries;
    PortMap known = ReadPortsJson(ReadFile(portsJson), countries);
    Corrections corrections = Correct(CsvTable(ReadFile(folder + "/port_corrections.csv")), known);
    std::vector<PortSource> ports;
    // Ids follow the sorted codes of the fetched list; ports added by hand come behind, so that ids stay what
    // they are.
    int id = kFirstPortId;
    for (auto& [code, port] : known) {
        port.id = std::to_string(id++);
        if (!std::isnan(port.at.x)) {
            ports.push_back(port);
        }
    }
    for (PortSource& port : corrections.added) {
        port.id = std::to_string(id++);
        ports.push_back(port);
    }
    LinkDoubles(ports);
    MakeNamesUnique(ports, corrections.named, countries);
    const CsvTable chinese(ReadFile(folder + "/port_names_cn.csv"));
    std::map<std::string, std::string> names;
    for (std::size_t i = 0; i < chinese.size(); ++i) {
        names[chinese.At(i, "unlocode")] = chinese.At(i, "namecn");
    }
    for (PortSource& port : ports) {
        port.namecn = names.contains(port.unlocode) ? names[port.unlocode] : port.name;
    }
    return ports;
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
        file = "ports";
        sources.ports = ReadPorts(folder, portsJson);
        return sources;
    } catch (const std::exception& e) {
        error = file + ": " + e.what();
        return std::nullopt;
    }
}

}  // namespace Tarvik::Data
