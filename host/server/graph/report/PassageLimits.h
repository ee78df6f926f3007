// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/geo/CsvTable.h"

namespace Tarvik::Server {

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

}  // namespace Tarvik::Server
