// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/client/plugins/LoadOrder.h"
#include "host/client/plugins/PluginLibrary.h"

namespace Tarvik::Client {

/// A plug-in's way; each state is reached from the one before it, Failed from any.
enum class PluginState {
    Found,     ///< its file is known
    Read,      ///< its record is read: name, version and dependencies are valid
    Resolved,  ///< all that it depends on is there
    Loaded,    ///< Load has succeeded
    Running,   ///< InitPlugin and SuiteLoaded have been called
    Failed     ///< left out; the error says why
};

/// One plug-in as the loader knows it.
struct LoadedPlugin {
    PluginRecord record;
    PluginState state = PluginState::Found;
    std::string error;  ///< valid in state Failed
    std::shared_ptr<PluginLibrary> library;
};

/// Finds, orders and loads plug-ins. One that fails keeps its own error and is left out with all that needs
/// it, the rest runs.
class PluginLoader {
  public:
    /// Libraries of a folder that may be plug-ins, in order of name; the SDK's own libraries are none.
    static std::vector<std::string> FindLibraries(const std::string& folder);

    /// Reads, orders and loads the given libraries; may be called once.
    void LoadAll(const std::vector<std::string>& files, const Core::Version& hostVersion);
    /// Calls UnLoad of what runs, in opposite order.
    void UnloadAll();

    const std::vector<LoadedPlugin>& Plugins() const { return plugins_; }
    bool IsRunning(const std::string& name) const;
    /// One line for each plug-in that was left out: "Seaplan: needs …".
    std::vector<std::string> Complaints() const;

  private:
    void Read(const std::string& file);
    /// The first thing that the plug-in needs and that is not among the loaded, or empty.
    std::string MissingNeed(const LoadedPlugin& plugin) const;
    void LoadOne(std::size_t index);
    /// Takes one step with all that are loaded, in order; what fails, and all that needs it, is unloaded.
    void StepAll(bool (PluginLibrary::*step)(std::string&) const, PluginState reached);
    void Fail(LoadedPlugin& plugin, const std::string& error);

    std::vector<LoadedPlugin> plugins_;
    std::vector<std::size_t> loaded_;
};

}  // namespace Tarvik::Client
