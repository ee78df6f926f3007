// SPDX-License-Identifier: MIT
#include <tarvik/util/FileUtl.h>

#include "host/geo/LandFile.h"
#include "host/plugins/seamap/core/LandSource.h"

namespace Tarvik::Seamap {

namespace {

std::vector<LandShape> ShapesOf(const std::vector<Data::LandFile::Cell>& cells) {
    std::vector<LandShape> shapes;
    shapes.reserve(cells.size());
    for (const auto& cell : cells) {
        LandShape& shape = shapes.emplace_back();
        shape.reserve(cell.points.size());
        for (const auto& [lon, lat] : cell.points) {
            shape.push_back({lon, lat});
        }
    }
    return shapes;
}

}  // namespace

std::vector<LandLevel> LandFileSource::Load() {
    std::string error;
    const auto file = Data::LandFile::Load(path_, error);
    std::vector<LandLevel> levels;
    if (!file) {
        return levels;
    }
    for (std::size_t i = 0; i < Data::LandFile::kLevels; ++i) {
        levels.push_back({ShapesOf(file->levels[i]), ShapesOf(file->coasts[i])});
    }
    return levels;
}

std::string LandFileSource::DefaultPath() {
    return Util::FileUtl::BusinessData(Util::kLandFile);
}

}  // namespace Tarvik::Seamap
