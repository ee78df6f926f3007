// SPDX-License-Identifier: MIT
#include "bench/server/CatalogLoad.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <functional>
#include <memory>
#include <new>
#include <stdexcept>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include <tarvik/bus/HostContract.h>
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/ServerRequest.h>

#include "bench/server/OfficeServer.h"
#include "host/client/remote/RemoteLink.h"
#include "host/server/app/EmbeddedServer.h"
#include "host/server/net/service/Resources.h"
#include "seaplan/data/VoyageStore.h"
#include "seaplan/protocol/VoyCatalogModule.h"

namespace Bench {

using namespace Tarvik;

namespace {

using Exchange = std::function<std::string(const Interface::VoyServerRequest&)>;

/// The host's side of the bus, as the client has it.
class ForwardingHost : public Core::TObject {
  public:
    explicit ForwardingHost(Exchange exchange) : exchange_(std::move(exchange)) {
        event_.Set<&ForwardingHost::OnExchange>(this);
        Core::TrvKernel::Instance()->CreateTrvService(Interface::Bus::ServerExchange.name, this, "", "",
                                                      &event_);
    }
    ~ForwardingHost() override {
        Core::TrvKernel::Instance()->UnBindTrvService(Interface::Bus::ServerExchange.name, &event_);
        Core::TrvKernel::Instance()->DeleteTrvService(Interface::Bus::ServerExchange.name, this);
    }
    ForwardingHost(const ForwardingHost&) = delete;
    ForwardingHost& operator=(const ForwardingHost&) = delete;

  private:
    void* OnExchange(void* input) {
        const auto& request = *static_cast<const Interface::VoyServerRequest*>(input);
        const std::string text = exchange_(request);
        void* block = Core::AllocateBusBlock(sizeof(Interface::VoyServerRequest) + text.size() + 1);
        auto* reply = new (block) Interface::VoyServerRequest{static_cast<std::uint32_t>(text.size() + 1),
                                                              request.command, request.moduleWord};
        std::memcpy(reply->Payload(), text.c_str(), text.size() + 1);
        return reply;
    }

    Exchange exchange_;
    Core::TEvent event_;
};

CatalogTimes Measure(const Exchange& exchange, int runs) {
    const ForwardingHost host(exchange);
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        Seaplan::VoyageStore store;
        const int result = Seaplan::VoyCatalogModule(&store).LoadAll(OfficeServer::kLargeUser);
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begin;
        if (result != 0 || store.voyages.size() != OfficeServer::kVoyages) {
            throw std::runtime_error("the catalog did not load");
        }
        times.push_back(took.count());
    }
    std::sort(times.begin(), times.end());
    return {times[times.size() / 2], times.back()};
}

}  // namespace

CatalogTimes LoadFromServer(std::uint16_t port, int runs) {
    Client::RemoteSettings settings;
    settings.url = fmt::format("http://127.0.0.1:{}", port);
    settings.user = OfficeServer::kLargeUser;
    settings.password = OfficeServer::kPassword;
    Client::RemoteLink link(settings);
    std::string error;
    if (!link.Connect(error)) {
        throw std::runtime_error(error);
    }
    return Measure([&](const auto& request) { return link.Exchange(OfficeServer::kLargeUser, request); },
                   runs);
}

CatalogTimes LoadFromFile(const std::string& database, int runs) {
    std::string error;
    const auto server = Server::EmbeddedServer::Open(database, std::make_unique<Server::NoRoutes>(), error);
    if (server == nullptr) {
        throw std::runtime_error(error);
    }
    return Measure([&](const auto& request) { return server->Exchange(OfficeServer::kLargeUser, &request); },
                   runs);
}

}  // namespace Bench
