// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <tarvik/util/FileUtl.h>

#include "testsupport/TemporaryFolder.h"

namespace Tarvik::TestSupport {

/// One row of the table of points. Coordinates are texts, in degrees.
struct PointTableRow {
    std::string id;
    std::string name;
    std::string x;
    std::string y;
    bool isPort = true;
    std::string origid = "0";  ///< id of the port that this one is one place with, "0" for none
};

/// The host's data folder while a test runs: a new, empty temporary folder that is removed at the end with
/// everything in it.
class DataFolder {
  public:
    DataFolder();
    ~DataFolder();
    DataFolder(const DataFolder&) = delete;
    DataFolder& operator=(const DataFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    /// The table of points in its place in the folder; an older one is replaced. Throws std::runtime_error.
    void WritePoints(const std::vector<PointTableRow>& rows) const;
    /// Ports A, B, C on the equator at 0, 1 and 3 degrees, C2 that is one place with C, and the route points
    /// 105 "South Cape", 116 "North Cape" and 118 "Mid Cape" around 0.5 degrees.
    void WriteSamplePoints() const;
    std::filesystem::path PointsFile() const {
        return path_ / Util::kBusinessDataFolder / Util::kPointTableFile;
    }
    std::filesystem::path LegCacheFile() const {
        return path_ / Util::kBusinessDataFolder / "seaplan" / "Ports.dat";
    }

  private:
    TemporaryFolder folder_;
    std::filesystem::path path_{folder_.Path()};
};

}  // namespace Tarvik::TestSupport
