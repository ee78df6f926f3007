// SPDX-License-Identifier: MIT
#include <tarvik/core/TrvKernel.h>

#include "seaplan/plugin/CompositionRoot.h"
#include "seaplan/plugin/MainViewFactory.h"
#include "seaplan/plugin/PluginRecord.h"

/// What the host finds in the library. None of these fails, and nothing depends on their order but `Load`
/// coming before use.
extern "C" {

/// The host is not to see an exception: what was offered before it stays in use.
__attribute__((visibility("default"))) bool Load() {
    try {
        Tarvik::Seaplan::CompositionRoot::Instance().OfferServices();
        Tarvik::Seaplan::CreateMainView();
    } catch (...) {
        return true;
    }
    return true;
}

/// Bindings and objects live until the process ends.
__attribute__((visibility("default"))) bool UnLoad() {
    return true;
}

__attribute__((visibility("default"))) Tarvik::Plugin::CPluginInfo* PluginInfo() {
    return Tarvik::Seaplan::PluginRecord();
}

__attribute__((visibility("default"))) void InitPlugin() {}

__attribute__((visibility("default"))) void SuiteLoaded() {}

/// Touching the kernel makes it exist.
__attribute__((visibility("default"))) bool CheckEnvironment() {
    Tarvik::Core::TrvKernel::Instance();
    return true;
}

}  // extern "C"
