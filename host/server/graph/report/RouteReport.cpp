// SPDX-License-Identifier: MIT
#include "host/server/graph/report/RouteReport.h"

#include <algorithm>
#include <map>
#include <utility>

#include <fmt/format.h>

#include "host/geo/Sphere.h"
#include "host/server/graph/report/Places.h"

namespace Tarvik::Server {

namespace {

double Nm(double km) {
    return km / kKmPerNm;
}

/// A question whose places are found.
class RouteAnswer {
  public:
    RouteAnswer(const SeaNetwork& network, const RouteFiles& files, const RouteQuestion& question)
        : network_(network),
          files_(files),
          engine_(std::shared_ptr<const SeaNetwork>(std::shared_ptr<void>(), &network)),
          places_(network),
          question_(question) {}

    bool Find(std::string& error) {
        from_ = places_.PortId(question_.from);
        to_ = places_.PortId(question_.to);
        if (from_.empty() || to_.empty()) {
            error = "there is no port " + (from_.empty() ? question_.from : question_.to);
            return false;
        }
        for (const auto* names : {&question_.via, &question_.without, &question_.open}) {
            for (const std::string& name : *names) {
                if (places_.PassageId(name).empty()) {
                    error = "there is no passage " + name;
                    return false;
                }
            }
        }
        limits_ = question_.standing;
        for (const std::string& name : question_.without) {
            limits_.forbidden.push_back(places_.PassageId(name));
        }
        for (const std::string& name : question_.open) {
            limits_.opened.push_back(places_.PassageId(name));
        }
        if (!KeepOutOfSmallPassages(error)) {
            return false;
        }
        const RouteResult result = Plan(question_.via);
        error = result.message;
        if (result.error == kRouteOk) {
            stop_ = result.stops[1];
        }
        return result.error == kRouteOk;
    }
    std::string Table() const {
        std::string text;
        double sum = 0.0;
        double inside = 0.0;
        for (const RouteLeg& leg : stop_.legs) {
            sum += leg.distanceKm;
            const double here = files_.areas ? files_.areas->NmInside(leg.points) : 0.0;
            inside += here;
            text +=
                fmt::format("{:8.1f} {:8.1f}  {} - {}{}\n", Nm(leg.distanceKm), Nm(sum), NameOf(leg.fromId),
                            NameOf(leg.endId), files_.areas ? fmt::format(" (eca {:.1f})", here) : "");
        }
        text += fmt::format("{:8.1f} nautical miles\n", Nm(stop_.distanceKm));
        return files_.areas ? text + fmt::format("{:8.1f} of them in emission control areas\n", inside)
                            : text;
    }
    std::string GeoJson() const {
        std::string text = R"({"type":"FeatureCollection","features":[)";
        for (std::size_t i = 0; i < stop_.legs.size(); ++i) {
            text += (i == 0 ? "" : ",") + Feature(stop_.legs[i]);
        }
        return text + "]}\n";
    }
    std::string Explanation() const {
        std::string text;
        for (const std::string& id : {from_, to_}) {
            text += fmt::format("{} is joined to the network over {:.1f} miles\n", NameOf(id), LinkNm(id));
        }
        text += "forbidden: " + Forbidden() + "\n";
        text += tooSmall_.empty() ? "" : "too small for the ship: " + tooSmall_ + "\n";
        text += files_.areas
                    ? ""
                    : "emission control areas: unknown, emission_areas.csv is not beside the network\n";
        std::map<double, std::string> others;
        for (const RouteAlternativeGroup& group : stop_.groups) {
            for (const std::string& other : group.alternatives) {
                const RouteResult result = Plan({other});
                if (result.error == kRouteOk) {
                    others[Nm(result.stops[1].distanceKm - stop_.distanceKm)] =
                        fmt::format("by {} instead of {}", NameOf(other), NameOf(group.rpId));
                }
            }
        }
        for (const auto& [more, how] : others) {
            text += fmt::format("{:+8.1f}  {}\n", more, how);
        }
        return text;
    }

