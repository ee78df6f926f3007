// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/VoyageStore.h"
#include "seaplan/panels/tests/FakeCommands.h"

namespace Tarvik::Seaplan {

/// Puts categories, voyages and saved schedules behind the fakes, as a server would hold them.
void AddSampleVoyages(FakeCatalog& catalog, FakeSchedule& schedule);
/// A few ports with their local names.
PortDirectory SamplePorts();

}  // namespace Tarvik::Seaplan
