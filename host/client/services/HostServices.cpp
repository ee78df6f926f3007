// SPDX-License-Identifier: MIT
#include "host/client/services/HostServices.h"

#include <cstring>
#include <utility>

#include <nlohmann/json.hpp>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/core/TObject.h>
#include <tarvik/util/Clock.h>

namespace Tarvik::Client {

namespace {

using Interface::VoyServerRequest;
namespace Bus = Interface::Bus;

/// A reply as the bus carries it: the request's head with the new length, the text and its NUL.
VoyServerRequest* MakeReply(const VoyServerRequest& request, const std::string& text) {
    const std::size_t bytes = text.size() + 1;
    auto* reply = static_cast<VoyServerRequest*>(Core::AllocateBusBlock(sizeof(VoyServerRequest) + bytes));
    if (!reply) {
        return nullptr;
    }
    *reply = request;
    reply->length = static_cast<std::uint32_t>(bytes);
    std::memcpy(reply->Payload(), text.c_str(), bytes);
    return reply;
}

/// The server's words when it refused; empty for every other reply.
std::string RefusalOf(const std::string& reply) {
    if (!reply.starts_with('{')) {
        return {};
    }
    const auto status = nlohmann::json::parse(reply, nullptr, false);
    const auto code = status.is_object() ? status.find("eid") : status.end();
    if (code == status.end() || !code->is_number_integer() || *code == 0) {
        return {};
    }
    const auto words = status.find("emsg");
    return words != status.end() && words->is_string() ? words->get<std::string>()
                                                       : "code " + code->dump() + " of the server";
}

}  // namespace

HostServices::HostServices(ServerLink& link, std::string localUser, std::string timeZone,
                           std::function<void(const std::string&)> complain)
    : link_(&link),
      localUser_(std::move(localUser)),
      timeZone_(std::move(timeZone)),
      complain_(std::move(complain)),
      watch_(link.IsConnected()) {
    Util::Clock::SetLocalZone(timeZone_);
    OfferAll();
}

void HostServices::OfferAll() {
    using Interface::Offer;
    bindings_.Keep(Offer(Bus::IsConnected, this, &HostServices::OnConnected));
    bindings_.Keep(Offer(Bus::Login, this, &HostServices::OnLogin));
    bindings_.Keep(Offer(Bus::User, this, &HostServices::OnUser));
    bindings_.Keep(Offer(Bus::CurrentTimeZone, this, &HostServices::OnTimeZone));
    bindings_.Keep(Offer(Bus::ServerExchange, this, &HostServices::OnExchange));
}

void HostServices::SetTimeZone(const std::string& zone) {
    timeZone_ = zone;
    Util::Clock::SetLocalZone(zone);
    Interface::Raise(Bus::SwitchTimeZone, &std::as_const(timeZone_));
}

void HostServices::LogOut() {
    Interface::Raise(Bus::Logout);
    link_->LogOut();
    lastFailure_.clear();
    watch_.NoteLogin(link_->IsConnected());
}

void HostServices::SetLink(ServerLink& link) {
    Interface::Raise(Bus::Logout);
    link_ = &link;
    lastFailure_.clear();
    watch_.NoteLogin(link_->IsConnected());
}

void HostServices::NoteFailure(const std::string& failure) {
    lastFailure_ = failure;
    if (!failure.empty() && complain_) {
        complain_(failure);
    }
}

const unsigned char* HostServices::OnConnected() {
    connected_ = link_->IsConnected() ? 1 : 0;
    return &connected_;
}

void HostServices::OnLogin() {
    std::string error;
    const bool before = link_->IsConnected();
    NoteFailure(link_->Connect(error) ? std::string() : error);
    if (link_->IsConnected() != before) {
        watch_.NoteLogin(!before);
    }
}

const std::string* HostServices::OnUser() {
    user_ = User();
    return user_.empty() ? nullptr : &user_;
}

VoyServerRequest* HostServices::OnExchange(const VoyServerRequest& request) {
    if (request.length > Interface::kMaxPayloadBytes) {
        return nullptr;
    }
    const std::string text = link_->Exchange(User(), request);
    NoteFailure(text.empty() ? link_->Failure() : RefusalOf(text));
    // A login that is over is an answer too: the server gave it.
    if (text.empty() && link_->IsConnected()) {
        watch_.NoteSilence(lastFailure_);
    } else {
        watch_.NoteAnswer(link_->IsConnected());
    }
    return text.empty() ? nullptr : MakeReply(request, text);
}

}  // namespace Tarvik::Client
