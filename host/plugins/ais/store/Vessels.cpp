// SPDX-License-Identifier: MIT
#include "host/plugins/ais/store/Vessels.h"

#include <algorithm>

namespace Tarvik::Ais {

namespace {

void TakeParticulars(const Message& message, Particulars& known) {
    const Particulars& told = message.particulars;
    if (message.tellsName && !told.name.empty()) {
        known.name = told.name;
    }
    if (message.tellsKind) {
        known.callSign = told.callSign;
        known.shipType = told.shipType;
    }
    if (message.tellsVoyage) {
        known.destination = told.destination;
        known.imo = told.imo;
        known.draught = told.draught;
    }
    if (message.tellsSizeOfShip) {
        known.toBow = told.toBow;
        known.toStern = told.toStern;
        known.toPort = told.toPort;
        known.toStarboard = told.toStarboard;
    }
}

bool SameParticulars(const Particulars& a, const Particulars& b) {
    return a.name == b.name && a.callSign == b.callSign && a.destination == b.destination && a.imo == b.imo &&
           a.shipType == b.shipType && a.toBow == b.toBow && a.toStern == b.toStern && a.toPort == b.toPort &&
           a.toStarboard == b.toStarboard;
}

Fix FixOf(const Message& message, std::int64_t now) {
    const Movement& movement = message.movement;
    const bool ahead = message.time > now + Vessels::kAhead;
    return {message.time == 0 || ahead ? now : message.time,
            movement.longitude,
            movement.latitude,
            movement.speed,
            movement.course,
            movement.heading};
}

}  // namespace

void Vessels::Take(const Message& message, std::int64_t now, std::vector<KeptFix>& kept) {
    Vessel& vessel = At(message.mmsi);
    vessel.heard = now;
    if (message.tellsName || message.tellsKind || message.tellsVoyage) {
        const Particulars before = vessel.particulars;
        TakeParticulars(message, vessel.particulars);
        vessel.renamed = vessel.renamed || !SameParticulars(before, vessel.particulars);
    }
    if (!message.moves || !message.movement.hasPlace) {
        return;
    }
    const Fix fix = FixOf(message, now);
    if (vessel.kept > now + kAhead) {
        vessel.kept = 0;
    }
    const bool newest = !vessel.hasFix || fix.time >= vessel.last.time || vessel.last.time > now + kAhead;
    if (newest) {
        vessel.last = fix;
        vessel.hasFix = true;
    }
    const std::int64_t step = vessel.watched ? kWatchedStep : kOtherStep;
    if (fix.time >= vessel.kept + step) {
        vessel.kept = fix.time;
        kept.push_back({vessel.mmsi, fix});
    }
}

void Vessels::Restore(const Vessel& vessel) {
    At(vessel.mmsi) = vessel;
}

void Vessels::Watch(std::uint32_t mmsi) {
    Vessel& vessel = At(mmsi);
    if (!vessel.watched) {
        vessel.watched = vessel.renamed = true;
    }
}

const Vessel* Vessels::Find(std::uint32_t mmsi) const {
    const auto found = vessels_.find(mmsi);
    return found == vessels_.end() ? nullptr : &found->second;
}

std::vector<Vessel> Vessels::TakeRenamed() {
    std::vector<Vessel> renamed;
    for (auto& [mmsi, vessel] : vessels_) {
        if (vessel.renamed) {
            vessel.renamed = false;
            renamed.push_back(vessel);
        }
    }
    return renamed;
}

Vessel& Vessels::At(std::uint32_t mmsi) {
    const auto found = vessels_.find(mmsi);
    if (found != vessels_.end()) {
        return found->second;
    }
    if (vessels_.size() >= most_) {
        MakeRoom();
    }
    Vessel& vessel = vessels_[mmsi];
    vessel.mmsi = mmsi;
    return vessel;
}

/// A tenth goes at once, so that a full book does not search itself for each new vessel.
void Vessels::MakeRoom() {
    std::vector<const Vessel*> order;
    order.reserve(vessels_.size());
    for (const auto& [mmsi, vessel] : vessels_) {
        order.push_back(&vessel);
    }
    const auto goes = static_cast<std::ptrdiff_t>(std::max<std::size_t>(1, most_ / 10));
    const auto earlier = [](const Vessel* a, const Vessel* b) {
        return a->watched != b->watched ? b->watched : a->heard < b->heard;
    };
    std::nth_element(order.begin(), order.begin() + (goes - 1), order.end(), earlier);
    std::vector<std::uint32_t> gone;
    std::transform(order.begin(), order.begin() + goes, std::back_inserter(gone),
                   [](const Vessel* vessel) { return vessel->mmsi; });
    for (const std::uint32_t mmsi : gone) {
        vessels_.erase(mmsi);
    }
}

}  // namespace Tarvik::Ais
