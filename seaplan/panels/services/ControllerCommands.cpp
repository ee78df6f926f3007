// SPDX-License-Identifier: MIT
#include "seaplan/panels/services/ControllerCommands.h"

#include <tarvik/interface/BusContract.h>

namespace Tarvik::Seaplan {

int ScheduleControllerCommands::HideAisTrack(const std::string& vi) {
    const VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) return -1;
    if (!voyage->vsi.empty()) Interface::Call(Interface::Bus::HideAisTrack, &voyage->vsi);
    return 0;
}

}  // namespace Tarvik::Seaplan
