// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/client/services/PortDictionary.h"

namespace Tarvik::Client {

/// What a typed word means: one port, or none with the ports that it may have meant.
struct PortMatch {
    enum class Kind { Found, Unknown, Ambiguous };
    Kind kind = Kind::Unknown;
    Port port;                     ///< valid for Found
    std::vector<Port> candidates;  ///< nearest first
};

/// Least number of insertions, deletions, replacements and swaps of neighbours that turn `a` into `b`.
std::size_t EditDistance(const std::string& a, const std::string& b);
/// ASCII letters in lower case, other bytes as they are.
std::string FoldCase(const std::string& text);

/// Finds ports by what a person types: a name in any case (English or Chinese), a UN/LOCODE with or without
/// its blank, an id, a name without the country that the table adds to it ("Rotterdam" for "Rotterdam,
/// Netherlands"), or the beginning of a name. The former go before the latter.
///
/// Of several ports of one name the busy one is meant, which is the one that has a Chinese name; a place that
/// stands in the table under two codes counts once. What then still fits several ports is ambiguous.
class PortLookup {
  public:
    /// The most candidates told for a word that fits no single port.
    static constexpr std::size_t kMaxCandidates = 6;

    explicit PortLookup(std::vector<Port> ports);
    PortMatch Find(const std::string& word) const;

  private:
    PortMatch Settle(std::vector<std::size_t> hits) const;
    void PreferBusy(std::vector<std::size_t>& hits) const;
    std::vector<Port> Nearest(const std::string& folded) const;

    std::vector<Port> ports_;
    std::vector<std::string> folded_;  ///< names in lower case, by port
};

}  // namespace Tarvik::Client
