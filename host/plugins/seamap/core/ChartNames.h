// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "host/plugins/seamap/core/Projection.h"
#include "host/ports/PlaceTable.h"

namespace Tarvik::Seamap {

/// An ocean, a sea, a gulf or a strait.
struct Water {
    const char* key = "";  ///< of its name in the language files, section "Waters"
    GeoPoint position;     ///< the middle of its name
    int miles = 0;         ///< how wide it is about there
};

/// All waters that have a name, the widest first.
std::span<const Water> Waters();

/// A name on the chart.
struct ChartName {
    enum class Kind { Ocean, Water, Port };

    Kind kind = Kind::Water;
    GeoPoint position{};  ///< the middle of a water's name, the place of a port
    std::string text{};
    std::string code{};   ///< UN/LOCODE of a port, empty when it has none
    std::string port{};   ///< a port's name in the dictionary, whatever the language
    std::string local{};  ///< its Chinese name, whatever the language; may be empty or the English one
    std::vector<std::string> aliases{};  ///< other names of a port, in no order
    std::string own{};                   ///< id of a port of the user's own, else empty
    double miles = 0;                    ///< a water's width
    bool isMajor = false;                ///< a port that is named before the others

    /// Whether the name is shown at all where a pixel is so many nautical miles wide: a water whose name fits
    /// into it, a port from some zoom on. `width` is the text's in pixels.
    bool IsShownAt(double milesPerPixel, double width) const;
    /// Whether a port's code stands behind its name.
    static bool HasCodeAt(double milesPerPixel);
};

/// Gives the text of a key of the language files in a section; empty when the language has none.
using NameTexts = std::function<std::string(const char* section, const char* key)>;

/// The names of all waters and ports in the language in force, in the order in which they find room: waters
/// by width, then the user's own ports, major ones, the others. A water without a text is left out. In a
/// language whose text "Chart"/"PORT_NAMES" is "namecn" a port has its Chinese name where it has one.
std::vector<ChartName> NamesOfChart(const NameTexts& texts, const std::vector<Ports::Place>& places);

}  // namespace Tarvik::Seamap
