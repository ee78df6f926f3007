// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/tests/PanelDesk.h"

namespace Tarvik::Seaplan {

/// Puts categories, voyages and saved schedules on the server.
void AddSampleVoyages(PanelDesk& desk);
/// A few ports with their local names.
PortDirectory SamplePorts();

}  // namespace Tarvik::Seaplan
