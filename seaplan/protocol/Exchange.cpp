// SPDX-License-Identifier: MIT
#include "seaplan/protocol/Exchange.h"

#include <cstddef>
#include <cstring>
#include <memory>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/core/TObject.h>
#include <tarvik/interface/ServerRequest.h>

#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

namespace {

namespace Bus = Interface::Bus;

/// Rows stored before these moments hold local time and pass as they stand; the two texts differ by the
/// zone's offset.
constexpr const char* kFirstConvertedOnWriting = "2011-10-02 08:00:00";
constexpr const char* kFirstConvertedOnReading = "2011-10-02 00:00:00";

struct BlockFree {
    void operator()(Interface::VoyServerRequest* block) const { Core::FreeBusBlock(block); }
};
using Block = std::unique_ptr<Interface::VoyServerRequest, BlockFree>;

/// The host's reply, null without one. The request lives as long as the call.
Block Exchange(const Util::CAutoBuffer& text, std::uint16_t command) {
    const std::size_t length = text.size();
    const Block request(static_cast<Interface::VoyServerRequest*>(
        Core::AllocateBusBlock(sizeof(Interface::VoyServerRequest) + length)));
    if (!request) {
        return nullptr;
    }
    request->length = static_cast<std::uint32_t>(length);
    request->command = command;
    request->moduleWord = Interface::kVoyageModuleWord;
    std::memcpy(request->Payload(), text.begin(), length);
    const Interface::VoyServerRequest* input = request.get();
    return Block(Interface::Call(Bus::ServerExchange, input));
}

}  // namespace

int SendRequest(const Util::CAutoBuffer& text, std::uint16_t command, Util::Jsona& reply) {
    const Block block = Exchange(text, command);
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

}  // namespace Tarvik::Seaplan
