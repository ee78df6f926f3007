// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/Export.h>

namespace Tarvik::Util {

/// Where the host keeps its data.
class TARVIK_API FileUtl {
  public:
    /// Folder below which "businessdata" lies, without a separator at the end. Beside the program when run
    /// from the build tree, otherwise the user's data folder; the client sets it at start.
    static std::string GetCurrentAppDirectory();
    /// Client: puts the folder in force; separators at its end are dropped.
    static void SetCurrentAppDirectory(const std::string& folder);
    /// Turns each "\\" of a path into the system's separator.
    static std::string NativePath(const std::string& path);
};

}  // namespace Tarvik::Util
