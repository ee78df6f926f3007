// SPDX-License-Identifier: MIT
#include "host/server/net/tests/TestServer.h"

#include <stdexcept>
#include <utility>

#include <nlohmann/json.hpp>

#include <tarvik/interface/ServerRequest.h>

#include "host/server/net/service/Resources.h"
#include "host/server/wire/Envelope.h"

namespace Tarvik::Server {

TestServer::TestServer(const Change& change, std::unique_ptr<RouteSource> routes) {
    Settings settings;
    settings.data = folder_.File("data");
    settings.port = 0;
    if (change) {
        change(settings);
    }
    ServerParts parts;
    parts.routes = routes ? std::move(routes) : std::make_unique<NoRoutes>();
    parts.clock = [this] { return now_.load(); };
    parts.sessionClock = parts.clock;
    parts.passwordCost = kCheap;
    parts.logSink = [this](const std::string& line) {
        const std::scoped_lock lock(logMutex_);
        log_.push_back(line);
    };
    std::string error;
    server_ = VoyageServer::Open(settings, std::move(parts), error);
    if (server_ == nullptr) {
        throw std::runtime_error(error);
    }
    thread_ = std::thread([this] { server_->Run(); });
}

TestServer::~TestServer() {
    server_->Stop();
    Join();
}

void TestServer::Join() {
    if (thread_.joinable()) {
        thread_.join();
    }
}

void TestServer::AddUser(const std::string& name, const std::string& password) {
    const auto added = server_->Accounts().AddUser(name, Passwords(kCheap).Hash(password));
    if (!added || !added.Value()) {
        throw std::runtime_error("the user cannot be added");
    }
}

RawReply TestServer::Ask(const std::string& method, const std::string& path, const std::string& body,
                         const std::string& token) {
    return RawClient(Port()).Ask(method, path, body, token);
}

RawReply TestServer::LogIn(const std::string& name, const std::string& password) {
    return Ask("POST", "/v1/login", LoginBody(name, password));
}

std::string TestServer::Token(const std::string& name, const std::string& password) {
    const RawReply reply = LogIn(name, password);
    return reply.status == 200 ? nlohmann::json::parse(reply.body)["token"].get<std::string>()
                               : std::string();
}

std::vector<std::string> TestServer::LogLines() {
    const std::scoped_lock lock(logMutex_);
    return log_;
}

std::uint64_t TestServer::OpenedConnections() const {
    const std::string text = server_->Counts().Print();
    const std::string name = "\nseaplan_connections_opened_total ";
    return std::stoull(text.substr(text.find(name) + name.size()));
}

std::string LoginBody(const std::string& name, const std::string& password) {
    return nlohmann::json{{"user", name}, {"password", password}}.dump();
}

std::string EnvelopeBody(std::uint16_t command, const std::string& text) {
    return WriteEnvelope({command, Interface::kVoyageModuleWord, text});
}

std::string EnvelopeText(const std::string& bytes) {
    const auto envelope = ReadEnvelope(bytes);
    return envelope ? std::string(envelope->text) : std::string();
}

}  // namespace Tarvik::Server
