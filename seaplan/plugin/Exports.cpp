// SPDX-License-Identifier: MIT
#include "seaplan/plugin/Exports.h"

#include <tarvik/core/Exports.h>
#include <tarvik/core/TrvKernel.h>

#include "seaplan/plugin/CompositionRoot.h"

// None of these fails, and nothing depends on their order but `Load` coming before use.

// The host is not to see an exception: what was offered before it stays in use.
TARVIK_EXPORT bool Load() {
    try {
        Tarvik::Seaplan::CompositionRoot::Instance().OfferServices();
        Tarvik::Seaplan::CreateMainView();
    } catch (...) {
        return true;
    }
    return true;
}

// Bindings and objects live until the process ends.
TARVIK_EXPORT bool UnLoad() {
    return true;
}

TARVIK_EXPORT Tarvik::Plugin::CPluginInfo* PluginInfo() {
    return Tarvik::Seaplan::PluginRecord();
}

TARVIK_EXPORT void InitPlugin() {}

TARVIK_EXPORT void SuiteLoaded() {}

// Touching the kernel makes it exist.
TARVIK_EXPORT bool CheckEnvironment() {
    Tarvik::Core::TrvKernel::Instance();
    return true;
}
