// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/PortFinder.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include <fmt/format.h>

#include <tarvik/util/TypedPosition.h>

#include "host/geo/Sphere.h"

namespace Tarvik::Seamap {

namespace {

std::string TextOf(const ChartName& port, const std::string& by) {
    std::string text = port.text;
    const std::string& other = by.empty() ? port.port : by;
    if (other != port.text) {
        text += "  " + other;
    }
    return port.code.empty() ? text : text + "  " + port.code;
}

}  // namespace

PositionForms PositionForms::Of(GeoPoint place) {
    return {FormatPosition(place),
            Util::SecondsText(place.y, Util::Axis::Latitude) + " " +
                Util::SecondsText(place.x, Util::Axis::Longitude),
            fmt::format("{:.5f}, {:.5f}", place.y, place.x)};
}

PortFinder::PortFinder(const std::vector<ChartName>& names) {
    std::copy_if(names.begin(), names.end(), std::back_inserter(ports_),
                 [](const ChartName& name) { return name.kind == ChartName::Kind::Port; });
}

const Ports::PortIndex& PortFinder::Index() const {
    if (!index_) {
        std::vector<Ports::Port> ports;
        ports.reserve(ports_.size());
        for (const ChartName& port : ports_) {
            ports.push_back(
                {port.port, port.local, port.code, port.position.x, port.position.y, port.aliases});
        }
        index_ = std::make_unique<Ports::PortIndex>(ports);
    }
    return *index_;
}

const ChartName* PortFinder::PortOf(const Ports::Port& found) const {
    const auto port = std::find_if(ports_.begin(), ports_.end(), [&](const ChartName& name) {
        return name.port == found.name && name.code == found.unlocode;
    });
    return port == ports_.end() ? nullptr : &*port;
}

std::vector<Destination> PortFinder::Find(const std::string& typed, std::size_t limit) const {
    if (const auto place = Util::ReadTypedPosition(typed)) {
        const GeoPoint position{place->x, place->y};
        return {{position, FormatPosition(position), nullptr}};
    }
    std::vector<Destination> found;
    for (const Ports::PortHit& hit : Index().Search(typed, limit)) {
        if (const ChartName* port = PortOf(*hit.port)) {
            found.push_back({port->position, TextOf(*port, hit.by), port});
        }
    }
    return found;
}

const ChartName* PortFinder::Nearest(GeoPoint place) const {
    const Server::UnitVector here = Server::ToVector(place);
    const auto nearest =
        std::min_element(ports_.begin(), ports_.end(), [&here](const ChartName& a, const ChartName& b) {
            return Server::ArcNm(here, Server::ToVector(a.position)) <
                   Server::ArcNm(here, Server::ToVector(b.position));
        });
    return nearest == ports_.end() ? nullptr : &*nearest;
}

}  // namespace Tarvik::Seamap
