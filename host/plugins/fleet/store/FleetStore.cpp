// SPDX-License-Identifier: MIT
#include "host/plugins/fleet/store/FleetStore.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/core/TObject.h>
#include <tarvik/interface/ServerRequest.h>
#include <tarvik/util/Clock.h>

namespace Tarvik::Fleet {

namespace {

namespace Bus = Interface::Bus;
using Interface::VoyCommand;
using Interface::VoyServerRequest;

constexpr std::int64_t kFreshCsecs = 3000;
// The server's refusals that a person can do something about.
constexpr int kFleetIsFull = 48;
constexpr int kUnknownVessel = 35;

std::optional<std::string> User() {
    const std::string* user = Interface::Call(Bus::User);
    return user == nullptr ? std::nullopt : std::optional(*user);
}

/// The reply's text; nothing without a server that answers.
std::optional<std::string> Exchange(VoyCommand command, const std::string& text) {
    std::vector<char> block(sizeof(VoyServerRequest) + text.size() + 1);
    const VoyServerRequest head{static_cast<std::uint32_t>(text.size() + 1), Interface::NumberOf(command),
                                Interface::kVoyageModuleWord};
    std::memcpy(block.data(), &head, sizeof head);
    std::memcpy(block.data() + sizeof head, text.c_str(), text.size() + 1);
    const auto* request = reinterpret_cast<const VoyServerRequest*>(block.data());
    VoyServerRequest* reply = Interface::Call(Bus::ServerExchange, request);
    if (reply == nullptr) {
        return std::nullopt;
    }
    std::string answer(reply->Payload(), strnlen(reply->Payload(), reply->length));
    Core::FreeBusBlock(reply);
    return answer;
}

Outcome OutcomeOf(int code) {
    switch (code) {
        case 0:
            return Outcome::Done;
        case kFleetIsFull:
            return Outcome::Full;
        case kUnknownVessel:
            return Outcome::Gone;
        default:
            return Outcome::Refused;
    }
}

}  // namespace

bool FleetStore::IsFresh(const std::string& user) const {
    const std::int64_t age = Util::Clock::Current().NowUtcCsecs() - askedCsecs_;
    // A clock that went back must not keep the list for ever.
    return user == user_ && askedCsecs_ != 0 && age >= 0 && age < kFreshCsecs;
}

const std::vector<Interface::FleetVessel>& FleetStore::Vessels() {
    const auto user = User();
    if (!user) {
        Forget();
    } else if (!IsFresh(*user)) {
        Reload();
    }
    return vessels_;
}

const Interface::FleetVessel* FleetStore::Find(const std::string& id) {
    const auto& vessels = Vessels();
    const auto found =
        std::find_if(vessels.begin(), vessels.end(), [&id](const auto& vessel) { return vessel.id == id; });
    return found == vessels.end() ? nullptr : &*found;
}

const Interface::FleetVessel* FleetStore::WithSameNumber(const Interface::FleetVessel& vessel) {
    const auto& vessels = Vessels();
    const auto found = std::find_if(vessels.begin(), vessels.end(), [&vessel](const auto& other) {
        const bool isSame =
            (vessel.mmsi != 0 && other.mmsi == vessel.mmsi) || (vessel.imo != 0 && other.imo == vessel.imo);
        return other.id != vessel.id && isSame;
    });
    return found == vessels.end() ? nullptr : &*found;
}

bool FleetStore::Reload() {
    const auto user = User();
    if (!user || *user != user_) {
        Forget();
    }
    if (!user) {
        return false;
    }
    user_ = *user;
    askedCsecs_ = Util::Clock::Current().NowUtcCsecs();
    const auto reply = Exchange(VoyCommand::LoadFleet, LoadRequest(*user));
    auto fleet = reply ? ReadFleet(*reply) : std::nullopt;
    if (fleet) {
        vessels_ = std::move(*fleet);
    }
    return fleet.has_value();
}

void FleetStore::Forget() {
    vessels_.clear();
    user_.clear();
    askedCsecs_ = 0;
}

Outcome FleetStore::Change(Operation operation, Interface::FleetVessel& vessel) {
    const auto user = User();
    if (!user) {
        return Outcome::NoUser;
    }
    if (*user != user_) {
        Reload();
    }
    const auto reply = Exchange(VoyCommand::ChangeFleet, ChangeRequest(operation, vessel));
    if (!reply) {
        return Outcome::NoServer;
    }
    const Verdict verdict = ReadVerdict(*reply);
    const Outcome outcome = OutcomeOf(verdict.code);
    if (outcome == Outcome::Done) {
        vessel.id = operation == Operation::Add ? verdict.id : vessel.id;
        Take(operation, vessel);
    }
    return outcome;
}

void FleetStore::Take(Operation operation, const Interface::FleetVessel& vessel) {
    const auto known = std::find_if(vessels_.begin(), vessels_.end(),
                                    [&vessel](const auto& other) { return other.id == vessel.id; });
    if (operation == Operation::Remove) {
        if (known != vessels_.end()) {
            vessels_.erase(known);
        }
    } else if (known != vessels_.end()) {
        *known = vessel;
    } else {
        vessels_.push_back(vessel);
    }
}

}  // namespace Tarvik::Fleet
