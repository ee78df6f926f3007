// SPDX-License-Identifier: MIT
#include "seaplan/protocol/Exchange.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>

#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

namespace {

namespace Bus = Interface::Bus;

/// Rows stored before these moments hold local time and pass as they stand; the two texts differ by the
/// zone's offset.
constexpr const char* kFirstConvertedOnWriting = "2011-10-02 08:00:00";
constexpr const char* kFirstConvertedOnReading = "2011-10-02 00:00:00";

constexpr std::size_t kFirstCapacity = 256;

/// A request with `length` bytes of payload; null when there is no memory for it.
ServerBlock MakeRequest(std::uint16_t moduleWord, std::uint16_t command, const char* payload,
                        std::size_t length) {
    ServerBlock request(static_cast<Interface::VoyServerRequest*>(
        Core::AllocateBusBlock(sizeof(Interface::VoyServerRequest) + length)));
    if (request) {
        request->length = static_cast<std::uint32_t>(length);
        request->command = command;
        request->moduleWord = moduleWord;
        std::memcpy(request->Payload(), payload, length);
    }
    return request;
}

/// The host's reply, null without one.
ServerBlock Exchange(const ServerBlock& request) {
    if (!request) {
        return nullptr;
    }
    const Interface::VoyServerRequest* input = request.get();
    return ServerBlock(Interface::Call(Bus::ServerExchange, input));
}

}  // namespace

int SendRequest(const Util::CAutoBuffer& text, std::uint16_t command, Util::Jsona& reply) {
    const ServerBlock block =
        Exchange(MakeRequest(Interface::kVoyageModuleWord, command, text.begin(), text.size()));
    if (!block) {
        return -1;
    }
    return reply.parse(block->Payload()) ? 0 : -2;
}

int EnsureConnected() {
    const unsigned char* connected = Interface::Call(Bus::IsConnected);
    if (connected != nullptr && *connected != 0) {
        return 0;
    }
    Interface::Call(Bus::Login);
    return -1;
}

int GetUser(std::string& user) {
    user.clear();
    const std::string* answer = Interface::Call(Bus::User);
    if (answer == nullptr) {
        return -1;
    }
    user = *answer;
    return 0;
}

int ToServerTime(const std::string& local, std::string& out) {
    if (local < kFirstConvertedOnWriting) {
        out = local;
        return 0;
    }
    const auto time = Util::DateTimeUtl::Parse(local);
    if (!time) {
        return -1;
    }
    out = UtcOfPlanTime(*time).fmt(kTimeFormat);
    return 0;
}

int FromServerTime(const std::string& server, std::string& out) {
    if (server < kFirstConvertedOnReading) {
        out = server;
        return 0;
    }
    const auto time = Util::DateTimeUtl::Parse(server);
    if (!time) {
        return -1;
    }
    const auto utc = Util::_datetime_t::from_gmt_timer(time->to_gmt_timer());
    const std::string* zone = Interface::Call(Bus::CurrentTimeZone);
    if (zone == nullptr) {
        return -2;
    }
    out = Util::DateTimeUtl::ConvertFromUTC(utc, *zone).fmt(kTimeFormat);
    return 0;
}

int SendText(const std::string& text, Interface::VoyCommand command, Util::Jsona& reply) {
    Util::CAutoBuffer buffer(kFirstCapacity);
    Util::CBlockBuffer::format0(buffer, "%s", text.c_str());
    return SendRequest(buffer, Interface::NumberOf(command), reply);
}

bool AskList(const std::string& text, Interface::VoyCommand command, Util::Jsona& list) {
    return SendText(text, command, list) == 0 && list.kind() == Util::Jsona::Kind::Array;
}

bool IsSuccess(const Util::Jsona& reply) {
    return reply.getv("eid", -1) == 0;
}

Outcome<CommandStep> SendChange(const std::string& text, Interface::VoyCommand command, Util::Jsona& reply) {
    if (SendText(text, command, reply) < 0) {
        return CommandStep::Send;
    }
    if (reply.size() < 1) {
        return CommandStep::Empty;
    }
    return IsSuccess(reply) ? Outcome<CommandStep>() : CommandStep::Refused;
}

Outcome<CommandStep> SendChange(const std::string& text, Interface::VoyCommand command) {
    Util::Jsona reply;
    return SendChange(text, command, reply);
}

void SendRemark(const std::string& text, ServerBlock& request) {
    request = MakeRequest(Interface::kRemarkModuleWord, Interface::NumberOf(Interface::VoyCommand::Remarks),
                          text.c_str(), std::strlen(text.c_str()) + 1);
}

bool SyncServer(const ServerBlock& request, ServerBlock& reply) {
    reply = Exchange(request);
    if (!reply) {
        return false;
    }
    Util::Jsona status;
    return !status.parse(reply->Payload()) || !status.has("eid") || status.getv("eid", -1) == 0;
}

}  // namespace Tarvik::Seaplan
