// SPDX-License-Identifier: MIT
#include "tests/protocol/BusServer.h"

#include <cstring>
#include <new>
#include <stdexcept>

#include <tarvik/bus/HostContract.h>
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/ServerRequest.h>

namespace Tarvik::Server {

namespace {

namespace Bus = Interface::Bus;

class NoRoutes : public RouteSource {
  public:
    std::string Plan(std::string_view) override { return R"({"eid":1,"emsg":"no routes"})"; }
    std::string Nearest(std::string_view) override { return R"({"eid":1,"emsg":"no routes"})"; }
};

}  // namespace

BusServer::BusServer(const std::string& dbPath, std::unique_ptr<RouteSource> routes) {
    std::string error;
    if (routes == nullptr) {
        routes = std::make_unique<NoRoutes>();
    }
    server_ = EmbeddedServer::Open(dbPath, std::move(routes), error, [this] { return now; });
    if (server_ == nullptr) {
        throw std::runtime_error(error);
    }
    Bind<&BusServer::OnExchange>(Bus::ServerExchange.name);
    Bind<&BusServer::OnConnected>(Bus::IsConnected.name);
    Bind<&BusServer::OnUser>(Bus::User.name);
    Bind<&BusServer::OnZone>(Bus::CurrentTimeZone.name);
}

BusServer::~BusServer() {
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    for (const auto& [name, delegate] : bindings_) {
        kernel->UnBindTrvService(name, delegate.get());
        kernel->DeleteTrvService(name, this);
    }
}

template <auto Method>
void BusServer::Bind(const char* name) {
    auto delegate = std::make_unique<Core::TEvent>();
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    kernel->CreateTrvService(name, this, "", "", nullptr);
    delegate->Set<Method>(this);
    kernel->BindTrvService(name, delegate.get());
    bindings_.emplace_back(name, std::move(delegate));
}

void* BusServer::OnExchange(void* input) {
    const auto* request = static_cast<const Interface::VoyServerRequest*>(input);
    const std::string text = server_->Exchange(user, request);
    if (watch) {
        watch(*request, text);
    }
    void* block = Core::AllocateBusBlock(sizeof(Interface::VoyServerRequest) + text.size() + 1);
    auto* reply = new (block) Interface::VoyServerRequest{static_cast<std::uint32_t>(text.size() + 1),
                                                          request->command, request->moduleWord};
    std::memcpy(reply->Payload(), text.c_str(), text.size() + 1);
    return reply;
}

void* BusServer::OnConnected(void* /*input*/) {
    static unsigned char connected = 1;
    return &connected;
}

void* BusServer::OnUser(void* /*input*/) {
    return &user;
}

void* BusServer::OnZone(void* /*input*/) {
    return &zone;
}

}  // namespace Tarvik::Server
