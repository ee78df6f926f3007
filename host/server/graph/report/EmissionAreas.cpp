// SPDX-License-Identifier: MIT
// How much of a way lies in emission control areas: every piece of it is cut where it crosses an edge of an
// area, and a part counts when its middle lies inside by the even-odd rule (Shimrat 1962). Own method. Cost:
// the pieces of the way times the edges of all areas, some hundreds.
#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "host/geo/Sphere.h"
#include "host/server/graph/Gate.h"
#include "host/server/graph/PathShape.h"
#include "host/server/graph/report/RouteFiles.h"

namespace Tarvik::Server {

namespace {

using Ring = std::vector<GeoPoint>;

std::vector<Ring> RingsOf(const Data::CsvTable& table) {
    std::vector<Ring> rings;
    for (std::size_t i = 0; i < table.size(); ++i) {
        Ring corners = Data::ToLine(table.At(i, "ring"));
        if (corners.size() < 3) {
            throw std::runtime_error(table.At(i, "name") + " has less than three corners");
        }
        corners.push_back(corners.front());
        rings.push_back(PathShape::Densify(corners));
    }
    return rings;
}

/// The rings as the index of the land wants them: with a step over the date line instead of running past it.
std::vector<Ring> WithinATurn(std::vector<Ring> rings) {
    for (Ring& ring : rings) {
        for (GeoPoint& corner : ring) {
            corner.x = WrapLongitude(corner.x);
        }
    }
    return rings;
}

/// The shares of the piece a-b at which it crosses edges, with both ends.
std::vector<double> SharesOf(GeoPoint a, GeoPoint b, const std::vector<Ring>& rings) {
    std::vector<double> shares{0.0, 1.0};
    for (const Ring& ring : rings) {
        for (std::size_t i = 1; i < ring.size(); ++i) {
            if (const auto share = CrossingShare(a, b, ring[i - 1], ring[i])) {
                shares.push_back(*share);
            }
        }
    }
    std::sort(shares.begin(), shares.end());
    return shares;
}

}  // namespace

EmissionAreas::EmissionAreas(const Data::CsvTable& table)
    : rings_(RingsOf(table)), inside_(WithinATurn(rings_)) {}

double EmissionAreas::NmInside(const std::vector<GeoPoint>& way) const {
    double km = 0.0;
    for (std::size_t i = 1; i < way.size(); ++i) {
        const GeoPoint a = way[i - 1];
        const GeoPoint b = way[i];
        if (std::abs(b.x - a.x) > 180.0) {
            continue;  // the date line, drawn on both its sides
        }
        const auto at = [a, b](double share) {
            return GeoPoint{a.x + share * (b.x - a.x), a.y + share * (b.y - a.y)};
        };
        const std::vector<double> shares = SharesOf(a, b, rings_);
        for (std::size_t k = 1; k < shares.size(); ++k) {
            if (Hold(at(0.5 * (shares[k - 1] + shares[k])))) {
                km += GeodesicKm(at(shares[k - 1]), at(shares[k]));
            }
        }
    }
    return km / kKmPerNm;
}

}  // namespace Tarvik::Server
