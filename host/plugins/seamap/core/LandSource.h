// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace Tarvik::Seamap {

/// A corner of land in degrees, as precise as the land file has it.
struct LandPoint {
    float lon = 0;
    float lat = 0;
};

using LandShape = std::vector<LandPoint>;

/// One level of detail: cells are closed polygons filled as land (together they cover it without overlap),
/// coasts are the open lines drawn as its shore.
struct LandLevel {
    std::vector<LandShape> cells;
    std::vector<LandShape> coasts;
};

/// Where the chart's land comes from.
class LandSource {
  public:
    virtual ~LandSource() = default;
    /// Levels from the coarsest to the finest; empty when there is no land to be had.
    virtual std::vector<LandLevel> Load() = 0;
};

/// The land file of the host's data.
class LandFileSource : public LandSource {
  public:
    explicit LandFileSource(std::string path) : path_(std::move(path)) {}
    /// Empty when the file is missing or damaged: the chart then shows sea and graticule only.
    std::vector<LandLevel> Load() override;
    /// The file of land below the host's folder.
    static std::string DefaultPath();

  private:
    std::string path_;
};

}  // namespace Tarvik::Seamap
