// SPDX-License-Identifier: MIT
#include <tarvik/core/SinglePlugin.h>
#include <tarvik/util/FileUtl.h>

#include "host/plugins/infosearch/window/SearchDesk.h"

namespace {

using namespace Tarvik;

Plugin::SinglePlugin<InfoSearch::SearchDesk> plugin({
    .name = "PlgInfoSearch",
    .version = "1.0.0.0",
    .display = u"Search",
    .description = u"Ports while they are typed, and what is known of a vessel",
    .make =
        [] {
            return std::make_unique<InfoSearch::SearchDesk>(
                Util::FileUtl::BusinessData(Util::kPointTableFile));
        },
});

}  // namespace

TARVIK_SINGLE_PLUGIN(plugin)
