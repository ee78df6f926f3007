// SPDX-License-Identifier: MIT
// Speed of Jsona against RapidJSON with its UTF-8 check, on the same bytes in one run. Compare the bytes per
// second, which count processor time: those of Jsona are to be the higher ones.
#include <cstdint>
#include <string>

#include <benchmark/benchmark.h>
#include <rapidjson/document.h>

#include <tarvik/util/Jsona.h>
#include <tarvik/util/StringUtl.h>

namespace {

using Tarvik::Util::StringUtl;

/// Voyages with port calls and position books, some of the texts Chinese or with escapes.
std::string MakeVoyages(int count) {
    std::string text = R"({"eid":0,"voyages":[)";
    for (int i = 0; i < count; ++i) {
        text += StringUtl::Format(
            R"(%s{"vi":"%d","vn":"Voyage %d \u2013 south","vsn":"远洋%d","state":%d,"ports":[)",
            i == 0 ? "" : ",", 1000000 + i, i, i, i % 3);
        for (int port = 0; port < 6; ++port) {
            text += StringUtl::Format(R"(%s{"ppn":"上海 / Shanghai","ppi":"%d","psp":%.4f,"pw":%.2f,)",
                                      port == 0 ? "" : ",", 5000 + port, 12.5 + port, 0.05 * port);
            text +=
                StringUtl::Format(R"("eta":"2024-0%d-11 08:00:00","dist":%.3f})", port + 1, 713.25 * port);
        }
        text += R"(],"book":[)";
        for (int row = 0; row < 20; ++row) {
            text += StringUtl::Format(R"(%s"%.6f,%.6f",%.3f)", row == 0 ? "" : ",", 120.0 + row, 30.0 - row,
                                      row * 1.5);
        }
        text += "]}";
    }
    return text + "]}";
}

const std::string& Voyages() {
    static const std::string text = MakeVoyages(4000);
    return text;
}

void Jsona(benchmark::State& state) {
    for (auto _ : state) {
        Tarvik::Util::Jsona value;
        if (!value.parse(Voyages())) {
            state.SkipWithError("text refused");
        }
        benchmark::DoNotOptimize(value);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(Voyages().size()) * state.iterations());
}

void RapidJson(benchmark::State& state) {
    const std::string& text = Voyages();
    for (auto _ : state) {
        rapidjson::Document value;
        value.Parse<rapidjson::kParseValidateEncodingFlag>(text.data(), text.size());
        if (value.HasParseError()) {
            state.SkipWithError("text refused");
        }
        benchmark::DoNotOptimize(value);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * state.iterations());
}

BENCHMARK(Jsona)->Unit(benchmark::kMillisecond);
BENCHMARK(RapidJson)->Unit(benchmark::kMillisecond);

}  // namespace
