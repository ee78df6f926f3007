// SPDX-License-Identifier: MIT
#include "host/data/builder/BusyWaters.h"

#include <algorithm>
#include <cmath>

#include "host/geo/Sphere.h"

namespace Tarvik::Data {

namespace {

constexpr int kCellsPerDegree = 2;
constexpr int kColumns = 360 * kCellsPerDegree;
constexpr int kRows = 180 * kCellsPerDegree;

int ColumnOf(double x) {
    const int column = static_cast<int>(std::floor((Server::WrapLongitude(x) + 180.0) * kCellsPerDegree));
    return std::clamp(column, 0, kColumns - 1);
}

int RowOf(double y) {
    return std::clamp(static_cast<int>(std::floor((y + 90.0) * kCellsPerDegree)), 0, kRows - 1);
}

GeoPoint Middle(int column, int row) {
    return {(column + 0.5) / kCellsPerDegree - 180.0, (row + 0.5) / kCellsPerDegree - 90.0};
}

}  // namespace

BusyWaters::BusyWaters(const std::vector<GeoPoint>& places, double nm)
    : cells_(static_cast<std::size_t>(kColumns) * kRows, 0) {
    const double reach = nm / Server::kNmPerDegree;
    for (const GeoPoint place : places) {
        const double wide = reach / std::max(0.05, std::cos(place.y * Server::kDegree));
        for (int row = RowOf(place.y - reach); row <= RowOf(place.y + reach); ++row) {
            for (double x = place.x - wide; x <= place.x + wide + 0.5; x += 0.5) {
                const int column = ColumnOf(x);
                const bool near = Server::ArcNm(Middle(column, row), place) <= nm;
                if (near) {
                    cells_[static_cast<std::size_t>(row) * kColumns + static_cast<std::size_t>(column)] = 1;
                }
            }
        }
        cells_[static_cast<std::size_t>(RowOf(place.y)) * kColumns +
               static_cast<std::size_t>(ColumnOf(place.x))] = 1;
    }
}

bool BusyWaters::Contains(GeoPoint p) const {
    return cells_[static_cast<std::size_t>(RowOf(p.y)) * kColumns +
                  static_cast<std::size_t>(ColumnOf(p.x))] != 0;
}

}  // namespace Tarvik::Data
