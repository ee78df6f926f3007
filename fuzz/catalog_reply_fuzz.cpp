// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "seaplan/protocol/CatalogMessages.h"

using namespace Tarvik::Seaplan;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void CheckCategories(const VoyageStore& store) {
    Require(store.categories.size() == store.categoryStates.size());
    for (const auto& [id, category] : store.categories) {
        Require(!id.empty() && category.ci == id);
        Require(store.categoryStates.count(id) == 1);
    }
}

void CheckVoyages(const VoyageStore& store) {
    for (const auto& [id, voyages] : store.categoryVoyages) {
        Require(store.categories.count(id) == 1);
        for (const auto& [vi, state] : voyages) {
            Require(store.voyages.count(vi) == 1);
        }
    }
    for (const auto& [vi, voyage] : store.voyages) {
        Require(!vi.empty() && voyage.vi == vi);
        Require(voyage.figures[Vfa] == 0);
        Require(voyage.portCalls.empty() && voyage.positionBook.points.empty());
    }
}

}  // namespace

// Any JSON leaves a store that holds together, and reading the same reply again changes nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Tarvik::Util::Jsona reply;
    if (!reply.parse(std::string_view(reinterpret_cast<const char*>(data), size))) {
        return 0;
    }
    VoyageStore store;
    ReadCatalog(reply, store);
    CheckCategories(store);
    CheckVoyages(store);
    const std::size_t categories = store.categories.size();
    const std::size_t voyages = store.voyages.size();
    ReadCatalog(reply, store);
    Require(store.categories.size() == categories && store.voyages.size() == voyages);
    return 0;
}
