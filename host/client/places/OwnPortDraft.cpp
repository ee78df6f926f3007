// SPDX-License-Identifier: MIT
#include "host/client/places/OwnPortDraft.h"

#include <algorithm>
#include <cctype>

#include <tarvik/util/StringUtl.h>
#include <tarvik/util/TypedPosition.h>

namespace Tarvik::Client {

namespace {

constexpr std::size_t kMostNameBytes = 256;
/// What would part the fields of requests and of port calls.
constexpr const char* kSigns = "|\"\\&#";

/// Ports are found by name in any case.
bool IsSameName(const std::string& a, const std::string& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

bool HasSign(const std::string& name) {
    return name.find_first_of(kSigns) != std::string::npos ||
           std::any_of(name.begin(), name.end(), [](unsigned char c) { return c < ' '; });
}

std::string TextOf(Server::GeoPoint at) {
    return Util::DegreesText(at.y, Util::Axis::Latitude) + " " +
           Util::DegreesText(at.x, Util::Axis::Longitude);
}

}  // namespace

OwnPortDraft OwnPortDraft::Of(const Ports::Place& port) {
    return {port.name, port.position ? TextOf(*port.position) : std::string()};
}

std::optional<Server::GeoPoint> OwnPortDraft::Position() const {
    const auto read = Util::ReadTypedPosition(position);
    return read ? std::optional(Server::GeoPoint{read->x, read->y}) : std::nullopt;
}

std::string OwnPortDraft::Understood() const {
    const auto at = Position();
    return at ? TextOf(*at) : std::string();
}

std::optional<PortFault> OwnPortDraft::Check(const std::vector<Port>& known,
                                             const std::vector<Ports::Place>& own,
                                             const std::string& id) const {
    const std::string named = Util::StringUtl::Trim(name);
    if (named.empty()) {
        return PortFault::NameMissing;
    }
    if (named.size() > kMostNameBytes) {
        return PortFault::NameLong;
    }
    if (HasSign(named)) {
        return PortFault::NameSigns;
    }
    const auto same = std::find_if(known.begin(), known.end(), [&](const Port& port) {
        return port.id != id && (IsSameName(port.name, named) || port.nameCn == named);
    });
    if (same != known.end()) {
        const bool isOwn = std::any_of(own.begin(), own.end(),
                                       [&](const Ports::Place& port) { return port.id == same->id; });
        return isOwn ? PortFault::NameOwn : PortFault::NameTaken;
    }
    if (Util::StringUtl::Trim(position).empty()) {
        return PortFault::PlaceMissing;
    }
    return Position() ? std::nullopt : std::optional(PortFault::PlaceUnread);
}

Ports::Place OwnPortDraft::Kept(const Ports::Place& before) const {
    Ports::Place port = before;
    port.name = Util::StringUtl::Trim(name);
    if (!before.position || position != Of(before).position) {
        port.position = Position();
    }
    return port;
}

}  // namespace Tarvik::Client
