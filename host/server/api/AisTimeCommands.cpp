// SPDX-License-Identifier: MIT
#include "host/server/api/AisTimeCommands.h"

#include "host/server/api/Refusal.h"
#include "host/server/api/Replies.h"
#include "host/server/api/RequestFields.h"

namespace Tarvik::Server {

std::string AisTimeCommands::Load(const std::string& user, std::string_view text) {
    return Replies::AisTimes(ValueOrRefuse(storage_.LoadAisTimes(user, RequestFields(text).Text("vi"))));
}

std::string AisTimeCommands::Add(const std::string& user, std::string_view text) {
    const RequestFields fields(text);
    const std::string time = fields.Time("time");
    ValueOrRefuse(storage_.AddAisTime(user, fields.Text("vi"), time));
    return Replies::Success();
}

}  // namespace Tarvik::Server
