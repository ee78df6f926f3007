// SPDX-License-Identifier: MIT
#include "host/server/api/VoyageCommands.h"

#include <limits>

#include "host/server/api/Refusal.h"
#include "host/server/api/Replies.h"
#include "host/server/api/RequestFields.h"

namespace Tarvik::Server {

namespace {

enum Operation {
    kCreate = 0,
    kRename = 1,
    kToBin = 2,
    kRecover = 3,
    kDestroy = 4,
    kChangeVessel = 5,
    kShowRoute = 6,
    kTraceAis = 7
};

Outcome<std::string> Create(CatalogStorage& storage, const std::string& user, const RequestFields& fields) {
    VoyageRecord voyage;
    voyage.name = fields.Name("vn");
    voyage.vessel.id = fields.Text("vsi");
    voyage.routeShown = fields.Flag("vr");
    voyage.aisTraced = fields.Flag("va");
    return storage.CreateVoyage(user, fields.Text("ci"), voyage);
}

/// A vessel without an id is one that only its name tells; without both there is none to change to.
VesselRecord ReadVessel(const RequestFields& fields) {
    VesselRecord vessel{fields.Text("vsi"), fields.Text("vsn"),
                        fields.Number("vsmsi", 0, std::numeric_limits<std::int32_t>::max())};
    if (vessel.id.empty() && vessel.name.empty()) {
        throw Refusal(ErrorCode::EmptyName, "vsn");
    }
    return vessel;
}

}  // namespace

std::string VoyageCommands::Change(const std::string& user, std::string_view text) {
    const RequestFields fields(text);
    const int operation = fields.Operation("type");
    const std::string id = fields.Text("vi");
    switch (operation) {
        case kCreate:
            if (!id.empty()) {
                throw Refusal(ErrorCode::UnknownVoyage, "a new voyage has no id yet");
            }
            return Replies::Created("vi", ValueOrRefuse(Create(storage_, user, fields)));
        case kRename:
            ValueOrRefuse(storage_.RenameVoyage(user, id, fields.Name("vn")));
            break;
        case kToBin:
            ValueOrRefuse(storage_.MoveVoyage(user, id, DeletionState::InBin));
            break;
        case kRecover:
            ValueOrRefuse(storage_.MoveVoyage(user, id, DeletionState::InUse));
            break;
        case kDestroy:
            ValueOrRefuse(storage_.MoveVoyage(user, id, DeletionState::Destroyed));
            break;
        case kChangeVessel:
            ValueOrRefuse(storage_.ChangeVessel(user, id, ReadVessel(fields)));
            break;
        case kShowRoute:
            ValueOrRefuse(storage_.ShowRoute(user, id, fields.Flag("vr")));
            break;
        case kTraceAis:
            ValueOrRefuse(storage_.TraceAis(user, id, fields.Flag("va")));
            break;
        default:
            throw Refusal(ErrorCode::UnknownOperation, "type");
    }
    return Replies::Success();
}

}  // namespace Tarvik::Server
