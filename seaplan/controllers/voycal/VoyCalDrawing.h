// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/controllers/voycal/VoyCalRecords.h"

/// The calculator's lines, labels and view as records of the chart, without the chart.
namespace Tarvik::Seaplan {

/// All corners from the second port on, widened extent included. The extent's places are western, southern,
/// eastern and northern limit; without a corner it keeps its start, 180, 90, -180, -90.
struct VoyCalLines {
    std::vector<std::string> main;
    std::vector<std::string> east;  ///< what follows behind the first meeting with the date line
    bool crosses = false;
    Interface::TrvMapExtent extent;
};

/// The lines of all ways, cut at the date line.
VoyCalLines LinesOf(const std::vector<VoyCalPort>& ports);
/// Widens an extent of western, southern, eastern, northern limit.
void Widen(Interface::TrvMapExtent& extent, double x, double y);
/// Whether `current` holds `wanted`, both western, southern, eastern, northern limit.
bool Holds(const Interface::TrvMapExtent& current, const Interface::TrvMapExtent& wanted);
/// "%0.4f,%0.4f"
std::string CornerText(double x, double y);
/// A line in the calculator's style with an id of its own.
Interface::TrvMapLineParams VoyCalLine(std::vector<std::string> points);
/// A label of type "RPOINT" (a route point) or "RRPOINT" (an alternative).
Interface::TrvMapPointParams VoyCalLabel(const VoyCalPoint& point, bool isAlternative);

inline constexpr const char* kVoyCalLayer = "VOYAGE_LAYER";
inline constexpr const char* kVoyCalLineType = "VOYAGE";
inline constexpr const char* kVoyCalPointType = "RPOINT";
inline constexpr const char* kVoyCalAlternativeType = "RRPOINT";

}  // namespace Tarvik::Seaplan
