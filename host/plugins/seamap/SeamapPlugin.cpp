// SPDX-License-Identifier: MIT
#include <tarvik/core/SinglePlugin.h>

#include "host/plugins/seamap/core/LandSource.h"
#include "host/plugins/seamap/core/PortTable.h"
#include "host/plugins/seamap/widget/ChartServices.h"

namespace {

using namespace Tarvik;

Plugin::SinglePlugin<Seamap::ChartServices> plugin({
    .name = "PlgSeamap",
    .version = "1.1.0.0",
    .display = u"Sea chart",
    .description = u"Chart of the world with the lines, points and images of the other plug-ins",
    .make =
        [] {
            return std::make_unique<Seamap::ChartServices>(Seamap::ChartServices::Paths{
                Seamap::PortTable::DefaultPath(), Seamap::LandFileSource::DefaultPath()});
        },
});

}  // namespace

TARVIK_SINGLE_PLUGIN(plugin)
