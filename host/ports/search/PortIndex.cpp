// SPDX-License-Identifier: MIT
/// Every name is folded once; a search compares what was typed with each of them: beginnings and words first,
/// and only where these leave room the bit-parallel distance (TypingDistance.h). No tree or table of pieces:
/// two thousand ports are compared in a fraction of a millisecond, and the order is told by one rank.
#include "host/ports/search/PortIndex.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>
#include <utility>

#include "host/ports/search/TypingDistance.h"

namespace Tarvik::Ports {

namespace {

constexpr double kSamePlace = 0.01;  ///< degrees; the table rounds positions to five decimals
constexpr std::size_t kCountryLetters = 2;
constexpr char32_t kHarbour = U'港';

std::string CountryOf(const Port& port) {
    return port.unlocode.substr(0, kCountryLetters);
}

bool IsSamePlace(const Port& a, const Port& b) {
    return CountryOf(a) == CountryOf(b) && std::abs(a.x - b.x) < kSamePlace &&
           std::abs(a.y - b.y) < kSamePlace;
}

/// Adds what the other listing of a place knows.
void Join(Port& kept, const Port& other) {
    const bool shorter = other.name.size() < kept.name.size();
    kept.aliases.push_back(shorter ? kept.name : other.name);
    kept.aliases.push_back(shorter ? kept.unlocode : other.unlocode);
    if (shorter) {
        kept.name = other.name;
        kept.unlocode = other.unlocode;
        kept.nameCn = other.nameCn;
    }
    kept.aliases.insert(kept.aliases.end(), other.aliases.begin(), other.aliases.end());
}

std::vector<Port> WithoutDoublets(const std::vector<Port>& ports) {
    std::vector<Port> kept;
    std::map<std::string, std::vector<std::size_t>> byCountry;
    for (const Port& port : ports) {
        std::vector<std::size_t>& compatriots = byCountry[CountryOf(port)];
        const auto same = std::find_if(compatriots.begin(), compatriots.end(),
                                       [&](std::size_t i) { return IsSamePlace(kept[i], port); });
        if (same != compatriots.end() && !port.unlocode.empty()) {
            Join(kept[*same], port);
        } else {
            compatriots.push_back(kept.size());
            kept.push_back(port);
        }
    }
    return kept;
}

/// How many typing errors are let pass.
std::size_t SlipsAllowed(const std::u32string& typed) {
    if (IsHan(typed[0])) {
        return typed.size() >= 3 ? 1 : 0;
    }
    return typed.size() >= 8 ? 2 : typed.size() >= 4 ? 1 : 0;
}

}  // namespace

std::vector<Port> PortsOf(const std::vector<Place>& places) {
    std::vector<Port> ports;
    for (const Place& place : places) {
        if (place.isPort) {
            const auto at = place.position.value_or(Server::GeoPoint());
            ports.push_back({place.name, place.nameCn, place.unlocode, at.x, at.y, place.aliases});
        }
    }
    return ports;
}

struct PortIndex::Query {
    Words words;
    std::u32string whole;
    /// Without the word for a harbour that people put behind a Chinese name.
    std::u32string bare;
};

/// How well a port fits; smaller is better.
struct PortIndex::Rank {
    const Key* key = nullptr;  ///< by which it fits best
    Fit fit = Fit::Slip;
    std::uint32_t slips = 0;

