// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/PortTable.h"

#include <vector>

#include <tarvik/util/FileUtl.h>

#include "host/ports/PlaceTable.h"

namespace Tarvik::Seamap {

const Interface::TrvMapPort* PortTable::Find(const std::string& id) {
    if (!loaded_) {
        Load();
    }
    const auto found = ports_.find(id);
    return found == ports_.end() ? nullptr : &found->second;
}

std::string PortTable::DefaultPath() {
    return Util::FileUtl::GetCurrentAppDirectory() + "/businessdata/trvdb.db";
}

void PortTable::Load() {
    std::vector<Ports::Place> places;
    std::string error;
    loaded_ = Ports::ReadPlaces(path_, places, error);
    for (const Ports::Place& place : places) {
        // A row without a readable position is no place that could be shown.
        if (place.position) {
            ports_.try_emplace(
                place.id, Interface::TrvMapPort{place.id, place.name, place.position->x, place.position->y});
        }
    }
}

}  // namespace Tarvik::Seamap
