// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Tarvik::Data {

/// The land for the chart, in three levels of detail: 0 is the coarsest (1:110 million), 1 is 1:50 million, 2
/// is the finest (1:10 million).
///
/// `levels` holds the areas to fill, cut into cells of at most `kMaxPoints` points. A cell is a closed ring
/// without repeated last point; it may run back and forth on itself along the cuts and to a lake inside, so
/// it is right under both fill rules but must not be stroked. `coasts` holds the lines to stroke: open
/// polylines of at most `kMaxPoints` points, without the cuts between cells and along the date line.
/// Longitudes lie within ±180.
///
/// File layout, little-endian: the 8 bytes "LANDV001", the payload's length (u64), then for each level the
/// areas and the coasts: a count (u32) and per cell its count of points (u32) and its points (two f32,
/// longitude first).
struct LandFile {
    static constexpr std::size_t kLevels = 3;
    static constexpr std::size_t kMaxPoints = 400;

    struct Cell {
        float minX = 0.0F;
        float minY = 0.0F;
        float maxX = 0.0F;
        float maxY = 0.0F;
        std::vector<std::pair<float, float>> points;

        /// Sets the box from the points.
        void Measure();
    };

    std::array<std::vector<Cell>, kLevels> levels;
    std::array<std::vector<Cell>, kLevels> coasts;

    /// Reads a file; nothing and an error text when it is missing, foreign, cut or damaged.
    static std::optional<LandFile> Load(const std::string& path, std::string& error);
    /// The same of a file's bytes.
    static std::optional<LandFile> Decode(const std::string& bytes, std::string& error);

    /// Writes a file; returns an error text, empty on success.
    std::string Save(const std::string& path) const;
    std::string Encode() const;
};

}  // namespace Tarvik::Data
