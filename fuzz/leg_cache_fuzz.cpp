// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "seaplan/calculation/LegCacheText.h"

using Tarvik::Seaplan::LegCache;

namespace {

LegCache ReadText(const std::string& text) {
    std::istringstream in(text);
    LegCache cache;
    ReadCache(in, cache);
    return cache;
}

std::string WriteText(const LegCache& cache) {
    std::ostringstream out;
    if (WriteCache(out, cache) != 0) {
        std::abort();  // every entry that was read has two stops
    }
    return out.str();
}

}  // namespace

/// A line is a leg of two stops, or has the code of what is wrong with it; then nothing is taken from it.
void CheckLine(const std::string& line) {
    Tarvik::Seaplan::RouteLegCacheEntry entry;
    entry.from = "left alone";
    const int code = ParseCacheLine(line, entry);
    const bool known = code <= 0 && code >= -13;
    const bool whole =
        code == 0 ? entry.stops.size() == 2 : entry.stops.empty() && entry.from == "left alone";
    if (!known || !whole) {
        std::abort();
    }
}

// Whatever the file holds, the legs that it gives and that have segments are the same after writing and
// reading again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    CheckLine(text.substr(0, text.find('\n')));
    LegCache cache = ReadText(text);
    std::erase_if(cache, [](const auto& item) { return item.second.stops[1].routes.empty(); });
    const std::string written = WriteText(cache);
    const LegCache back = ReadText(written);
    if (back.size() != cache.size() || WriteText(back) != written) {
        std::abort();
    }
    return 0;
}
