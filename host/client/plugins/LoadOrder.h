// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <tarvik/core/PluginInfo.h>

namespace Tarvik::Client {

/// What the host knows of a plug-in before it is loaded.
struct PluginRecord {
    std::string name;  ///< programmatic name, the file's name when the record could not be read
    Core::Version version;
    std::vector<Plugin::PluginDependency> dependencies;
    std::string file;   ///< path of its library
    std::string error;  ///< why the library or its record is of no use; empty when both are sound
};

/// A plug-in that is left out, and why.
struct RejectedPlugin {
    std::size_t index = 0;  ///< among the records given
    std::string name;
    std::string reason;
};

/// Indices of the given records in the order of loading, and the plug-ins that are left out.
struct LoadOrder {
    std::vector<std::size_t> order;
    std::vector<RejectedPlugin> rejected;
};

/// "1.1.4": the parts that the text of the version had.
std::string VersionText(const Core::Version& version);

/// Orders plug-ins so that each comes behind all that it depends on; independent ones keep the order given.
/// Left out, each with its reason: a broken one, a second of one name, one that lacks a dependency or needs a
/// newer one, all that stand in a circle, and whatever depends on one that is left out.
LoadOrder ResolveLoadOrder(const std::vector<PluginRecord>& records, const Core::Version& hostVersion);

}  // namespace Tarvik::Client
