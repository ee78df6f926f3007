// SPDX-License-Identifier: MIT
#include "host/server/api/PortCallCommands.h"

#include "host/server/api/Refusal.h"
#include "host/server/api/Replies.h"
#include "host/server/api/RequestFields.h"
#include "host/server/api/RequestRows.h"

namespace Tarvik::Server {

std::string PortCallCommands::Load(const std::string& user, std::string_view text) {
    return Replies::PortCalls(ValueOrRefuse(storage_.LoadPortCalls(user, RequestFields(text).Text("vi"))));
}

std::string PortCallCommands::Replace(const std::string& user, std::string_view text) {
    const std::vector<std::string> texts = ReadTexts(text, 1);
    // No client means to erase a whole schedule by an empty list.
    if (texts.size() < 2) {
        throw Refusal(ErrorCode::NoRows);
    }
    std::vector<PortCallRecord> calls;
    calls.reserve(texts.size() - 1);
    for (std::size_t i = 1; i < texts.size(); ++i) {
        calls.push_back(ReadPortCall(texts[i]));
    }
    ValueOrRefuse(storage_.ReplacePortCalls(user, texts[0], calls));
    return Replies::Success();
}

}  // namespace Tarvik::Server
