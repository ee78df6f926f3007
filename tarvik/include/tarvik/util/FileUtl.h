// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/Export.h>

namespace Tarvik::Util {

/// The folder of the files that several plug-ins read, below the host's, and the names of those files.
inline constexpr const char* kBusinessDataFolder = "businessdata";
inline constexpr const char* kPointTableFile = "trvdb.db";  ///< ports and route points
inline constexpr const char* kLandFile = "land.bin";

/// Where the host keeps its data.
class TARVIK_API FileUtl {
  public:
    /// Folder below which "businessdata" lies, without a separator at the end. Beside the program when run
    /// from the build tree, otherwise the user's data folder; the client sets it at start.
    static std::string GetCurrentAppDirectory();
    /// Client: puts the folder in force; separators at its end are dropped.
    static void SetCurrentAppDirectory(const std::string& folder);
    /// The path of a file or folder below kBusinessDataFolder, as kPointTableFile or "ais".
    static std::string BusinessData(const std::string& name);
    /// Turns each "\\" of a path into the system's separator.
    static std::string NativePath(const std::string& path);
};

}  // namespace Tarvik::Util
