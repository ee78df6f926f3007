// SPDX-License-Identifier: MIT
#include <limits>

#include "host/server/api/CommandHandlers.h"
#include "host/server/api/Refusal.h"
#include "host/server/api/Replies.h"
#include "host/server/api/RequestFields.h"

namespace Tarvik::Server {

namespace {

enum FleetOperation { kAddVessel = 0, kSetVessel = 1, kRemoveVessel = 2 };

/// What a person is to look at first when a vessel is refused.
std::string DetailOf(ErrorCode fault, const FleetRecord& vessel) {
    if (fault == ErrorCode::BadMmsi) {
        return std::to_string(vessel.mmsi);
    }
    return fault == ErrorCode::BadImo ? std::to_string(vessel.imo) : vessel.name;
}

FleetRecord ReadVessel(const RequestFields& fields) {
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    FleetRecord vessel;
    vessel.id = fields.Text("vsi");
    vessel.name = fields.Name("vsn");
    vessel.mmsi = fields.Number("vsmsi", 0, kMost);
    vessel.imo = fields.Number("vsimo", 0, kMost);
    vessel.callSign = fields.Text("vscs");
    vessel.type = fields.Text("vst");
    vessel.lengthMetres = fields.Decimal("vsl");
    vessel.speedKmh = fields.Decimal("vsp");
    if (const auto fault = FaultOf(vessel)) {
        throw Refusal(*fault, DetailOf(*fault, vessel));
    }
    return vessel;
}

}  // namespace

std::string LoadFleet(const CommandCall& call) {
    CheckUser(call.text, call.user);
    return Replies::Fleet(ValueOrRefuse(call.storage.Fleet().LoadFleet(call.user)));
}

std::string ChangeFleet(const CommandCall& call) {
    FleetStorage& fleet = call.storage.Fleet();
    const RequestFields fields(call.text);
    const int operation = fields.Operation("type");
    const std::string id = fields.Text("vsi");
    switch (operation) {
        case kAddVessel:
            if (!id.empty()) {
                throw Refusal(ErrorCode::UnknownVessel, "a new vessel has no id yet");
            }
            return Replies::Created("vsi", ValueOrRefuse(fleet.AddVessel(call.user, ReadVessel(fields))));
        case kSetVessel:
            ValueOrRefuse(fleet.SetVessel(call.user, ReadVessel(fields)));
            break;
        case kRemoveVessel:
            ValueOrRefuse(fleet.RemoveVessel(call.user, id));
            break;
        default:
            throw Refusal(ErrorCode::UnknownOperation, "type");
    }
    return Replies::Success();
}

}  // namespace Tarvik::Server
