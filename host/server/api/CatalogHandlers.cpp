// SPDX-License-Identifier: MIT
#include <limits>

#include "host/server/api/CommandHandlers.h"
#include "host/server/api/Refusal.h"
#include "host/server/api/Replies.h"
#include "host/server/api/RequestFields.h"
#include "host/server/storage/contract/CatalogStorage.h"

namespace Tarvik::Server {

namespace {

enum CategoryOperation {
    kCreateCategory = 0,
    kCategoryToBin = 1,
    kRecoverCategory = 2,
    kDestroyCategory = 3,
    kRenameCategory = 4
};

enum VoyageOperation {
    kCreateVoyage = 0,
    kRenameVoyage = 1,
    kVoyageToBin = 2,
    kRecoverVoyage = 3,
    kDestroyVoyage = 4,
    kChangeVessel = 5,
    kShowRoute = 6,
    kTraceAis = 7
};

Outcome<std::string> Create(const CommandCall& call, const RequestFields& fields) {
    VoyageRecord voyage;
    voyage.name = fields.Name("vn");
    voyage.vessel.id = fields.Text("vsi");
    voyage.routeShown = fields.Flag("vr");
    voyage.aisTraced = fields.Flag("va");
    return call.storage.Catalog().CreateVoyage(call.user, fields.Text("ci"), voyage);
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

std::string LoadCatalog(const CommandCall& call) {
    CheckUser(call.text, call.user);
    return Replies::Catalog(ValueOrRefuse(call.storage.Catalog().LoadCatalog(call.user)));
}

std::string ChangeCategory(const CommandCall& call) {
    CatalogStorage& catalog = call.storage.Catalog();
    const RequestFields fields(call.text);
    const int operation = fields.Operation("type");
    const std::string id = fields.Text("ci");
    switch (operation) {
        case kCreateCategory:
            if (!id.empty()) {
                throw Refusal(ErrorCode::UnknownCategory, "a new category has no id yet");
            }
            return Replies::Created("ci",
                                    ValueOrRefuse(catalog.CreateCategory(call.user, fields.Name("cn"))));
        case kCategoryToBin:
            ValueOrRefuse(catalog.MoveCategory(call.user, id, DeletionState::InBin));
            break;
        case kRecoverCategory:
            ValueOrRefuse(catalog.MoveCategory(call.user, id, DeletionState::InUse));
            break;
        case kDestroyCategory:
            ValueOrRefuse(catalog.MoveCategory(call.user, id, DeletionState::Destroyed));
            break;
        case kRenameCategory:
            ValueOrRefuse(catalog.RenameCategory(call.user, id, fields.Name("cn")));
            break;
        default:
            throw Refusal(ErrorCode::UnknownOperation, "type");
    }
    return Replies::Success();
}

std::string ChangeVoyage(const CommandCall& call) {
    CatalogStorage& catalog = call.storage.Catalog();
    const RequestFields fields(call.text);
    const int operation = fields.Operation("type");
    const std::string id = fields.Text("vi");
    switch (operation) {
        case kCreateVoyage:
            if (!id.empty()) {
                throw Refusal(ErrorCode::UnknownVoyage, "a new voyage has no id yet");
            }
            return Replies::Created("vi", ValueOrRefuse(Create(call, fields)));
        case kRenameVoyage:
            ValueOrRefuse(catalog.RenameVoyage(call.user, id, fields.Name("vn")));
            break;
        case kVoyageToBin:
            ValueOrRefuse(catalog.MoveVoyage(call.user, id, DeletionState::InBin));
            break;
        case kRecoverVoyage:
            ValueOrRefuse(catalog.MoveVoyage(call.user, id, DeletionState::InUse));
            break;
        case kDestroyVoyage:
            ValueOrRefuse(catalog.MoveVoyage(call.user, id, DeletionState::Destroyed));
            break;
        case kChangeVessel:
            ValueOrRefuse(catalog.ChangeVessel(call.user, id, ReadVessel(fields)));
            break;
        case kShowRoute:
            ValueOrRefuse(catalog.ShowRoute(call.user, id, fields.Flag("vr")));
            break;
        case kTraceAis:
            ValueOrRefuse(catalog.TraceAis(call.user, id, fields.Flag("va")));
            break;
        default:
            throw Refusal(ErrorCode::UnknownOperation, "type");
    }
    return Replies::Success();
}

std::string StoreFigures(const CommandCall& call) {
    const RequestFields fields(call.text);
    const std::string id = fields.Text("vi");
    Figures figures{};
    for (std::size_t i = 0; i < figures.size(); ++i) {
        figures[i] = fields.Number(kFigureKeys[i], 0, std::numeric_limits<std::int32_t>::max());
    }
    ValueOrRefuse(call.storage.Catalog().SetFigures(call.user, id, figures));
    return Replies::Success();
}

}  // namespace Tarvik::Server
