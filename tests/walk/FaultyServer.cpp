// SPDX-License-Identifier: MIT
#include "tests/walk/FaultyServer.h"

#include <algorithm>
#include <array>
#include <utility>

#include <tarvik/interface/ServerRequest.h>

#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan::Walk {

namespace {

constexpr const char* kRefusal = R"({"eid":99,"emsg":"refused by the walk"})";
constexpr const char* kSuccess = "\"eid\":0";
/// Categories, voyages, figures, books, port calls and times of correction.
constexpr std::array<std::uint16_t, 8> kWriting = {4, 5, 6, 8, 9, 11, 13, 14};

bool IsWriting(std::uint16_t command) {
    return std::find(kWriting.begin(), kWriting.end(), command) != kWriting.end();
}

/// True when the count has come to its request; it goes on to -1, nothing to wait for.
bool Due(int& count) {
    return count >= 0 && count-- == 0;
}

}  // namespace

FaultyServer::FaultyServer(PanelDesk& desk) : desk_(desk), server_(desk.host.server) {
    desk_.host.server = [this](const Interface::VoyServerRequest& request) { return Answer(request); };
}

FaultyServer::~FaultyServer() {
    desk_.host.server = server_;
}

void FaultyServer::Heal() {
    refused_ = cut_ = lost_ = -1;
}

void FaultyServer::BeginStep() {
    desk_.ForgetRecords();
    writes_.clear();
    struck_ = false;
}

std::optional<std::string> FaultyServer::Answer(const Interface::VoyServerRequest& request) {
    if (aside_) {
        return server_(request);
    }
    const bool refused = Due(refused_);
    const bool lost = Due(lost_);
    if (cut_ > 0) {
        --cut_;
    } else if (cut_ == 0) {
        struck_ = true;
        return std::nullopt;
    }
    if (refused) {
        struck_ = true;
        return kRefusal;
    }
    const std::string text = desk_.host.requests.back().Text();
    const auto reply = server_(request);
    if (IsWriting(request.command)) {
        const bool taken = reply && reply->find(kSuccess) != std::string::npos;
        writes_.push_back({request.command, text, taken, taken && !lost});
    }
    struck_ = struck_ || lost;
    return lost ? std::nullopt : reply;
}

FaultyServer::Aside::Aside(FaultyServer& server, std::string user)
    : server_(server), userBefore_(std::exchange(server.desk_.host.user, std::move(user))) {
    server_.aside_ = true;
}

FaultyServer::Aside::~Aside() {
    server_.aside_ = false;
    server_.desk_.host.user = userBefore_;
}

}  // namespace Tarvik::Seaplan::Walk
