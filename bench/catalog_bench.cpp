// SPDX-License-Identifier: MIT
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <tarvik/bus/HostContract.h>
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/ServerRequest.h>

#include "seaplan/data/VoyageStore.h"
#include "seaplan/protocol/VoyCatalogModule.h"

namespace {

using namespace Tarvik;

/// A server's answer to command 3: categories of a hundred voyages each.
std::string CatalogOf(std::int64_t voyages) {
    std::string text = "[";
    for (std::int64_t i = 0; i < voyages; ++i) {
        if (i % 100 == 0) {
            text += fmt::format(R"({}{{"ci":"{}","cn":"Category {}","crk":"0","cd":"0","voys":[)",
                                i > 0 ? "]}," : "", i / 100 + 1, i / 100 + 1);
        }
        text += fmt::format(
            R"({}{{"vi":"{}","vn":"Voyage {}","vsi":"9{}","vsn":"Northern Light","vsmsi":"257000001",)"
            R"("vr":"1","va":"0","vfn":"30","vff":"28","vfa":"5","vdn":"2","vda":"2","vwn":"10","vwa":"10",)"
            R"("vrk":"0","modais":[],"vd":"0"}})",
            i % 100 == 0 ? "" : ",", i + 100000, i, i);
    }
    return text + "]}]";
}

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
    const ReplyingHost host(CatalogOf(state.range(0)));
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
