// SPDX-License-Identifier: MIT
// One source for all plug-ins of these tests; the build gives each its name, its needs and its fault.
#include <cstdlib>
#include <stdexcept>

#include <tarvik/core/Exports.h>

namespace {

#if !defined(FAULT_NO_RECORD) && !defined(FAULT_RECORD_THROWS)
Tarvik::Plugin::CPluginInfo* Record() {
    static Tarvik::Plugin::CPluginInfo info(PLUGIN_NEEDS);
#if !defined(FAULT_NAMELESS)
    info.name = PLUGIN_NAME;
#endif
    info.version = PLUGIN_VERSION;
    return &info;
}
#endif

/// Leaves a trace of each call in the environment, in the order of the calls.
[[maybe_unused]] void Trace(const char* what) {
    const char* before = std::getenv("PLUGIN_TRACE");
    const std::string trace = std::string(before ? before : "") + what + ":" + PLUGIN_NAME + " ";
    setenv("PLUGIN_TRACE", trace.c_str(), 1);
}

}  // namespace

TARVIK_EXPORT Tarvik::Plugin::CPluginInfo* PluginInfo() {
#if defined(FAULT_NO_RECORD)
    return nullptr;
#elif defined(FAULT_RECORD_THROWS)
    throw std::runtime_error("no paper");
#else
    return Record();
#endif
}

TARVIK_EXPORT bool CheckEnvironment() {
#if defined(FAULT_REFUSES)
    return false;
#elif defined(FAULT_CHECK_THROWS)
    throw std::runtime_error("no water");
#else
    return true;
#endif
}

TARVIK_EXPORT bool Load() {
    Trace("load");
#if defined(FAULT_THROWS)
    throw std::runtime_error("no fuel");
#elif defined(FAULT_FALSE)
    return false;
#else
    return true;
#endif
}

#ifndef FAULT_NO_EXPORT
TARVIK_EXPORT bool UnLoad() {
    Trace("unload");
    return true;
}
#endif

TARVIK_EXPORT void InitPlugin() {
    Trace("init");
#ifdef FAULT_INIT_THROWS
    throw 7;
#endif
}

TARVIK_EXPORT void SuiteLoaded() {
    Trace("suite");
#ifdef FAULT_SUITE_THROWS
    throw std::runtime_error("no wind");
#endif
}
