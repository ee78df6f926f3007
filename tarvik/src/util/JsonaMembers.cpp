// SPDX-License-Identifier: MIT
// The part of the parser that closes containers and merges members of equal keys.
#include <algorithm>
#include <numeric>

#include "JsonaParser.h"

namespace Tarvik::Util {

// Moves the nodes behind `mark` into the document and puts their container in their place.
void JsonaParser::Close(Jsona::Kind kind, std::size_t mark) {
    JsonaNode node;
    node.kind = kind;
    node.count = static_cast<std::uint32_t>(stack_.size() - mark);
    if (kind == Jsona::Kind::Object) {
        node.count /= 2;
        if (node.count > JsonaDocument::kLinearMembers) {
            MergeMany(mark, node);
        } else if (node.count > 1) {
            node.count = MergeFew(mark);
        }
    }
    node.start = static_cast<std::uint32_t>(document_.nodes.size());
    document_.nodes.insert(document_.nodes.end(), stack_.begin() + static_cast<std::ptrdiff_t>(mark),
                           stack_.end());
    stack_.resize(mark);
    stack_.push_back(node);
}

// A later member of an equal key gives its value to the first and goes. A mask of key marks keeps most pairs
// apart without comparing them.
std::uint32_t JsonaParser::MergeFew(std::size_t mark) {
    std::uint64_t seen = 0;
    std::size_t kept = mark;
    for (std::size_t at = mark; at < stack_.size(); at += 2) {
        const std::string_view key = Bytes(at);
        const unsigned first = key.empty() ? 0U : static_cast<std::uint8_t>(key.front());
        const unsigned last = key.empty() ? 0U : static_cast<std::uint8_t>(key.back());
        const std::uint64_t bit = std::uint64_t{1} << ((key.size() * 11 + first * 3 + last * 7) & 63);
        std::size_t same = kept;
        if ((seen & bit) != 0) {
            for (same = mark; same < kept && Bytes(same) != key; same += 2) {
            }
        }
        seen |= bit;
        if (same < kept) {
            stack_[same + 1] = stack_[at + 1];
            continue;
        }
        stack_[kept] = stack_[at];
        stack_[kept + 1] = stack_[at + 1];
        kept += 2;
    }
    stack_.resize(kept);
    return static_cast<std::uint32_t>((kept - mark) / 2);
}

// The same for large objects by way of a sorted index, which stays for look-ups.
void JsonaParser::MergeMany(std::size_t mark, JsonaNode& object) {
    std::vector<std::uint32_t> sorted(object.count);
    std::iota(sorted.begin(), sorted.end(), 0U);
    const auto key = [&](std::uint32_t member) { return Bytes(mark + 2 * std::size_t{member}); };
    std::sort(sorted.begin(), sorted.end(), [&](std::uint32_t a, std::uint32_t b) {
        const int order = key(a).compare(key(b));
        return order != 0 ? order < 0 : a < b;
    });
    // Of equal keys the first member stays and takes the last one's value.
    constexpr std::uint32_t kGone = 0xFFFFFFFFU;
    std::vector<std::uint32_t> place(object.count, 0);
    std::vector<std::uint32_t> unique;
    for (const std::uint32_t member : sorted) {
        if (!unique.empty() && key(unique.back()) == key(member)) {
            stack_[mark + 2 * std::size_t{unique.back()} + 1] = stack_[mark + 2 * std::size_t{member} + 1];
            place[member] = kGone;
        } else {
            unique.push_back(member);
        }
    }
    std::uint32_t kept = 0;
    for (std::uint32_t member = 0; member < object.count; ++member) {
        if (place[member] == kGone) {
            continue;
        }
        stack_[mark + 2 * std::size_t{kept}] = stack_[mark + 2 * std::size_t{member}];
        stack_[mark + 2 * std::size_t{kept} + 1] = stack_[mark + 2 * std::size_t{member} + 1];
        place[member] = kept++;
    }
    stack_.resize(mark + 2 * std::size_t{kept});
    object.count = kept;
    object.order = static_cast<std::uint32_t>(document_.order.size());
    for (const std::uint32_t member : unique) {
        document_.order.push_back(place[member]);
    }
}

}  // namespace Tarvik::Util
