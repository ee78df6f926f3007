// SPDX-License-Identifier: MIT
#include <tarvik/core/SinglePlugin.h>

#include "host/plugins/fleet/window/FleetDesk.h"

namespace {

using namespace Tarvik;

Plugin::SinglePlugin<Fleet::FleetDesk> plugin({
    .name = "PlgFleet",
    .version = "1.0.0.0",
    .display = u"Fleet",
    .description = u"The user's own vessels",
    .make = [] { return std::make_unique<Fleet::FleetDesk>(); },
});

}  // namespace

TARVIK_SINGLE_PLUGIN(plugin)
