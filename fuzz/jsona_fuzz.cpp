// SPDX-License-Identifier: MIT
// Any bytes either parse into a document that can be walked, or are refused with an offset inside the text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include <tarvik/util/Jsona.h>

namespace {

using Tarvik::Util::Jsona;

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void Walk(const Jsona& value, int depth) {
    Require(depth <= 64);
    Require(value.kind() != Jsona::Kind::None);
    // No key is this one, since a text that is no UTF-8 does not parse.
    Require(!value.has("\xFF"));
    const bool object = value.kind() == Jsona::Kind::Object;
    for (int i = 0; i < value.size(); ++i) {
        const Jsona child = value.get(i);
        // Keys are unique, so the key leads back to the same member.
        if (object) {
            const std::string key = value.key(i);
            Require(value.has(key));
            Require(value.get(key).kind() == child.kind());
            Require(value.getv(key, "-") == value.getv(i, "-"));
        }
        Walk(child, depth + 1);
    }
    Require(value.get(value.size()).kind() == Jsona::Kind::None);
    static_cast<void>(value.text());
    static_cast<void>(value.integer(0));
    static_cast<void>(value.real(0.0));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    Jsona value;
    if (value.parse(text)) {
        Walk(value, 0);
    } else {
        Require(value.ErrorOffset() <= size);
        Require(value.kind() == Jsona::Kind::None && value.size() == 0);
    }
    return 0;
}
