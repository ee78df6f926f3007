// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "host/data/builder/CoastCorners.h"
#include "host/geo/Sphere.h"

namespace Tarvik::Data {

namespace {

using Grid = Server::DegreeGrid<2>;

GeoPoint Middle(int column, int row) {
    return {(column + 0.5) / Grid::kCellsPerDegree - 180.0, (row + 0.5) / Grid::kCellsPerDegree - 90.0};
}

}  // namespace

BusyWaters::BusyWaters(const std::vector<GeoPoint>& places, double nm)
    : cells_(static_cast<std::size_t>(Grid::kColumns) * Grid::kRows, 0) {
    const double reach = nm / Server::kNmPerDegree;
    for (const GeoPoint place : places) {
        const double wide = reach / std::max(0.05, std::cos(place.y * Server::kDegree));
        for (int row = Grid::RowOf(place.y - reach); row <= Grid::RowOf(place.y + reach); ++row) {
            for (double x = place.x - wide; x <= place.x + wide + 0.5; x += 0.5) {
                const int column = Grid::ColumnOf(Server::WrapLongitude(x));
                const bool near = Server::ArcNm(Middle(column, row), place) <= nm;
                if (near) {
                    cells_[static_cast<std::size_t>(row) * Grid::kColumns +
                           static_cast<std::size_t>(column)] = 1;
                }
            }
        }
        cells_[static_cast<std::size_t>(Grid::RowOf(place.y)) * Grid::kColumns +
               static_cast<std::size_t>(Grid::ColumnOf(Server::WrapLongitude(place.x)))] = 1;
    }
}

bool BusyWaters::Contains(GeoPoint p) const {
    return cells_[static_cast<std::size_t>(Grid::RowOf(p.y)) * Grid::kColumns +
                  static_cast<std::size_t>(Grid::ColumnOf(Server::WrapLongitude(p.x)))] != 0;
}

}  // namespace Tarvik::Data
