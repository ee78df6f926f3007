// SPDX-License-Identifier: MIT
#include "host/client/plan/PortLookup.h"

#include <algorithm>
#include <utility>

namespace Tarvik::Client {

std::size_t EditDistance(const std::string& a, const std::string& b) {
    std::vector<std::size_t> beforeLast(b.size() + 1), last(b.size() + 1), row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) {
        row[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t change = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            row[j] = std::min({change, last[j] + 1, row[j - 1] + 1});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            }
        }
    }
    return row[b.size()];
}

std::string FoldCase(const std::string& text) {
    std::string folded = text;
    for (char& c : folded) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return folded;
}

PortLookup::PortLookup(std::vector<Port> ports) : ports_(std::move(ports)) {
    folded_.reserve(ports_.size());
    for (const Port& port : ports_) {
        folded_.push_back(FoldCase(port.name));
    }
}

void PortLookup::PreferBusy(std::vector<std::size_t>& hits) const {
    const auto isQuiet = [this](std::size_t i) {
        return ports_[i].nameCn.empty() || ports_[i].nameCn == ports_[i].name;
    };
    if (!std::all_of(hits.begin(), hits.end(), isQuiet)) {
        std::erase_if(hits, isQuiet);
    }
}

PortMatch PortLookup::Settle(std::vector<std::size_t> hits) const {
    const Port& first = ports_[hits.front()];
    const auto isFirst = [&](std::size_t i) { return ports_[i].x == first.x && ports_[i].y == first.y; };
    if (std::all_of(hits.begin(), hits.end(), isFirst)) {
        hits.resize(1);
    }
    PortMatch match;
    if (hits.size() == 1) {
        match.kind = PortMatch::Kind::Found;
        match.port = ports_[hits.front()];
        return match;
    }
    match.kind = PortMatch::Kind::Ambiguous;
    for (std::size_t i = 0; i < std::min(hits.size(), kMaxCandidates); ++i) {
        match.candidates.push_back(ports_[hits[i]]);
    }
    return match;
}

PortMatch PortLookup::Find(const std::string& word) const {
    const std::string folded = FoldCase(word);
    std::string code = folded;
    std::erase(code, ' ');
    std::vector<std::size_t> names, codes, ids, bareNames, beginnings;
    for (std::size_t i = 0; i < ports_.size() && !folded.empty(); ++i) {
        const Port& port = ports_[i];
        if (folded_[i] == folded || port.nameCn == word) {
            names.push_back(i);
        }
        if (!port.unlocode.empty() && FoldCase(port.unlocode) == code) {
            codes.push_back(i);
        }
        if (port.id == word) {
            ids.push_back(i);
        }
        if (folded_[i].starts_with(folded + ", ")) {
            bareNames.push_back(i);
        }
        if (folded_[i].starts_with(folded) || port.nameCn.starts_with(word)) {
            beginnings.push_back(i);
        }
    }
    PreferBusy(names);
    PreferBusy(bareNames);
    for (std::vector<std::size_t>* hits : {&names, &codes, &ids, &bareNames, &beginnings}) {
        if (!hits->empty()) {
            return Settle(std::move(*hits));
        }
    }
    PortMatch match;
    match.candidates = Nearest(folded);
    return match;
}

std::vector<Port> PortLookup::Nearest(const std::string& folded) const {
    std::vector<std::pair<std::size_t, std::size_t>> scored;
    for (std::size_t i = 0; i < ports_.size(); ++i) {
        // A slip in the beginning of a long name is as near as one in the whole of a short name.
        const std::string head = folded_[i].substr(0, folded.size());
        const std::size_t score =
            std::min(2 * EditDistance(folded, folded_[i]), 2 * EditDistance(folded, head) + 1);
        scored.emplace_back(score, i);
    }
    std::sort(scored.begin(), scored.end());
    std::vector<Port> near;
    const std::size_t limit = std::max<std::size_t>(5, folded.size());
    for (const auto& [score, index] : scored) {
        if (near.size() == kMaxCandidates || score > limit) {
            break;
        }
        near.push_back(ports_[index]);
    }
    return near;
}

}  // namespace Tarvik::Client
