// SPDX-License-Identifier: MIT
#include "host/plugins/ais/services/VesselServices.h"

#include <algorithm>
#include <cmath>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/util/Clock.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Ais {

namespace {

constexpr double kFullTurn = 360;  ///< a longitude beyond it stands for a place that is not known

/// A timer value of a record, which counts as unsigned.
std::int64_t FromTimer(std::int32_t timer) {
    return static_cast<std::uint32_t>(timer);
}

std::int32_t ToTimer(std::int64_t time) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(time));
}

void Describe(const Vessel& vessel, CardFacts& facts) {
    facts.mmsi = vessel.mmsi;
    facts.name = facts.name.empty() ? vessel.particulars.name : facts.name;
    facts.callSign = vessel.particulars.callSign;
    facts.destination = vessel.particulars.destination;
    if (vessel.hasFix) {
        facts.hasFix = true;
        facts.planned = false;
        facts.fix = vessel.last;
    }
}

}  // namespace

std::int64_t UtcNow() {
    constexpr std::int64_t kCsecs = 100;
    return Util::Clock::Current().NowUtcCsecs() / kCsecs;
}

VesselServices::VesselServices(Traffic& traffic, CardShower showCard)
    : traffic_(traffic), showCard_(std::move(showCard)) {
    using Interface::Offer;
    bindings_.Keep(Offer(Interface::Bus::VesselPositions, this, &VesselServices::OnPositions));
    bindings_.Keep(Offer(Interface::Bus::VesselTrace, this, &VesselServices::OnTrace));
    bindings_.Keep(Offer(Interface::Bus::HideAisTrack, this, &VesselServices::OnHideTrack));
    bindings_.Keep(Offer(Interface::Bus::ShowVesselCard, this, &VesselServices::OnShowCard));
}

VesselServices::~VesselServices() {
    bindings_.Withdraw();
    tracks_.Clear();
}

const std::vector<Interface::VesselPosition>* VesselServices::OnPositions(
    const std::vector<std::string>& vessels) {
    positions_.clear();
    for (const std::string& text : vessels) {
        Interface::VesselPosition record;
        const std::uint32_t mmsi = numbers_.OfText(text, record.vesselId);
        if (mmsi == 0) {
            continue;
        }
        traffic_.Watch(mmsi);
        const auto vessel = traffic_.Find(mmsi);
        if (!vessel || !vessel->hasFix) {
            continue;
        }
        record.vsmsi = static_cast<std::int32_t>(mmsi);
        record.time = ToTimer(vessel->last.time);
        record.x = vessel->last.longitude;
        record.y = vessel->last.latitude;
        positions_.push_back(record);
    }
    return &positions_;
}

const std::string* VesselServices::OnTrace(const Interface::VesselTraceRequest& request) {
    const std::uint32_t mmsi = numbers_.Of(request.vsi, request.vsmsi);
    if (mmsi == 0) {
        return nullptr;
    }
    traffic_.Watch(mmsi);
    // What a clock that was ahead has left is no place of the ship.
    const std::int64_t end = std::min(FromTimer(request.end), UtcNow() + Vessels::kAhead);
    const std::vector<Fix> track = traffic_.Track(mmsi, FromTimer(request.begin), end);
    if (track.empty()) {
        tracks_.Hide(request.vsi);
        return nullptr;
    }
    tracks_.Draw(request.vsi, {mmsi, FromTimer(request.begin), FromTimer(request.end)}, track);
    const Fix& newest = track.back();
    trace_ = Util::StringUtl::Format("%lld|%.6f|%.6f|%u", static_cast<long long>(newest.time),
                                     newest.longitude, newest.latitude, mmsi);
    return &trace_;
}

void VesselServices::RefreshTracks() {
    const auto shown = tracks_.All();
    for (const auto& [id, track] : shown) {
        const auto vessel = traffic_.Find(track.mmsi);
        if (!vessel || !vessel->hasFix || vessel->last.time <= track.newest ||
            vessel->last.time > track.end) {
            continue;
        }
        const std::int64_t end = std::min(track.end, UtcNow() + Vessels::kAhead);
        tracks_.Draw(id, track, traffic_.Track(track.mmsi, track.begin, end));
    }
}

void VesselServices::OnHideTrack(const std::string& vessel) {
    std::string id;
    numbers_.OfText(vessel, id);
    tracks_.Hide(id);
}

void VesselServices::OnShowCard(const Interface::VesselCard& card) {
    CardFacts facts;
    facts.name = card.vsn;
    facts.firstPort = card.vessel.firstPortName;
    facts.lastPort = card.vessel.lastPortName;
    facts.cursorX = card.cursorX;
    facts.cursorY = card.cursorY;
    if (std::abs(card.vessel.x) <= kFullTurn && std::abs(card.vessel.y) <= kFullTurn) {
        facts.hasFix = facts.planned = true;
        facts.fix.time = FromTimer(card.vessel.time);
        facts.fix.longitude = card.vessel.x;
        facts.fix.latitude = card.vessel.y;
    }
    facts.mmsi = numbers_.Of(card.vsi, 0);
    if (const auto vessel = traffic_.Find(facts.mmsi)) {
        Describe(*vessel, facts);
    }
    showCard_(facts);
}

bool VesselServices::ShowHeard(std::uint32_t mmsi, std::int32_t cursorX, std::int32_t cursorY) {
    const auto vessel = traffic_.Find(mmsi);
    if (!vessel) {
        return false;
    }
    CardFacts facts;
    facts.cursorX = cursorX;
    facts.cursorY = cursorY;
    Describe(*vessel, facts);
    showCard_(facts);
    return true;
}

CardFacts VesselServices::Renewed(CardFacts facts) const {
    if (const auto vessel = traffic_.Find(facts.mmsi)) {
        Describe(*vessel, facts);
    }
    return facts;
}

}  // namespace Tarvik::Ais
