// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/ports/PlaceTable.h"
#include "host/ports/search/Folding.h"

namespace Tarvik::Ports {

/// A port that can be found.
struct Port {
    std::string name;                  ///< English, as the plans spell it
    std::string nameCn;                ///< Chinese; empty or the English one where there is none
    std::string unlocode;              ///< five characters; may be empty
    double x = 0;                      ///< longitude in degrees
    double y = 0;                      ///< latitude in degrees
    std::vector<std::string> aliases;  ///< other names that people use
};

/// The ports among the places; one without a position stands at 0, 0.
std::vector<Port> PortsOf(const std::vector<Place>& places);

/// How a port fits what was typed; better ones first.
enum class Fit : std::uint8_t { Whole, Beginning, Code, Word, Slip };

/// A port that fits.
struct PortHit {
    const Port* port = nullptr;  ///< the index's
    Fit fit = Fit::Whole;
    std::string by;  ///< the Chinese name or alias that fits; empty when it is the name or the code
};

/// Finds ports by what a person types: a name or its beginning, in English or Chinese, or the UN/LOCODE;
/// then words of a name in any order, then names with small typing errors (one from four characters, of
/// Chinese from three; two from eight). Of ports that fit alike the busy one stands first, which is the one
/// with a Chinese name, then the shorter name.
///
/// A place that is listed twice, in one country and at one position, is one port with the shorter name.
class PortIndex {
  public:
    explicit PortIndex(const std::vector<Port>& ports);

    /// At most `limit` ports, the best first; none for a text without letters or digits. Takes less than a
    /// millisecond for some thousand ports.
    std::vector<PortHit> Search(std::string_view typed, std::size_t limit) const;
    std::size_t Size() const { return ports_.size(); }

  private:
    enum class Kind : std::uint8_t { Name, Local, Alias, Code };
    /// One name of a port.
    struct Key {
        std::uint32_t port = 0;
        Kind kind = Kind::Name;
        std::uint32_t alias = 0;  ///< which of its aliases
        std::u32string whole;     ///< without what parts its words
        Words words;
    };
    struct Query;
    struct Rank;

    void AddKeys(std::uint32_t port);
    void AddKey(std::uint32_t port, Kind kind, std::uint32_t alias, const std::string& text);
    bool HoldsAll(const Words& words, const Key& key) const;
    void RankKey(const Query& query, const Key& key, Rank& rank) const;
    void RankSlips(const Query& query, std::vector<Rank>& ranks) const;
    bool IsBusy(std::uint32_t port) const;
    PortHit HitOf(const Rank& rank) const;

    Folding folding_;
    std::vector<Port> ports_;
    std::vector<Key> keys_;
    std::vector<Words> countries_;  ///< words that go with each port's names: its country, and "port"
};

}  // namespace Tarvik::Ports
