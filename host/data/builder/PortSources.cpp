// SPDX-License-Identifier: MIT
// The ports: a fetched list, put right by hand-made files, with a name and an id for each.
#include <cmath>
#include <map>
#include <set>
#include <stdexcept>
#include <string_view>

#include <nlohmann/json.hpp>

#include "host/data/builder/Sources.h"
#include "host/geo/CsvTable.h"
#include "host/geo/Sphere.h"

namespace Tarvik::Data {

namespace {

constexpr int kFirstPortId = 40001;
constexpr double kSamePortNm = 30.0;
/// In the place of a longitude: the entry of the list is no port and is left out.
constexpr std::string_view kNoPort = "none";
/// Begins a key of ours for a place whose UN/LOCODE is not known; it is not shipped.
constexpr char kOwnKey = '~';

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
        const bool none = x.empty() || x == kNoPort;
        const GeoPoint at = none ? GeoPoint{NAN, NAN} : ToPoint(x, table.At(i, "lat"));
        if (!name.empty()) {
            result.named.insert(code);
        }
        const auto it = ports.find(code);
        if (it == ports.end()) {
            if (none || name.empty()) {
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

/// The names of a file with the columns "unlocode" and `column`, by code.
std::multimap<std::string, std::string> NamesByCode(const std::string& file, const std::string& column) {
    const CsvTable table(ReadFile(file));
    std::multimap<std::string, std::string> names;
    for (std::size_t i = 0; i < table.size(); ++i) {
        names.emplace(table.At(i, "unlocode"), table.At(i, column));
    }
    return names;
}

/// Chinese names and aliases. A name for a code that no port has is a slip of whoever wrote it.
void GiveOtherNames(std::vector<PortSource>& ports, const std::string& folder) {
    const auto chinese = NamesByCode(folder + "/port_names_cn.csv", "namecn");
    auto aliases = NamesByCode(folder + "/port_aliases.csv", "alias");
    for (PortSource& port : ports) {
        const auto local = chinese.find(port.unlocode);
        port.namecn = local == chinese.end() ? port.name : local->second;
        const auto [first, last] = aliases.equal_range(port.unlocode);
        for (auto alias = first; alias != last; ++alias) {
            port.aliases.push_back(alias->second);
        }
        aliases.erase(first, last);
        if (port.unlocode.starts_with(kOwnKey)) {
            port.unlocode.clear();
        }
    }
    if (!aliases.empty()) {
        throw std::runtime_error("port_aliases.csv: there is no port " + aliases.begin()->first);
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

}  // namespace

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
    GiveOtherNames(ports, folder);
    return ports;
}

}  // namespace Tarvik::Data
