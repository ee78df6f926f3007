// SPDX-License-Identifier: MIT
// Decoding a feed as a busy shore station has it: seven position reports of class A and two of class B to one
// type 5 of two sentences. Aims: 5 million sentences/s on one core, and eight times what `gpsdecode -c` makes
// of the same feed in the same run, where that program is installed.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <string>
#include <sys/resource.h>
#include <unistd.h>

#include <benchmark/benchmark.h>

#include "host/plugins/ais/core/Decoder.h"
#include "host/plugins/ais/core/SentenceWriter.h"

namespace Tarvik::Ais {

namespace {

constexpr int kMessages = 100'000;
constexpr std::size_t kChunk = 65536;

std::string MakeFeed() {
    std::mt19937 random(1);
    const auto from = [&random](int first, int last) {
        return std::uniform_int_distribution<int>(first, last)(random);
    };
    std::string feed;
    for (int i = 0; i < kMessages; ++i) {
        RawMovement raw{1, from(200'000'000, 799'999'999)};
        raw.longitude = from(-108'000'000, 108'000'000);
        raw.latitude = from(-48'000'000, 48'000'000);
        raw.speed = from(0, 250);
        raw.course = from(0, 3599);
        raw.heading = from(0, 359);
        const BitWriter bits = i % 10 < 7   ? ClassA(raw)
                               : i % 10 < 9 ? ClassB(raw)
                                            : VoyageData(raw.mmsi, "SAMPLE SHIP", "CALLSGN", "ROTTERDAM");
        for (const std::string& line : Sentences(bits, i % 10 < 9 ? -1 : i / 10 % 10)) {
            feed += line + "\r\n";
        }
    }
    return feed;
}

void DecodeFeed(benchmark::State& state) {
    const std::string feed = MakeFeed();
    const auto lines = std::count(feed.begin(), feed.end(), '\n');
    std::uint64_t sum = 0;
    for (auto turn : state) {
        int messages = 0;
        Decoder decoder([&](const Message& message) {
            sum += message.mmsi;
            ++messages;
        });
        for (std::size_t at = 0; at < feed.size(); at += kChunk) {
            decoder.Take(std::string_view(feed).substr(at, kChunk), 0);
        }
        if (messages != kMessages) {
            state.SkipWithError("messages are missing");
        }
    }
    benchmark::DoNotOptimize(sum);
    state.SetItemsProcessed(state.iterations() * lines);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(feed.size()));
}
BENCHMARK(DecodeFeed)->Unit(benchmark::kMillisecond);

/// Processor time of the programs that were started and have ended, in seconds.
double ChildSeconds() {
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    const auto seconds = [](const timeval& time) {
        return double(time.tv_sec) + double(time.tv_usec) * 1e-6;
    };
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

/// The other decoder over the same feed in a file, by its processor time, as the first is.
void GpsdecodeFeed(benchmark::State& state) {
    const std::string feed = MakeFeed();
    const auto lines = std::count(feed.begin(), feed.end(), '\n');
    char file[] = "/tmp/ais_bench.XXXXXX";
    const int handle = mkstemp(file);
    if (handle < 0 || std::system("command -v gpsdecode >/dev/null 2>&1") != 0) {
        state.SkipWithError("gpsdecode is not installed");
    } else {
        std::ofstream(file, std::ios::binary) << feed;
    }
    const std::string command = std::string("gpsdecode -c <") + file + " >/dev/null";
    for (auto turn : state) {
        const double before = ChildSeconds();
        if (std::system(command.c_str()) != 0) {
            state.SkipWithError("gpsdecode failed");
            break;
        }
        state.SetIterationTime(ChildSeconds() - before);
    }
    state.SetItemsProcessed(state.iterations() * lines);
    if (handle >= 0) {
        close(handle);
        std::remove(file);
    }
}
BENCHMARK(GpsdecodeFeed)->Unit(benchmark::kMillisecond)->UseManualTime();

}  // namespace
}  // namespace Tarvik::Ais
