// SPDX-License-Identifier: MIT
#include "JsonaDocument.h"

#include <algorithm>

namespace Tarvik::Util {

const JsonaNode* JsonaDocument::Member(const JsonaNode& object, std::string_view key) const {
    if (object.kind != Jsona::Kind::Object) {
        return nullptr;
    }
    if (object.count > kLinearMembers) {
        const auto first = order.begin() + object.order;
        const auto last = first + object.count;
        const auto found = std::lower_bound(
            first, last, key,
            [&](std::uint32_t member, std::string_view wanted) { return Key(object, member) < wanted; });
        if (found == last || Key(object, *found) != key) {
            return nullptr;
        }
        return &nodes[object.start + 2 * *found + 1];
    }
    for (std::uint32_t member = 0; member < object.count; ++member) {
        if (Key(object, member) == key) {
            return &nodes[object.start + 2 * member + 1];
        }
    }
    return nullptr;
}

const JsonaNode* JsonaDocument::Child(const JsonaNode& container, int index) const {
    if (index < 0 || static_cast<std::uint32_t>(index) >= container.count) {
        return nullptr;
    }
    const auto at = static_cast<std::uint32_t>(index);
    if (container.kind == Jsona::Kind::Array) {
        return &nodes[container.start + at];
    }
    if (container.kind == Jsona::Kind::Object) {
        return &nodes[container.start + 2 * at + 1];
    }
    return nullptr;
}

}  // namespace Tarvik::Util
