// SPDX-License-Identifier: MIT
#include "host/server/api/CommandHandlers.h"
#include "host/server/api/Refusal.h"
#include "host/server/api/Replies.h"
#include "host/server/api/RequestFields.h"

namespace Tarvik::Server {

namespace {

enum PlaceOperation { kAddPlace = 0, kSetPlace = 1, kRemovePlace = 2 };

PlaceRecord ReadPlace(const RequestFields& fields) {
    PlaceRecord place{fields.Text("ppi"), fields.Name("ppn"), fields.Decimal("xc"), fields.Decimal("yc")};
    if (const auto fault = FaultOf(place)) {
        throw Refusal(*fault, place.name);
    }
    return place;
}

std::vector<PlaceRecord> PlacesOf(const CommandCall& call) {
    return ValueOrRefuse(call.storage.Places().LoadPlaces(call.user));
}

}  // namespace

std::string LoadPlaces(const CommandCall& call) {
    CheckUser(call.text, call.user);
    return Replies::Places(PlacesOf(call));
}

std::string ChangePlace(const CommandCall& call) {
    PlaceStorage& places = call.storage.Places();
    const RequestFields fields(call.text);
    const int operation = fields.Operation("type");
    const std::string id = fields.Text("ppi");
    switch (operation) {
        case kAddPlace:
            if (!id.empty()) {
                throw Refusal(ErrorCode::UnknownPlace, "a new port has no id yet");
            }
            return Replies::Created("ppi", ValueOrRefuse(places.AddPlace(call.user, ReadPlace(fields))));
        case kSetPlace:
            ValueOrRefuse(places.SetPlace(call.user, ReadPlace(fields)));
            break;
        case kRemovePlace:
            ValueOrRefuse(places.RemovePlace(call.user, id));
            break;
        default:
            throw Refusal(ErrorCode::UnknownOperation, "type");
    }
    return Replies::Success();
}

std::string PlanRoute(const CommandCall& call) {
    return call.routes.PlanWith(call.text, PlacesOf(call));
}

std::string FindNearest(const CommandCall& call) {
    return call.routes.NearestWith(call.text, PlacesOf(call));
}

}  // namespace Tarvik::Server
