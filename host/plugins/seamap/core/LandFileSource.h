// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/plugins/seamap/core/LandSource.h"

namespace Tarvik::Seamap {

/// The land file of the host's data.
class LandFileSource : public LandSource {
  public:
    explicit LandFileSource(std::string path) : path_(std::move(path)) {}
    /// Empty when the file is missing or damaged: the chart then shows sea and graticule only.
    std::vector<LandLevel> Load() override;
    /// "businessdata/land.bin" below the host's folder.
    static std::string DefaultPath();

  private:
    std::string path_;
};

}  // namespace Tarvik::Seamap
