// SPDX-License-Identifier: MIT
#include "host/plugins/infosearch/window/VesselFacts.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/interface/SiblingRecords.h>
#include <tarvik/util/DateTimeUtl.h>

#include "host/geo/GeoPoint.h"
#include "host/plugins/infosearch/window/Words.h"

namespace Tarvik::InfoSearch {

namespace {

namespace Bus = Interface::Bus;

QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

/// Empty for what is not known.
QString Number(double value, const char* unit) {
    return value > 0 ? QString("%1 %2").arg(value, 0, 'g', 6).arg(unit) : QString();
}

QString Digits(std::int32_t number, int digits) {
    return number > 0 ? QString("%1").arg(number, digits, 10, QChar('0')) : QString();
}

Skin::Fact FactOf(const char* key, const QString& value) {
    return {QString("info") + key, Word(key), value};
}

/// What the fleet has; of another fleet plug-in that tells no more, name and number.
Interface::FleetVessel Particulars(const std::string& id) {
    if (const auto* vessel = Interface::Call(Bus::VesselDetails, &id)) {
        return *vessel;
    }
    Interface::FleetVessel vessel;
    if (const auto* fleet = Interface::Call(Bus::AllVessels)) {
        const auto found =
            std::find_if(fleet->begin(), fleet->end(), [&id](const auto& entry) { return entry.id == id; });
        if (found != fleet->end()) {
            vessel.name = found->name;
            vessel.mmsi = found->number;
        }
    }
    return vessel;
}

std::optional<Interface::VesselPosition> LastPosition(const std::string& id, std::int32_t mmsi) {
    const std::vector<std::string> asked{id + "|" + std::to_string(mmsi)};
    const auto* positions = Interface::Call(Bus::VesselPositions, &asked);
    return positions == nullptr || positions->empty() ? std::nullopt : std::optional(positions->front());
}

QString TimeText(std::int32_t time) {
    const std::string* chosen = Interface::Call(Bus::CurrentTimeZone);
    const std::string zone = chosen == nullptr ? "UTC" : *chosen;
    const auto utc = Util::_datetime_t::from_gmt_timer(static_cast<std::uint32_t>(time));
    return Text(Util::DateTimeUtl::ConvertFromUTC(utc, zone).fmt(Util::kTimeFormat) + " " + zone);
}

}  // namespace

VesselFacts VesselFacts::Of(const std::string& id) {
    const Interface::FleetVessel vessel = Particulars(id);
    VesselFacts told;
    told.name = Text(vessel.name.empty() ? id : vessel.name);
    told.facts = {FactOf("NAME", Text(vessel.name)),
                  FactOf("MMSI", Digits(vessel.mmsi, 9)),
                  FactOf("IMO", Digits(vessel.imo, 7)),
                  FactOf("CALLSIGN", Text(vessel.callSign)),
                  FactOf("TYPE", Text(vessel.type)),
                  FactOf("LENGTH", Number(vessel.length, "m")),
                  FactOf("SERVICE_SPEED", Number(vessel.serviceSpeed, "kn"))};
    if (const auto last = LastPosition(id, vessel.mmsi)) {
        told.facts.push_back(FactOf("POSITION", Text(Server::FormatPosition({last->x, last->y}))));
        told.facts.push_back(FactOf("TIME", TimeText(last->time)));
    } else {
        told.facts.push_back(FactOf("POSITION", Word("NOT_HEARD")));
    }
    return told;
}

}  // namespace Tarvik::InfoSearch
