// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "seaplan/protocol/CatalogMessages.h"

using namespace Tarvik::Seaplan;

namespace {

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void checkCategories(const VoyageStore& store) {
    require(store.categories.size() == store.categoryStates.size());
    for (const auto& [id, category] : store.categories) {
        require(!id.empty() && category.ci == id);
        require(store.categoryStates.count(id) == 1);
    }
}

void checkVoyages(const VoyageStore& store) {
    for (const auto& [id, voyages] : store.categoryVoyages) {
        require(store.categories.count(id) == 1);
        for (const auto& [vi, state] : voyages) {
            require(store.voyages.count(vi) == 1);
        }
    }
    for (const auto& [vi, voyage] : store.voyages) {
        require(!vi.empty() && voyage.vi == vi);
        require(voyage.figures[Vfa] == 0);
        require(voyage.portCalls.empty() && voyage.positionBook.points.empty());
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
    checkCategories(store);
    checkVoyages(store);
    const std::size_t categories = store.categories.size();
    const std::size_t voyages = store.voyages.size();
    ReadCatalog(reply, store);
    require(store.categories.size() == categories && store.voyages.size() == voyages);
    return 0;
}
