// SPDX-License-Identifier: MIT
#include "seaplan/protocol/RemarkExchange.h"

#include <cstdint>
#include <cstring>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/interface/ServerRequest.h>
#include <tarvik/util/Jsona.h>

namespace Tarvik::Seaplan {

void SendRemark(const std::string& text, RemarkBlock& request) {
    const std::size_t length = std::strlen(text.c_str()) + 1;
    request.reset(static_cast<Interface::VoyServerRequest*>(
        Core::AllocateBusBlock(sizeof(Interface::VoyServerRequest) + length)));
    if (!request) {
        return;
    }
    request->length = static_cast<std::uint32_t>(length);
    request->command = Interface::NumberOf(Interface::VoyCommand::Remarks);
    request->moduleWord = Interface::kRemarkModuleWord;
    std::memcpy(request->Payload(), text.c_str(), length);
}

bool SyncServer(const RemarkBlock& request, RemarkBlock& reply) {
    reply.reset();
    if (!request) {
        return false;
    }
    const Interface::VoyServerRequest* input = request.get();
    reply.reset(Interface::Call(Interface::Bus::ServerExchange, input));
    if (!reply) {
        return false;
    }
    Util::Jsona status;
    return !status.parse(reply->Payload()) || !status.has("eid") || status.getv("eid", -1) == 0;
}

}  // namespace Tarvik::Seaplan
