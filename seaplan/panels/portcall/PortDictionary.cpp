// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PortDictionary.h"

#include <algorithm>
#include <utility>

#include <tarvik/interface/ValueDictionary.h>

#include "seaplan/calculation/PointTables.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kEnglish = 1033;

std::string Fold(const std::string& text) {
    std::string out = text;
    for (char& c : out) {
        if (c >= 'a' && c <= 'z') {
            c = static_cast<char>(c - 'a' + 'A');
        }
    }
    return out;
}

bool IsLocal(const std::string& text) {
    return !text.empty() && (static_cast<unsigned char>(text[0]) & 0x80U) != 0;
}

}  // namespace

PortDictionary::PortDictionary(std::vector<std::string> names, std::map<std::string, std::string> byLocal,
                               std::map<std::string, std::string> samePort)
    : byLocal_(std::move(byLocal)), samePort_(std::move(samePort)) {
    for (std::string& name : names) {
        std::string folded = Fold(name);
        names_.emplace_back(std::move(folded), std::move(name));
    }
    std::sort(names_.begin(), names_.end());
    names_.erase(std::unique(names_.begin(), names_.end()), names_.end());
}

PortDictionary PortDictionary::FromDatabase() {
    const std::string path = PointDatabasePath();
    PointMap ports;
    std::map<std::string, std::string> byLocal;
    std::map<std::string, std::string> samePort;
    LoadPortPositions(path, ports);
    LoadPortNamesByLocal(path, byLocal);
    LoadSamePortLinks(path, samePort);
    std::vector<std::string> names;
    // The table is asked for the places only: the host's dictionary has the names.
    for (const auto& [id, port] : ports) {
        std::string name = Interface::GetValueByName("/points", id, kEnglish);
        if (!name.empty()) {
            names.push_back(std::move(name));
        }
    }
    return {std::move(names), std::move(byLocal), std::move(samePort)};
}

std::string PortDictionary::NameOf(const std::string& typed) const {
    if (IsLocal(typed)) {
        const auto local = byLocal_.find(typed);
        return local == byLocal_.end() ? std::string() : local->second;
    }
    if (Knows(typed)) {
        return typed;
    }
    const std::string key = Fold(typed);
    const auto it = std::lower_bound(names_.begin(), names_.end(), std::pair(key, std::string()));
    return it == names_.end() || it->first != key ? typed : it->second;
}

bool PortDictionary::Knows(const std::string& name) const {
    return names_.empty() || std::binary_search(names_.begin(), names_.end(), std::pair(Fold(name), name));
}

std::vector<std::string> PortDictionary::Match(const std::string& typed, std::size_t limit) const {
    std::vector<std::string> out;
    if (typed.empty()) {
        return out;
    }
    if (IsLocal(typed)) {
        for (auto it = byLocal_.lower_bound(typed); it != byLocal_.end() && out.size() < limit; ++it) {
            if (it->first.compare(0, typed.size(), typed) != 0) {
                break;
            }
            out.push_back(it->second);
        }
        return out;
    }
    const std::string key = Fold(typed);
    for (auto it = std::lower_bound(names_.begin(), names_.end(), std::pair(key, std::string()));
         it != names_.end() && out.size() < limit; ++it) {
        if (it->first.compare(0, key.size(), key) != 0) {
            break;
        }
        out.push_back(it->second);
    }
    return out;
}

bool PortDictionary::IsSamePlace(const std::string& idA, const std::string& idB) const {
    return samePort_.contains(idA + "-" + idB);
}

}  // namespace Tarvik::Seaplan
