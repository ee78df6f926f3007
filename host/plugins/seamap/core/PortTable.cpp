// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/PortTable.h"

#include <tarvik/util/FileUtl.h>

namespace Tarvik::Seamap {

const Interface::TrvMapPort* PortTable::Find(const std::string& id) {
    if (!loaded_) {
        Load();
    }
    const auto found = ports_.find(id);
    return found == ports_.end() ? nullptr : &found->second;
}

const std::vector<Ports::Place>& PortTable::Places() {
    if (!loaded_) {
        Load();
    }
    return places_;
}

void PortTable::Forget() {
    loaded_ = false;
    places_.clear();
    ports_.clear();
}

std::string PortTable::DefaultPath() {
    return Util::FileUtl::BusinessData(Util::kPointTableFile);
}

void PortTable::Load() {
    std::string error;
    loaded_ = Ports::ReadPlaces(path_, places_, error);
    for (const Ports::Place& place : places_) {
        // A row without a readable position is no place that could be shown.
        if (place.position) {
            ports_.try_emplace(
                place.id, Interface::TrvMapPort{place.id, place.name, place.position->x, place.position->y});
        }
    }
}

}  // namespace Tarvik::Seamap
