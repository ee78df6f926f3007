// SPDX-License-Identifier: MIT
// The voyage server under load over loopback, each server in a process of its own: small reads beside an echo
// server of the same stack, the memory of idle clients, the load of a large catalog. Prints one line a
// figure.
#include <algorithm>
#include <array>
#include <exception>
#include <functional>
#include <iostream>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "bench/server/CatalogLoad.h"
#include "bench/server/ChildProcess.h"
#include "bench/server/EchoService.h"
#include "bench/server/IdleClients.h"
#include "bench/server/LoadClient.h"
#include "bench/server/OfficeServer.h"
#include "bench/server/WriteBench.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace {

using namespace Bench;
using Tarvik::Server::Lane;
using Tarvik::Server::TempFolder;

constexpr int kConnections = 32;
constexpr int kRounds = 5;
constexpr std::chrono::milliseconds kTime{2000};
constexpr int kIdle = 5000;

/// One server under load, round after round.
class Contestant {
  public:
    using Serve = std::function<void(const ChildProcess::Ready&)>;

    Contestant(std::string name, const Serve& serve) : name_(std::move(name)), server_(serve) {}

    std::uint16_t Port() const { return server_.Port(); }
    void SetRequests(std::vector<std::string> requests) { requests_ = std::move(requests); }
    void RunRound() {
        const double before = server_.ProcessorSeconds();
        rounds_.push_back(RunLoad(Port(), requests_, kConnections, kTime));
        processor_ += server_.ProcessorSeconds() - before;
        answered_ += rounds_.back().requests;
    }
    /// The middle one of the rounds by requests per second.
    LoadResult Middle() {
        std::sort(rounds_.begin(), rounds_.end(), [](const LoadResult& a, const LoadResult& b) {
            return a.requestsPerSecond < b.requestsPerSecond;
        });
        return rounds_[rounds_.size() / 2];
    }
    void Print() {
        const LoadResult middle = Middle();
        std::cout << fmt::format(
            "{:<36} {:>6.0f}/s (best {:.0f})  p50 {:.2f} ms  p99 {:.2f} ms  {} bytes  {:.1f} us of "
            "processor\n",
            name_, middle.requestsPerSecond, rounds_.back().requestsPerSecond, middle.p50Ms, middle.p99Ms,
            middle.replyBytes, processor_ * 1e6 / static_cast<double>(answered_));
    }

  private:
    std::string name_;
    ChildProcess server_;
    std::vector<std::string> requests_;
    std::vector<LoadResult> rounds_;
    double processor_ = 0;
    std::size_t answered_ = 0;
};

/// In turns, so that what else the machine does falls on all alike.
void MeasureReads() {
    const TempFolder quiet;
    const TempFolder logged;
    std::array<Contestant, 4> all = {
        Contestant("echo, by the thread that reads",
                   [](const auto& ready) { ServeEchoes(Lane::Inline, ready); }),
        Contestant("echo, by the pool", [](const auto& ready) { ServeEchoes(Lane::Read, ready); }),
        Contestant("small reads, without request log",
                   [&](const auto& ready) { OfficeServer::Serve({quiet.File(".")}, ready); }),
        Contestant("small reads, with request log", [&](const auto& ready) {
            OfficeServer::Serve({logged.File("."), true}, ready);
        })};
    for (std::size_t i = 0; i < all.size(); ++i) {
        const std::string token =
            i < 2 ? std::string(43, 'x') : OfficeServer::LogIn(all[i].Port(), OfficeServer::kSmallUser);
        all[i].SetRequests(OfficeServer::SmallReads(token));
    }
    for (int round = 0; round < kRounds; ++round) {
        for (Contestant& one : all) {
            one.RunRound();
        }
    }
    for (Contestant& one : all) {
        one.Print();
    }
    const auto part = [&](std::size_t i) {
        return 100 * all[i].Middle().requestsPerSecond / all[1].Middle().requestsPerSecond;
    };
    std::cout << fmt::format("reads are {:.0f} % of the pool's echoes, {:.0f} % with the log\n", part(2),
                             part(3));
}

void MeasureIdleClients() {
    if (!IdleClients::AllowFiles(kIdle)) {
        std::cout << "idle clients: the system grants too few open files\n";
        return;
    }
    const TempFolder folder;
    const ChildProcess server([&](const auto& ready) { OfficeServer::Serve({folder.File(".")}, ready); });
    const std::string token = OfficeServer::LogIn(server.Port(), OfficeServer::kSmallUser);
    const std::string request = OfficeServer::SmallReads(token)[1];
    const std::size_t before = server.ResidentBytes();
    const IdleClients clients(server.Port(), kIdle, request);
    const std::size_t after = server.ResidentBytes();
    std::cout << fmt::format("{} idle clients: {:.1f} MB more, {:.1f} KB each; {:.1f} MB in all\n", kIdle,
                             static_cast<double>(after - before) / 1e6,
                             static_cast<double>(after - before) / 1e3 / kIdle,
                             static_cast<double>(after) / 1e6);
}

void MeasureCatalog() {
    const TempFolder folder;
    CatalogTimes remote;
    {
        const ChildProcess server([&](const auto& ready) { OfficeServer::Serve({folder.File(".")}, ready); });
        remote = LoadFromServer(server.Port(), 15);
    }
    const CatalogTimes embedded = LoadFromFile(folder.File("voyages.db"), 15);
    const auto print = [](const char* what, const CatalogTimes& times) {
        std::cout << fmt::format("LoadAll of {} voyages, {}: median {:.0f} ms, worst {:.0f} ms\n",
                                 OfficeServer::kVoyages, what, times.median, times.worst);
    };
    print("request over HTTP to filled store", remote);
    print("in the client", embedded);
}

}  // namespace

/// Without words measures all, else what they name: reads, idle, catalog, writes, tls.
int main(int count, char** words) {
    const std::vector<std::pair<std::string_view, void (*)()>> all = {{"reads", MeasureReads},
                                                                      {"idle", MeasureIdleClients},
                                                                      {"catalog", MeasureCatalog},
                                                                      {"writes", MeasureWrites},
                                                                      {"tls", MeasureTls}};
    // The benchmarks beside this one take options, which are given to all.
    std::vector<std::string_view> named(words + 1, words + count);
    std::erase_if(named, [](std::string_view word) { return word.starts_with("-"); });
    try {
        for (const auto& [name, measure] : all) {
            if (named.empty() || std::find(named.begin(), named.end(), name) != named.end()) {
                measure();
            }
        }
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "server_bench: " << failure.what() << "\n";
        return 1;
    }
}