  private:
    /// Forbids what is too small for the ship; a file may name passages that this network has not.
    bool KeepOutOfSmallPassages(std::string& error) {
        if (!question_.ship.IsKnown()) {
            return true;
        }
        if (!files_.limits) {
            error = "the limits of passages are unknown: passage_limits.csv is not beside the network";
            return false;
        }
        for (const PassageLimits::Refusal& refusal : files_.limits->RefusedTo(question_.ship)) {
            const std::string id = places_.PassageId(refusal.passage);
            if (!id.empty()) {
                limits_.forbidden.push_back(id);
                tooSmall_ += (tooSmall_.empty() ? "" : ", ") + refusal.passage + " (" + refusal.reason + ")";
            }
        }
        return true;
    }
    RouteResult Plan(const std::vector<std::string>& via) const {
        return engine_.Plan({{from_, {}, {}}, places_.StopBy(via, from_, to_)}, {}, limits_);
    }
    std::string NameOf(const std::string& id) const {
        const auto point = network_.RoutePointIndex(id);
        if (point) {
            return network_.data().routePoints[*point].name;
        }
        for (const NetworkPort& port : network_.data().ports) {
            if (port.id == id) {
                return port.name + " (" + port.unlocode + ")";
            }
        }
        return id;
    }
    double LinkNm(const std::string& id) const {
        for (const Arc& arc : network_.Arcs(*network_.NodeOf(id))) {
            if (network_.data().edges[arc.edge].kind == EdgeKind::Link) {
                return arc.nm;
            }
        }
        return 0.0;
    }
    std::string Forbidden() const {
        std::string names;
        for (const RoutePoint& point : network_.data().routePoints) {
            const auto asked = [&point](const std::vector<std::string>& ids) {
                return std::find(ids.begin(), ids.end(), point.id) != ids.end();
            };
            if (asked(limits_.forbidden) || (point.shut && !asked(limits_.opened))) {
                names += (names.empty() ? "" : ", ") + point.name;
            }
        }
        for (const std::string& water : question_.waters) {
            names += (names.empty() ? "" : ", ") + water;
        }
        return names;
    }
    std::string Feature(const RouteLeg& leg) const {
        std::string points;
        for (const GeoPoint p : leg.points) {
            points += fmt::format("{}[{:.5f},{:.5f}]", points.empty() ? "" : ",", p.x, p.y);
        }
        const std::string inside =
            files_.areas ? fmt::format(R"(,"eca_nm":{:.1f})", files_.areas->NmInside(leg.points))
                         : std::string();
        return fmt::format(R"({{"type":"Feature","properties":{{"from":"{}","to":"{}","nm":{:.1f}{}}},)"
                           R"("geometry":{{"type":"LineString","coordinates":[{}]}}}})",
                           NameOf(leg.fromId), NameOf(leg.endId), Nm(leg.distanceKm), inside, points);
    }

    const SeaNetwork& network_;
    const RouteFiles& files_;
    RouteEngine engine_;
    Places places_;
    RouteQuestion question_;
    std::string from_;
    std::string to_;
    RouteLimits limits_;
    std::string tooSmall_;  ///< the passages, with the reason
    PlannedStop stop_;
};

}  // namespace

std::optional<RouteQuestion> ReadRouteQuestion(const std::vector<std::string>& words, std::string& error) {
    RouteQuestion question;
    std::vector<std::string> ports;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (word == "--explain") {
            question.explain = true;
            continue;
        }
        if (!word.starts_with("--")) {
            ports.push_back(word);
            continue;
        }
        const std::string value = i + 1 < words.size() ? words[++i] : std::string();
        const bool format = word == "--format" && (value == "table" || value == "geojson");
        auto* measure = word == "--draught"  ? &question.ship.draught
                        : word == "--beam"   ? &question.ship.beam
                        : word == "--length" ? &question.ship.length
                                             : nullptr;
        if (measure != nullptr && (*measure = ReadMetres(value))) {
            continue;
        }
        auto* list = word == "--via"       ? &question.via
                     : word == "--without" ? &question.without
                     : word == "--open"    ? &question.open
                                           : nullptr;
        if (value.empty() || (list == nullptr && !format)) {
            error = std::string("route does not know ").append(word).append(" ").append(value);
            return std::nullopt;
        }
        if (list != nullptr) {
            list->push_back(value);
        } else {
            question.geojson = value == "geojson";
        }
    }
    if (ports.size() != 2) {
        error = "route needs two ports";
        return std::nullopt;
    }
    question.from = ports[0];
    question.to = ports[1];
    return question;
}

std::optional<std::string> RouteText(const SeaNetwork& network, const RouteFiles& files,
                                     const RouteQuestion& question, std::string& error) {
    RouteAnswer answer(network, files, question);
    if (!answer.Find(error)) {
        return std::nullopt;
    }
    if (question.geojson) {
        return answer.GeoJson();
    }
    return answer.Table() + (question.explain ? answer.Explanation() : std::string());
}

}  // namespace Tarvik::Server
