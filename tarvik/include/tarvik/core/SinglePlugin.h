// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>

#include <tarvik/core/Exports.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/util/Log.h>

namespace Tarvik::Plugin {

/// A plug-in that is one object: made when the client loads it, gone when it is unloaded, while the window
/// system still stands. One variable of this class and TARVIK_SINGLE_PLUGIN are a whole plug-in.
template <class Desk>
class SinglePlugin {
  public:
    /// What the plug-in tells of itself, and how its object comes about.
    struct Parts {
        const char* name;     ///< by which other plug-ins name it in their needs, "PlgSeamap"
        const char* version;  ///< as Core::Version reads it
        const char16_t* display;
        const char16_t* description;
        std::function<std::unique_ptr<Desk>()> make;
        /// Called when all plug-ins are there, whatever the order of loading was; none for nothing to do.
        std::function<void(Desk&)> suiteLoaded{};
    };

    /// A plug-in that needs nothing but this client.
    explicit SinglePlugin(Parts parts)
        : parts_(std::move(parts)), info_(std::string(kHostName) + "," + kHostVersion) {
        info_.name = parts_.name;
        info_.version = parts_.version;
        info_.SetDisplayName(parts_.display);
        info_.SetDescription(parts_.description);
    }
    CPluginInfo* Info() { return &info_; }
    /// Makes the object; a second call changes nothing. False, with a line in the log, when that failed.
    bool Load() {
        try {
            if (!desk_) {
                desk_ = parts_.make();
            }
            return true;
        } catch (const std::exception& failure) {
            Util::Log(Util::LogLevel::Error, std::string(parts_.name) + ": " + failure.what());
            return false;
        }
    }
    bool UnLoad() {
        desk_.reset();
        return true;
    }
    void SuiteLoaded() {
        if (desk_ && parts_.suiteLoaded) {
            parts_.suiteLoaded(*desk_);
        }
    }

  private:
    Parts parts_;
    CPluginInfo info_;
    std::unique_ptr<Desk> desk_;
};

}  // namespace Tarvik::Plugin

// clang-format off
/// The six exports of the library whose plug-in is the variable `plugin`.
#define TARVIK_SINGLE_PLUGIN(plugin) \
    TARVIK_EXPORT Tarvik::Plugin::CPluginInfo* PluginInfo() { return (plugin).Info(); } \
    TARVIK_EXPORT bool CheckEnvironment() { return Tarvik::Core::TrvKernel::Instance() != nullptr; } \
    TARVIK_EXPORT bool Load() { return (plugin).Load(); } \
    TARVIK_EXPORT void InitPlugin() {} \
    TARVIK_EXPORT void SuiteLoaded() { (plugin).SuiteLoaded(); } \
    TARVIK_EXPORT bool UnLoad() { return (plugin).UnLoad(); }
// clang-format on
