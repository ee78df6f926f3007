// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/core/Exports.h>

namespace Tarvik::Client {

/// One plug-in's shared library with its six exports. What differs by system about loading stands in this
/// class.
///
/// A library stays in the process once opened: delegates and static objects of a plug-in may be used until
/// the end.
class PluginLibrary {
  public:
    /// Opens the library and finds its exports. False with `error` when it is no library or an export is
    /// missing.
    bool Open(const std::string& file, std::string& error);
    /// The plug-in's description, null when it answers none. Valid after Open.
    const Plugin::CPluginInfo* Info(std::string& error) const;
    /// CheckEnvironment, then Load. False with `error` when either refuses or throws. Valid after Open.
    bool Load(std::string& error) const;
    /// InitPlugin of this plug-in. Valid after Load.
    bool Init(std::string& error) const;
    /// Tells the plug-in that all others are loaded. Valid after Load.
    bool SuiteLoaded(std::string& error) const;
    /// UnLoad. Valid after Load.
    void UnLoad() const;

    /// "lib" + name + this: what a plug-in's file is called on this system.
    static const char* Suffix();

  private:
    template <class Function>
    void Find(const char* name, Function*& found, std::string& error) const;

    void* handle_ = nullptr;
    decltype(&::PluginInfo) info_ = nullptr;
    decltype(&::CheckEnvironment) checkEnvironment_ = nullptr;
    decltype(&::Load) load_ = nullptr;
    decltype(&::InitPlugin) init_ = nullptr;
    decltype(&::SuiteLoaded) suiteLoaded_ = nullptr;
    decltype(&::UnLoad) unLoad_ = nullptr;
};

}  // namespace Tarvik::Client