    bool IsHit() const { return key != nullptr; }
    void Take(const Key& by, Fit how, std::size_t errors) {
        const auto count = static_cast<std::uint32_t>(errors);
        if (key == nullptr || std::tuple(how, count, by.kind) < std::tuple(fit, slips, key->kind)) {
            key = &by;
            fit = how;
            slips = count;
        }
    }
};

PortIndex::PortIndex(const std::vector<Port>& ports) : ports_(WithoutDoublets(ports)) {
    countries_.resize(ports_.size());
    for (std::uint32_t i = 0; i < ports_.size(); ++i) {
        AddKeys(i);
    }
}

void PortIndex::AddKeys(std::uint32_t port) {
    const Port& added = ports_[port];
    AddKey(port, Kind::Name, 0, added.name);
    if (added.nameCn != added.name) {
        AddKey(port, Kind::Local, 0, added.nameCn);
    }
    AddKey(port, Kind::Code, 0, added.unlocode);
    for (std::uint32_t i = 0; i < added.aliases.size(); ++i) {
        AddKey(port, Kind::Alias, i, added.aliases[i]);
    }
    countries_[port] = folding_.Fold(CountryName(CountryOf(added), "en") + " " +
                                     CountryName(CountryOf(added), "zh") + " port");
}

void PortIndex::AddKey(std::uint32_t port, Kind kind, std::uint32_t alias, const std::string& text) {
    Words words = folding_.Fold(text);
    if (!words.empty()) {
        std::u32string whole = Joined(words);
        keys_.push_back({port, kind, alias, std::move(whole), std::move(words)});
    }
}

bool PortIndex::HoldsAll(const Words& words, const Key& key) const {
    const auto begins = [](const std::u32string& word) {
        return [&word](const std::u32string& other) {
            return other.starts_with(word) || (IsHan(word[0]) && other.find(word) != std::u32string::npos);
        };
    };
    bool own = false;
    for (const std::u32string& word : words) {
        const bool named = std::any_of(key.words.begin(), key.words.end(), begins(word));
        const Words& country = countries_[key.port];
        if (!named && std::none_of(country.begin(), country.end(), begins(word))) {
            return false;
        }
        own = own || named;
    }
    return own;
}

void PortIndex::RankKey(const Query& query, const Key& key, Rank& rank) const {
    if (key.whole == query.whole || key.whole == query.bare) {
        rank.Take(key, Fit::Whole, 0);
    } else if (key.whole.starts_with(query.whole)) {
        rank.Take(key, key.kind == Kind::Code ? Fit::Code : Fit::Beginning, 0);
    } else if (key.kind != Kind::Code && HoldsAll(query.words, key)) {
        rank.Take(key, Fit::Word, 0);
    }
}

void PortIndex::RankSlips(const Query& query, std::vector<Rank>& ranks) const {
    const std::size_t allowed = SlipsAllowed(query.whole);
    if (allowed == 0) {
        return;
    }
    const TypingDistance distance(query.whole);
    for (const Key& key : keys_) {
        Rank& rank = ranks[key.port];
        if (key.kind == Kind::Code || (rank.IsHit() && rank.fit != Fit::Slip)) {
            continue;
        }
        std::u32string_view rest = key.whole;
        for (const std::u32string& word : key.words) {
            if (const std::size_t slips = distance.To(rest); slips <= allowed) {
                rank.Take(key, Fit::Slip, slips);
            }
            rest.remove_prefix(word.size());
        }
    }
}

bool PortIndex::IsBusy(std::uint32_t port) const {
    return !ports_[port].nameCn.empty() && ports_[port].nameCn != ports_[port].name;
}

std::vector<PortHit> PortIndex::Search(std::string_view typed, std::size_t limit) const {
    Query query;
    query.words = folding_.Fold(typed);
    query.whole = Joined(query.words);
    query.bare = query.whole;
    if (query.bare.size() > 2 && query.bare.back() == kHarbour) {
        query.bare.pop_back();
    }
    std::vector<PortHit> hits;
    if (query.words.empty()) {
        return hits;
    }
    std::vector<Rank> ranks(ports_.size());
    for (const Key& key : keys_) {
        RankKey(query, key, ranks[key.port]);
    }
    const auto found = static_cast<std::size_t>(
        std::count_if(ranks.begin(), ranks.end(), [](const Rank& rank) { return rank.IsHit(); }));
    if (found < limit) {
        RankSlips(query, ranks);
    }
    std::erase_if(ranks, [](const Rank& rank) { return !rank.IsHit(); });
    const auto order = [this](const Rank& rank) {
        const Port& port = ports_[rank.key->port];
        return std::tuple(rank.fit, rank.slips, !IsBusy(rank.key->port), rank.key->whole.size(),
                          std::string_view(port.name));
    };
    const auto end = ranks.begin() + static_cast<std::ptrdiff_t>(std::min(limit, ranks.size()));
    std::partial_sort(ranks.begin(), end, ranks.end(),
                      [&order](const Rank& a, const Rank& b) { return order(a) < order(b); });
    for (auto rank = ranks.begin(); rank != end; ++rank) {
        hits.push_back(HitOf(*rank));
    }
    return hits;
}

PortHit PortIndex::HitOf(const Rank& rank) const {
    const Port& port = ports_[rank.key->port];
    const Kind kind = rank.key->kind;
    return {&port, rank.fit,
            kind == Kind::Local   ? port.nameCn
            : kind == Kind::Alias ? port.aliases[rank.key->alias]
                                  : std::string()};
}

}  // namespace Tarvik::Ports
