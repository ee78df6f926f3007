// SPDX-License-Identifier: MIT
#include "seaplan/data/VoyageStore.h"

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

VoyageStore* VoyageStore::Instance() {
    static auto* store = new VoyageStore;
    return store;
}

VoyInfo* VoyageStore::FindVoyage(const std::string& vi) {
    auto found = voyages.find(vi);
    return found == voyages.end() ? nullptr : &found->second;
}

void VoyageStore::Clear() {
    categories.clear();
    voyages.clear();
    categoryStates.clear();
    categoryVoyages.clear();
}

std::string UniqueName(const std::string& base, const std::map<std::string, int>& names) {
    std::string name;
    int i = 0;
    do {
        name = base + Util::StringUtl::Format(" - %d", i++);
    } while (names.count(name) > 0);
    return name;
}

void FillNameMaps(const VoyageStore& store, std::map<std::string, int>& categoryNames,
                  std::map<std::string, int>& voyageNames) {
    if (!categoryNames.empty()) {
        return;
    }
    for (const auto& [ci, category] : store.categories) {
        if (const auto state = store.categoryStates.find(ci); state != store.categoryStates.end()) {
            categoryNames[category.cn] = state->second;
        }
    }
    if (!voyageNames.empty()) {
        return;
    }
    for (const auto& [vi, voyage] : store.voyages) {
        if (!vi.empty()) {
            voyageNames[voyage.vn] = StateOfVoyage(store, vi);
        }
    }
}

std::vector<std::string> CategoriesInUse(const VoyageStore& store) {
    std::vector<std::string> names;
    for (const auto& [ci, category] : store.categories) {
        const auto state = store.categoryStates.find(ci);
        if (state != store.categoryStates.end() && state->second == InUse) {
            names.push_back(category.cn);
        }
    }
    return names;
}

int StateOfVoyage(const VoyageStore& store, const std::string& vi) {
    for (const auto& [ci, voyages] : store.categoryVoyages) {
        if (const auto found = voyages.find(vi); found != voyages.end()) {
            return found->second;
        }
    }
    return InRecycleBin;
}

}  // namespace Tarvik::Seaplan
