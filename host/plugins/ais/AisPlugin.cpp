// SPDX-License-Identifier: MIT
#include <exception>
#include <memory>

#include <tarvik/core/Exports.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/util/FileUtl.h>
#include <tarvik/util/Log.h>

#include "host/plugins/ais/window/Watch.h"

namespace {

using namespace Tarvik;

class AisInfo : public Plugin::CPluginInfo {
  public:
    AisInfo() : CPluginInfo("TRV,1.1.4") {
        name = "PlgAis";
        version = "1.0.0.0";
        SetDisplayName(u"AIS");
        SetDescription(u"Live positions of ships, their tracks and cards");
    }
};

AisInfo info;
std::unique_ptr<Ais::Watch> watch;

}  // namespace

// Offers the services; a second call changes nothing. False when that failed.
TARVIK_EXPORT bool Load() {
    try {
        if (!watch) {
            watch = std::make_unique<Ais::Watch>(
                Util::FileUtl::NativePath(Util::FileUtl::GetCurrentAppDirectory() + "\\businessdata\\ais"));
        }
        return true;
    } catch (const std::exception& failure) {
        Util::Log(Util::LogLevel::Error, std::string("AIS: ") + failure.what());
        return false;
    }
}

// Ends the inputs and takes the services back. To be called while the window system still stands.
TARVIK_EXPORT bool UnLoad() {
    watch.reset();
    return true;
}

TARVIK_EXPORT Plugin::CPluginInfo* PluginInfo() {
    return &info;
}

TARVIK_EXPORT void InitPlugin() {}

// The chart is there now, whatever the order of loading was.
TARVIK_EXPORT void SuiteLoaded() {
    if (watch) {
        watch->Start();
    }
}

TARVIK_EXPORT bool CheckEnvironment() {
    return Core::TrvKernel::Instance() != nullptr;
}
