// SPDX-License-Identifier: MIT
#include "seaplan/protocol/StatusReply.h"

#include "seaplan/protocol/Exchange.h"

namespace Tarvik::Seaplan {

namespace {

constexpr std::size_t kFirstCapacity = 256;
}

int SendText(const std::string& text, Interface::VoyCommand command, Util::Jsona& reply) {
    Util::CAutoBuffer buffer(kFirstCapacity);
    Util::CBlockBuffer::format0(buffer, "%s", text.c_str());
    return SendRequest(buffer, Interface::NumberOf(command), reply);
}

bool IsSuccess(const Util::Jsona& reply) {
    return reply.getv("eid", -1) == 0;
}

int SendChange(const std::string& text, Interface::VoyCommand command, int first, Util::Jsona& reply) {
    if (SendText(text, command, reply) < 0) {
        return first;
    }
    if (reply.size() < 1) {
        return first - 1;
    }
    return IsSuccess(reply) ? 0 : first - 2;
}

int SendChange(const std::string& text, Interface::VoyCommand command, int first) {
    Util::Jsona reply;
    return SendChange(text, command, first, reply);
}

}  // namespace Tarvik::Seaplan
