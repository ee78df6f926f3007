// SPDX-License-Identifier: MIT
// The six exports of a plug-in.
#include <tarvik/core/Exports.h>

#if WRONG == 1
TARVIK_EXPORT const Tarvik::Plugin::CPluginInfo* PluginInfo() {
#else
TARVIK_EXPORT Tarvik::Plugin::CPluginInfo* PluginInfo() {
#endif
    static Tarvik::Plugin::CPluginInfo info("TRV,1.1.4");
    return &info;
}

#if WRONG == 2
TARVIK_EXPORT bool CheckEnvironment(const char*) {
#else
TARVIK_EXPORT bool CheckEnvironment() {
#endif
    return true;
}

#if WRONG == 3
TARVIK_EXPORT int Load() {
#else
TARVIK_EXPORT bool Load() {
#endif
    return true;
}

#if WRONG == 4
TARVIK_EXPORT bool InitPlugin() {
    return true;
}
#else
TARVIK_EXPORT void InitPlugin() {}
#endif

#if WRONG == 5
TARVIK_EXPORT void SuiteLoaded(int) {}
#else
TARVIK_EXPORT void SuiteLoaded() {}
#endif

#if WRONG == 6
TARVIK_EXPORT void UnLoad() {}
#else
TARVIK_EXPORT bool UnLoad() {
    return true;
}
#endif
