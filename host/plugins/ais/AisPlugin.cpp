// SPDX-License-Identifier: MIT
#include <tarvik/core/SinglePlugin.h>
#include <tarvik/util/FileUtl.h>

#include "host/plugins/ais/window/Watch.h"

namespace {

using namespace Tarvik;

Plugin::SinglePlugin<Ais::Watch> plugin({
    .name = "PlgAis",
    .version = "1.0.0.0",
    .display = u"AIS",
    .description = u"Live positions of ships, their tracks and cards",
    .make = [] { return std::make_unique<Ais::Watch>(Util::FileUtl::BusinessData("ais")); },
    // The chart is there now.
    .suiteLoaded = [](Ais::Watch& watch) { watch.Start(); },
});

}  // namespace

TARVIK_SINGLE_PLUGIN(plugin)
