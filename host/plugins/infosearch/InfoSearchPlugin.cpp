// SPDX-License-Identifier: MIT
#include <memory>

#include <tarvik/core/Exports.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/util/FileUtl.h>

#include "host/plugins/infosearch/window/SearchDesk.h"

namespace {

using namespace Tarvik;

class InfoSearchInfo : public Plugin::CPluginInfo {
  public:
    InfoSearchInfo() : CPluginInfo("TRV,1.1.4") {
        name = "PlgInfoSearch";
        version = "1.0.0.0";
        SetDisplayName(u"Search");
        SetDescription(u"Ports while they are typed, and what is known of a vessel");
    }
};

InfoSearchInfo info;
std::unique_ptr<InfoSearch::SearchDesk> desk;

}  // namespace

// Offers the services; a second call changes nothing.
TARVIK_EXPORT bool Load() {
    if (!desk) {
        desk = std::make_unique<InfoSearch::SearchDesk>(
            Util::FileUtl::NativePath(Util::FileUtl::GetCurrentAppDirectory() + "\\businessdata\\trvdb.db"));
    }
    return true;
}

// Takes the services back and its windows down. To be called while the window system still stands.
TARVIK_EXPORT bool UnLoad() {
    desk.reset();
    return true;
}

TARVIK_EXPORT Plugin::CPluginInfo* PluginInfo() {
    return &info;
}

TARVIK_EXPORT void InitPlugin() {}

TARVIK_EXPORT void SuiteLoaded() {}

TARVIK_EXPORT bool CheckEnvironment() {
    return Core::TrvKernel::Instance() != nullptr;
}
