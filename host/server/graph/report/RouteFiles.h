// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/geo/CsvTable.h"
#include "host/geo/LandIndex.h"

namespace Tarvik::Server {

/// The emission control areas: waters in which ships burn other fuel. Kept apart from the network, since they
/// change no way.
class EmissionAreas {
  public:
    /// Reads a table with the columns `name` and `ring` (corners joined by great circles, closed implicitly);
    /// rings may run over land and must not overlap. Throws std::runtime_error with what is wrong.
    explicit EmissionAreas(const Data::CsvTable& table);

    bool Hold(GeoPoint place) const { return inside_.IsLand(place); }
    /// How many nautical miles of a way (pieces of at most a degree) lie inside.
    double NmInside(const std::vector<GeoPoint>& way) const;

  private:
    std::vector<std::vector<GeoPoint>> rings_;  ///< drawn, the first corner again at the end
    LandIndex inside_;
};

/// What of a ship a passage may be too small for, in metres; nothing where it is not known.
struct ShipSize {
    std::optional<double> draught;
    std::optional<double> beam;
    std::optional<double> length;

    bool IsKnown() const { return draught || beam || length; }
};

/// A measure of a ship in metres, above 0, with a point as decimal sign; nothing for any other text.
std::optional<double> ReadMetres(const std::string& text);

/// The largest ships that passages take.
class PassageLimits {
  public:
    /// A passage that a ship may not use.
    struct Refusal {
        std::string passage;  ///< its name
        std::string reason;   ///< "draught above 9.5 m"
    };

    /// Reads a table with the columns `passage`, `draught`, `beam` and `length` (metres; empty: any). Throws
    /// std::runtime_error with what is wrong.
    explicit PassageLimits(const Data::CsvTable& table);

    /// The passages that do not take such a ship, in the order of the table.
    std::vector<Refusal> RefusedTo(const ShipSize& ship) const;

  private:
    struct Limit {
        std::string passage;
        ShipSize largest;
    };
    std::vector<Limit> limits_;
};

/// What a report tells beside what the network knows; each is nothing where its file is not there.
struct RouteFiles {
    std::optional<EmissionAreas> areas;   ///< emission_areas.csv
    std::optional<PassageLimits> limits;  ///< passage_limits.csv

    /// Reads the files in the folder of the network's file. Throws std::runtime_error with what is wrong.
    static RouteFiles Beside(const std::string& networkFile);
};

}  // namespace Tarvik::Server
