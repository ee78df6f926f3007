// SPDX-License-Identifier: MIT
#include <exception>
#include <memory>

#include <tarvik/core/Exports.h>
#include <tarvik/core/TrvKernel.h>

#include "host/plugins/seamap/core/LandSource.h"
#include "host/plugins/seamap/core/PortTable.h"
#include "host/plugins/seamap/widget/ChartServices.h"

namespace {

using Tarvik::Plugin::CPluginInfo;
using Tarvik::Seamap::ChartServices;
using Tarvik::Seamap::LandFileSource;
using Tarvik::Seamap::PortTable;

class SeamapInfo : public CPluginInfo {
  public:
    SeamapInfo() : CPluginInfo("TRV,1.1.4") {
        name = "PlgSeamap";
        version = "1.1.0.0";
        SetDisplayName(u"Sea chart");
        SetDescription(u"Chart of the world with the lines, points and images of the other plug-ins");
    }
};

SeamapInfo info;
std::unique_ptr<ChartServices> services;

}  // namespace

// Offers the chart's services on the bus; a second call changes nothing. False when that failed.
TARVIK_EXPORT bool Load() {
    try {
        if (!services) {
            services = std::make_unique<ChartServices>(
                ChartServices::Paths{PortTable::DefaultPath(), LandFileSource::DefaultPath()});
        }
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

// Takes the services back and closes the chart. To be called while the window system still stands.
TARVIK_EXPORT bool UnLoad() {
    services.reset();
    return true;
}

TARVIK_EXPORT CPluginInfo* PluginInfo() {
    return &info;
}

TARVIK_EXPORT void InitPlugin() {}

TARVIK_EXPORT void SuiteLoaded() {}

TARVIK_EXPORT bool CheckEnvironment() {
    return Tarvik::Core::TrvKernel::Instance() != nullptr;
}
