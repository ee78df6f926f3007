// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Seaplan {

class SeaplanViewDlg;
class VoyCatalogController;
class VoyController;

/// What the windows stand on; all of it outlives them.
struct ViewsDependencies {
    VoyCatalogController* catalog = nullptr;
    VoyController* voyages = nullptr;
    VoyageStore* store = nullptr;
    PortDirectory* ports = nullptr;
};

/// Makes the voyage panel with everything below it and ties it to the bus. False, with nothing made, in a
/// program without a window system or with a dependency missing. A second call changes nothing and answers
/// true.
bool CreateViews(const ViewsDependencies& dependencies);
/// The voyage panel, null before CreateViews succeeded.
SeaplanViewDlg* VoyagePanel();
/// Takes panels and windows away again and unties them from the bus.
void DestroyViews();

}  // namespace Tarvik::Seaplan
