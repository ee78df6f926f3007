// SPDX-License-Identifier: MIT
#include "seaplan/data/PortDirectory.h"

#include <algorithm>
#include <cstddef>

#include <tarvik/interface/ValueDictionary.h>

#include "seaplan/data/OtherPortNames.h"

/// Typed names are found by binary search in a list that is sorted by name in upper case: a question costs
/// the logarithm of the number of ports, and the names that begin with a text stand side by side.
namespace Tarvik::Seaplan {

namespace {

constexpr const char* kPortsPath = "/points";

bool IsLocal(const std::string& text) {
    return !text.empty() && (static_cast<unsigned char>(text[0]) & 0x80U) != 0;
}

}  // namespace

std::string PortIdOf(const std::string& name) {
    return Interface::GetNameByValue(kPortsPath, name, Interface::kEnglishLanguage);
}

std::string PortNameOf(const std::string& id) {
    return Interface::GetValueByName(kPortsPath, id, Interface::kEnglishLanguage);
}

PortDirectory::PortDirectory(std::vector<std::string> names, NamesByLocal byLocal, SamePortLinks samePorts,
                             PointMap routePoints)
    : hasRoutePoints_(true),
      hasPorts_(true),
      hasLinks_(true),
      routePoints_(std::move(routePoints)),
      samePorts_(std::move(samePorts)),
      byLocal_(std::move(byLocal)) {
    SetNames(std::move(names));
}

std::string PortDirectory::Path() const {
    return database_.empty() ? PointDatabasePath() : database_;
}

const PointMap* PortDirectory::RoutePoints() {
    hasRoutePoints_ = hasRoutePoints_ || LoadRoutePoints(Path(), routePoints_) == 0;
    return hasRoutePoints_ ? &routePoints_ : nullptr;
}

const RoutePointRow* PortDirectory::FindReadRoutePoint(const std::string& id) const {
    const auto found = routePoints_.find(id);
    return found == routePoints_.end() ? nullptr : &found->second;
}

const PointMap* PortDirectory::PortPositions() {
    hasPorts_ = hasPorts_ || LoadPortPositions(Path(), ports_) == 0;
    return hasPorts_ ? &ports_ : nullptr;
}

const SamePortLinks& PortDirectory::SamePorts() {
    hasLinks_ = hasLinks_ || LoadSamePortLinks(Path(), samePorts_) == 0;
    return samePorts_;
}

bool PortDirectory::IsSamePlace(const std::string& idA, const std::string& idB) {
    return AreLinked(SamePorts(), idA, idB);
}

void PortDirectory::ReadNames() {
    std::vector<std::string> names;
    if (const PointMap* ports = PortPositions()) {
        for (const auto& [id, port] : *ports) {
            std::string name = PortNameOf(id);
            if (!name.empty()) {
                names.push_back(std::move(name));
            }
        }
    }
    SetNames(std::move(names));
    LoadPortNamesByLocal(Path(), byLocal_);
    byLocal_.merge(ReadOtherPortNames(Path()));
    hasNames_ = true;
}

void PortDirectory::ReadAnew() {
    hasPorts_ = false;
    ports_.clear();
    byLocal_.clear();
    if (hasNames_) {
        ReadNames();
    }
}

void PortDirectory::SetNames(std::vector<std::string> names) {
    names_.clear();
    for (std::string& name : names) {
        std::string folded = FoldedName(name);
        names_.emplace_back(std::move(folded), std::move(name));
    }
    std::sort(names_.begin(), names_.end());
    names_.erase(std::unique(names_.begin(), names_.end()), names_.end());
}

std::string PortDirectory::NameOf(const std::string& typed) const {
    if (IsLocal(typed)) {
        const auto local = byLocal_.find(typed);
        return local == byLocal_.end() ? std::string() : local->second;
    }
    if (Knows(typed)) {
        return typed;
    }
    const std::string key = FoldedName(typed);
    const auto it = std::lower_bound(names_.begin(), names_.end(), std::pair(key, std::string()));
    if (it != names_.end() && it->first == key) {
        return it->second;
    }
    const auto other = byLocal_.find(key);
    return other == byLocal_.end() ? typed : other->second;
}

bool PortDirectory::Knows(const std::string& name) const {
    return names_.empty() ||
           std::binary_search(names_.begin(), names_.end(), std::pair(FoldedName(name), name));
}

std::vector<std::string> PortDirectory::Match(const std::string& typed, std::size_t limit) const {
    std::vector<std::string> out;
    if (typed.empty()) {
        return out;
    }
    if (IsLocal(typed)) {
        for (auto it = byLocal_.lower_bound(typed);
             it != byLocal_.end() && out.size() < limit && it->first.starts_with(typed); ++it) {
            out.push_back(it->second);
        }
        return out;
    }
    const std::string key = FoldedName(typed);
    for (auto it = std::lower_bound(names_.begin(), names_.end(), std::pair(key, std::string()));
         it != names_.end() && out.size() < limit && it->first.starts_with(key); ++it) {
        out.push_back(it->second);
    }
    return out;
}

void ResolvePortIds(PortCallRows& rows) {
    for (VoyPortCall& row : rows) {
        if (row.ppi.empty()) {
            row.ppi = PortIdOf(row.ppn);
        }
    }
}

std::optional<std::size_t> FirstUnknownPort(const PortCallRows& rows) {
    const auto found = std::find_if(rows.begin(), rows.end(), [](const VoyPortCall& row) {
        return row.ppi.empty() && PortIdOf(row.ppn).empty();
    });
    return found == rows.end() ? std::nullopt : std::optional<std::size_t>(found - rows.begin());
}

void KeepPortIds(const PortCallRows& before, PortCallRows& rows) {
    for (std::size_t i = 0; i < std::min(before.size(), rows.size()); ++i) {
        if (rows[i].ppi.empty() && rows[i].ppn == before[i].ppn) {
            rows[i].ppi = before[i].ppi;
        }
    }
}

}  // namespace Tarvik::Seaplan
