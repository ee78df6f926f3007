// SPDX-License-Identifier: MIT
#include <memory>

#include <tarvik/core/Exports.h>
#include <tarvik/core/TrvKernel.h>

#include "host/plugins/fleet/window/FleetDesk.h"

namespace {

using namespace Tarvik;

class FleetInfo : public Plugin::CPluginInfo {
  public:
    FleetInfo() : CPluginInfo("TRV,1.1.4") {
        name = "PlgFleet";
        version = "1.0.0.0";
        SetDisplayName(u"Fleet");
        SetDescription(u"The user's own vessels");
    }
};

FleetInfo info;
std::unique_ptr<Fleet::FleetDesk> desk;

}  // namespace

// Offers the services; a second call changes nothing.
TARVIK_EXPORT bool Load() {
    if (!desk) {
        desk = std::make_unique<Fleet::FleetDesk>();
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
