// SPDX-License-Identifier: MIT
#include "seaplan/data/VoyageStore.h"

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

}  // namespace Tarvik::Seaplan
