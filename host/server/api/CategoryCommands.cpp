// SPDX-License-Identifier: MIT
#include "host/server/api/CategoryCommands.h"

#include "host/server/api/Refusal.h"
#include "host/server/api/Replies.h"
#include "host/server/api/RequestFields.h"

namespace Tarvik::Server {

namespace {

enum Operation { kCreate = 0, kToBin = 1, kRecover = 2, kDestroy = 3, kRename = 4 };

}  // namespace

std::string CategoryCommands::Load(const std::string& user, std::string_view text) {
    if (RequestFields(text).Text("ui") != user) {
        throw Refusal(ErrorCode::OtherUser);
    }
    return Replies::Catalog(ValueOrRefuse(storage_.LoadCatalog(user)));
}

std::string CategoryCommands::Change(const std::string& user, std::string_view text) {
    const RequestFields fields(text);
    const int operation = fields.Operation("type");
    const std::string id = fields.Text("ci");
    switch (operation) {
        case kCreate:
            if (!id.empty()) {
                throw Refusal(ErrorCode::UnknownCategory, "a new category has no id yet");
            }
            return Replies::Created("ci", ValueOrRefuse(storage_.CreateCategory(user, fields.Name("cn"))));
        case kToBin:
            ValueOrRefuse(storage_.MoveCategory(user, id, DeletionState::InBin));
            break;
        case kRecover:
            ValueOrRefuse(storage_.MoveCategory(user, id, DeletionState::InUse));
            break;
        case kDestroy:
            ValueOrRefuse(storage_.MoveCategory(user, id, DeletionState::Destroyed));
            break;
        case kRename:
            ValueOrRefuse(storage_.RenameCategory(user, id, fields.Name("cn")));
            break;
        default:
            throw Refusal(ErrorCode::UnknownOperation, "type");
    }
    return Replies::Success();
}

}  // namespace Tarvik::Server
