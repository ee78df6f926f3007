// SPDX-License-Identifier: MIT
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>

#include <benchmark/benchmark.h>

#include <tarvik/bus/HostContract.h>
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/ServerRequest.h>

#include "bench/CatalogText.h"
#include "seaplan/data/VoyageStore.h"
#include "seaplan/protocol/VoyCatalogModule.h"

namespace {

using namespace Tarvik;

/// Hands out one prepared reply, however often it is asked.
class ReplyingHost : public Core::TObject {
  public:
    explicit ReplyingHost(std::string reply) : reply_(std::move(reply)) {
        event_.Set<&ReplyingHost::OnExchange>(this);
        Core::TrvKernel::Instance()->CreateTrvService(Interface::Bus::ServerExchange.name, this, "", "",
                                                      &event_);
    }
    ~ReplyingHost() override {
        Core::TrvKernel::Instance()->UnBindTrvService(Interface::Bus::ServerExchange.name, &event_);
        Core::TrvKernel::Instance()->DeleteTrvService(Interface::Bus::ServerExchange.name, this);
    }
    ReplyingHost(const ReplyingHost&) = delete;
    ReplyingHost& operator=(const ReplyingHost&) = delete;

  private:
    void* OnExchange(void*) {
        auto* block =
            static_cast<Interface::VoyServerRequest*>(Core::AllocateBusBlock(reply_.size() + 1 + 8));
        *block = {static_cast<std::uint32_t>(reply_.size() + 1), 3, 5};
        std::memcpy(block->Payload(), reply_.c_str(), reply_.size() + 1);
        return block;
    }

    std::string reply_;
    Core::TEvent event_;
};

/// From the reply at hand to the filled store.
void LoadAll(benchmark::State& state) {
    const ReplyingHost host(CatalogText(state.range(0)));
    for (auto _ : state) {
        Seaplan::VoyageStore store;
        Seaplan::VoyCatalogModule module(&store);
        if (module.LoadAll("anna") != 0) {
            state.SkipWithError("the catalog did not load");
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(LoadAll)->Arg(100)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
