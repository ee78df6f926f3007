// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tarvik/util/Jsona.h>

namespace Tarvik::Util {

/// One value. Children of a container lie side by side in JsonaDocument::nodes, an object's as key, value,
/// key, value.
struct JsonaNode {
    std::uint32_t start = 0;  ///< text and numbers: first byte; containers: index of the first child
    std::uint32_t count = 0;  ///< text and numbers: bytes; containers: items or members
    std::uint32_t order = 0;  ///< objects with an index: its place in JsonaDocument::order
    Jsona::Kind kind = Jsona::Kind::None;
    bool decoded = false;  ///< text that held escapes and lies in the arena
};

/// What a parsed text turns into: a copy of the text and a table of values that point into it.
struct JsonaDocument {
    /// Objects of more members get an index of their keys.
    static constexpr std::uint32_t kLinearMembers = 16;

    std::string source;
    std::string arena;  ///< texts that held escapes, decoded
    std::vector<JsonaNode> nodes;
    std::vector<std::uint32_t> order;  ///< members in order of their keys, for each large object

    std::string_view Bytes(const JsonaNode& node) const {
        return std::string_view(node.decoded ? arena : source).substr(node.start, node.count);
    }
    /// Value of a member, or null.
    const JsonaNode* Member(const JsonaNode& object, std::string_view key) const;
    /// Item or member value at `index`, or null.
    const JsonaNode* Child(const JsonaNode& container, int index) const;

    std::string_view Key(const JsonaNode& object, std::uint32_t member) const {
        return Bytes(nodes[object.start + 2 * member]);
    }
};

}  // namespace Tarvik::Util
