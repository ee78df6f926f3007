// SPDX-License-Identifier: MIT
#include "host/client/remote/RemoteLink.h"

#include <algorithm>
#include <utility>

#include <nlohmann/json.hpp>

#include "host/server/wire/Envelope.h"

namespace Tarvik::Client {

namespace {

constexpr const char* kJson = "application/json";
constexpr const char* kBytes = "application/octet-stream";

/// Longer than any token that a server has a reason to give; it goes into a field of each request.
constexpr std::size_t kMostTokenBytes = 4096;

bool IsToken(const std::string& text) {
    return text.size() <= kMostTokenBytes &&
           std::all_of(text.begin(), text.end(), [](char c) { return c > ' ' && c < 127; });
}

/// The token of a login's answer; empty when there is none.
std::string TokenOf(const std::string& body) {
    const nlohmann::json answer = nlohmann::json::parse(body, nullptr, false);
    if (!answer.is_object()) {
        return {};
    }
    const auto token = answer.find("token");
    if (token == answer.end() || !token->is_string()) {
        return {};
    }
    auto text = token->get<std::string>();
    return IsToken(text) ? text : std::string();
}

}  // namespace

RemoteLink::RemoteLink(RemoteSettings settings) : settings_(std::move(settings)) {
    if (const auto url = ServerUrl::Parse(settings_.url)) {
        http_ = std::make_unique<HttpClient>(*url, settings_.limit, settings_.caFile);
    }
}

RemoteLink::~RemoteLink() = default;

bool RemoteLink::Connect(std::string& error) {
    if (IsConnected()) {
        return true;
    }
    failure_.clear();
    if (!http_) {
        failure_ = "\"" + settings_.url + "\" is no address of a server; write https://HOST:PORT.";
    } else {
        const nlohmann::json login = {{"user", settings_.user}, {"password", settings_.password}};
        const std::string body = login.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
        const HttpAnswer answer = http_->Post("/v1/login", kJson, body, {});
        if (answer.status == 200) {
            token_ = TokenOf(answer.body);
        }
        if (token_.empty()) {
            failure_ = LoginFailure(answer);
        }
    }
    error = failure_;
    return failure_.empty();
}

std::string RemoteLink::LoginFailure(const HttpAnswer& answer) const {
    const std::string server = "The voyage server " + settings_.url;
    if (answer.certificate != CertificateFault::None) {
        return CertificateFailure(answer);
    }
    if (answer.status == 0) {
        return server + " does not answer (" + answer.failure + "). Check the address and the network.";
    }
    if (answer.status == 401) {
        return server + " refuses the user name or the password of " + settings_.user + ".";
    }
    if (answer.status == 429) {
        return server + " has seen too many failed logins. Try again in " +
               std::to_string(answer.retryAfterSeconds) + " seconds.";
    }
    return server + " answers a login with the status " + std::to_string(answer.status) +
           ". Check that the address is one of a voyage server.";
}

std::string RemoteLink::CertificateFailure(const HttpAnswer& answer) const {
    const auto url = ServerUrl::Parse(settings_.url);
    return "The voyage server " + settings_.url + " is not trusted (" + answer.failure + "). " +
           WordsOf(answer.certificate, url.value_or(ServerUrl()));
}

std::string RemoteLink::Exchange(const std::string& /*user*/, const Interface::VoyServerRequest& request) {
    failure_.clear();
    if (!IsConnected()) {
        failure_ = "Nobody is logged in at the voyage server " + settings_.url + ".";
        return {};
    }
    std::string_view text(request.Payload(), request.length);
    if (text.ends_with('\0')) {
        text.remove_suffix(1);
    }
    const std::string body = Server::WriteEnvelope({request.command, request.moduleWord, text});
    return ReadReply(http_->Post("/v1/exchange", kBytes, body, token_));
}

std::string RemoteLink::ReadReply(const HttpAnswer& answer) {
    const std::string server = "The voyage server " + settings_.url;
    if (answer.certificate != CertificateFault::None) {
        failure_ = CertificateFailure(answer);
        return {};
    }
    if (answer.status == 0) {
        failure_ = server + " does not answer (" + answer.failure + ").";
        return {};
    }
    if (answer.status == 401) {
        token_.clear();
        failure_ = "The login at the voyage server " + settings_.url + " is over.";
        return {};
    }
    const auto reply = answer.status == 200 ? Server::ReadEnvelope(answer.body) : std::nullopt;
    if (!reply) {
        failure_ =
            server + " gives no reply of the voyage service (status " + std::to_string(answer.status) + ").";
        return {};
    }
    return std::string(reply->text);
}

void RemoteLink::Disconnect() {
    if (IsConnected()) {
        http_->Post("/v1/logout", kJson, "{}", token_);
    }
    token_.clear();
}

}  // namespace Tarvik::Client
